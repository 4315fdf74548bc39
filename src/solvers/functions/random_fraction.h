#pragma once

#include <random>

namespace lumivex {

/// The next number of 0 <= f < 1, the same on every machine: what the library's own distributions make of a generator
/// is each library's affair.
inline double NextFraction(std::mt19937_64& generator) {
  return static_cast<double>(generator() >> 11) * 0x1p-53;
}

}  // namespace lumivex
