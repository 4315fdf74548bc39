#include "solvers/drops/drop_rays.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "solvers/drops/drop_rainbow.h"

namespace lumivex {
namespace {

constexpr double pi = std::numbers::pi, degree = pi / 180;

DropPower PowerOf(const DropShape& shape, double elevation, int p, const DropRows& rows = {0, degree, 181, 0, 0},
                  int side = 600, DropMaterial material = {1.333, 0}) {
  std::vector<int> selected(static_cast<std::size_t>(p) + 1, 0);
  selected.back() = 1;
  DropPower power;
  SilentMonitor monitor;
  AddDropRays(shape, material, DropLight(elevation * degree), selected, side, 0, side, rows, power, monitor);
  return power;
}

TEST(DropRays, PowerByOrder) {
  const DropShape sphere = DropShape::Spheroid(1), flat = DropShape::Spheroid(0.9), burger = DropShape::Burgeroid(2);
  const struct {
    const DropShape& shape;
    double elevation;
    double power[5][2];
    int orders;
  } known[] = {
      {sphere,
       0,
       {{0.101948, 0.030864}, {0.821815, 0.945580}, {0.061623, 0.019571}, {0.009684, 0.002554}, {0.002688, 0.000757}},
       5},
      {flat, 20, {{0.1036, 0.0316}, {0.80855, 0.92744}, {0.05497, 0.01630}, {0.00828, 0.00157}}, 4},
      {burger, 20, {{0.1013, 0.0311}, {0.8126, 0.9350}, {0.05095, 0.01290}, {0.01233, 0.00271}}, 4}};
  for (const auto& row : known) {
    for (int p = 0; p < row.orders; ++p) {
      const DropPower power = PowerOf(row.shape, row.elevation, p);
      EXPECT_NEAR(power.allPerpendicular / pi, row.power[p][0], 3e-4 + 2e-3 * row.power[p][0]) << p;
      EXPECT_NEAR(power.allParallel / pi, row.power[p][1], 3e-4 + 2e-3 * row.power[p][1]) << p;
    }
  }
}

TEST(DropRays, RowsOfASpheroid) {
  const DropShape flat = DropShape::Spheroid(0.9);
  const auto row = [&](int p, double angle, double clockHalfWidth) {
    const DropRows rows{(angle)*degree, 2 * degree, 1, 0, clockHalfWidth * degree};
    const DropPower power = PowerOf(flat, 20, p, rows, 1600);
    return std::pair(power.perpendicular[0] / rows.SolidAngle(1), power.parallel[0] / rows.SolidAngle(1));
  };
  const auto expect = [](std::pair<double, double> found, double perpendicular, double parallel) {
    EXPECT_NEAR(found.first, perpendicular, 0.02 * perpendicular);
    EXPECT_NEAR(found.second, parallel, 0.02 * parallel);
  };
  expect(row(1, 31, 0), 0.973, 1.129);
  expect(row(1, 61, 0), 0.0499, 0.0910);
  expect(row(2, 159, 5), 0.0570, 0.0202);
  expect(row(2, 169, 5), 0.0271, 0.0227);
}

TEST(DropRays, AbsorptionActsAlongTheChords) {
  const DropRows rows{0, degree, 181, 0, 0};
  const double clear = PowerOf(DropShape::Spheroid(1), 0, 1, rows, 300).allParallel;
  const double dark = PowerOf(DropShape::Spheroid(1), 0, 1, rows, 300, {1.333, 0.1}).allParallel;
  // All chords are between the edge's and the diameter.
  EXPECT_GT(dark, clear * std::exp(-0.1 * 2));
  EXPECT_LT(dark, clear * std::exp(-0.1 * 2 * std::sqrt(1 - 1 / (1.333 * 1.333))));
}

TEST(DropRays, TheSameWhateverTheBlocks) {
  const DropShape shape = DropShape::Burgeroid(2);
  const std::vector<int> selected = {0, 0, 1, 1};
  const DropRows rows{120 * degree, degree, 30, 0.3, 0.2};
  SilentMonitor monitor;
  DropPower whole, parts;
  const DropLight light(0.3);
  AddDropRays(shape, {}, light, selected, 60, 0, 60, rows, whole, monitor);
  for (const auto& [from, to] : {std::pair(0, 17), std::pair(17, 60)})
    AddDropRays(shape, {}, light, selected, 60, from, to, rows, parts, monitor);
  EXPECT_EQ(whole.perpendicular, parts.perpendicular);
  EXPECT_EQ(whole.parallel, parts.parallel);
}

double BowAngle(const DropShape& shape, int p, double elevation, double clock) {
  const auto bow = FindDropBow(shape, 1.333, DropLight(elevation * degree), p, clock * degree);
  return bow ? bow->angle / degree : -1;
}

TEST(DropRainbow, AnglesAlongTheBow) {
  for (const double elevation : {0.0, 35.0})
    for (const double clock : {0.0, 77.0, 180.0}) {
      EXPECT_NEAR(BowAngle(DropShape::Spheroid(1), 2, elevation, clock), 137.921893, 1e-6);
      EXPECT_NEAR(BowAngle(DropShape::Spheroid(1), 3, elevation, clock), 129.109242, 1e-6);
    }
  const struct {
    DropShape shape;
    int p;
    double angles[3][4];
  } known[] = {{DropShape::Spheroid(0.95),
                2,
                {{143.38425, 141.04376, 137.92189, 141.04376},
                 {144.83695, 142.13384, 137.30060, 137.52524},
                 {142.87118, 140.51214, 135.83001, 133.90391}}},
               {DropShape::Spheroid(0.95),
                3,
                {{128.50812, 129.05332, 129.10924, 129.05332},
                 {129.09136, 129.30805, 129.03127, 128.81714},
                 {128.88487, 128.91651, 128.94280, 129.21959}}},
               {DropShape::Spheroid(0.9),
                2,
                {{150.18752, 145.96763, 137.92189, 145.96763},
                 {152.12440, 147.58966, 136.59047, 137.08576},
                 {147.08953, 143.08082, 133.60913, 129.13911}}},
               {DropShape::Burgeroid(1.0),
                2,
                {{139.13444, 138.53231, 137.92189, 139.27834},
                 {140.42285, 139.49724, 137.72429, 137.99569},
                 {140.54896, 139.45974, 137.05915, 136.13761}}},
               {DropShape::Burgeroid(1.0),
                3,
                {{126.11163, 127.67138, 129.10924, 130.37038},
                 {128.30683, 129.26287, 129.03441, 129.69598},
                 {130.84254, 131.00224, 128.73472, 127.23357}}},
               {DropShape::Burgeroid(1.5),
                2,
                {{140.64991, 139.43496, 137.92189, 141.24140},
                 {143.93752, 141.79908, 137.48502, 138.02513},
                 {143.74037, 141.25167, 136.06697, 133.82361}}}};
  for (const auto& row : known)
    for (int h = 0; h < 3; ++h)
      for (int c = 0; c < 4; ++c)
        EXPECT_NEAR(BowAngle(row.shape, row.p, 20 * h, 45 * c), row.angles[h][c], 1e-4)
            << row.p << " sun " << 20 * h << " clock " << 45 * c;
}

/// Moebius 1907: the shift of a slightly flattened drop's bow at its top and bottom.
TEST(DropRainbow, SlightlyFlattened) {
  const double eps = 1e-4, m = 1.333;
  for (const int p : {2, 3}) {
    const double sini = std::sqrt((p * p - m * m) / (p * p - 1.0)), r = std::asin(sini / m);
    const double rho = pi - (p == 2 ? 137.921893 : 129.109242) * degree;
    for (const double elevation : {0.0, 25.0, 60.0}) {
      const double top = std::cos(2 * elevation * degree - rho), cubed = std::sin(r) * std::pow(std::cos(r), 3);
      const double shift = (p == 2 ? 8 * cubed : 32 * cubed * std::cos(2 * r)) * eps * top / degree;
      const double sphere = p == 2 ? 137.921893 : 129.109242;
      EXPECT_NEAR(BowAngle(DropShape::Spheroid(1 - eps), p, elevation, 0) - sphere, shift,
                  2e-3 * std::fabs(shift) + 5e-6);
    }
  }
}

TEST(DropRainbow, MayBeMissing) {
  EXPECT_FALSE(FindDropBow(DropShape::Spheroid(1), 1.333, DropLight(0), 1, 0));
  EXPECT_FALSE(FindDropBow(DropShape::Spheroid(1), 2.5, DropLight(0), 2, 0));
  EXPECT_FALSE(FindDropBow(DropShape::Spheroid(1), 0.75, DropLight(0), 2, 0));
}

}  // namespace
}  // namespace lumivex
