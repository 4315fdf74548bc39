#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace lumivex {

/// n >= 2 and a power of two.
bool IsPowerOfTwo(std::int32_t n);

/// The smallest i, counted from 0, whose bit n has: the exponent of a power of two. n > 0.
int NumberOfBitsNeeded(std::int32_t n);

/// The low `bits` bits of index in reverse order.
std::int32_t ReverseBits(std::int32_t index, int bits);

/// Frequency of the output i of n, in cycles a sample: i/n up to n/2, -(n - i)/n above, 0 from n on.
double FrequencyOfIndex(std::int32_t n, std::int32_t i);

/// The discrete Fourier transform of one length, with the tables it takes:
///
/// X_k = sum_j x_j exp(+2 pi i j k / n), k = 0..n-1. The sign is that of fields with the time factor exp(-i w t), whose
/// phase grows along a ray. The inverse has exp(-2 pi i j k / n) / n. Radix 2, decimation in time (Cooley and Tukey
/// 1965). Any number of threads may use one plan.
class FourierPlan {
 public:
  /// @param n  a power of two.
  explicit FourierPlan(std::int32_t n);

  std::int32_t Length() const { return n_; }

  /// Arrays of n; the outputs may not be the inputs.
  void Transform(std::span<const double> realIn, std::span<const double> imagIn, std::span<double> realOut,
                 std::span<double> imagOut, bool inverse = false) const;

 private:
  std::int32_t n_;
  std::vector<std::int32_t> place_;    // where an input goes
  std::vector<double> cosine_, sine_;  // of the stages one after another: stage of blocks of 2h begins at h - 1
};

/// The transform of arrays of n.
///
/// @return false where n is no power of two: the outputs keep their values.
bool FourierTransform(std::int32_t n, std::span<const double> realIn, std::span<const double> imagIn,
                      std::span<double> realOut, std::span<double> imagOut, bool inverse);

}  // namespace lumivex
