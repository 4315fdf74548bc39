#include "solvers/functions/complex_pairs.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

using Complex = std::complex<double>;

TEST(ComplexPairs, AgreeWithComplexArithmetic) {
  for (const Complex z : {Complex(1.5, -0.3), {-2.0, 0.7}, {-1.0, -1.0}, {0.0, 2.0}, {0.0, -2.0}, {-3.0, 0.0}}) {
    const Complex w(0.4, -1.7);
    const auto expectNear = [&](const ComplexD& value, const Complex& wanted, const char* what) {
      EXPECT_NEAR(value.re, wanted.real(), 1e-14 * (1.0 + std::abs(wanted))) << what << " " << z;
      EXPECT_NEAR(value.im, wanted.imag(), 1e-14 * (1.0 + std::abs(wanted))) << what << " " << z;
    };
    ComplexD r;
    ComplexMul(z.real(), z.imag(), w.real(), w.imag(), r.re, r.im);
    expectNear(r, z * w, "product");
    ComplexDiv(z.real(), z.imag(), w.real(), w.imag(), r.re, r.im);
    expectNear(r, z / w, "quotient");
    ComplexExp(z.real(), z.imag(), r.re, r.im);
    expectNear(r, std::exp(z), "exp");
    ComplexSin(z.real(), z.imag(), r.re, r.im);
    expectNear(r, std::sin(z), "sin");
    ComplexCos(z.real(), z.imag(), r.re, r.im);
    expectNear(r, std::cos(z), "cos");
    ComplexPowReal(z.real(), z.imag(), 2.5, r.re, r.im);
    expectNear(r, std::pow(z, 2.5), "power");
    int k = 0;
    ComplexLogPow(z.real(), z.imag(), 2.5, r.re, r.im, k);
    expectNear({r.re * std::exp(k), r.im * std::exp(k)}, std::pow(z, 2.5), "scaled power");
  }
}

TEST(ComplexPairs, ResultsMayReplaceArguments) {
  double a = 3.0;
  double b = 4.0;
  ComplexMul(a, b, a, b, a, b);
  EXPECT_EQ(ComplexD(a, b), ComplexD(-7.0, 24.0));
  ComplexDiv(a, b, 3.0, 4.0, a, b);
  EXPECT_NEAR(a, 3.0, 1e-14);
  EXPECT_NEAR(b, 4.0, 1e-14);
}

TEST(ComplexPairs, LogarithmicPowerKeepsHugeResultsInRange) {
  double re = 0.0;
  double im = 0.0;
  int k = 0;
  ComplexLogPow(0.0, 1e3, 1000.0, re, im, k);
  EXPECT_EQ(k, 6907);
  EXPECT_NEAR(std::log(re) + k, 1000.0 * std::log(1e3), 1e-9);
  ComplexLogPow(0.0, 0.0, 3.0, re, im, k);
  EXPECT_EQ(re, 0.0);
  EXPECT_EQ(k, 0);
}

}  // namespace
}  // namespace lumivex
