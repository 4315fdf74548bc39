#pragma once

#include <complex>

namespace lumivex {

/// Cylinder functions whose order is a complex number, as the poles of surface waves ask for them.

/// zeta1(x) = sqrt(pi x/2) H1_lambda(x) and its derivative by x.
struct OuterWave {
  std::complex<double> value, derivative;
};

/// For real x > 0 and orders near it in the first quadrant, |lambda - x| <= 1.2 x: the integral of exp(x sinh w -
/// lambda w) along a hyperbola through its valleys, by the trapezoidal rule, which is exact to 1e-11 here (Trefethen
/// and Weideman 2014). x from 10 on.
OuterWave OuterWaveOfOrder(const std::complex<double>& lambda, double x);

/// The two waves inside, by Debye's expansion in 1/lambda (Abramowitz and Stegun 1964, 9.3.7):
/// H1_lambda(z) = sqrt(2/(pi z sa)) exp(i chi) s1, H2_lambda(z) = sqrt(2/(pi z sa)) exp(-i chi) s2,
/// sa = sqrt(1 - (lambda/z)^2). b1 and b2 are the logarithmic derivatives of sqrt(pi z/2) H1, H2 at z.
struct InnerWaves {
  std::complex<double> sa, chi, s1, s2, b1, b2;
};

/// For |lambda| < |z|; to 5e-7 where z = 67 and lambda = 50, 2e-13 where they are twenty times as large.
InnerWaves InnerWavesOfOrder(const std::complex<double>& lambda, const std::complex<double>& z);

}  // namespace lumivex
