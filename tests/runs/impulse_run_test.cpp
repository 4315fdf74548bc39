// Answers to a pulse, as runs.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "runs/families.h"
#include "runs/pulse_band.h"
#include "runs/run_fixture.h"
#include "timedomain/ray_times.h"

namespace lumivex {
namespace {

constexpr double degree = std::numbers::pi / 180;

PulsedLight Light(std::int32_t length = 4096, double cutOff = -40) {
  PulsedLight light;
  light.pulse.length = length;
  light.pulse.cutOff = cutOff;
  return light;
}

/// A drop of 10 um and index 1.333 over the whole window.
RunRequest TimeRequest(const PulsedLight& light, double xmin, double xmax, double step, Method method = Method::Mie) {
  RunRequest request = AngleRequest(10, step, method);
  request.graph = GraphOf({19, 1});
  request.particle.sphere = FixedIndex{1.333, 0};
  request.light.lambda = 0.65;
  const ResponseClock clock = ClockOf(light, 10, 1);
  request.run = AngleMapRun{RowsFor(xmin, xmax, step), TimeColumns(clock, 0, clock.Window(), clock.step), false, light};
  return request;
}

RunRequest OneAngle(const RunRequest& picture, double angle) {
  RunRequest request = picture;
  request.graph = {{19, 2}, Family::PulseAnswer, AxisVariable::PulseTime, Quantity::Intensity};
  request.run = WholeWindow(picture, *std::get<AngleMapRun>(picture.run).pulse, angle * degree);
  return request;
}

const MapFound& Picture(const RunEnd& end) {
  EXPECT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  return *end.results.Find<MapFound>();
}

/// The cell of a sample j of the pulse at an angle.
double CellAt(const RunEnd& end, std::size_t panel, double angle, int j) {
  const auto& run = std::get<AngleMapRun>(end.results.asked.run);
  const ResponseClock clock = ClockOf(*run.pulse, 10, 1);
  const MapFound& map = Picture(end);
  const int column = static_cast<int>(std::lround((clock.TimeOf(j) - run.columns.low) / clock.step));
  const int row = static_cast<int>(std::lround(angle / run.rows.step)) + 1 - map.firstRow;
  return double{map.panels[panel].value[map.At(column, row)]};
}

TEST(ImpulseRun, ADropAnswersAlongItsRays) {
  const RunEnd end = RunSilently(TimeRequest(Light(), 0, 180, 5));
  EXPECT_EQ(Picture(end).columns, 4096);
  const struct {
    double angle;
    int j;
    double perpendicular, parallel;  // 0: not known
  } known[] = {{10, 2037, 7010.85, 5220.45},  {10, 2091, 29714.70, 30180.30}, {60, 1986, 267.108, 10.2125},
               {60, 2132, 818.420, 1420.05},  {90, 1961, 123.187, 6.52112},   {90, 2387, 3.17449, 0},
               {120, 1941, 71.9098, 27.3516}, {150, 2247, 598.074, 0},        {150, 2248, 0, 563.551},
               {165, 2251, 203.559, 0},       {180, 2253, 182.268, 182.268},  {180, 2281, 1224.405, 1224.405}};
  for (const auto& row : known) {
    const auto expect = [&](std::size_t panel, double value) {
      EXPECT_NEAR(CellAt(end, panel, row.angle, row.j), value, 1e-5 * value) << row.angle;
    };
    if (row.perpendicular > 0) expect(0, row.perpendicular);
    if (row.parallel > 0) expect(1, row.parallel);
  }
}

/// What comes after the window stands at its beginning.
TEST(ImpulseRun, ALateEchoWrapsRound) {
  const RunEnd end = RunSilently(OneAngle(TimeRequest(Light(2048), 0, 180, 90), 180));
  const auto& found = *end.results.Find<AxisFound>();
  double highest = 0, at = 0;
  for (std::size_t i = 1; i < found.x.size(); ++i) {
    if (found.x[i] < 108 || found.x[i] > 116) continue;
    const double intensity = found.S1.Intensity(static_cast<int>(i));
    if (intensity > highest) highest = intensity, at = found.x[i];
  }
  EXPECT_NEAR(at, 112.3, 0.55);
  EXPECT_NEAR(highest, 108, 3);
}

TEST(ImpulseRun, BlocksAndThreadsChangeNoBit) {
  for (const Method method : {Method::Mie, Method::Debye, Method::Young}) {
    const RunRequest request = TimeRequest(Light(1024, -20), 20, 150, 2.5, method);
    const RunEnd whole = RunSilently(request, 1);
    const Numbers expected(whole.results);
    EXPECT_EQ(Numbers(RunSilently(request, 3).results).all, expected.all);
    for (const int rows : {8, 21}) {
      SilentWatch silent;
      TaskPool pool(silent, 2);
      Results results;
      results.asked = request;
      ASSERT_TRUE(RunImpulse(request, std::get<AngleMapRun>(request.run), pool, results, rows).found);
      EXPECT_EQ(Numbers(results).all, expected.all) << rows;
    }
  }
}

/// Stops after so many rows are done.
class StopAfterRows final : public RunWatch {
 public:
  explicit StopAfterRows(int rows) : rows_(rows) {}
  bool Look(const RunProgress& progress) override { return progress.rowsDone < rows_; }

