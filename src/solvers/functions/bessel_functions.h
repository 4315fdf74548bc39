#pragma once

#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"

namespace lumivex {

/// I_k(z), the modified Bessel functions of complex argument, by backward recurrence from MSTA2(|z|, n, 15) with the
/// normalisation exp(z) = I_0 + 2 sum I_k (Zhang and Jin 1996, section 6.2; the argument is taken with Re z >= 0, odd
/// orders change their sign with z).
///
/// @param n              last order; 0 counts as 1. Cut to the order below which |I_k| falls under 1e-200.
/// @param BesselIValues  I_k, k = 0..n; resized to n + 1, orders beyond the cut are 0.
/// @return the last order computed.
/// exp(z) overflows for Re z beyond 709.
int BesselI(int n, ComplexD z, std::vector<ComplexD>& BesselIValues);

/// J_k(x) and Y_k(x) of real x with their derivatives, k = 0..highest order.
struct RealBessel {
  std::vector<double> RealBesselJ;
  std::vector<double> RealBesselY;
  std::vector<double> derivativeJ;
  std::vector<double> derivativeY;

  int Last() const { return static_cast<int>(RealBesselJ.size()) - 1; }
};

/// J_k and Y_k, k = 0..n (Zhang and Jin 1996, section 5.2). Departures:
/// - Y_1 from its own series of J_(2k+1) (Abramowitz and Stegun 1964, 9.1.88): the quotient by J_0 fails near the zeros
/// of J_0.
/// - From x = 30 the orders 0 and 1 come from the asymptotic expansion of Hankel, and J goes upward while the order
///   stays below x: for small n the cost no longer grows with x.
/// - Y_k beyond the range of a double stays at -1e300.
///
/// @param x  >= 0; below 1e-100: J_0 = 1, other J_k = 0, Y_k = -1e300, derivatives 0 but J_1' = 1/2, Y_k' = 1e300.
/// @param n  last order; below 1 counts as 1. Cut to the order below which J_k falls under 1e-200.
/// @param result  keeps its memory from call to call.
void BesselJY(double x, int n, RealBessel& result);

/// J_1(x) alone, x >= 0: the series for x below 8, BesselJY beyond.
double BesselJ1(double x);

/// J_0, J_1, Y_0 and Y_1.
struct BesselPair {
  double J0 = 1.0, J1 = 0.0, Y0 = -1e300, Y1 = -1e300;
};

/// J_0, J_1, Y_0 and Y_1 with 8 digits by one backward series of L pairs of orders,
/// L = D/15 + (2 + n) x/6 + (D^2 x/7)^(1/3), D = -ln 1e-12, at least 1 and never too few for x.
///
/// @param x  >= 0; below 1e-100 as BesselJY.
/// @param n  0 or 1: the higher of the orders that must be right where the series is kept short.
BesselPair BesselSeries(double x, int n);

}  // namespace lumivex
