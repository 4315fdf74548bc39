#pragma once

#include <vector>

#include "solvers/functions/wide_complex.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// In which direction the functions of a complex argument are carried.
enum class WaveRecursion { Upwards, Downwards, Automatic };

/// The travelling waves xi1 = psi - i chi (outgoing) and xi2 = psi + i chi of z = m x, n = 0..terms, as the surfaces of
/// layers need them: no ratio of them overflows.
struct RiccatiWaves {
  std::vector<ComplexD> L;     ///< xi1'/xi1
  std::vector<ComplexD> d;     ///< xi1'/xi1 - xi2'/xi2 = 2i/(xi1 xi2)
  std::vector<WideComplex> Y;  ///< xi1/xi2

  /// @param x          size parameter, > 0.
  /// @param m          refractive index with m.im >= 0, not 0; with m.im of exactly 0 the direction makes no
  /// difference.
  /// @param recursion  Upwards loses digits as exp(2 Im z): 4e-13 at Im z = 10, 5e-8 at 40, all of them at 60.
  /// Downwards, by
  ///                   psi'/psi, holds everywhere. Automatic goes upwards for Im z < 1.
  RiccatiWaves(double x, const ComplexD& m, int terms, WaveRecursion recursion);
};

}  // namespace lumivex
