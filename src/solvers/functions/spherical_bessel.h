#pragma once

#include <vector>

#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// j_n(x) and y_n(x) of real x, n = 0..last.
struct SphericalJY {
  std::vector<double> j;
  std::vector<double> y;
};

/// Spherical Bessel functions of real x > 0 for n = 0..NSTOP: y upward, j backward from SeriesStartIndex (Zhang and Jin
/// 1996, section 8.2). j is normalised by j_0 or, where sin x is small, by j_1.
///
/// @param SeriesStartIndex  start of the backward recurrence, above NSTOP; MSTA2(x, NSTOP, 15) is meant.
/// y beyond the range of a double stays at -1e300.
SphericalJY Besh(double x, int NSTOP, int SeriesStartIndex);

/// j_(n-1)(z) / j_n(z), n >= 1, by its continued fraction 1/z (2n + 1 - z^2/(2n + 3 - z^2/(2n + 5 - ...))) evaluated
/// forward as the product of two sequences of convergents (Lentz 1976). A convergent that vanishes is taken over two
/// steps at once.
///
/// @param z        not 0.
/// @param monitor  asked after every 65536 convergents; after a Stop the ratio is what was reached.
/// The number of convergents is about |z| - n where that is positive, and a few more.
ComplexD SphericalBesselRatio(int n, ComplexD z, RunMonitor& monitor);

/// j_n(z) of complex z, n >= 0, to double precision up to n = 200000: the ratio at n by the continued fraction, from
/// there ratios down to j_0, whose product P is kept with a decimal exponent of its own (steps of 1e-150). The result
/// is (sin z/z)/P, or (j_1(z))/P' with the product to order 1 where sin z is small.
///
/// @param result  result[0] the real part, result[1] the imaginary part; 0 where j_n underflows.
void SphericalBesselLentz(int n, ComplexD z, double (&result)[2], RunMonitor& monitor);

}  // namespace lumivex
