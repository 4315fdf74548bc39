// The Debye series against 150-digit values (tests/reference) and against the Mie series.

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <numeric>

#include "solvers/reference_table.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

constexpr int watched = FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID;

std::vector<int> Only(int p) {
  std::vector<int> selected(static_cast<std::size_t>(p) + 1, 0);
  selected.back() = 1;
  return selected;
}

DebyeRequest Request(double x, double mRe, double mIm, std::vector<int> selected) {
  DebyeRequest request;
  request.x = x;
  request.mRe = mRe;
  request.mIm = mIm;
  request.NANG = 91;
  request.selected = std::move(selected);
  return request;
}

DebyeResult Solve(const DebyeRequest& request) {
  SilentMonitor monitor;
  return SolveDebye(request, monitor);
}

double Distance(const AmplitudeTable& S, int row, double re, double im) {
  return std::hypot(S.Re(row) - re, S.Im(row) - im);
}

TEST(DebyeSeries, TermsAgreeWithHighPrecision) {
  const auto rows = testing::ReadReferenceTable("reference_debye.csv");
  ASSERT_EQ(rows.size(), 385U);
  for (const auto& row : rows) {
    for (const bool byRatio : {false, true}) {
      if (byRatio && row[0] > 600) continue;
      SCOPED_TRACE("x = " + std::to_string(row[0]) + ", m = " + std::to_string(row[1]) + " + i " +
                   std::to_string(row[2]) + ", p = " + std::to_string(row[3]) + ", angle " + std::to_string(row[4]));
      const int j = static_cast<int>(row[4]) + 1;
      DebyeRequest request = Request(row[0], row[1], row[2], Only(static_cast<int>(row[3])));
      request.window = {j, j};
      request.byRatio = byRatio;
      std::feclearexcept(FE_ALL_EXCEPT);
      const DebyeResult result = Solve(request);
      EXPECT_EQ(std::fetestexcept(watched), 0);
      // A hundredth of what is promised, 1e-6 + 1e-9 |S|.
      EXPECT_LT(Distance(result.S1, j, row[5], row[6]), 1e-8 + 1e-11 * std::hypot(row[5], row[6]));
      EXPECT_LT(Distance(result.S2, j, row[7], row[8]), 1e-8 + 1e-11 * std::hypot(row[7], row[8]));
    }
  }
}

/// Largest difference between the sum of the first terms and the Mie series over all rows, relative to the larger of
/// the modulus there and a hundredth of the forward one.
double DistanceFromMie(double x, double mRe, double mIm, int highest) {
  const DebyeResult debye = Solve(Request(x, mRe, mIm, std::vector<int>(static_cast<std::size_t>(highest) + 1, 1)));
  MieRequest request;
  request.x = x;
  request.mRe = mRe;
  request.mIm = mIm;
  request.NANG = 91;
  SilentMonitor monitor;
  const MieResult mie = SolveMie(request, monitor);
  double worst = 0.0;
  for (int row = 1; row <= 181; ++row) {
    const double scale = std::max(std::hypot(mie.S1.Re(row), mie.S1.Im(row)), 0.01 * x);
    worst = std::max({worst, Distance(debye.S1, row, mie.S1.Re(row), mie.S1.Im(row)) / scale,
                      Distance(debye.S2, row, mie.S2.Re(row), mie.S2.Im(row)) / scale});
  }
  return worst;
}

TEST(DebyeSeries, SumTendsToMieWithAbsorption) {
  EXPECT_LT(DistanceFromMie(1500, 1.5, 1e-4, 50), 1e-5);
  EXPECT_GT(DistanceFromMie(1500, 1.5, 1e-4, 5), 1e-3);
  EXPECT_LT(DistanceFromMie(60, 1.33, 0.05, 50), 1e-5);
  // Opaque: the reflected term is the whole field.
  EXPECT_LT(DistanceFromMie(900, 1.5, 0.7, 0), 1e-5);
  EXPECT_LT(DistanceFromMie(900, 0.2, 3.0, 0), 1e-5);
}

// Every back row once had the wrong sign, and 90 degrees no sum at all: intensities alone do not show the first.
TEST(DebyeSeries, IsContinuousAcrossNinetyDegrees) {
  DebyeRequest request = Request(40, 1.333, 0, Only(2));
  request.NANG = 9001;
  const DebyeResult result = Solve(request);
  const int middle = 9001;
  for (const AmplitudeTable* S : {&result.S1, &result.S2}) {
    const double step = Distance(*S, middle - 1, S->Re(middle), S->Im(middle));
    EXPECT_LT(Distance(*S, middle + 1, S->Re(middle), S->Im(middle)), 3 * step + 1e-9);
    EXPECT_GT(std::hypot(S->Re(middle), S->Im(middle)), 0.0);
  }
  EXPECT_NEAR(result.S1.Re(1), result.S2.Re(1), 1e-9);
  EXPECT_NEAR(result.S1.Re(18001), -result.S2.Re(18001), 1e-9);
}

TEST(DebyeSeries, TermsAddUpAndAreSummedOnce) {
  const DebyeResult together = Solve(Request(200, 1.4, 0.001, {1, 0, 1, 1}));
  const DebyeResult a = Solve(Request(200, 1.4, 0.001, {1}));
  const DebyeResult b = Solve(Request(200, 1.4, 0.001, {0, 0, 1}));
  const DebyeResult c = Solve(Request(200, 1.4, 0.001, {0, 0, 0, 1}));
  for (const int row : {1, 2, 46, 91, 140, 181}) {
    const double sum = a.S1.Re(row) + b.S1.Re(row) + c.S1.Re(row);
    EXPECT_NEAR(together.S1.Re(row), sum, 1e-9 * std::max(1.0, std::fabs(sum))) << row;
  }
}

