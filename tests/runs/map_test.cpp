// Lee diagrams and maps: a cell by two routes.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>

#include "runs/curves.h"
#include "runs/map_sums.h"
#include "runs/run_fixture.h"
#include "runs/work.h"

namespace lumivex {
namespace {

const MapFound& MapOf(const RunEnd& end) {
  EXPECT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  static const MapFound none;
  const auto* map = end.results.Find<MapFound>();
  return map != nullptr ? *map : none;
}

/// Cells are single precision.
void ExpectCell(float cell, double value, const std::string& which) {
  EXPECT_NEAR(cell, value, 3e-7 * std::abs(value)) << which;
}

TEST(Maps, AColumnOfALeeDiagramIsTheSumsOfASpectrumRunAtThatRadius) {
  for (const bool invWavelength : {false, true})
    for (const Method method : {Method::Mie, Method::Debye, Method::YoungMod}) {
      RunRequest lee = AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 5, 20, 2, true), 4, method);
      auto& light = *lee.light.spectrum;
      for (std::size_t i = 1; i <= 4; ++i) {
        light.weight[i] = 0.4F * static_cast<float>(i);
        light.red[i] = 0.2 * static_cast<double>(i);
        light.blue[i] = 1 - light.red[i];
      }
      auto& run = std::get<AngleMapRun>(lee.run);
      run.invWavelength = invWavelength;
      const RunEnd end = RunSilently(lee);
      const MapFound& map = MapOf(end);
      ASSERT_EQ(map.done, 3);
      ASSERT_EQ(map.firstRow, run.rows.window.low);
      RunRequest spectrum = lee;
      spectrum.graph = GraphOf({1, 1});
      spectrum.run = SpectrumRun{run.rows};
      for (int column = 0; column < 3; ++column) {
        spectrum.particle.radius = std::array{5.0, 10.0, 20.0}[static_cast<std::size_t>(column)];
        const RunEnd one = RunSilently(spectrum);
        const SpectrumSums sums = SumsOf(one.results, {.amplitude = false, .invWavelength = invWavelength});
        for (int row = 0; row < map.rows; ++row) {
          const std::string which = "column " + std::to_string(column) + " row " + std::to_string(row);
          const auto j = static_cast<std::size_t>(row + map.firstRow);
          const std::size_t cell = map.At(column, row);
          ExpectCell(map.panels[0].red[cell], sums.perpendicular.At(j, 1), which);
          ExpectCell(map.panels[0].green[cell], sums.perpendicular.At(j, 2), which);
          ExpectCell(map.panels[1].blue[cell], sums.parallel.At(j, 3), which);
          int strongest = 0;  // none in the dark
          double most = 0;
          for (int i = 1; i <= 4; ++i) {
            const CurveLook look{.amplitude = false, .invWavelength = invWavelength};
            const double at = CurvesOfWavelength(one.results, look, i).parallel[j];
            if (at > most) strongest = i;
            most = std::max(most, at);
          }
          EXPECT_EQ(map.strongest[1][cell], strongest) << which;
        }
      }
    }
}

/// The sphere of a column, run on its own against angle.
RunRequest AloneAt(const RunRequest& map, double lambda, double radius, FixedIndex sphere, double medium) {
  RunRequest request = map;
  request.graph = GraphOf({1, 1});
  request.light.lambda = lambda;
  request.particle.radius = radius;
  request.particle.sphere = sphere;
  request.particle.medium = FixedIndex{medium, 0};
  request.run = AngleRun{std::get<AngleMapRun>(map.run).rows};
  return request;
}

