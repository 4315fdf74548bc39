#include "solvers/series/mie_series.h"
#include "solvers/series/mie_point.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <numbers>
#include <random>

namespace lumivex {
namespace {

MieRequest Request(double x, double mRe, double mIm, int NANG) {
  MieRequest request;
  request.x = x;
  request.mRe = mRe;
  request.mIm = mIm;
  request.NANG = NANG;
  return request;
}

TEST(MieSeries, EfficienciesFollowFromTheEndRowsWhateverTheWindow) {
  SilentMonitor monitor;
  for (const bool divide : {false, true}) {
    MieRequest request = Request(12.0, 1.4, 0.02, 19);
    request.divideBySize = divide;
    const MieResult whole = SolveMie(request, monitor);
    const double square = request.x * request.x;
    EXPECT_NEAR(whole.efficiencies.Qext, 4.0 * whole.S1.Re(1) / square, 1e-14);
    EXPECT_NEAR(whole.efficiencies.Qback, whole.S1.Intensity(37) / (std::numbers::pi * square), 1e-14);
    request.window = {10, 12};
    const MieResult part = SolveMie(request, monitor);
    EXPECT_EQ(part.efficiencies.Qext, whole.efficiencies.Qext);
    EXPECT_EQ(part.efficiencies.Qback, whole.efficiencies.Qback);
    EXPECT_EQ(part.S1.Re(1), 0.0);
    EXPECT_NEAR(part.S1.Re(11), whole.S1.Re(11), 1e-12);
    EXPECT_EQ(part.rows.forward, (RowWindow{10, 12}));
  }
}

TEST(MieSeries, FewestAnglesAreThreeRows) {
  SilentMonitor monitor;
  const MieResult result = SolveMie(Request(3.0, 1.5, 0.0, 1), monitor);
  ASSERT_EQ(result.S1.Rows(), 3);
  // Between 0 and 180 degrees lies 90: S1 there is an even function's value, not zero.
  EXPECT_NE(result.S1.Re(2), 0.0);
  EXPECT_EQ(result.S1.Re(3), -result.S2.Re(3));
}

TEST(MieSeries, RefusedSpheresGiveEmptyRows) {
  SilentMonitor monitor;
  const MieResult result = SolveMie(Request(1e6, 1.5, 0.0, 5), monitor);
  EXPECT_EQ(result.refusal, MieRefusal::SizeTooLarge);
  EXPECT_EQ(result.S1.Rows(), 9);
  EXPECT_EQ(result.S1, AmplitudeTable(9));
}

TEST(MieSeries, NothingScatteredHasNoAsymmetry) {
  EXPECT_EQ(EfficienciesOf(PartialWaves(5), 1.0).g, 0.0);
  SilentMonitor monitor;
  std::feclearexcept(FE_ALL_EXCEPT);
  const MieResult result = SolveMie(Request(10.0, 1.0, 0.0, 5), monitor);
  EXPECT_LT(result.efficiencies.Qext, 1e-25);
  EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0);
}

// The largest spheres within the limit: a start of the recurrence below |m x| once made these wrong by a factor.
TEST(MieSeries, LargestSpheresConserveEnergy) {
  SilentMonitor monitor;
  const MieResult clear = SolveMie(Request(149000.0, 1.33, 0.0, 2), monitor);
  ASSERT_EQ(clear.refusal, MieRefusal::None);
  EXPECT_NEAR(clear.efficiencies.Qext, clear.efficiencies.Qsca, 1e-10);
  // Edge contribution beyond geometric optics: Qext = 2 + 1.9924 x^(-2/3) (Nussenzveig and Wiscombe 1980).
  const MieResult black = SolveMie(Request(100000.0, 1.5, 0.5, 2), monitor);
  EXPECT_NEAR(black.efficiencies.Qext, 2.0 + 1.9924 * std::pow(100000.0, -2.0 / 3.0), 1e-5);
}

TEST(MieSeries, ConvergenceSeriesEndsAtTheSum) {
  SilentMonitor monitor;
  for (const int row : {1, 4, 19, 30, 37}) {
    MieRequest request = Request(25.0, 1.33, 0.0, 19);
    request.convergence = true;
    request.convergenceAngle = AngleGrid(19).Angle(row);
    const MieResult result = SolveMie(request, monitor);
    const ConvergenceSeries& series = result.convergence;
    const auto last = static_cast<std::size_t>(result.truncation.NSTOP);
    ASSERT_EQ(series.perpendicular.size(), last + 1);
    const double scale = result.S1.Intensity(row) + result.S2.Intensity(row);
    EXPECT_NEAR(series.perpendicular[last], result.S1.Intensity(row), 1e-11 * scale) << row;
    EXPECT_NEAR(series.parallel[last], result.S2.Intensity(row), 1e-11 * scale) << row;
    // Past the usual stop the sum no longer moves; half way it is far off.
    const auto usual = static_cast<std::size_t>(NStopEstimate(25.0));
    EXPECT_NEAR(series.unpolarised[usual], series.unpolarised[last], 1e-12 * scale) << row;
    EXPECT_GT(std::fabs(series.unpolarised[12] - series.unpolarised[last]), 1e-3 * scale) << row;
  }
}

class StopAtOnce final : public RunMonitor {
 public:
  bool Report(std::size_t, std::size_t) override { return false; }
};

TEST(MieSeries, AStoppedRunHasItsEfficiencies) {
  StopAtOnce stop;
  const MieResult result = SolveMie(Request(50.0, 1.33, 0.0, 91), stop);
  EXPECT_TRUE(result.stopped);
  EXPECT_TRUE(result.rows.forward.Empty());
  EXPECT_TRUE(result.rows.mirrored.Empty());
  EXPECT_GT(result.efficiencies.Qext, 1.0);
}

/// Spheres in one list, with room for their efficiencies.
struct List {
  std::vector<double> x, mRe, mIm, Qext, Qsca, Qback, g;

