// Traced wavefronts and their wavelets against the rays that they are made of.

#include "solvers/rays/huygens_wave.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <vector>

#include "solvers/rays/ray_series.h"

namespace lumivex {
namespace {

using Complex = std::complex<double>;
constexpr double pi = 3.14159265358979324;

std::vector<int> Only(int p) {
  std::vector<int> selected(static_cast<std::size_t>(p) + 1, 0);
  selected.back() = 1;
  return selected;
}

struct Pair {
  AmplitudeTable S1{1801};
  AmplitudeTable S2{1801};
};

/// The rays of one p without the small terms that wavefronts have not: from `firstAngle` on in steps of 0.1 degrees.
Pair Rays(double x, double m, int p, double firstAngle, RowWindow window) {
  const std::vector<int> selected = Only(p);
  RayRequest request;
  request.x = x;
  request.mRe = m;
  request.selected = selected;
  request.method = p == 0 ? RayMethod::YoungAiry : RayMethod::YoungMod;
  request.grid = AngleGrid(901);
  request.firstAngle = firstAngle;
  request.window = window;
  Pair result;
  SilentMonitor monitor;
  SumRays(request, result.S1, result.S2, monitor);
  return result;
}

TEST(Huygens, TracesRaysThroughTheSphere) {
  const HuygensWave wave = TraceHuygens(1000, 4.0 / 3.0, 1, 50);
  ASSERT_EQ(wave.impact.size(), 51U);
  EXPECT_NEAR(wave.exitX[0], 1, 1e-12);
  EXPECT_NEAR(wave.exitY[0], 0, 1e-12);
  // The axial wave stands half a radius behind the exit; next to it the wavefront converges.
  EXPECT_NEAR(wave.waveX[0], 0.5, 1e-12);
  EXPECT_GT(wave.deviation[10], 0);
  for (std::size_t k = 1; k < 50; ++k) EXPECT_NEAR(std::hypot(wave.exitX[k], wave.exitY[k]), 1, 1e-12);
  // Rays that are totally reflected do not enter; a reflected one does not ask.
  EXPECT_EQ(TraceHuygens(1000, 0.75, 1, 100).impact.size(), 76U);
  EXPECT_EQ(TraceHuygens(1000, 0.75, 0, 100).impact.size(), 101U);
  // On the axis fixed values stand for the divergence: r = 1/7 in water, r of the second order -1/7.
  const double axis[] = {500.0 / 7, 2000 * (48.0 / 49), 500 * (48.0 / 49) / 7, 1000.0 / 128 * (48.0 / 49) / 49};
  for (const int p : {0, 1, 2, 3}) {
    const HuygensWave on = TraceHuygens(1000, 4.0 / 3.0, p, 10);
    EXPECT_NEAR(on.amplitudePerpendicular[0], axis[p], 1e-9) << p;
    EXPECT_NEAR(on.amplitudeParallel[0], axis[p], 1e-9) << p;
  }
}

// A point of the front has the amplitude and phase of the ray that it is on, also where the sphere is rarer than what
// is around it; the field is that inside the sphere, which turns its sign on the way out.
TEST(Huygens, EveryTracedRayIsThatOfTheSum) {
  struct Case {
    double m;
    int p;
    double low, high;  // scattering angles with one ray alone, degrees
  };
  for (const Case& c : {Case{1.333, 0, 2, 178}, Case{0.75, 0, 90, 178}, Case{1.333, 1, 2, 80}, Case{0.75, 1, 2, 80},
                        Case{0.75, 2, 90, 178}, Case{1.333, 3, 2, 100}, Case{2.5, 2, 96, 178}}) {
    const HuygensWave wave = TraceHuygens(300, c.m, c.p, 40);
    int met = 0;
    for (std::size_t k = 1; k + 1 < wave.impact.size(); ++k) {
      const double theta = std::fabs(std::remainder(wave.deviation[k], 2 * pi));
      if (theta < c.low * pi / 180 || theta > c.high * pi / 180) continue;
      // The rainbow of p = 3 has a second ray at the angles beside it.
      if (c.p == 3 && wave.impact[k] > 0.7) continue;
      ++met;
      const Pair rays = Rays(300, c.m, c.p, theta, {1, 1});
      const auto field = [&](double amplitude, double phase) {
        return (c.p >= 1 ? -amplitude : amplitude) * Complex(-std::sin(phase), -std::cos(phase));
      };
      const Complex S1(rays.S1.Value(1)), S2(rays.S2.Value(1));
      EXPECT_LT(std::abs(field(wave.amplitudePerpendicular[k], wave.phasePerpendicular[k]) - S1), 1e-6 * std::abs(S1))
          << "m " << c.m << ", p " << c.p << ", ray " << k;
      EXPECT_LT(std::abs(field(wave.amplitudeParallel[k], wave.phaseParallel[k]) - S2), 1e-6 * std::abs(S1))
          << "m " << c.m << ", p " << c.p << ", ray " << k;
    }
    EXPECT_GT(met, 5) << "m " << c.m << ", p " << c.p;
  }
}

// Malus: a front stands upright on its rays.
TEST(Huygens, FrontsStandUprightOnTheirRays) {
  for (const double m : {0.75, 1.333, 2.5})
    for (const int p : {0, 1, 2, 3}) {
      const HuygensWave wave = TraceHuygens(1000, m, p, 4000);
      for (std::size_t k = 41; k + 41 < wave.impact.size(); k += 40) {
        const double dx = wave.waveX[k + 1] - wave.waveX[k - 1], dy = wave.waveY[k + 1] - wave.waveY[k - 1];
        const double along = dx * std::cos(wave.deviation[k]) - dy * std::sin(wave.deviation[k]);
        ASSERT_LT(std::fabs(along), 2e-3 * std::hypot(dx, dy) + 1e-8) << "m " << m << ", p " << p << ", ray " << k;
      }
    }
}

TEST(Huygens, WaveletsGiveTheRaysOfARarerSphere) {
  struct Case {
    double m;
    int p, low, high;  // tenths of a degree
    double tolerance;  // of the wave that the edge leaves
  };
  for (const Case& c :
       {Case{0.75, 1, 150, 500, 0.05}, Case{0.75, 2, 1200, 1700, 0.05}, Case{1.333, 0, 300, 1200, 0.1}}) {
    const std::vector<int> selected = Only(c.p);
    const RowWindow window{c.low + 1, c.high + 1};
    HuygensRequest request;
    request.x = 1000;
    request.m = c.m;
    request.selected = selected;
    request.grid = AngleGrid(901);
    request.window = window;
    Pair waves;
    SilentMonitor monitor;
    SumHuygens(request, waves.S1, waves.S2, monitor);
    const Pair rays = Rays(request.x, c.m, c.p, 0, window);
    double difference = 0, sum = 0;
    for (int row = window.low; row <= window.high; ++row) {
      difference += std::norm(Complex(waves.S1.Value(row)) - Complex(rays.S1.Value(row)));
      sum += std::norm(Complex(rays.S1.Value(row)));
    }
    EXPECT_LT(std::sqrt(difference / sum), c.tolerance) << "m " << c.m << ", p " << c.p;
  }
}

}  // namespace
}  // namespace lumivex
