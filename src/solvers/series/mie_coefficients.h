#pragma once

#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Most terms of a series, and the bound of |m x|.
inline constexpr int MaxSeriesTerms = 200000;

/// Terms beyond x + 4 x^0.3333 in the Mie series. The usual margin is 2; the wider one is deliberate and, like
/// the exponent, part of the results.
inline constexpr int MieSeriesMargin = 20;

/// Terms of a partial-wave series: x + 4 x^0.3333 + margin, to the nearest whole number, ties to even.
///
/// @param x  size parameter; where the result is not a number or above 1e9, it is 1e9.
int NStopEstimate(double x, int margin = MieSeriesMargin);

/// Why a sphere cannot be computed.
enum class MieRefusal {
  None,
  SizeTooLarge,   ///< |m x| is at least MaxSeriesTerms, or not a number.
  SeriesTooLong,  ///< NMX is above MaxSeriesTerms.
};

/// The numbers of terms of one Mie calculation.
struct MieTruncation {
  int NSTOP = 0;  ///< Terms summed.
  int NMX = 0;    ///< Terms kept room for: int(max(estimate, |m x|)) + 20; NSTOP for the convergence graph.
  int start = 0;  ///< Row where the downward recurrence of the logarithmic derivative starts.
};

/// @param convergence   sum 1.2 times the estimate, rounded, to show the sum running past its stop.
/// @param classicStart  start the recurrence at NMX, where 20 rows do not damp the start for large |m x|: shows what a
///                      short start costs, 4 % of Qback at x = 1000 and a factor at x = 10000 (m = 1.33).
MieTruncation ComputeMieTruncation(double x, double mRe, double mIm, bool convergence, bool classicStart);

/// Whether a sphere lies within the limits; to be asked before MieCoefficients.
MieRefusal CheckMieLimits(double x, double mRe, double mIm, bool convergence = false);

/// The Mie coefficients of a homogeneous sphere, after Bohren and Huffman 1983, appendix A:
///
/// a_n = ((D_n(mx)/m + n/x) psi_n - psi_(n-1)) / ((D_n(mx)/m + n/x) xi_n - xi_(n-1)), b_n with m D_n in place of
/// D_n/m, xi_n = psi_n - i chi_n. Departures from the published algorithm:
/// - D_n starts at `truncation.start`, not at a fixed distance above |m x|.
/// - psi_n goes upward only while n <= x. Beyond, where the upward recurrence drowns psi_n in chi_n, D_n(x) goes
///   downward, psi_n = psi_(n-1) / (D_n(x) + n/x), and the numerator is psi_n (D_n(mx)/m - D_n(x)): no digits are
///   lost for x << 1, where a_1 is of the order of x^3.
/// - The series ends where |chi_n| exceeds 1e100: a_n < 1e-190 from there is 0, and nothing overflows.
///
/// @param x          size parameter, > 0.
/// @param mRe, mIm   relative refractive index m = mRe + i mIm, absorption for mIm > 0; mIm of exactly 0 takes
///                   the real path. Not (0, 0).
/// @return a_n, b_n for n = 1..NSTOP.
PartialWaves MieCoefficients(double x, double mRe, double mIm, const MieTruncation& truncation);

}  // namespace lumivex
