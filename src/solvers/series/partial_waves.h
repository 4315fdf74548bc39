#pragma once

#include <cstddef>
#include <vector>

namespace lumivex {

/// Coefficients a_n (electric) and b_n (magnetic) of a partial-wave series, n = 1..N, dimensionless, with the
/// time factor exp(-i omega t). Structure of arrays; index 0 is unused and 0.
struct PartialWaves {
  std::vector<double> aRe{0.0};
  std::vector<double> aIm{0.0};
  std::vector<double> bRe{0.0};
  std::vector<double> bIm{0.0};

  PartialWaves() = default;
  explicit PartialWaves(int terms) { Resize(terms); }

  /// Gives the series terms n = 1..terms, all zero: earlier values are lost.
  void Resize(int terms) {
    const auto size = static_cast<std::size_t>(terms) + 1;
    aRe.assign(size, 0.0);
    aIm.assign(size, 0.0);
    bRe.assign(size, 0.0);
    bIm.assign(size, 0.0);
  }

  /// N, the last term.
  int Terms() const { return static_cast<int>(aRe.size()) - 1; }
};

}  // namespace lumivex
