#include "solvers/dew/heiligenschein.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace lumivex {
namespace {

constexpr double degree = std::numbers::pi / 180;

DewDrop Drop(double distance, double slope = 0, double m = 1.333) {
  return {m, distance, slope * degree, 0.1 * degree};
}

TEST(Heiligenschein, AgreesWithLightTracedForward) {
  const double deltas[] = {0.5, 1, 2, 5, 10, 20};
  const struct {
    double distance;
    double sum[6];
  } known[] = {{1.0, {11.28, 9.628, 7.974, 5.807, 4.076, 2.229}},
               {1.2, {19.69, 16.80, 13.91, 10.11, 6.837, 0.0580}},
               {1.5, {52.86, 44.01, 35.55, 12.47, 1.192, 0.2275}},
               {2.0, {35.57, 19.22, 9.731, 3.383, 1.258, 0.4667}},
               {3.0, {1.062, 1.058, 1.041, 0.945, 0.781, 0.795}}};
  for (const auto& row : known) {
    const Heiligenschein dew(Drop(row.distance));
    for (int i = 0; i < 6; ++i)
      EXPECT_NEAR(dew.At(deltas[i] * degree).Sum(), row.sum[i], 0.015 * row.sum[i]) << row.distance << " " << deltas[i];
  }
}

TEST(Heiligenschein, OnASlope) {
  const Heiligenschein dew(Drop(1.5, 20));
  const double known[][3] = {{-10, 1.148, 0.046}, {-5, 3.967, 0.028}, {-2, 45.65, 0.020}, {-1, 56.6, 0.018},
                             {1, 55.2, 0.015},    {2, 43.6, 0.013},   {5, 6.97, 0.010},   {10, 1.176, 0.007}};
  for (const auto& row : known) {
    const DewBrightness found = dew.At(row[0] * degree);
    EXPECT_NEAR(found.spot, row[1], 0.015 * row[1]) << row[0];
    EXPECT_NEAR(found.plane, row[2], 0.001) << row[0];
  }
  // Sun and observer may change places.
  EXPECT_NEAR(dew.At(5 * degree).spot, Heiligenschein(Drop(1.5, 15)).At(-5 * degree).spot, 0.1);
}

TEST(Heiligenschein, AnInvisibleSphereShowsThePlane) {
  for (const double slope : {0.0, 40.0}) {
    const Heiligenschein dew(Drop(2, slope, 1 + 1e-9));
    for (const double delta : {-30.0, 3.0, 10.0, 30.0})
      EXPECT_NEAR(dew.At(delta * degree).Sum(), std::cos(slope * degree), 0.01) << slope << " " << delta;
  }
}

TEST(Heiligenschein, FarFromThePlaneAndBeyondTheHorizon) {
  EXPECT_NEAR(50 * 50 * Heiligenschein({1.333, 50, 0, 0.6 * degree}).At(0).spot, 1.363, 0.02);
  const Heiligenschein dew(Drop(2, 85));
  EXPECT_EQ(dew.At(90 * degree).Sum(), 0);
  EXPECT_EQ(dew.At(-120 * degree).Sum(), 0);
  EXPECT_TRUE(std::isfinite(dew.At(-60 * degree).Sum()));
  EXPECT_TRUE(std::isfinite(Heiligenschein(Drop(1, 0, 0.75)).At(0.1).Sum()));
}

}  // namespace
}  // namespace lumivex
