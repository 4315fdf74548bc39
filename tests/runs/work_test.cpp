// The work that is told before a run.

#include "runs/work.h"

#include <gtest/gtest.h>

#include "runs/run_fixture.h"

namespace lumivex {
namespace {

TEST(Work, OneSphereIsItsTermsTimesItsPairsOfAngles) {
  const RunRequest request = AngleRequest(10, 0.1);
  const double terms = NStopEstimate(SizeParameterOf(10, 1, 0.65));
  EXPECT_GE(PairTermsOf(request), terms * 901);
  EXPECT_LE(PairTermsOf(request), terms * 1001);
  // Rows that are not on show cost nothing.
  RunRequest part = request;
  std::get<AngleRun>(part.run).rows.window = {1, 91};
  EXPECT_LT(PairTermsOf(part), terms * 200);
  part.method.method = Method::Rayleigh;
  EXPECT_EQ(PairTermsOf(part), 0);
}

TEST(Work, WavelengthsSizesAndPointsAddUp) {
  RunRequest one = AngleRequest(10, 1);
  RunRequest cloud = one;
  cloud.sizes = LogNormal(1e-9);
  EXPECT_EQ(SizesOf(cloud), 5);
  EXPECT_NEAR(PairTermsOf(cloud) / PairTermsOf(one), 5, 1e-6);
  cloud.sizes = LogNormal(0.5);
  EXPECT_GT(PairTermsOf(cloud) / PairTermsOf(one), 5.2) << "large spheres weigh more";
  EXPECT_NEAR(PairTermsOf(SpectrumRequest(10, 1, 1000)) / PairTermsOf(SpectrumRequest(10, 1, 100)), 10, 0.2);
  // An axis of sizes is no matter of the radius that was typed.
  RunRequest axis = AxisRequest({11, 1}, 10, 20, 1000);
  const double work = PairTermsOf(axis);
  axis.particle.radius = 1000;
  EXPECT_EQ(PairTermsOf(axis), work);
  EXPECT_NEAR(PairTermsOf(AxisRequest({11, 1}, 100, 200, 1000)) / work, 10, 3);
  EXPECT_NEAR(PairTermsOf(AxisRequest({11, 1}, 10, 20, 10000)) / work, 10, 0.1);
  axis.sizes = LogNormal(0.1);
  EXPECT_GT(PairTermsOf(axis), 5 * work);
}

TEST(Work, TermsOfAnAnalysisAndSpheresOfAChartCount) {
  RunRequest request = AngleRequest(10, 1, Method::Debye);
  request.run = DebyeAnalysisRun{1.0, 10};
  const double ten = PairTermsOf(request);
  request.run = DebyeAnalysisRun{1.0, 100};
  EXPECT_NEAR(PairTermsOf(request) / ten, 9, 1);
  request.method.byRatio = true;
  EXPECT_NEAR(PairTermsOf(request) / ten, 9, 1) << "a sphere that does not absorb needs no fractions";
  request.particle.sphere = FixedIndex{1.33, 0.001};
  EXPECT_GT(PairTermsOf(request), 100 * ten);
  RunRequest chart = AngleRequest(10, 1);
  TwoAngleRun angles{1, 10, 30, 60, {1.3, 1.4}, {1, 2, 3}};
  chart.run = angles;
  const double few = PairTermsOf(chart);
  angles.index.assign(20, 1.33);
  chart.run = angles;
  EXPECT_NEAR(PairTermsOf(chart) / few, 10, 1e-9);
}

}  // namespace
}  // namespace lumivex
