#include "timedomain/ray_times.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

TEST(RayTimes, RaysOfADropOfTenMicrometres) {
  const RaySphere drop{10.0, 1.0, 1.333};
  const struct {
    int p;
    double impact, angle, time;
  } known[] = {{0, 0, 180, 0},           {0, 0.6, 106.260, 13.333}, {1, 0.3, 8.903, 89.658},
               {1, 1, 82.787, 125.428},  {2, 0, 180, 177.733},      {2, 0.9, 138.447, 168.715},
               {2, 1, 165.573, 184.188}, {3, 0.6, 86.766, 251.400}, {4, 0.9, 31.422, 299.822}};
  for (const auto& row : known) {
    const auto ray = RayAtImpact(drop, row.p, row.impact);
    ASSERT_TRUE(ray);
    EXPECT_NEAR(ray->angle, row.angle, 6e-4) << row.p << " " << row.impact;
    EXPECT_NEAR(ray->time, row.time, 6e-4) << row.p << " " << row.impact;
  }
  EXPECT_EQ(RayTimes(drop, 3, 0.1).size(), 44U);
  // A bubble: beyond its index nothing enters.
  EXPECT_EQ(RayTimes({10, 1.333, 0.75}, 1, 0.1).size(), 11U + 8U);
  EXPECT_FALSE(RayAtImpact({10, 1.333, 0.75}, 1, 0.76));
}

TEST(RayTimes, TheRaysOfAnAngle) {
  const RaySphere drop{10.0, 1.0, 1.333};
  const auto one = [&](int p, double angle) {
    const auto rays = RaysAtAngle(drop, p, angle);
    return rays.size() == 1 ? rays[0].time : -1.0;
  };
  EXPECT_NEAR(one(0, 10), 60.856, 6e-4);
  EXPECT_NEAR(one(1, 10), 89.860, 6e-4);
  EXPECT_NEAR(one(1, 60), 112.277, 6e-4);
  EXPECT_NEAR(one(3, 90), 250.250, 6e-4);
  const auto bow = RaysAtAngle(drop, 2, 150);
  ASSERT_EQ(bow.size(), 2U);
  EXPECT_NEAR(bow[0].time, 173.122, 6e-4);
  EXPECT_NEAR(bow[1].time, 175.166, 6e-4);
  EXPECT_TRUE(RaysAtAngle(drop, 2, 130).empty());
  EXPECT_TRUE(RaysAtAngle(drop, 1, 90).empty());
  ASSERT_EQ(RaysAtAngle(drop, 2, 180).size(), 1U);
  EXPECT_NEAR(RaysAtAngle(drop, 2, 180)[0].time, 177.733, 6e-4);
  ASSERT_EQ(RaysAtAngle(drop, 1, 0).size(), 1U);
  EXPECT_NEAR(RaysAtAngle({10, 1.333, 1 / 1.333}, 1, 30)[0].time, 58.92, 6e-3);
  EXPECT_NEAR(RaysAtAngle({10, 1.333, 1 / 1.333}, 0, 30)[0].time, 65.87, 6e-3);
}

TEST(RayTimes, APulseRunsAtTheGroupIndex) {
  // n = 1.3240 + 0.0031/lambda^2 at 0.65 um.
  const double n = 1.3240 + 0.0031 / (0.65 * 0.65), group = n + 2 * 0.0031 / (0.65 * 0.65);
  const RaySphere drop{50.0, 1.0, n};
  const auto rays = RaysAtAngle(drop, 1, 40);
  ASSERT_EQ(rays.size(), 1U);
  EXPECT_NEAR(rays[0].time, 506.65, 6e-3);
  EXPECT_NEAR(RayAtImpact(drop, 1, rays[0].impact, group)->time, 510.34, 6e-3);
}

TEST(RayTimes, SurfaceWavesBeginAtTheEdge) {
  const RaySphere drop{10.0, 1.0, 1.333};
  const double edges[][2] = {{0, 66.667}, {82.787, 125.428}, {165.574, 184.188}, {111.640, 242.949}};
  for (int p = 0; p <= 3; ++p) {
    const auto line = SurfaceWaveLine(drop, p, 1.0, 2);
    ASSERT_EQ(line.size(), 3U);
    EXPECT_NEAR(line[0].angle, edges[p][0], 6e-4);
    EXPECT_NEAR(line[0].time, edges[p][1], 6e-4);
    EXPECT_NEAR(line[1].angle, p < 3 ? 180 : 0, 1e-5);
    EXPECT_NEAR(line[2].time - line[1].time, 104.7198, 1e-3);
  }
  EXPECT_NEAR(SurfaceWaveLine(drop, 2, 1.0, 1)[1].time, 192.58, 6e-3);
  EXPECT_TRUE(SurfaceWaveLine({10, 1, 0.9}, 1, 1.0, 2).empty());
}

TEST(RayTimes, FrequenciesOfRipples) {
  // x = 1000 at 0.65 um, in the middle of 30 + 0.05 j degrees, j < 256.
  const RaySphere drop{1000 * 0.65 / (2 * M_PI), 1.0, 1.333};
  const double middle = 30 + 0.05 * 127.5;
  EXPECT_NEAR(FrequencyOverAngle(drop, RaysAtAngle(drop, 1, middle)[0], 0.65), -2.3393, 1e-3);
  EXPECT_NEAR(FrequencyOverAngle(drop, RaysAtAngle(drop, 0, middle)[0], 0.65), 2.6390, 1e-3);
  const RaySphere large{100, 1.0, 1.333};
  EXPECT_NEAR(FrequencyOverRadius(large, RaysAtAngle(large, 1, 60)[0], 0.65), -2.1051, 1e-4);
  EXPECT_NEAR(FrequencyOverRadius(large, RaysAtAngle(large, 0, 60)[0], 0.65), 1.5385, 1e-4);
  // The same phase, by its slope over the wavelength: -d/d(lambda) of what is per um of radius.
  const auto ray = RaysAtAngle(large, 1, 60)[0];
  EXPECT_NEAR(FrequencyOverWavelength(large, ray, 0.65), 2.1051 * 100 / 0.65 / 1000, 1e-4);
}

}  // namespace
}  // namespace lumivex
