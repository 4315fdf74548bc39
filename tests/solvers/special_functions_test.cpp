// Special functions against 30-digit values (mpmath) and each other.

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <complex>
#include <vector>

#include "solvers/functions/airy_function.h"
#include "solvers/functions/bessel_functions.h"
#include "solvers/functions/bessel_start.h"
#include "solvers/functions/factorials.h"
#include "solvers/functions/inverse_circular.h"
#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/spherical_bessel.h"

namespace lumivex {
namespace {

constexpr double pi = 3.14159265358979324;
constexpr int watched = FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID;

void ExpectNear(double value, double expected, double relative, double scale = 0.0) {
  EXPECT_NEAR(value, expected, relative * std::max(std::fabs(expected), scale));
}

TEST(SpecialFunctions, FactorialsAndTheirLogarithms) {
  EXPECT_EQ(Factorial(0), 1.0);
  EXPECT_EQ(Factorial(1), 1.0);
  EXPECT_EQ(Factorial(10), 3628800.0);
  for (const int n : {0, 1, 2, 20, 170}) {
    double frac = -1.0;
    double whole = -1.0;
    LogFactorial(n, frac, whole);
    ExpectNear(frac + whole, std::lgamma(n + 1.0), 1e-14, 1.0);
    EXPECT_EQ(whole, std::floor(whole));
    EXPECT_TRUE(frac >= 0.0 && frac < 1.0) << n;
  }
}

// Rounding leaves sin i just above 1 at the edge of a rainbow: that must neither fail nor divide by zero.
TEST(SpecialFunctions, InverseSineAndCosineAtAndBeyondTheirEnds) {
  std::feclearexcept(FE_ALL_EXCEPT);
  for (const double x : {1.0, 1.0 + 1e-15, 7.0}) {
    EXPECT_EQ(ArcSin(x), pi / 2);
    EXPECT_EQ(ArcSin(-x), -pi / 2);
    EXPECT_EQ(ArcCos(x), 0.0);
    EXPECT_EQ(ArcCos(-x), pi);
  }
  EXPECT_EQ(ArcCos(0.0), pi / 2);
  for (double x = -0.999999; x < 1.0; x += 0.0317) {
    EXPECT_NEAR(ArcSin(x), std::asin(x), 1e-15);
    EXPECT_NEAR(ArcCos(x), std::acos(x), 2e-15);
  }
  EXPECT_EQ(std::fetestexcept(watched), 0);
}

struct BesselCase {
  double x;
  int k;
  double J, Y, slopeJ, slopeY;
};

TEST(SpecialFunctions, BesselFunctionsOfRealArgument) {
  const BesselCase cases[] = {
      {0.01, 0, 0.99997500015624957, -3.0054556370836459, -0.0049999375002604162, 63.678596282060655},
      {0.01, 3, 2.0833203125325522e-8, -5093021.8417137367, 6.2499348960611978e-6, 1527893819.8003202},
      // At a zero of J_0 the usual quotient for Y_1 has no digits left.
      {2.404825557695773, 0, 0.0, 0.50992438344847907, -0.51914749728946676, -0.1027466824382596},
      {2.404825557695773, 1, 0.51914749728946676, 0.1027466824382596, -0.21587740350984022, 0.46719917117291252},
      {7.5, 5, 0.28347390516255046, 0.17541805694546512, -0.16515792347067829, 0.19723492453121097},
      {29.9, 1, -0.10991681070937226, 0.096014829790609251, -0.094135002550698825, -0.11147771534253168},
      {30.1, 1, -0.12637268272143993, 0.072033663694005138, -0.069902944326628553, -0.12751801275829749},
      {30.1, 40, 0.00039515106837321385, -30.65949099601417, 0.0003536804570333649, 26.082419073211353},
      {100, 4, 0.026105809447725282, -0.075430119923762302, 0.075239969342422932, 0.026462991484711404},
      {1000, 2, -0.024777229528605996, -0.004765486640207517, 0.0047778663661467359, -0.024774800319071364},
      {1e5, 1, 0.0018467575628825677, 0.0017192103500882563, -0.001719219583811601, 0.0018467489667615632},
  };
  RealBessel bessel;
  for (const auto& c : cases) {
    SCOPED_TRACE("x = " + std::to_string(c.x) + ", order " + std::to_string(c.k));
    BesselJY(c.x, c.k, bessel);
    const auto k = static_cast<std::size_t>(c.k);
    const double scale = c.k > c.x ? 0.0 : std::sqrt(1.0 / c.x) * 0.5;
    ExpectNear(bessel.RealBesselJ[k], c.J, 1e-13, scale);
    ExpectNear(bessel.RealBesselY[k], c.Y, 1e-13, scale);
    ExpectNear(bessel.derivativeJ[k], c.slopeJ, 1e-13, scale);
    ExpectNear(bessel.derivativeY[k], c.slopeY, 1e-13, scale);
    if (c.k == 1) {
      ExpectNear(BesselJ1(c.x), c.J, 1e-13, scale);
    }
    const BesselPair pair = BesselSeries(c.x, 1);
    if (c.k == 1 && c.x < 1e4) {
      EXPECT_NEAR(pair.J1, c.J, 1e-8);
      EXPECT_NEAR(pair.Y1, c.Y, 1e-8);
    }
  }
}

TEST(SpecialFunctions, BesselFunctionsOfNothingAndOfHighOrder) {
  std::feclearexcept(FE_ALL_EXCEPT);
  RealBessel bessel;
  BesselJY(0.0, -1, bessel);
  EXPECT_EQ(bessel.Last(), 1);
  EXPECT_EQ(bessel.RealBesselJ[0], 1.0);
  EXPECT_EQ(bessel.RealBesselY[0], -1e300);
  EXPECT_EQ(bessel.RealBesselY[1], -1e300);
  // Orders beyond the range of a double are cut, and Y stops growing.
  for (const double x : {1e-3, 1.0, 50.0}) {
    BesselJY(x, 900, bessel);
    EXPECT_LE(bessel.Last(), 900);
    for (int k = 0; k <= bessel.Last(); ++k) {
      const auto i = static_cast<std::size_t>(k);
      EXPECT_TRUE(std::isfinite(bessel.RealBesselJ[i]) && std::isfinite(bessel.RealBesselY[i])) << x << ", " << k;
    }
  }
  EXPECT_EQ(std::fetestexcept(watched), 0);
}

// Wronskian J_(k+1) Y_k - J_k Y_(k+1) = 2/(pi x) (Abramowitz and Stegun 1964, 9.1.16): every order of both kinds
// against its neighbour, upward and downward, up to where Y leaves the range of a double.
TEST(SpecialFunctions, BesselFunctionsOfBothKindsHaveOneScale) {
  RealBessel bessel;
  for (const double x : {1e-8, 1e-3, 0.5, 1.0, 3.0, 7.9, 8.1, 29.9, 30.1, 47.0, 300.0, 5000.0})
    for (const int n : {1, 2, 7, 40, 200, 400}) {
      BesselJY(x, n, bessel);
      int held = 0;
      for (std::size_t k = 0; k + 1 < bessel.RealBesselJ.size(); ++k) {
        const auto& J = bessel.RealBesselJ;
        const auto& Y = bessel.RealBesselY;
        if (std::fabs(Y[k + 1]) > 1e290 || std::fabs(J[k + 1]) < 1e-290) break;
        ++held;
        ASSERT_NEAR(pi * x / 2 * (J[k + 1] * Y[k] - J[k] * Y[k + 1]), 1, 1e-9) << "x " << x << ", order " << k;
        // 9.1.27: 2 J_k' = J_(k-1) - J_(k+1).
        if (k == 0) continue;
        const double size = std::fabs(J[k - 1]) + std::fabs(J[k + 1]),
                     sizeY = std::fabs(Y[k - 1]) + std::fabs(Y[k + 1]);
        ASSERT_NEAR(bessel.derivativeJ[k], (J[k - 1] - J[k + 1]) / 2, 1e-10 * size) << "x " << x << ", order " << k;
        ASSERT_NEAR(bessel.derivativeY[k], (Y[k - 1] - Y[k + 1]) / 2, 1e-10 * sizeY) << "x " << x << ", order " << k;
      }
      EXPECT_GT(held, 0) << "x " << x << ", n " << n;
      if (n == 1 && x < 1000) {
        const BesselPair pair = BesselSeries(x, 1);
        EXPECT_NEAR(pi * x / 2 * (pair.J1 * pair.Y0 - pair.J0 * pair.Y1), 1, 1e-7) << x;
        EXPECT_NEAR(BesselJ1(x), bessel.RealBesselJ[1], 1e-14) << x;
      }
    }
}

struct ComplexCase {
  int n;
  double re, im, valueRe, valueIm;
};

TEST(SpecialFunctions, ModifiedBesselFunctions) {
  const ComplexCase cases[] = {
      {0, 3, 4, -3.3924877882755196, -1.3239458916287265},
      {5, 3, 4, 0.53390739935395422, -0.37819753459078045},
      {3, -2, 1, 0.017175062003390232, 0.28103966684576791},
      // Normalised with even orders alone, values of an imaginary argument would be arbitrary.
      {2, 0, 5, -0.046565116277752216, 0.0},
      {0, 1, 0, 1.2660658777520083, 0.0},
      {30, 10, 1, -8.9734037723517964e-12, -5.3076450408673642e-14},
      {1, 50, -80, -1.2231692568317488e+20, 1.737766630712995e+20},
  };
  std::vector<ComplexD> values;
  for (const auto& c : cases) {
    BesselI(c.n, {c.re, c.im}, values);
    const ComplexD& I = values[static_cast<std::size_t>(c.n)];
    const double modulus = std::hypot(c.valueRe, c.valueIm);
    EXPECT_NEAR(I.re, c.valueRe, 1e-13 * modulus) << c.n;
    EXPECT_NEAR(I.im, c.valueIm, 1e-13 * modulus) << c.n;
  }
  BesselI(3, {0.0, 0.0}, values);
  EXPECT_EQ(values[0], ComplexD(1.0, 0.0));
  EXPECT_EQ(values[3], ComplexD());
}

TEST(SpecialFunctions, SphericalBesselFunctionsOfRealArgument) {
  struct Case {
    int n;
    double x, j, y;
  };
  const Case cases[] = {
      {0, 10, -0.054402111088936981, 0.083907152907645245},
      {20, 10, 2.3083719613194687e-6, -1211.2106053526033},
      {5, 0.5, 2.9774668754574456e-6, -61327.563166980636},
      // j_0 vanishes here: normalised with it, all orders would be noise.
      {10, 3.141592653589793, 5.4855465901420967e-6, -2897.478169466569},
      {300, 1000, 0.00062051628939931449, 0.00081450421444664911},
      {1000, 1000, 0.0016913670667879768, -0.003211559809045759},
      {1041, 1000, 3.2277412705482965e-7, -5.3279750605474957},
  };
  for (const auto& c : cases) {
    const int last = std::max(c.n, static_cast<int>(c.x + 4 * std::cbrt(c.x) + 2));
    const SphericalJY f = Besh(c.x, last, MSTA2(c.x, last, 15));
    ExpectNear(f.j[static_cast<std::size_t>(c.n)], c.j, 1e-12);
    ExpectNear(f.y[static_cast<std::size_t>(c.n)], c.y, 1e-12);
  }
  // Far above x nothing leaves the range of a double.
  std::feclearexcept(FE_ALL_EXCEPT);
  const SphericalJY f = Besh(0.01, 300, MSTA2(0.01, 300, 15));
  EXPECT_TRUE(std::ranges::all_of(f.j, [](double v) { return std::isfinite(v); }));
  EXPECT_TRUE(std::ranges::all_of(f.y, [](double v) { return std::isfinite(v); }));
  EXPECT_EQ(std::fetestexcept(watched), 0);
}

// Wronskian j_n y_(n-1) - j_(n-1) y_n = 1/x^2 (Abramowitz and Stegun 1965, 10.1.31): the scale of j against that of y,
// where j_0 normalises, where j_1 does, and where orders grow on the way down.
TEST(SpecialFunctions, SphericalBesselFunctionsOfBothKindsHaveOneScale) {
  for (const double x : {1e-3, 0.009, 0.02, 0.5, 1.0, 2.0, 3.2, 6.283185307179586, 9.5, 30.0, 31.4159265, 300.0}) {
    const int last = static_cast<int>(x + 4 * std::cbrt(x) + 2);
    for (const int start : {last + 5, MSTA2(x, last, 15), last + 400}) {
      const SphericalJY f = Besh(x, last, std::max(start, MSTA2(x, last, 15)));
      for (int n = 1; n <= last; ++n) {
        const auto k = static_cast<std::size_t>(n);
        if (std::fabs(f.y[k]) > 1e290) break;
        EXPECT_NEAR(x * x * (f.j[k] * f.y[k - 1] - f.j[k - 1] * f.y[k]), 1, 1e-10) << "x " << x << " n " << n;
      }
    }
  }
  SilentMonitor monitor;
  for (const ComplexD z : {ComplexD(0.3, 0.1), ComplexD(3.14159, 0.0), ComplexD(40.0, -3.0), ComplexD(5.0, 60.0)})
    for (const int n : {1, 2, 3, 10, 60}) {
      double below[2], at[2], above[2];
      SphericalBesselLentz(n - 1, z, below, monitor);
      SphericalBesselLentz(n, z, at, monitor);
      SphericalBesselLentz(n + 1, z, above, monitor);
      const std::complex<double> sum(below[0] + above[0], below[1] + above[1]);
      const auto expected = (2.0 * n + 1.0) / std::complex<double>(z.re, z.im) * std::complex<double>(at[0], at[1]);
      EXPECT_LT(std::abs(sum - expected), 1e-10 * (std::abs(expected) + std::hypot(below[0], below[1])))
          << z.re << " + i " << z.im << ", n " << n;
    }
}

TEST(SpecialFunctions, SphericalBesselFunctionsByContinuedFraction) {
  const ComplexCase cases[] = {
      {0, 30, 20, -4955387.6856472725, 4550882.3708807348},
      {5, 30, 20, -4753808.4639446404, -2453930.7999479242},
      {100, 30, 20, 8.321743840718074e-35, -7.578462153246568e-35},
      {300, 900, 0, 0.0010872983410033823, 0.0},
      {1000, 900, 0, 1.6789073854356372e-17, 0.0},
      {7, 3, -2, -0.0027689538649408031, 0.0019608812785227455},
      {20, 1500, 10, -7.3306869450985838, 0.2652741621898245},
      {3, 3.141592653589793, 0, 0.16546313031420165, 0.0},
      {1, 7.725251836937707, 0, 0.0, 0.0},  // a zero of j_1
  };
  SilentMonitor monitor;
  std::feclearexcept(FE_ALL_EXCEPT);
  for (const auto& c : cases) {
    double value[2];
    SphericalBesselLentz(c.n, {c.re, c.im}, value, monitor);
    const double modulus = std::max(std::hypot(c.valueRe, c.valueIm), c.n == 1 ? 0.1 : 0.0);
    EXPECT_NEAR(value[0], c.valueRe, 1e-12 * modulus) << c.n << " of " << c.re;
    EXPECT_NEAR(value[1], c.valueIm, 1e-12 * modulus) << c.n << " of " << c.re;
  }
  double value[2];
  SphericalBesselLentz(200000, {1.0, 1.0}, value, monitor);  // 10^-1000000
  EXPECT_EQ(std::hypot(value[0], value[1]), 0.0);
  EXPECT_EQ(std::fetestexcept(watched), 0);
}

// The continued fraction and the downward recurrence know nothing of each other.
TEST(SpecialFunctions, RatiosAgreeWithTheRecurrence) {
  SilentMonitor monitor;
  for (const ComplexD& z : {ComplexD(2000.0, 0.0), ComplexD(1500.0, 40.0), ComplexD(199000.0, 5.0)}) {
    const int last = z.re > 1e5 ? 200000 : 2100;
    const int start = LogarithmicDerivativeStart(last, std::hypot(z.re, z.im));
    const auto D = ComputeLogarithmicDerivative(1.0, z.re, z.im, start, 0, last);
    for (const int n : {1, 7, last / 2, last - 3, last}) {
      const ComplexD ratio = SphericalBesselRatio(n, z, monitor);
      const double square = z.re * z.re + z.im * z.im;
      const ComplexD expected(D.re[static_cast<std::size_t>(n)] + n * z.re / square,
                              D.im[static_cast<std::size_t>(n)] - n * z.im / square);
      const double size = 1.0 + expected.re * expected.re + expected.im * expected.im;
      EXPECT_NEAR(ratio.re, expected.re, 1e-10 * size) << n << " of " << z.re;
      EXPECT_NEAR(ratio.im, expected.im, 1e-10 * size) << n << " of " << z.re;
    }
  }
}

TEST(SpecialFunctions, AiryFunctionOnItsFiveRangesAndAcrossThem) {
  struct Case {
    double z, Ai, dAi;
  };
  const Case cases[] = {
      {-30, -0.087968188456842163, 1.2286206026374851},      {-10.5, -0.3119260350510506, 0.090957487390681673},
      {-3.84, -0.19114092828497537, -0.70821860204418097},   {-3.83, -0.19818599561487376, -0.70075307839967553},
      {-1, 0.53556088329235212, -0.010160567116645209},      {0, 0.35502805388781724, -0.2588194037928068},
      {1.19, 0.10745999241682461, -0.13406152961450611},     {1.21, 0.10480426710731307, -0.1315145489039867},
      {3.83, 0.0013455824119028483, -0.0027150048039990089}, {3.84, 0.0013186885400261747, -0.0026639192652112295},
      {15, 2.1649625207379923e-18, -8.4205679540177728e-18}, {50, 4.5849417240748285e-104, -3.2443318198287993e-103},
  };
  for (const auto& c : cases) {
    double Ai = 0.0;
    double dAi = 0.0;
    AiryCalc(c.z, Ai, dAi);
    ExpectNear(Ai, c.Ai, 2e-13, c.z < 0 ? 0.1 : 0.0);
    ExpectNear(dAi, c.dAi, 2e-13, c.z < 0 ? 0.1 : 0.0);
    EXPECT_EQ(AiryCalc(c.z), Ai);
  }
  // A difference across the join of two ranges is still the derivative.
  for (const double join : {-3.83154716196777, 0.0, 1.2, 3.83154716196777}) {
    double Ai = 0.0;
    double dAi = 0.0;
    AiryCalc(join, Ai, dAi);
    EXPECT_NEAR((AiryCalc(join + 0.01) - AiryCalc(join - 0.01)) / 0.02, dAi, 1e-4) << join;
    EXPECT_NEAR(AiryCalc(join + 1e-13), AiryCalc(join - 1e-13), 1e-12) << join;
  }
}

}  // namespace
}  // namespace lumivex
