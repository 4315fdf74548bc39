#pragma once

#include <cmath>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

/// A complex number with an exponent of its own, value = mantissa 2^(512 exponent).
struct WideComplex {
  ComplexD mantissa;
  int exponent = 0;

  /// Brings the mantissa back to a size whose products do not overflow.
  void Renew() {
    constexpr double up = 0x1p512, down = 0x1p-512, high = 0x1p256, low = 0x1p-256;
    const double size = std::fabs(mantissa.re) + std::fabs(mantissa.im);
    if (size > high) {
      mantissa = down * mantissa;
      ++exponent;
    } else if (size < low && size > 0.0) {
      mantissa = up * mantissa;
      --exponent;
    }
  }

  /// The number itself: 0 where it is too small for a double, and far beyond the largest one infinite.
  ComplexD Value() const {
    if (exponent == 0) return mantissa;
    return exponent < 0 ? (exponent == -1 ? 0x1p-512 * mantissa : ComplexD()) : std::exp2(512.0 * exponent) * mantissa;
  }
};

/// e^(2 i z) as a number of any size, for Im z >= 0.
inline WideComplex WaveThere(const ComplexD& z) {
  const double log2 = -2.0 * z.im * 1.44269504088896341;
  WideComplex wave;
  wave.exponent = static_cast<int>(std::floor(log2 / 512.0));
  const double size = std::exp2(log2 - 512.0 * wave.exponent);
  wave.mantissa = {size * std::cos(2.0 * z.re), size * std::sin(2.0 * z.re)};
  wave.Renew();
  return wave;
}

}  // namespace lumivex