 private:
  int rows_;
};

TEST(ImpulseRun, AStopKeepsWholeBlocksOfRows) {
  const RunRequest request = TimeRequest(Light(1024, -20), 0, 180, 0.5);
  const auto& run = std::get<AngleMapRun>(request.run);
  const MapFound whole = Picture(RunSilently(request));
  StopAfterRows watch(96);
  TaskPool pool(watch, 2);
  Results results;
  results.asked = request;
  ASSERT_TRUE(RunImpulse(request, run, pool, results, 96).found);
  EXPECT_TRUE(pool.Stopped());
  const auto& part = *results.Find<MapFound>();
  ASSERT_EQ(part.rows, 96);
  EXPECT_EQ(part.columns, whole.columns);
  EXPECT_EQ(part.done, whole.columns);
  for (int column = 0; column < part.columns; column += 17)
    for (int row = 0; row < part.rows; ++row)
      EXPECT_EQ(part.panels[1].value[part.At(column, row)], whole.panels[1].value[whole.At(column, row)]);
  // Nothing is whole in the first block.
  StopAt soon(0);
  const RunEnd end = RunWatched(request, soon, 2);
  EXPECT_EQ(end.outcome, Outcome::Stopped);
  EXPECT_FALSE(end.hasResults);
}

/// One p of the Debye series is one ridge.
TEST(ImpulseRun, ADebyeTermIsOneRay) {
  RunRequest picture = TimeRequest(Light(), 0, 180, 90, Method::Debye);
  picture.method.rays = {0, 1};
  const RunEnd end = RunSilently(OneAngle(picture, 10));
  const auto& found = *end.results.Find<AxisFound>();
  double all = 0, ridge = 0;
  for (int i = 1; i <= found.done; ++i) {
    const double intensity = found.S1.Intensity(i), time = found.x[static_cast<std::size_t>(i)];
    all += intensity;
    if (std::fabs(time - 89.86) < 12) ridge += intensity;
  }
  EXPECT_GT(ridge, 0.999 * all);
}

/// Of a dispersing sphere a pulse is as late as its group.
TEST(ImpulseRun, APulseTravelsAtTheGroupIndex) {
  RunRequest picture = TimeRequest(Light(), 0, 180, 90);
  picture.particle.radius = 50;
  picture.particle.sphere = WaterFormula{};
  auto& light = *std::get<AngleMapRun>(picture.run).pulse;
  light.pulse.duration = 20;
  const RunEnd end = RunSilently(OneAngle(picture, 40));
  ASSERT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  const auto& found = *end.results.Find<AxisFound>();
  double highest = 0, at = 0;
  for (int i = 1; i <= found.done; ++i) {
    const double time = found.x[static_cast<std::size_t>(i)];
    if (time < 480 || time > 540 || found.S1.Intensity(i) < highest) continue;
    highest = found.S1.Intensity(i), at = time;
  }
  const auto index = [&](double lambda) { return SettingAt(picture, lambda).setting.mRe; };
  const double m = index(0.65), group = m - 0.65 * (index(0.651) - index(0.649)) / 0.002;
  const RaySphere sphere{50, 1, m};
  const TimedRay ray = RaysAtAngle(sphere, 1, 40).front();
  EXPECT_NEAR(at, RayAtImpact(sphere, 1, ray.impact, group)->time, 1.0);
  EXPECT_GT(std::fabs(at - ray.time), 2.0);
}

TEST(ImpulseRun, EfficienciesAnswerOnBothSidesOfThePulse) {
  RunRequest request = TimeRequest(Light(), 0, 180, 90);
  request.graph = GraphOf({15, 13});
  PulsedLight light = Light();
  light.fromCentre = true;
  request.run = WholeWindow(request, light, 0);
  const RunEnd end = RunSilently(request);
  ASSERT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  const auto& found = *end.results.Find<AxisFound>();
  ASSERT_EQ(found.done, 4096);
  const auto at = [&](double time) {
    return static_cast<std::size_t>(std::lround((time - found.x[1]) / std::get<AxisRun>(request.run).step)) + 1;
  };
  EXPECT_NEAR(found.x[at(0)], 0, 1e-9);
  EXPECT_NEAR(found.Qext[at(0)], 4.373, 1e-3);
  for (const double side : {-1.0, 1.0}) {
    double ray = 0;
    for (double t = 18; t < 27; t += 0.5) ray = std::max(ray, found.Qext[at(side * t)]);
    EXPECT_NEAR(ray, 0.00172, 1e-5);
    EXPECT_NEAR(found.Qext[at(side * 252.38)], 6.1e-5, 0.1e-5);
  }
  // Without absorption nothing is left.
  for (const double Q : found.Qabs) EXPECT_LT(Q, 1e-20);
}

TEST(ImpulseRun, WhatHasNoTimeIsRefused) {
  RunRequest request = TimeRequest(Light(1024, -20), 0, 180, 30);
  request.sizes = LogNormal();
  EXPECT_EQ(RunSilently(request).refusal.text, "This graph type is available only for monodisperse calculations");
  request.sizes = {};
  std::get<AngleMapRun>(request.run).pulse->pulse.duration = 0.1;
  const RunEnd end = RunSilently(request);
  EXPECT_EQ(end.refusal.title, "Pulse shape problem");
  EXPECT_EQ(end.refusal.text, "Select another pulse shape or higher cut-off");
  RunRequest large = TimeRequest(Light(131072, -20), 0, 180, 0.5);
  EXPECT_EQ(RunSilently(large).outcome, Outcome::Refused);
}

TEST(ImpulseRun, ColumnsAreSamplesOrTheNearestToWiderSteps) {
  const ResponseClock clock{13.0 / 24, 2048, 66.6667, false};
  const Sweep all = TimeColumns(clock, 0, clock.Window(), 0.54);
  EXPECT_EQ(all.Count(), 2048);
  EXPECT_EQ(clock.SampleAt(all.At(0)), 2048 / 2 - 123);
  // A thousand rounded steps would be three samples off.
  EXPECT_NEAR(all.At(1000) - all.At(0), 1000 * 13.0 / 24, 1e-9);
  const Sweep part = TimeColumns(clock, 100, 110, 0.54);
  EXPECT_GE(part.low, 100);
  EXPECT_NEAR(part.high, 110, 1e-3);
  EXPECT_EQ(part.Count(), 19);
  const Sweep wide = TimeColumns(clock, -5, 20, 5);
  EXPECT_EQ(wide.low, 0);
  EXPECT_EQ(wide.Count(), 5);
  ResponseClock centred = clock;
  centred.fromCentre = true;
  EXPECT_NEAR(TimeColumns(centred, -66.67, 500, 0.54).low, -66.625, 1e-3);
}

}  // namespace
}  // namespace lumivex
