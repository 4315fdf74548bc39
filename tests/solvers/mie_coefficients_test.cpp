#include "solvers/series/mie_coefficients.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <complex>

#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {
namespace {

TEST(MieTruncation, CountsTerms) {
  struct Row {
    double x;
    int margin;
    int terms;
  };
  for (const Row& row : {Row{0.0, 20, 20},
                         {1e-6, 20, 20},
                         {1.0, 20, 25},
                         {1.0, 2, 7},
                         {0.5, 20, 24},
                         {100.0, 20, 139},
                         {10000.0, 20, 10106},
                         {20000.0, 20, 20129}}) {
    EXPECT_EQ(NStopEstimate(row.x, row.margin), row.terms) << row.x;
  }
  // The exponent is 0.3333; with a third this one has a term more.
  EXPECT_EQ(NStopEstimate(10119.0), 10225);
  // Halves go to the even neighbour.
  for (const double half : {130.5, 131.5}) {
    double low = 50.0;
    double high = 200.0;
    const auto sum = [](double x) { return x + 4.0 * std::pow(x, 0.3333) + 20; };
    while (std::nextafter(low, high) < high) {
      const double middle = (low + high) / 2.0;
      (sum(middle) < half ? low : high) = middle;
    }
    ASSERT_EQ(sum(high), half);
    EXPECT_EQ(NStopEstimate(high) % 2, 0);
  }
  EXPECT_GT(NStopEstimate(std::nan("")), MaxSeriesTerms);
  EXPECT_GT(NStopEstimate(1e300), MaxSeriesTerms);
}

TEST(MieTruncation, KeepsTheMeaningOfNmxAndStartsAbove) {
  const MieTruncation plain = ComputeMieTruncation(1000.0, 1.33, 0.0, false, false);
  EXPECT_EQ(plain.NSTOP, 1060);
  EXPECT_EQ(plain.NMX, 1350);
  EXPECT_GT(plain.start, 1330 + 8 * 10);
  EXPECT_EQ(ComputeMieTruncation(1000.0, 1.33, 0.0, false, true).start, 1350);
  EXPECT_EQ(ComputeMieTruncation(10.0, 0.75, 0.0, false, true).NMX, 39 + 20);

  const MieTruncation convergence = ComputeMieTruncation(1000.0, 1.33, 0.0, true, false);
  EXPECT_EQ(convergence.NSTOP, 1272);
  EXPECT_EQ(convergence.NMX, 1272);
  EXPECT_GT(convergence.start, 1330);
}

TEST(MieLimits, RefuseBySizeThenByTerms) {
  EXPECT_EQ(CheckMieLimits(100000.0, 2.0, 0.0), MieRefusal::SizeTooLarge);
  EXPECT_EQ(CheckMieLimits(100000.0, 1.2, 1.6), MieRefusal::SizeTooLarge);
  EXPECT_EQ(CheckMieLimits(99999.5, 2.0, 0.0), MieRefusal::SeriesTooLong);
  EXPECT_EQ(CheckMieLimits(99990.5, 2.0, 0.0), MieRefusal::SeriesTooLong);
  EXPECT_EQ(CheckMieLimits(99990.4, 2.0, 0.0), MieRefusal::None);
  EXPECT_EQ(CheckMieLimits(199999.0, 1.0, 0.0), MieRefusal::SeriesTooLong);
  EXPECT_EQ(CheckMieLimits(150000.0, 1.0, 0.0), MieRefusal::None);
  EXPECT_EQ(CheckMieLimits(180000.0, 1.0, 0.0, true), MieRefusal::SeriesTooLong);
  EXPECT_EQ(CheckMieLimits(std::nan(""), 1.0, 0.0), MieRefusal::SizeTooLarge);
  EXPECT_EQ(CheckMieLimits(-1.0, 1.0, 0.0), MieRefusal::SeriesTooLong);
}

// cot z = D_0(z), and D_(n-1) = n/z - 1/(D_n + n/z) must also hold where |z| is beyond the last row.
TEST(LogarithmicDerivative, ConvergesToTheCotangent) {
  for (const double y : {0.3, 7.7, 133.0, 1330.0, 13000.0, 150000.0}) {
    const int last = 20;
    const int start = LogarithmicDerivativeStart(last, y);
    const LogarithmicDerivative D = ComputeLogarithmicDerivative(y, 1.0, 0.0, start, 0, last);
    const double angle = std::atan(1.0 / D.re[0]);
    EXPECT_NEAR(std::remainder(angle - y, 3.14159265358979323846), 0.0, 1e-15 * (10.0 + y)) << y;
    EXPECT_EQ(D.im[0], 0.0);
    // Through the complex path: cot(y + i q) = -i for large q.
    const LogarithmicDerivative deep = ComputeLogarithmicDerivative(y, 1.0, 60.0 / y, start + 600, 0, last);
    EXPECT_NEAR(deep.re[0], 0.0, 1e-14);
    EXPECT_NEAR(deep.im[0], -1.0, 1e-14);
  }
}

TEST(MieCoefficients, SmallSphereIsADipole) {
  for (const double x : {1e-6, 1e-5, 1e-4, 1e-3}) {
    for (const double absorption : {0.0, 1e-300, 0.1, 2.0}) {
      const std::complex<double> m(1.5, absorption);
      std::feclearexcept(FE_ALL_EXCEPT);
      const PartialWaves waves =
          MieCoefficients(x, 1.5, absorption, ComputeMieTruncation(x, 1.5, absorption, false, false));
      const Efficiencies result = EfficienciesOf(waves, x);
      EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0) << x;
      const std::complex<double> polarizability = (m * m - 1.0) / (m * m + 2.0);
      const double scattering = 8.0 / 3.0 * std::pow(x, 4) * std::norm(polarizability);
      EXPECT_NEAR(result.Qsca / scattering, 1.0, 3.0 * x * x + 1e-12) << x << " " << absorption;
      if (absorption > 1e-3) {
        EXPECT_NEAR(result.Qext / (4.0 * x * polarizability.imag()), 1.0, 3.0 * x * x + 3.0 * x * x * x / absorption)
            << x << " " << absorption;
      } else {
        EXPECT_NEAR(result.Qext / result.Qsca, 1.0, 1e-12) << x;
      }
    }
  }
}

