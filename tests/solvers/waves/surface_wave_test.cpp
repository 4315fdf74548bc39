#include "solvers/waves/surface_wave.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <tuple>
#include <vector>

#include "solvers/functions/complex_algebra.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/debye_coefficients.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {
namespace {

using Complex = std::complex<double>;
constexpr double degree = std::numbers::pi / 180;

struct Pair {
  Complex S1, S2;
};

Pair At(double x, Complex m, int p, double angle, SurfacePath path, int first, int last, double amplitude = 1) {
  SilentMonitor monitor;
  const auto poles = FindSurfacePoles(x, m, last, p, monitor);
  const SurfaceWave wave(poles, x, m.real(), p, path, first, last);
  AmplitudeTable S1(1), S2(1);
  const double radians = angle * degree;
  EXPECT_EQ(wave.Sum(std::span(&radians, 1), amplitude, S1, S2, 1, monitor), 1U);
  return {S1.Value(1), S2.Value(1)};
}

void ExpectNear(const Complex& found, const Complex& known, double share) {
  EXPECT_LT(std::abs(found - known), share * std::abs(known)) << found << " for " << known;
}

TEST(SurfacePoles, OfWater) {
  const struct {
    double x;
    Complex te1, te2, tm1, tm2;
    double share;
  } known[] = {{50, {53.519023, 4.770460}, {56.141899, 9.250677}, {53.304845, 4.088101}, {55.792541, 8.703500}, 2e-6},
               {200,
                {205.459627435, 8.259519261},
                {209.536079165, 15.315266851},
                {205.351267233, 7.463078678},
                {209.349808579, 14.585595080},
                1e-10},
               {1000,
                {1009.28724695, 14.93889427},
                {1016.23077365, 26.98154068},
                {1009.24436766, 14.08651493},
                {1016.15510839, 26.15193839},
                1e-10},
               {20000,
                {20025.1862763, 42.4923298},
                {20044.0329558, 75.1475226},
                {20025.1798635, 41.6147891},
                {20044.0216262, 74.2729079},
                1e-10}};
  SilentMonitor monitor;
  for (const auto& row : known) {
    const auto poles = FindSurfacePoles(row.x, 1.333, 2, 1, monitor);
    ASSERT_EQ(poles.size(), 4U);
    ExpectNear(poles[0].lambda, row.te1, row.share);
    ExpectNear(poles[1].lambda, row.te2, row.share);
    ExpectNear(poles[2].lambda, row.tm1, row.share);
    ExpectNear(poles[3].lambda, row.tm2, row.share);
  }
}

TEST(SurfaceWave, OfManyShortCutsIsSmoothOnTheAxis) {
  // Each path alone has a focal line there, a hundred million times as strong as the sum of both.
  for (const auto& [x, p, axis, beside] :
       {std::tuple{200.0, 26, 0.0, 0.1}, {200.0, 30, 0.0, 0.1}, {200.0, 28, 180.0, 179.9}, {1000.0, 26, 0.0, 0.02}}) {
    const double on = std::abs(At(x, 1.333, p, axis, SurfacePath::Both, 1, 10).S1);
    const double off = std::abs(At(x, 1.333, p, beside, SurfacePath::Both, 1, 10).S1);
    EXPECT_NEAR(on / off, 1, 0.05) << x << " " << p;
  }
}

TEST(SurfaceWave, PublishedAmplitudes) {
  const auto both = SurfacePath::Both;
  const struct {
    double x;
    int p;
    double angle;
    int last;
    SurfacePath path;
    Complex S1, S2;
  } known[] = {{100, 1, 120, 10, both, {0.360030, 0.319495}, {1.062059, 0.630842}},
               {100, 1, 120, 1, both, {0.361374, 0.317231}, {1.062691, 0.625176}},
               {1000, 1, 100, 10, both, {0.970097, 0.751834}, {2.234768, 1.572661}},
               {1000, 2, 175, 10, both, {-17.674903, -8.111415}, {-39.648272, -13.689882}},
               {1000, 2, 175, 10, SurfacePath::Short, {-15.831172, -10.238212}, {-35.449585, -19.946330}},
               {1000, 2, 175, 10, SurfacePath::Long, {-1.843731, 2.126797}, {-4.198687, 6.256448}},
               {1000, 2, 180, 10, both, {119.1785, -38.5860}, {-119.1784, 38.5860}},
               {200, 3, 100, 10, both, {-3.602008, -0.340994}, {-7.038422, 1.802262}},
               {200, 4, 20, 10, both, {1.417709, -6.879617}, {-3.704357, -10.954589}}};
  for (const auto& row : known) {
    SCOPED_TRACE(testing::Message() << row.x << " " << row.p << " " << row.angle);
    const Pair found = At(row.x, 1.333, row.p, row.angle, row.path, 1, row.last);
    ExpectNear(found.S1, row.S1, 3e-6);
    ExpectNear(found.S2, row.S2, 3e-6);
  }
  const double glory[][2] = {{50, 18.91}, {100, 36.29}, {200, 62.79}, {500, 104.4}, {1000, 125.3}, {2000, 120.6}};
  for (const auto& row : glory) EXPECT_NEAR(std::abs(At(row[0], 1.333, 2, 180, both, 1, 10).S1), row[1], 6e-4 * row[1]);
}

TEST(SurfaceWave, OneShortCutIsTheDebyeTermWhereNoRayGoes) {
  for (const Complex m : {Complex(1.333, 0), Complex(1.333, 0.002), Complex(1.5, 0)}) {
    for (const double x : {100.0, 500.0}) {
      SilentMonitor monitor;
      const auto poles = FindSurfacePoles(x, m, 15, 1, monitor);
      const SurfaceWave wave(poles, x, m.real(), 1, SurfacePath::Both, 1, 15);
      const std::vector<double> angles = {100 * degree, 130 * degree,   155 * degree,
                                          170 * degree, 179.5 * degree, std::numbers::pi};
      AmplitudeTable S1(6), S2(6), exact1(6), exact2(6);
      wave.Sum(angles, 1, S1, S2, 1, monitor);
      const int terms = NStopEstimate(x, 20);
      const std::vector<int> selected = {0, 1};
      const PartialWaves waves =
          SumDebyeTerms(DebyeSurfaces(x, m.real(), m.imag(), terms, false, monitor), selected, 1, terms, monitor);
      SumAngularSeries(waves, angles, exact1, exact2, monitor);
      for (int row = 1; row <= 6; ++row) {
        SCOPED_TRACE(testing::Message() << m << " " << x << " row " << row);
        ExpectNear(S1.Value(row), exact1.Value(row), 2e-5);
        ExpectNear(S2.Value(row), exact2.Value(row), 2e-5);
      }
    }
  }
}

TEST(SurfaceWave, PathsAndPolesAddUp) {
  const Pair both = At(300, 1.333, 2, 176, SurfacePath::Both, 1, 5);
  const Pair shortest = At(300, 1.333, 2, 176, SurfacePath::Short, 1, 5);
  const Pair longest = At(300, 1.333, 2, 176, SurfacePath::Long, 1, 5);
  ExpectNear(shortest.S1 + longest.S1, both.S1, 1e-12);
  ExpectNear(shortest.S2 + longest.S2, both.S2, 1e-12);
  const Pair least = At(300, 1.333, 2, 176, SurfacePath::Both, 1, 2),
             rest = At(300, 1.333, 2, 176, SurfacePath::Both, 3, 5);
  ExpectNear(least.S1 + rest.S1, both.S1, 1e-9);
  ExpectNear(At(300, 1.333, 2, 176, SurfacePath::Both, 1, 5, -2).S2, -2.0 * both.S2, 1e-14);
  // On the lit side of the edge the short way has ended.
  EXPECT_EQ(At(300, 1.333, 2, 150, SurfacePath::Short, 1, 5).S1, Complex(0));
  EXPECT_EQ(At(300, 1.333, 2, 150, SurfacePath::Both, 1, 5).S1, At(300, 1.333, 2, 150, SurfacePath::Long, 1, 5).S1);
  // Nothing is out of bounds anywhere on the axis.
  for (const int p : {1, 2, 3, 10, 25})
    for (const double angle : {0.0, 1e-9, 180.0})
      EXPECT_LT(std::abs(At(50, 1.333, p, angle, SurfacePath::Both, 1, 10).S1), 100) << p << " " << angle;
}

TEST(SurfaceWave, IsForLargeDenseSpheres) {
  EXPECT_TRUE(SurfaceWavesApply(50, 1.333));
  EXPECT_FALSE(SurfaceWavesApply(9.99, 2));
  EXPECT_FALSE(SurfaceWavesApply(1000, 1));
  EXPECT_FALSE(SurfaceWavesApply(1000, 0.75));
  EXPECT_FALSE(SurfaceWavesApply(14, 1.333));
  EXPECT_TRUE(SurfaceWavesApply(16, 1.333));
  EXPECT_FALSE(SurfaceWavesApply(50, 4.2));
}

TEST(ScaledHankel, SeriesAndExpansionMeet) {
  for (const double angle : {0.0, 0.1, 0.3}) {
    for (const bool second : {false, true}) {
      const Complex inside = std::polar(13.9999999, angle), outside = std::polar(14.0000001, angle);
      const HankelPair a = ScaledHankel(inside, second), b = ScaledHankel(outside, second);
      ExpectNear(a.zero, b.zero, 2e-8);
      ExpectNear(a.one, b.one, 2e-8);
    }
  }
  // Abramowitz and Stegun 1964, table 9.1: J0, Y0, J1, Y1 of 2.
  const HankelPair two = ScaledHankel({2, 0}, false);
  const Complex wound = std::exp(Complex(0, 2));
  ExpectNear(Complex(two.zero) * wound, {0.2238907791, 0.5103756726}, 1e-9);
  ExpectNear(Complex(two.one) * wound, {0.5767248078, -0.1070324315}, 1e-9);
}

}  // namespace
}  // namespace lumivex