// Each quantity that is swept, against a run of the sphere that a column should be.
TEST(Maps, AColumnIsTheSphereThatItNames) {
  struct Case {
    GraphCode code;
    Sweep columns;
    double lambda, radius, n, k, medium;  ///< of the second of three columns
  };
  const Case cases[] = {
      {{20, 1}, SweepOf(Swept::Radius, 4, 9, 2, true), 0.65, 6, 1.33, 0.001, 1.1},
      {{24, 1}, SweepOf(Swept::Radius, 4, 9, 2), 0.65, 6.5, 1.33, 0.001, 1.1},
      {{20, 2}, SweepOf(Swept::SphereIndex, 1.2, 1.6, 2), 0.65, 10, 1.4, 0.001, 1.1},
      {{22, 1}, SweepOf(Swept::SphereIndex, 1.2, 1.6, 2), 0.65, 10, 1.4, 0.001, 1.1},
      {{22, 2}, SweepOf(Swept::MediumIndex, 1, 1.3, 2), 0.65, 10, 1.33, 0.001, 1.15},
      {{23, 1}, SweepOf(Swept::SphereAbsorption, 1e-12, 0.02, 2), 0.65, 10, 1.33, 0.01, 1.1},
      {{25, 1}, SweepOf(Swept::Wavelength, 400, 700, 2), 0.55, 10, 1.33, 0.001, 1.1},
  };
  for (const Case& c : cases) {
    const std::string name = std::to_string(c.code.type) + "/" + std::to_string(c.code.subType);
    RunRequest request = AngleMapRequest(c.code, c.columns);
    request.particle.sphere = FixedIndex{1.33, 0.001};
    request.particle.medium = FixedIndex{1.1, 0};
    const RunEnd end = RunSilently(request);
    const MapFound& map = MapOf(end);
    ASSERT_EQ(map.done, 3) << name;
    const RunEnd alone = RunSilently(AloneAt(request, c.lambda, c.radius, {c.n, c.k}, c.medium));
    const auto& found = *alone.results.Find<AngleFound>();
    for (int row = 0; row < map.rows; ++row) {
      const int j = row + map.firstRow;
      const float cell = map.panels[1].value[map.At(1, row)];
      EXPECT_NEAR(cell / found.S2.Intensity(j), 1, 1e-6) << name << " row " << row;
    }
    // What is told of the last sphere is that of the last column.
    EXPECT_EQ(c.columns.quantity == Swept::Radius, end.results.last.radius == 9) << name;
    EXPECT_EQ(c.columns.quantity == Swept::MediumIndex, end.results.last.indices.medium == 1.3) << name;
  }
}

// Two graphs of the same physics, swept in different steps.
TEST(Maps, AMapOverRadiusIsALeeDiagramOfOneWavelength) {
  const RunEnd lee = RunSilently(AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 4, 16, 2, true)));
  const RunEnd map = RunSilently(AngleMapRequest({24, 1}, SweepOf(Swept::Radius, 4, 12, 2)));
  const MapFound &a = MapOf(lee), &b = MapOf(map);
  for (int row = 0; row < a.rows; ++row)
    EXPECT_EQ(a.panels[0].value[a.At(1, row)], b.panels[0].value[b.At(1, row)]) << row;
}

TEST(Maps, ACellOfAnEfficiencyMapIsAPointOfAnAxis) {
  const Sweep sizes = SweepOf(Swept::SizeParameter, 2, 30, 14);
  for (const Method method : {Method::Mie, Method::Debye}) {
    RunRequest request = CellMapRequest({26, 1}, SweepOf(Swept::SphereIndex, 1.2, 1.6, 2), sizes, method);
    request.particle.sphere = FixedIndex{1.33, 0.01};
    request.particle.medium = FixedIndex{1.33, 0};
    const RunEnd end = RunSilently(request);
    const MapFound& map = MapOf(end);
    ASSERT_EQ(map.panels.size(), 3U);
    RunRequest axis = AxisRequest({14, 3}, 2, 30, 14, method);
    axis.particle.sphere = FixedIndex{1.4, 0.01};
    axis.particle.medium = FixedIndex{1.33, 0};
    const RunEnd line = RunSilently(axis);
    const auto& points = *line.results.Find<AxisFound>();
    for (int row = 0; row < map.rows; ++row) {
      const auto i = static_cast<std::size_t>(row) + 1;
      const std::size_t cell = map.At(1, row);
      EXPECT_NEAR(map.panels[0].value[cell], points.Qext[i], 1e-6) << row;
      EXPECT_NEAR(map.panels[1].value[cell], points.Qsca[i], 1e-6) << row;
      EXPECT_NEAR(map.panels[2].value[cell], points.Qext[i] - points.Qsca[i], 2e-6) << row;
    }
  }
}