  void Add(double size, double real, double imaginary) {
    x.push_back(size);
    mRe.push_back(real);
    mIm.push_back(imaginary);
    for (auto* column : {&Qext, &Qsca, &Qback, &g}) column->push_back(-1.0);
  }
  std::size_t Solve(const EfficiencyOptions& options, RunMonitor& monitor, InstructionSet set) {
    return SolveEfficiencies({x, mRe, mIm}, {Qext, Qsca, Qback, g}, options, monitor, set);
  }
};

// Amplitudes at one angle, by lanes and by the slow path, against those of single spheres; near the axis too, where the
// recurrence of pi_n is at its worst.
TEST(MieEfficiencies, AmplitudesAtAnAngleEqualSingleSpheres) {
  List list;
  for (const double x : {0.001, 0.5, 3.0, 40.0, 41.0, 900.0, 905.0, 5000.0}) {
    list.Add(x, 1.33, 0.0);
    list.Add(x, 1.5, 0.01);
  }
  SilentMonitor monitor;
  const std::size_t count = list.x.size();
  for (const InstructionSet set : {InstructionSet::Plain, BestInstructionSet()}) {
    for (const double degrees : {0.0, 0.01, 60.0, 90.0, 138.37, 179.99, 180.0}) {
      std::vector<double> S1Re(count), S1Im(count), S2Re(count), S2Im(count);
      EfficiencyOptions options{true};
      options.angle = degrees * std::numbers::pi / 180;
      ASSERT_EQ(
          SolveEfficiencies({list.x, list.mRe, list.mIm},
                            {list.Qext, list.Qsca, list.Qback, list.g, S1Re, S1Im, S2Re, S2Im}, options, monitor, set),
          count);
      for (std::size_t i = 0; i < count; ++i) {
        const MiePoint point = SolveMiePoint({list.x[i], list.mRe[i], list.mIm[i], *options.angle, true}, monitor);
        const double forward = list.x[i] * list.Qext[i] * list.x[i] / 4 + 1e-12;
        EXPECT_NEAR(S1Re[i], point.S1.re, 1e-11 * forward) << list.x[i] << " at " << degrees;
        EXPECT_NEAR(S1Im[i], point.S1.im, 1e-11 * forward) << list.x[i] << " at " << degrees;
        EXPECT_NEAR(S2Re[i], point.S2.re, 1e-11 * forward) << list.x[i] << " at " << degrees;
        EXPECT_NEAR(S2Im[i], point.S2.im, 1e-11 * forward) << list.x[i] << " at " << degrees;
      }
    }
  }
}

// Lanes of very different spheres must not disturb each other: order, size, absorption and the slow path are mixed.
TEST(MieEfficiencies, ListsEqualSingleSpheres) {
  List list;
  std::mt19937 random(7);
  std::uniform_real_distribution<double> exponent(-3.0, 3.0);
  for (int i = 0; i < 61; ++i) {
    list.Add(std::pow(10.0, exponent(random)), i % 7 == 0 ? 0.4 : 1.2 + 0.01 * i, i % 3 == 0 ? 0.003 * i : 0.0);
  }
  for (int i = 0; i < 20; ++i) list.Add(200.0 + 0.7 * i, 1.33, 0.0);
  list.Add(50.0, 0.2, 3.4);
  list.Add(0.1, 1.0001, 300.0);
  list.Add(1e7, 1.5, 0.0);
  SilentMonitor monitor;
  for (const InstructionSet set : {InstructionSet::Plain, BestInstructionSet()}) {
    for (const bool classic : {false, true}) {
      for (const bool divide : {false, true}) {
        std::feclearexcept(FE_ALL_EXCEPT);
        ASSERT_EQ(list.Solve({divide, classic}, monitor, set), list.x.size());
        EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0);
        for (std::size_t i = 0; i + 1 < list.x.size(); ++i) {
          MieRequest request = Request(list.x[i], list.mRe[i], list.mIm[i], 2);
          request.divideBySize = divide;
          request.classicStart = classic;
          const Efficiencies single = SolveMie(request, monitor).efficiencies;
          EXPECT_NEAR(list.Qext[i], single.Qext, 1e-12 * single.Qext) << list.x[i] << " " << list.mRe[i];
          EXPECT_NEAR(list.Qsca[i], single.Qsca, 1e-12 * single.Qsca) << list.x[i] << " " << list.mRe[i];
          // Qback is small beside the terms it is the sum of: their rounding is 1e-12 of 1, not of Qback.
          EXPECT_NEAR(list.Qback[i], single.Qback, 1e-12 * (single.Qback + single.Qsca)) << list.x[i];
          EXPECT_NEAR(list.g[i], single.g, 1e-12) << list.x[i] << " " << list.mRe[i];
        }
        EXPECT_TRUE(std::isnan(list.Qext.back()));
      }
    }
  }
}

TEST(MieEfficiencies, StopLeavesTheRestAndIsSeenSoon) {
  List list;
  for (int i = 0; i < 30; ++i) list.Add(140000.0 + i, 1.33, 0.0);
  struct Counter final : RunMonitor {
    std::size_t last = 0;
    int looks = 0;
    int stopAt = 0;
    bool Report(std::size_t index, std::size_t count) override {
      EXPECT_EQ(count, 30U);
      const std::size_t lanes = index - last;
      EXPECT_LE(lanes * 190000, MaxLaneTermsPerLook);
      last = index;
      return ++looks != stopAt;
    }
  } counter;
  counter.stopAt = 1;
  const std::size_t done = list.Solve({}, counter, BestInstructionSet());
  EXPECT_EQ(done, counter.last);
  EXPECT_LT(done, 30U);
  EXPECT_GT(list.Qext[done - 1], 1.9);
  EXPECT_EQ(list.Qext[done], -1.0);
}

}  // namespace
}  // namespace lumivex
