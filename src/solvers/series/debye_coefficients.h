#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Terms beyond x + 4 x^0.3333 in the Debye series.
inline constexpr int DebyeSeriesMargin = 2;

/// Reflection and transmission of one partial wave at the surface of a sphere (1 is inside, 2 outside): TE belongs to
/// b_n, TM to a_n. The products of transmission into and out of the sphere are T = T21 T12.
struct DebyeSurface {
  ComplexD R121TE, R212TE, TTE;
  ComplexD R121TM, R212TM, TTM;
};

/// The surface coefficients of n = 1..terms for a sphere of size x and index m = mRe + i mIm (Hovenac and Lock 1992).
///
/// With xi1 = psi + i chi, xi2 = psi - i chi (chi_0 = -cos), DTE = xi1'(x) xi2(z) - m xi1(x) xi2'(z), z = m x:
/// R121 = -(xi1'(x) xi1(z) - m xi1(x) xi1'(z))/DTE, R212 = -(xi2'(x) xi2(z) - m xi2(x) xi2'(z))/DTE,
/// T = -4 m/DTE^2; TM has 1/m in place of m. Departures from the usual evaluation:
/// - With absorption, or m below 1, psi_n(z) comes from the downward ratio D_n = psi_n'/psi_n and xi1 from the upward
///   ratio xi1_n'/xi1_n, each in its stable direction; V = xi1/psi is carried along with an exponent of its own. The
///   upward recurrence of j_n(z) would lose half of the digits at x mIm = 25 and all of them at 60. Nothing overflows,
///   whatever the absorption: T and R121 underflow to 0.
/// - For real m >= 1 psi and chi of x and z go upward.
/// - Where the product of |chi_n(x)| and |chi_n(z)| exceeds 1e120 the wave misses the sphere: R212 = 1, T = 0.
/// - A TE numerator whose parts both exceed 1e8 times those of numerator plus denominator gives R212TE = 1 exactly. The
///   parts are compared with their signs, and TM has no such rule.
class DebyeSurfaces {
 public:
  /// @param byRatio  take each D_n(z) from the continued fraction instead of the recurrence: slow (the time grows with
  ///                 the square of x), as a check of the recurrence.
  /// @param monitor  asked after a bounded number of terms; after a Stop Terms() says how far it came.
  DebyeSurfaces(double x, double mRe, double mIm, int terms, bool byRatio, RunMonitor& monitor);

  /// Terms computed, n = 1..Terms().
  int Terms() const { return static_cast<int>(surfaces_.size()) - 1; }
  const DebyeSurface& operator[](int n) const { return surfaces_[static_cast<std::size_t>(n)]; }

 private:
  std::vector<DebyeSurface> surfaces_;  // Index 0 unused.
};

/// The series of the selected terms p: a_n = -1/2 (R212 - 1) for p = 0, -1/2 T R121^(p-1) for p >= 1, summed over p by
/// Horner's scheme, so that one angular sum serves any number of terms.
///
/// @param selected     selected[p] is not 0 for the terms wanted.
/// @param first, last  partial waves wanted; others are 0. Cut to 1..surfaces.Terms().
/// @param monitor      asked after a bounded number of products; after a Stop the remaining waves are 0.
PartialWaves SumDebyeTerms(const DebyeSurfaces& surfaces, std::span<const int> selected, int first, int last,
                           RunMonitor& monitor);

}  // namespace lumivex