TEST(Maps, ACellAtOneAngleIsAPointOfAnAxisToo) {
  for (const Method method : {Method::Mie, Method::Debye, Method::Young}) {
    const RunEnd end = RunSilently(CellMapRequest({28, 3}, SweepOf(Swept::SphereIndex, 1.2, 1.4, 10),
                                                  SweepOf(Swept::SphereAbsorption, 1e-12, 0.02, 2), method));
    const MapFound& map = MapOf(end);
    ASSERT_EQ(map.panels.size(), 2U);
    RunRequest axis = AxisRequest({12, 1}, 1.2, 1.4, 10, method);
    axis.particle.radius = 3;
    axis.particle.sphere = FixedIndex{1.3, 0.01};
    const RunEnd line = RunSilently(axis);
    const auto& points = *line.results.Find<AxisFound>();
    for (int column = 0; column < map.columns; ++column)
      ExpectCell(map.panels[0].value[map.At(column, 1)], points.S1.Intensity(column + 1),
                 std::to_string(static_cast<int>(method)) + " column " + std::to_string(column));
  }
}

TEST(Maps, RowsThatAreNotAskedForCostNothing) {
  const RunRequest narrow = AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 5, 500, 10, true), 4);
  RunRequest wide = narrow;
  std::get<AngleMapRun>(wide.run).rows = RowsFor(0, 180, 0.5);
  EXPECT_LT(PairTermsOf(narrow), 0.4 * PairTermsOf(wide));
  EXPECT_EQ(MapCells(narrow.run), 17 * 11);
}

TEST(Maps, WhatIsTooLargeIsRefusedBeforeMemoryIsAskedFor) {
  RunRequest request = AngleMapRequest({24, 1}, SweepOf(Swept::Radius, 1, 2, 1'000'000), 3);
  EXPECT_EQ(RunSilently(request).refusal.text, "Increase the step size or reduce the maximum/minimum range");
  request = CellMapRequest({28, 1}, SweepOf(Swept::SphereIndex, 1, 2, 2'000'000'000),
                           SweepOf(Swept::SphereAbsorption, 0, 1, 2'000'000'000));
  EXPECT_EQ(RunSilently(request).refusal.text, "Increase the step size or reduce the maximum/minimum range");
  // A column beyond the limits refuses all before any is calculated.
  request = AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 1, 40000, 10, true), 3);
  EXPECT_EQ(RunSilently(request).refusal.text, "Reduce radius or increase wavelength");
  // Of these cells only the one of the greatest index and size is.
  request =
      CellMapRequest({26, 1}, SweepOf(Swept::SphereIndex, 1, 2, 10), SweepOf(Swept::SizeParameter, 1, 100500, 10));
  EXPECT_EQ(RunSilently(request).refusal.text, "Reduce radius or increase wavelength");
  request = AngleMapRequest({25, 1}, SweepOf(Swept::Wavelength, 400, 3000, 3));
  request.particle.sphere = MetalFilm{MetalName::Gold, TableRule::Linear};
  EXPECT_EQ(RunSilently(request).refusal.text, "Help! RI of sphere undefined");
}

/// Looks at the columns that are done while others are under way, and stops after some.
class ColumnWatch final : public RunWatch {
 public:
  explicit ColumnWatch(int stopAfter) : stopAfter_(stopAfter) {}
  bool Look(const RunProgress& progress) override {
    if (progress.map == nullptr) return true;
    fell |= progress.columnsDone < seen.done || progress.share < share_;
    share_ = progress.share;
    if (progress.columnsDone > seen.done) seen = FirstColumns(*progress.map, progress.columnsDone);
    return seen.done < stopAfter_;
  }
  MapFound seen;
  bool fell = false;

 private:
  int stopAfter_;
  double share_ = 0;
};

TEST(Maps, ColumnsCanBeSeenWhileOthersAreUnderWay) {
  const RunRequest request = AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 5, 200, 30, true), 8);
  const RunEnd whole = RunSilently(request, 1);
  for (const unsigned threads : {1U, 3U}) {
    ColumnWatch watch(10);
    const RunEnd part = RunWatched(request, watch, threads);
    EXPECT_EQ(part.outcome, Outcome::Stopped);
    EXPECT_FALSE(watch.fell);
    const MapFound& map = *part.results.Find<MapFound>();
    ASSERT_GE(map.done, 10);
    ASSERT_LT(map.done, 31);
    const MapFound expected = FirstColumns(MapOf(whole), watch.seen.done);
    EXPECT_EQ(watch.seen.panels[0].red, expected.panels[0].red);
    EXPECT_EQ(watch.seen.strongest, expected.strongest);
    EXPECT_EQ(map.panels[1].blue, FirstColumns(MapOf(whole), map.done).panels[1].blue);
  }
}

}  // namespace
}  // namespace lumivex
