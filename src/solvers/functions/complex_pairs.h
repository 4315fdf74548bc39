#pragma once

#include <complex>

namespace lumivex {

/// A complex number as the pair (re, im); converts both ways to `std::complex<double>`.
struct ComplexD {
  double re = 0.0;
  double im = 0.0;

  constexpr ComplexD() = default;
  constexpr ComplexD(double real, double imaginary) : re(real), im(imaginary) {}
  // Implicit on purpose: a formula may mix both spellings.
  constexpr ComplexD(const std::complex<double>& z) : re(z.real()), im(z.imag()) {}
  constexpr operator std::complex<double>() const { return {re, im}; }
  friend constexpr bool operator==(const ComplexD&, const ComplexD&) = default;
};

/// The complex helpers take real and imaginary parts by value and write the parts of the result, which may
/// therefore be the variables the arguments were read from.

/// r = sqrt(a a + b b); overflows where a square does.
void ComplexAbs(double a, double b, double& r);
/// (re, im) = (a, b) + (c, d).
void ComplexAdd(double a, double b, double c, double d, double& re, double& im);
/// (re, im) = (a, b) - (c, d).
void ComplexSub(double a, double b, double c, double d, double& re, double& im);
/// (re, im) = (a, b) (c, d).
void ComplexMul(double a, double b, double c, double d, double& re, double& im);
/// (re, im) = (a, b) / (c, d), as a product with the conjugate over its square. Division by (0, 0) is a
/// floating-point division by zero.
void ComplexDiv(double a, double b, double c, double d, double& re, double& im);
/// (re, im) = e^a (cos b, sin b).
void ComplexExp(double a, double b, double& re, double& im);
/// (re, im) = (a, b) to the real power p, principal branch, through the polar form.
void ComplexPowReal(double a, double b, double p, double& re, double& im);
/// (a, b) to the real power p = (re, im) e^k, principal branch: k is the integer part of p ln |(a, b)|, kept
/// apart so that very large powers do not overflow. (0, 0) gives (0, 0) and k = 0.
void ComplexLogPow(double a, double b, double p, double& re, double& im, int& k);
/// Sine of a + i b: re = sin a (e^b + e^-b) / 2, im = cos a (e^b - e^-b) / 2.
void ComplexSin(double a, double b, double& re, double& im);
/// Cosine of a + i b: re = cos a (e^b + e^-b) / 2, im = -sin a (e^b - e^-b) / 2.
void ComplexCos(double a, double b, double& re, double& im);

}  // namespace lumivex
