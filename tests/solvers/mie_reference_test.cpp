// The Mie series against values of 60-digit arithmetic (tests/reference), with both starts of the recurrence.

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <string>

#include "solvers/reference_table.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

std::string Case(const std::vector<double>& row) {
  return "x = " + std::to_string(row[0]) + ", m = " + std::to_string(row[1]) + " + i " + std::to_string(row[2]);
}

double RelativeError(double value, double expected) {
  return std::fabs(value - expected) / std::fabs(expected);
}

TEST(MieReference, EfficienciesWithEitherStart) {
  const auto rows = testing::ReadReferenceTable("reference_mie.csv");
  ASSERT_EQ(rows.size(), 28U);
  for (const auto& row : rows) {
    for (const bool classic : {false, true}) {
      SCOPED_TRACE(Case(row) + (classic ? ", classic start" : ""));
      MieRequest request;
      request.x = row[0];
      request.mRe = row[1];
      request.mIm = row[2];
      request.classicStart = classic;
      SilentMonitor monitor;
      std::feclearexcept(FE_ALL_EXCEPT);
      const Efficiencies result = SolveMie(request, monitor).efficiencies;
      // A command ends with a message when one of these is raised: a normal sphere must not.
      EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0);

      const double tolerance = row[0] < 0.01 ? 1e-8 : 1e-10;
      const auto at = [&](std::size_t plain, std::size_t start20) { return row[classic ? start20 : plain]; };
      EXPECT_LT(RelativeError(result.Qext, at(3, 8)), tolerance);
      EXPECT_LT(RelativeError(result.Qsca, at(4, 9)), tolerance);
      EXPECT_LT(RelativeError(result.Qback, at(6, 10)), 1e-8);
      if (row[0] >= 0.05) {
        EXPECT_LT(RelativeError(result.g, at(7, 11)), 1e-9);
      }
    }
  }
}

TEST(MieReference, AmplitudesOnTheGridAndAtListedAngles) {
  const auto rows = testing::ReadReferenceTable("reference_mie_amplitudes.csv");
  ASSERT_EQ(rows.size(), 56U);
  double largest = 0.0;
  for (const auto& row : rows) {
    // The rows of a case begin with 0 degrees, the largest modulus of all.
    if (row[3] == 0.0) largest = std::hypot(row[4], row[5]);
    for (const bool classic : {false, true}) {
      SCOPED_TRACE(Case(row) + ", angle " + std::to_string(row[3]) + (classic ? ", classic start" : ""));
      MieRequest request;
      request.x = row[0];
      request.mRe = row[1];
      request.mIm = row[2];
      request.NANG = 181;
      request.classicStart = classic;
      const int j = static_cast<int>(2.0 * row[3]) + 1;
      request.window = {j, j};
      SilentMonitor monitor;
      const MieResult result = SolveMie(request, monitor);
      const std::size_t first = classic ? 8 : 4;
      const auto error = [&](const AmplitudeTable& S1, const AmplitudeTable& S2, int at) {
        return std::max(std::hypot(S1.Re(at) - row[first], S1.Im(at) - row[first + 1]),
                        std::hypot(S2.Re(at) - row[first + 2], S2.Im(at) - row[first + 3]));
      };
      EXPECT_LT(error(result.S1, result.S2, j), 1e-9 * largest);

      const double angle = row[3] * 3.14159265358979323846 / 180.0;
      AmplitudeTable S1(1);
      AmplitudeTable S2(1);
      EXPECT_EQ(SumAngularSeries(result.waves, std::span(&angle, 1), S1, S2, monitor), 1U);
      EXPECT_LT(error(S1, S2, 1), 1e-9 * largest);
    }
  }
}

// Towards 180 degrees the textbook recurrence loses 1e-8 of the local modulus at x = 10000: the glory is small beside
// the forward peak, and rounding of the cosine is magnified by N^2.
TEST(MieReference, RowsNextToTheEndsKeepTheirDigits) {
  const double x = 2000.0;
  const PartialWaves waves = MieCoefficients(x, 1.33, 0.0, ComputeMieTruncation(x, 1.33, 0.0, false, false));
  for (const double fromEnd : {1e-5, 1e-3, 0.02, 0.0999, 0.1001, 0.2}) {
    const double angles[] = {fromEnd, 3.14159265358979323846 - fromEnd};
    AmplitudeTable S1(2);
    AmplitudeTable S2(2);
    SilentMonitor monitor;
    SumAngularSeries(waves, angles, S1, S2, monitor);
    for (int i = 1; i <= 2; ++i) {
      const long double cosine = std::cos(static_cast<long double>(angles[i - 1]));
      long double pi = 1.0L, before = 0.0L, re = 0.0L, im = 0.0L;
      for (int n = 1; n <= waves.Terms(); ++n) {
        const auto k = static_cast<std::size_t>(n);
        const long double weight = (2.0L * n + 1.0L) / (static_cast<long double>(n) * (n + 1.0L));
        const long double tau = n * cosine * pi - (n + 1) * before;
        re += weight * (waves.aRe[k] * pi + waves.bRe[k] * tau);
        im += weight * (waves.aIm[k] * pi + waves.bIm[k] * tau);
        const long double next = ((2 * n + 1) * cosine * pi - (n + 1) * before) / n;
        before = pi;
        pi = next;
      }
      const double modulus = static_cast<double>(std::hypot(re, im));
      const double error = std::hypot(S1.Re(i) - static_cast<double>(re), S1.Im(i) - static_cast<double>(im));
      EXPECT_LT(error, 1e-10 * modulus) << "angle " << angles[i - 1];
    }
  }
}

}  // namespace
}  // namespace lumivex