// A sphere of its surroundings' index reflects nothing, and its two first terms are the whole wave.
TEST(DebyeSeries, NoSphereAtAll) {
  SilentMonitor monitor;
  const DebyeSurfaces surfaces(30, 1, 0, 47, false, monitor);
  for (int n = 1; n <= 30; ++n) {
    EXPECT_EQ(std::hypot(surfaces[n].R212TE.re, surfaces[n].R212TE.im), 0.0);
    EXPECT_NEAR(surfaces[n].TTE.re, 1.0, 1e-12);
    EXPECT_NEAR(surfaces[n].TTM.im, 0.0, 1e-12);
  }
  const DebyeResult result = Solve(Request(30, 1, 0, {1, 1}));
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(std::hypot(result.S1.Re(row), result.S1.Im(row)), 0.0, 1e-8);
}

TEST(DebyeSeries, ExtremeSpheresGiveFiniteNumbersAndNoFlags) {
  struct Case {
    double x, mRe, mIm;
  };
  for (const Case& c : {Case{1e-6, 1.5, 0}, Case{0.005, 1.333, 0}, Case{0.005, 0.75, 0}, Case{0.01, 1.5, 1000},
                        Case{3, 0.2, 0.5}, Case{1000, 0.2, 0.5}, Case{1000, 0.05, 0}, Case{500, 1.5, 50},
                        Case{1000, 1.5, 1e-300}, Case{20000, 1.333, 0.3}, Case{12.566370614359172, 0.5, 0}}) {
    std::feclearexcept(FE_ALL_EXCEPT);
    const DebyeResult result = Solve(Request(c.x, c.mRe, c.mIm, std::vector<int>(51, 1)));
    EXPECT_EQ(std::fetestexcept(watched), 0) << c.x << " " << c.mRe << " " << c.mIm;
    EXPECT_EQ(result.refusal, MieRefusal::None);
    for (int row = 1; row <= 181; ++row)
      ASSERT_TRUE(std::isfinite(result.S1.Re(row)) && std::isfinite(result.S2.Im(row))) << c.x << ", row " << row;
  }
}

TEST(DebyeSeries, RefusesWhatTheSeriesCannotHold) {
  EXPECT_NE(Solve(Request(190000, 1.333, 0, {1})).refusal, MieRefusal::None);
  EXPECT_NE(Solve(Request(1000, 1e300, 0, {1})).refusal, MieRefusal::None);
  EXPECT_NE(Solve(Request(std::nan(""), 1.333, 0, {1})).refusal, MieRefusal::None);
  EXPECT_EQ(Solve(Request(100, 1.333, 0, {})).S1.Re(1), 0.0);
}

TEST(DebyeSeries, PartialWavesOfARange) {
  DebyeRequest request = Request(100, 1.333, 0, Only(2));
  request.partial = true;
  const DebyeResult low = Solve(request);
  EXPECT_EQ(low.PartialWaveFirst, 20);
  EXPECT_EQ(low.PartialWaveLast, 40);
  EXPECT_EQ(low.waves.aRe[19], 0.0);
  EXPECT_NE(low.waves.aRe[20], 0.0);
  EXPECT_EQ(low.waves.aRe[41], 0.0);
  request.firstRatio = 0.6;
  EXPECT_EQ(Solve(request).S1.Re(1), 0.0);
  request.firstRatio = 0;
  request.lastRatio = 5;
  EXPECT_NEAR(Solve(request).S1.Re(10), Solve(Request(100, 1.333, 0, Only(2))).S1.Re(10), 1e-12);
}

TEST(DebyeSeries, ConvergenceShowsTheHighestTerm) {
  DebyeRequest request = Request(50, 1.333, 0, {1, 0, 1});
  const DebyeResult plain = Solve(request);
  request.convergence = true;
  const DebyeResult result = Solve(request);
  EXPECT_EQ(result.NSTOP, static_cast<int>(std::nearbyint(1.2 * plain.NSTOP)));
  const DebyeResult alone = Solve(Request(50, 1.333, 0, Only(2)));
  const double a = std::hypot(alone.waves.aRe[30], alone.waves.aIm[30]);
  EXPECT_NEAR(result.convergence.perpendicular[30], 4 * a * a, 1e-12);
}

TEST(DebyeSeries, StopsAtOnce) {
  struct Stopper final : RunMonitor {
    int left;
    explicit Stopper(int reports) : left(reports) {}
    bool Report(std::size_t, std::size_t) override { return --left > 0; }
  };
  DebyeRequest request = Request(100000, 1.333, 0, Only(2));
  request.NANG = 901;
  for (const int reports : {1, 10, 35}) {
    Stopper stopper(reports);
    const DebyeResult result = SolveDebye(request, stopper);
    EXPECT_EQ(stopper.left, 0);
    EXPECT_FALSE(result.rows.Contains(901));
    for (int row = 1; row <= 1801; ++row) {
      if (!result.rows.Contains(row)) {
        ASSERT_EQ(result.S1.Re(row), 0.0) << row;
      }
    }
  }
}

}  // namespace
}  // namespace lumivex
