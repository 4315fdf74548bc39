#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "solvers/functions/vector_lanes.h"

namespace lumivex {

/// Most spheres of a group: the lanes of the widest vector.
inline constexpr std::size_t MaxGroup = 8;

/// Spheres below this x or |m x| are outside the range of SolveEfficiencyGroup: the products of its fractions, which
/// grow as powers of 1/x within a block of terms, would leave the range of a double.
inline constexpr double SmallestLaneArgument = 0.1;

/// Spheres that share a vector, one a lane; a smaller group repeats its last sphere in the lanes left over.
struct EfficiencyGroup {
  alignas(64) double x[MaxGroup];
  alignas(64) double mRe[MaxGroup];
  alignas(64) double mIm[MaxGroup];
  alignas(64) double inverseX[4][MaxGroup];  ///< 1/x: real part, imaginary part, and the corrections of both,
  alignas(64) double inverseY[4][MaxGroup];  ///< 1/(mx) likewise.
  alignas(64) double NSTOP[MaxGroup];        ///< Terms, a whole number.
  alignas(64) double startX[MaxGroup];       ///< Where the downward recurrence of psi_n(x) starts,
  alignas(64) double startY[MaxGroup];       ///< and that of psi_n(mx).
};

/// Sums over the terms, a value a lane.
struct EfficiencySums {
  alignas(64) double extinction[MaxGroup];  ///< sum (2n+1) Re(a_n + b_n)
  alignas(64) double scattering[MaxGroup];  ///< sum (2n+1) (|a_n|^2 + |b_n|^2)
  alignas(64) double backRe[MaxGroup];      ///< sum (-1)^n (2n+1) (b_n - a_n)
  alignas(64) double backIm[MaxGroup];
  alignas(64) double asymmetry[MaxGroup];  ///< sum of the products of neighbouring coefficients
  // With an angle only:
  alignas(64) double S1Re[MaxGroup];  ///< S1 and S2 at the angle
  alignas(64) double S1Im[MaxGroup];
  alignas(64) double S2Re[MaxGroup];
  alignas(64) double S2Im[MaxGroup];
};

/// Numbers of a term that all spheres share.
struct TermWeights {
  double n;
  double twoNPlusOne;
  double same;   ///< (2n+1)/(n(n+1)), of Re(a_n conj b_n)
  double below;  ///< (n-1)(n+1)/n, of Re(a_(n-1) conj a_n + b_(n-1) conj b_n)
  double pi;     ///< (2n+1)/(n(n+1)) pi_n of the angle, and tau_n likewise; 0 without one
  double tau;
};

/// Memory of the groups of one call, kept from group to group.
struct EfficiencyWorkspace {
  std::vector<TermWeights> weights;  ///< Index n - 1.
  std::vector<double> functions;     ///< psi_n of both arguments, by block.

  bool atAngle = false;  ///< Whether S1 and S2 are summed too.

  /// Makes room for series of up to `terms` terms.
  /// @param angle  radians, where amplitudes are wanted.
  void Reserve(int terms, std::optional<double> angle = std::nullopt);
};

/// Spheres of a group under an instruction set: 2 (or 1), 4 or 8.
std::size_t GroupSize(InstructionSet set);

/// Sums the series of one group.
///
/// psi_n(mx) = P_n and psi_n(x) = c R_n come from the downward recurrence p_(n-1) = (2n+1)/y p_n - p_(n+1) in blocks
/// of terms, each with its own power of two as scale; c follows from the Wronskian once a block. With m P_n as common
/// factor the numerators are P_n' psi_n - m P_n psi_n' for a_n and m P_n' psi_n - P_n psi_n' for b_n, the
/// denominators the same with xi_n, and the two quotients of a term share one division.
void SolveEfficiencyGroup(const EfficiencyGroup& group, InstructionSet set, EfficiencyWorkspace& workspace,
                          EfficiencySums& sums);

}  // namespace lumivex