// |a_n - 1/2| = 1/2 without absorption, below with it; nothing overflows however strong it is or far the sum runs.
TEST(MieCoefficients, StayWithinTheCircleOfUnitarity) {
  const auto largest = [](const std::vector<double>& re, const std::vector<double>& im) {
    double most = 0.0;
    for (std::size_t n = 1; n < re.size(); ++n) most = std::max(most, std::hypot(re[n] - 0.5, im[n]));
    return most;
  };
  for (const double x : {0.01, 1.0, 30.0, 2000.0}) {
    for (const double real : {0.2, 0.999, 1.33, 4.0, 30.0}) {
      for (const double absorption : {0.0, 1e-300, 1e-6, 0.5, 60.0}) {
        std::feclearexcept(FE_ALL_EXCEPT);
        const MieTruncation truncation = ComputeMieTruncation(x, real, absorption, true, false);
        const PartialWaves waves = MieCoefficients(x, real, absorption, truncation);
        EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0)
            << x << " " << real << " " << absorption;
        EXPECT_EQ(waves.Terms(), truncation.NSTOP);
        EXPECT_LE(largest(waves.aRe, waves.aIm), 0.5 + 1e-12) << x << " " << real << " " << absorption;
        EXPECT_LE(largest(waves.bRe, waves.bIm), 0.5 + 1e-12) << x << " " << real << " " << absorption;
      }
    }
  }
}

// A vanishing absorption takes the other path, and must not be seen.
TEST(MieCoefficients, RealAndComplexPathsAgree) {
  for (const double x : {0.05, 3.0, 250.0}) {
    const MieTruncation truncation = ComputeMieTruncation(x, 1.45, 0.0, false, false);
    const PartialWaves real = MieCoefficients(x, 1.45, 0.0, truncation);
    const PartialWaves complex = MieCoefficients(x, 1.45, 1e-300, truncation);
    for (std::size_t n = 1; n < real.aRe.size(); ++n) {
      EXPECT_NEAR(real.aRe[n], complex.aRe[n], 1e-11 * std::fabs(real.aRe[n])) << x << " " << n;
      EXPECT_NEAR(real.bIm[n], complex.bIm[n], 1e-11) << x << " " << n;
    }
  }
}

}  // namespace
}  // namespace lumivex
