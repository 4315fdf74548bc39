#include "solvers/drops/drop_shape.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

TEST(DropShape, AxisRatiosOfFallingDrops) {
  const double known[][2] = {{2, 0.9274},   {2.5, 0.8917}, {3, 0.8532},   {3.5, 0.8144}, {4, 0.7774},
                             {4.5, 0.7418}, {5, 0.7070},   {5.5, 0.6734}, {6, 0.6419}};
  for (const auto& row : known) {
    EXPECT_NEAR(DropShape::Burgeroid(row[0]).AxisRatio(), row[1], 1e-4) << row[0];
    EXPECT_NEAR(AxisRatioOfSize(row[0]), row[1], 0.004) << row[0];
  }
  for (const double mm : {1.0, 1.5}) EXPECT_NEAR(DropShape::Burgeroid(mm).AxisRatio(), AxisRatioOfSize(mm), 0.001);
  // Between the rows of the table, and no step at its beginning.
  EXPECT_NEAR(DropShape::Burgeroid(2.2).AxisRatio(), AxisRatioOfSize(2.2), 0.004);
  EXPECT_NEAR(DropShape::Burgeroid(2.0001).AxisRatio(), DropShape::Burgeroid(1.9999).AxisRatio(), 1e-4);
  EXPECT_NEAR(DropShape::Burgeroid(1e-3).AxisRatio(), 1, 1e-6);
  EXPECT_FALSE(DropShape::Burgeroid(5.5).IsConcave());
}

TEST(DropShape, HasTheVolumeOfItsSphere) {
  for (const auto& shape : {DropShape::Burgeroid(6), DropShape::Burgeroid(1), DropShape::Spheroid(0.8),
                            DropShape::Burgeroid(5).Weakened(0.3)}) {
    double volume = 0;
    for (int i = 0; i < 20000; ++i) volume += std::pow(shape.Radius(-1 + (i + 0.5) / 10000), 3) / 20000;
    EXPECT_NEAR(volume, 1, 1e-7);
  }
}

/// A spheroid written as a Burgeroid would be needs more orders; lines are held against the surface itself.
TEST(DropShape, LinesMeetTheSurface) {
  for (const auto& shape : {DropShape::Spheroid(0.8), DropShape::Burgeroid(3), DropShape::Burgeroid(6)}) {
    int met = 0;
    for (int i = 0; i < 400; ++i) {
      const double azimuth = 0.7 * i, polar = 0.013 * i;
      const SpaceVector e{std::sin(polar) * std::cos(azimuth), std::sin(polar) * std::sin(azimuth), std::cos(polar)};
      SpaceVector side = Cross(e, {0.3, -0.5, 0.81});
      side = 1 / Length(side) * side;
      const SpaceVector P = -5 * e + (i % 23) / 20.0 * side;
      const auto entry = shape.Entry(P, e);
      if (!entry) continue;
      ++met;
      const auto height = [&](const SpaceVector& at) { return Length(at) - shape.Radius(-at.z / Length(at)); };
      const SpaceVector front = P + *entry * e;
      EXPECT_NEAR(height(front), 0, 1e-13);
      EXPECT_LT(Dot(shape.Normal(front), e), 1e-12);
      const double chord = shape.Chord(front, e);
      EXPECT_GT(chord, 0);
      const SpaceVector back = front + chord * e;
      EXPECT_NEAR(height(back), 0, 1e-13);
      // The normal is across the surface: a step along the surface does not leave it.
      SpaceVector along = Cross(shape.Normal(back), {0.2, 0.9, 0.1});
      along = 1e-5 / Length(along) * along;
      EXPECT_NEAR(height(back + along), 0, 1e-9);
    }
    EXPECT_GT(met, 300);
    EXPECT_FALSE(shape.Entry({0, -5, 1.5}, {0, 1, 0}));
  }
}

}  // namespace
}  // namespace lumivex
