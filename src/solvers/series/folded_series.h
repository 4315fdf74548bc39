#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "solvers/functions/vector_lanes.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// One term of a series in pi_n as the inner loop of the angular sum reads it, from first to last in one stream.
struct FoldedTerm {
  double factor;                 ///< alpha_n, or (2n+1)/(n(n+1)) in the series by differences.
  double step;                   ///< n + 1, read by the series by differences only.
  std::array<double, 4> weight;  ///< Of pi_n in Re S1, Im S1, Re S2, Im S2.
};

/// The series a_n pi_n + b_n tau_n as a series in pi_n alone, in two forms (see SumAngularSeries).
///
/// The number of terms is even: a zero term fills up.
class FoldedSeries {
 public:
  explicit FoldedSeries(const PartialWaves& waves);

  /// For the scaled recurrence: weights times kappa_n, where pi_n = kappa_n p_n.
  const std::vector<FoldedTerm>& Scaled() const { return scaled_; }
  /// For the recurrence by differences.
  const std::vector<FoldedTerm>& Differences() const { return differences_; }
  /// p_1 = 1 / kappa_1.
  static double FirstScaled();
  std::size_t Terms() const { return differences_.size(); }

 private:
  std::vector<FoldedTerm> scaled_;
  std::vector<FoldedTerm> differences_;
};

/// Angle pairs (theta, pi - theta) of one call of the inner loop.
inline constexpr std::size_t PairBlock = 16;

/// S1 and S2 at PairBlock angles and their mirrors, in the order Re S1, Im S1, Re S2, Im S2.
struct PairSums {
  alignas(64) double direct[4][PairBlock];
  alignas(64) double mirrored[4][PairBlock];
};

/// Sums one block of angle pairs.
///
/// @param series       the terms.
/// @param cosines      cos(theta) >= 0 of the pairs; the series by differences takes 1 - cos(theta) in its place.
/// @param differences  which form of the series; the recurrence by differences is for angles near 0.
/// @param count        pairs wanted, 1..PairBlock: the others may be left out. All PairBlock values are read.
void SumPairBlock(const FoldedSeries& series, const double* cosines, bool differences, std::size_t count,
                  InstructionSet set, PairSums& sums);

}  // namespace lumivex
