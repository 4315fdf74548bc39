// Spheres in focused beams, as runs.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "runs/beam_methods.h"
#include "runs/run.h"
#include "solvers/functions/complex_algebra.h"

namespace lumivex {
namespace {

constexpr double pi = std::numbers::pi;

class Watch final : public RunWatch {
 public:
  bool Look(const RunProgress&) override { return --looks > 0; }
  int looks = 1'000'000'000;
};

RunRequest Drop(Method method, std::vector<int> rays = {}) {
  RunRequest request;
  request.method.method = method;
  request.method.rays = std::move(rays);
  request.method.beam.kind = Illumination::Kind::Gaussian;
  request.method.beam.y0 = -8;
  request.method.beam.w0 = 5;
  request.particle.sphere = FixedIndex{1.3326, 0};
  AngleRows rows;
  rows.xmin = rows.origin.emplace(-180);
  rows.xmax = 180;
  rows.step = 1;
  rows.NANG = 181;
  rows.window = {1, 361};
  rows.firstPoint = 1;
  rows.lastPoint = 361;
  request.run = AngleRun{rows};
  return request;
}

AngleFound FoundOf(const RunRequest& request, unsigned threads = 1) {
  Watch watch;
  RunEnd end = lumivex::Run(request, watch, threads);
  EXPECT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  return end.hasResults ? std::get<AngleFound>(end.results.found) : AngleFound{};
}

int RowOf(double degrees) {
  return static_cast<int>(std::lround(degrees + 180)) + 1;
}

double Largest(const AmplitudeTable& S) {
  double largest = 0;
  for (int row = 1; row <= 361; ++row) largest = std::max(largest, S.Intensity(row));
  return std::sqrt(largest);
}

void ExpectSame(const AmplitudeTable& a, const AmplitudeTable& b, double tolerance, const char* what) {
  for (int row = 1; row <= 361; ++row)
    ASSERT_LT(std::hypot(a.Re(row) - b.Re(row), a.Im(row) - b.Im(row)), tolerance) << what << ", row " << row;
}

// By arithmetic of high precision.
TEST(BeamRuns, RowsBeginAtTheLowestAngle) {
  const AngleFound found = FoundOf(Drop(Method::Debye, {0, 0, 1}));
  EXPECT_NEAR(found.S1.Re(RowOf(150)), 8.3147336, 1e-3);
  EXPECT_NEAR(found.S1.Im(RowOf(150)), 18.0533886, 1e-3);
  EXPECT_NEAR(found.S2.Re(RowOf(150)), 21.8246693, 1e-3);
  EXPECT_NEAR(found.S2.Im(RowOf(150)), -1.4016908, 1e-3);
}

// Faults of threads and blocks would show in the last digit.
TEST(BeamRuns, TheSameBitsOnAnyNumberOfThreads) {
  const AngleFound one = FoundOf(Drop(Method::Mie)), four = FoundOf(Drop(Method::Mie), 4);
  EXPECT_EQ(one.S1, four.S1);
  EXPECT_EQ(one.S2, four.S2);
}

TEST(BeamRuns, AWideBeamOnTheAxisIsThePlaneWave) {
  for (const Method method : {Method::Mie, Method::Debye}) {
    RunRequest beam = Drop(method, {0, 0, 1}), plane = beam;
    beam.method.beam.y0 = 0;
    beam.method.beam.w0 = 1e6;
    plane.method.beam = {};
    AngleRows& rows = std::get<AngleRun>(plane.run).rows;
    rows.origin.reset();
    rows.NANG = 91;
    rows.window = {1, 181};
    const AngleFound a = FoundOf(beam), b = FoundOf(plane);
    for (int degrees = 0; degrees <= 180; ++degrees)
      for (const int sign : {1, -1})
        EXPECT_NEAR(a.S1.Re(RowOf(sign * degrees)), b.S1.Re(degrees + 1), 1e-6 * Largest(a.S1)) << degrees;
  }
}

// Of an absorbing sphere the terms come to the whole soon.
TEST(BeamRuns, TermsAddUpToTheSphere) {
  RunRequest mie = Drop(Method::Mie), terms = Drop(Method::Debye, std::vector<int>(30, 1));
  mie.particle.sphere = terms.particle.sphere = FixedIndex{1.3326, 0.02};
  const AngleFound a = FoundOf(mie), b = FoundOf(terms);
  ExpectSame(a.S1, b.S1, 1e-8 * Largest(a.S1), "S1");
  ExpectSame(a.S2, b.S2, 1e-8 * Largest(a.S2), "S2");
  terms.method.difference = Difference::MieLessDebye;
  EXPECT_LT(Largest(FoundOf(terms).S1), 1e-8 * Largest(a.S1));
}

TEST(BeamRuns, MirroredBeamsMirrorTheLight) {
  RunRequest below = Drop(Method::Mie), above = below;
  above.method.beam.y0 = 8;
  const AngleFound a = FoundOf(below), b = FoundOf(above);
  for (int degrees = -180; degrees <= 180; degrees += 7)
    EXPECT_NEAR(a.S1.Intensity(RowOf(degrees)), b.S1.Intensity(RowOf(-degrees)), 1e-8 * Largest(a.S1) * Largest(a.S1));
  EXPECT_NE(a.S1.Intensity(RowOf(90)), a.S1.Intensity(RowOf(-90)));
}

TEST(BeamRuns, BeamsThatShineTogetherAddUp) {
  RunRequest one = Drop(Method::Mie), other = one, central = one, all = one;
  other.method.beam.y0 = 8;
  central.method.beam.y0 = 0;
  all.method.beam.pair = all.method.beam.central = true;
  const AngleFound a = FoundOf(one), b = FoundOf(other), c = FoundOf(central), sum = FoundOf(all);
  for (int row = 1; row <= 361; ++row)
    EXPECT_NEAR(sum.S2.Re(row), a.S2.Re(row) + b.S2.Re(row) + c.S2.Re(row), 1e-8 * Largest(sum.S2)) << row;
  // Those at one place count once.
  EXPECT_EQ(BeamsOf(central.method.beam, 10).size(), 1U);
  central.method.beam.pair = central.method.beam.central = true;
  EXPECT_EQ(BeamsOf(central.method.beam, 10).size(), 1U);
  EXPECT_EQ(BeamsOf(all.method.beam, 10).size(), 3U);
}

// Its azimuth turns the light of one beam from one polarisation to the other.
TEST(BeamRuns, OneBeamIsTurnedByItsTilt) {
  RunRequest request = Drop(Method::Mie);
  request.method.beam.y0 = 0;
  const AngleFound two = FoundOf(request);
  request.method.beam.oneBeam = true;
  const AngleFound across = FoundOf(request);
  ExpectSame(across.S1, two.S1, 1e-9 * Largest(two.S1), "S1");
  EXPECT_LT(Largest(across.S2), 1e-9 * Largest(two.S2));
  request.method.beam.phi = 0;
  const AngleFound within = FoundOf(request);
  ExpectSame(within.S2, two.S2, 1e-9 * Largest(two.S2), "S2");
  EXPECT_LT(Largest(within.S1), 1e-9 * Largest(two.S1));
}

TEST(BeamRuns, ADiscThatCoversTheSphereIsAPlaneWave) {
  RunRequest disc = Drop(Method::Mie), plane = disc;
  disc.method.beam.kind = Illumination::Kind::TopHat;
  disc.method.beam.w0 = 40;
  plane.method.beam.w0 = 1e6;
  plane.method.beam.y0 = 0;
  const AngleFound a = FoundOf(disc), b = FoundOf(plane);
  ExpectSame(a.S1, b.S1, 1e-6 * Largest(b.S1), "S1");
}

// Rays and the series take the same side of the beam: y0 on one, and on the other.
TEST(BeamRuns, RaysAreLitWhereTheSeriesIs) {
  for (const int p : {0, 1, 2}) {
    std::vector<int> rays(static_cast<std::size_t>(p) + 1, 0);
    rays.back() = 1;
    RunRequest series = Drop(Method::Debye, rays), traced = Drop(Method::YoungMod, rays);
    for (RunRequest* request : {&series, &traced}) {
      request->particle.radius = 60;
      request->method.beam.y0 = p == 0 ? 30 : -30;
      request->method.beam.w0 = 30;
    }
    const AngleFound a = FoundOf(series), b = FoundOf(traced);
    const int row = RowOf(p == 0 ? 100 : p == 1 ? 20 : 160);
    // Two rays of p = 2 interfere.
    EXPECT_NEAR(std::sqrt(b.S1.Intensity(row) / a.S1.Intensity(row)), 1, p == 2 ? 0.2 : 0.01) << "p = " << p;
    EXPECT_GT(b.S1.Intensity(row), b.S1.Intensity(362 - row)) << "p = " << p;
  }
}

TEST(BeamRuns, RunningSumsEndAtTheAmplitude) {
  for (const auto over : {ConvergenceRun::Over::L, ConvergenceRun::Over::M}) {
    RunRequest request = Drop(Method::Mie);
    request.graph = GraphOf({13, 0});
    request.run = ConvergenceRun{60, over};
    Watch watch;
    const RunEnd end = lumivex::Run(request, watch, 2);
    ASSERT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
    const auto& found = std::get<ConvergenceFound>(end.results.found);
    const BeamLimits limits = end.results.last.beam->limits;
    const bool overL = over == ConvergenceRun::Over::L;
    EXPECT_EQ(found.first, overL ? 1 : 0);
    EXPECT_EQ(found.perpendicular.size(), static_cast<std::size_t>(overL ? limits.Lmax + 1 : limits.Mmax + 2));
    const AngleFound whole = FoundOf(Drop(Method::Mie));
    EXPECT_NEAR(found.perpendicular.back() / whole.S1.Intensity(RowOf(60)), 1, 1e-9);
    EXPECT_NEAR(found.parallel.back() / whole.S2.Intensity(RowOf(60)), 1, 1e-9);
    EXPECT_EQ(found.perpendicularTerms.ratio.back(), 1);
    EXPECT_LT(found.perpendicularTerms.ofPi.back(), 1e-3 * *std::ranges::max_element(found.perpendicularTerms.ofPi));
  }
}

TEST(BeamRuns, LimitsThatAreTypedHold) {
  RunRequest request = Drop(Method::Mie);
  const AngleFound whole = FoundOf(request);
  request.method.beam.limits = BeamLimits{60, 5};
  Watch watch;
  const RunEnd end = lumivex::Run(request, watch, 1);
  EXPECT_EQ(end.results.last.beam->limits, (BeamLimits{60, 5}));
  EXPECT_EQ(end.results.last.NSTOP, 60);
  EXPECT_GT(std::fabs(std::get<AngleFound>(end.results.found).S1.Re(100) - whole.S1.Re(100)), 1e-3);
  // Sums over j give the same light as Bessel functions.
  request.method.beam.limits.reset();
  for (const bool logarithms : {true, false}) {
    request.method.beam.rule = {1000, 1e-20, false, logarithms};
    ExpectSame(FoundOf(request).S1, whole.S1, 1e-9 * Largest(whole.S1), "sums over j");
  }
}

TEST(BeamRuns, WhatIsTooLargeIsRefusedAtOnce) {
  RunRequest large = Drop(Method::Mie);
  large.particle.radius = 2e4;
  Watch watch;
  RunEnd end = lumivex::Run(large, watch, 1);
  EXPECT_EQ(end.outcome, Outcome::Refused);
  EXPECT_EQ(end.refusal.title, "Error in MIE_Gaussian sub-routine");
  EXPECT_EQ(end.refusal.text, "Reduce radius or increase wavelength");
  RunRequest wide = Drop(Method::Mie);
  wide.particle.radius = 5000;
  wide.method.beam.y0 = -5000;
  end = lumivex::Run(wide, watch, 1);
  EXPECT_EQ(end.outcome, Outcome::Refused);
  EXPECT_NE(end.refusal.text.find("is too long"), std::string::npos) << end.refusal.text;
  RunRequest none = Drop(Method::Debye, {0});
  EXPECT_EQ(lumivex::Run(none, watch, 1).refusal.text, "No rays selected");
}

// The field a hundred radii away is nothing, and that of a needle of light goes on without a hang or an overflow.
TEST(BeamRuns, OddBeamsComeToAnEnd) {
  RunRequest far = Drop(Method::Mie);
  far.method.beam.y0 = -1000;
  EXPECT_LT(Largest(FoundOf(far).S1), 1e-300);
  for (const double w0 : {0.3, 0.001, 1e-9}) {
    RunRequest needle = Drop(Method::Mie);
    needle.method.beam.w0 = w0;
    const AngleFound found = FoundOf(needle);
    EXPECT_TRUE(std::isfinite(Largest(found.S1))) << w0;
  }
}

TEST(BeamRuns, AStopKeepsWholeRows) {
  RunRequest request = Drop(Method::Mie);
  request.particle.radius = 100;
  Watch watch;
  watch.looks = 3;
  const RunEnd end = lumivex::Run(request, watch, 1);
  EXPECT_EQ(end.outcome, Outcome::Stopped);
  if (!end.hasResults) return;
  const AngleFound whole = FoundOf(request);
  const auto& part = std::get<AngleFound>(end.results.found);
  for (int row = 1; row <= 361; ++row)
    if (part.rows.Contains(row)) {
      EXPECT_EQ(part.S1.Re(row), whole.S1.Re(row)) << row;
    }
}

}  // namespace
}  // namespace lumivex
