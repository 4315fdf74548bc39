#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <future>
#include <numbers>
#include <span>

#include "runs/curves.h"
#include "runs/run_fixture.h"
#include "solvers/angles/scattering_pattern.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

/// One request of every kind of run, large enough for several tasks.
std::vector<std::pair<const char*, RunRequest>> EveryKind() {
  std::vector<std::pair<const char*, RunRequest>> kinds;
  kinds.emplace_back("angles", AngleRequest(400, 0.02));
  kinds.emplace_back("angles by Debye", AngleRequest(100, 0.05, Method::Debye));
  RunRequest difference = AngleRequest(20, 0.5, Method::Debye);
  difference.method.difference = Difference::MieLessDebye;
  kinds.emplace_back("Mie - Debye", difference);
  kinds.emplace_back("rays", AngleRequest(30, 0.2, Method::YoungMod));
  kinds.emplace_back("Airy", AngleRequest(30, 0.2, Method::Airy));
  kinds.emplace_back("Huygens", AngleRequest(10, 1, Method::Huygens));
  RunRequest cloud = AngleRequest(8, 0.2);
  cloud.sizes = LogNormal();
  kinds.emplace_back("cloud", cloud);
  kinds.emplace_back("spectrum", SpectrumRequest(20, 0.2, 9));
  RunRequest double_ = SpectrumRequest(5, 1, 4);
  double_.sizes = LogNormal();
  kinds.emplace_back("spectrum of a cloud", double_);
  kinds.emplace_back("intensity v. radius", AxisRequest({11, 1}, 1, 40, 300));
  kinds.emplace_back("Debye v. radius", AxisRequest({11, 1}, 1, 10, 40, Method::Debye));
  kinds.emplace_back("efficiencies v. wavelength", AxisRequest({15, 1}, 400, 700, 200));
  RunRequest points = AxisRequest({14, 2}, 1, 5, 12);
  points.sizes = LogNormal();
  kinds.emplace_back("cloud v. radius", points);
  kinds.emplace_back("power", AxisRequest({18, 1}, 1, 5, 8));
  RunRequest convergence = AngleRequest(20, 1);
  convergence.graph = GraphOf({13, 0});
  convergence.run = ConvergenceRun{138};
  kinds.emplace_back("convergence", convergence);
  RunRequest analysis = AngleRequest(20, 1, Method::Debye);
  analysis.graph = GraphOf({10, 10});
  analysis.run = DebyeAnalysisRun{2.4, 12};
  kinds.emplace_back("Debye analysis", analysis);
  RunRequest chart = AngleRequest(5, 1);
  chart.graph = GraphOf({1, 5});
  chart.run = TwoAngleRun{5, 10, 60, 120, {1.3, 1.35, 1.4}, {1, 2, 3, 4, 5, 6}};
  kinds.emplace_back("two angles", chart);
  kinds.emplace_back("Lee diagram", AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 5, 40, 6, true), 5));
  kinds.emplace_back("Lee diagram of the index by Debye",
                     AngleMapRequest({20, 2}, SweepOf(Swept::SphereIndex, 1.2, 1.5, 4), 3, Method::Debye));
  kinds.emplace_back("map by rays", AngleMapRequest({24, 1}, SweepOf(Swept::Radius, 5, 20, 8), 1, Method::YoungMod));
  kinds.emplace_back("map over wavelength", AngleMapRequest({25, 1}, SweepOf(Swept::Wavelength, 400, 700, 7)));
  RunRequest clouds = AngleMapRequest({24, 1}, SweepOf(Swept::Radius, 5, 10, 4), 2);
  clouds.sizes = LogNormal();
  kinds.emplace_back("map of clouds", clouds);
  kinds.emplace_back("efficiency map", CellMapRequest({26, 1}, SweepOf(Swept::SphereIndex, 1.2, 1.5, 12),
                                                      SweepOf(Swept::SizeParameter, 0.5, 60, 40)));
  kinds.emplace_back("intensity map", CellMapRequest({28, 3}, SweepOf(Swept::SphereIndex, 1.2, 1.5, 10),
                                                     SweepOf(Swept::SphereAbsorption, 1e-12, 0.1, 9)));
  kinds.emplace_back("intensity map by Debye", CellMapRequest({26, 4}, SweepOf(Swept::SphereIndex, 1.2, 1.5, 5),
                                                              SweepOf(Swept::SizeParameter, 5, 20, 4), Method::Debye));
  kinds.emplace_back("volume, a sphere moves", VolumeRequest(30, 20000, 0, 20, 100));
  kinds.emplace_back("volume v. number", VolumeRequest(31, 20000, 1, 20000, 300));
  RunRequest walking = VolumeRequest(32, 120, 0, 10, 200);
  walking.sizes = LogNormal();
  kinds.emplace_back("volume v. time", walking);
  RunRequest radii = VolumeRequest(33, 20000, 1, 5, 30);
  radii.sizes = LogNormal();
  kinds.emplace_back("volume v. radius", radii);
  return kinds;
}

bool SameBits(const std::vector<double>& a, const std::vector<double>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

TEST(Runs, ResultsAreTheSameBitsOnAnyNumberOfThreads) {
  for (const auto& [name, request] : EveryKind()) {
    const RunEnd one = RunSilently(request, 1);
    ASSERT_EQ(one.outcome, Outcome::Done) << name << ": " << one.refusal.text;
    const Numbers expected(one.results);
    EXPECT_GT(expected.all.size(), 20U) << name;
    for (const unsigned threads : {2U, 7U}) {
      const RunEnd many = RunSilently(request, threads);
      ASSERT_EQ(many.outcome, Outcome::Done) << name;
      EXPECT_TRUE(SameBits(Numbers(many.results).all, expected.all)) << name << " on " << threads << " threads";
    }
  }
}

TEST(Runs, AStopLeavesOnlyWhatIsWhole) {
  for (const auto& [name, request] : EveryKind()) {
    const RunEnd whole = RunSilently(request, 1);
    for (const unsigned threads : {1U, 3U}) {
      StopAt watch(0.35);
      const RunEnd part = RunWatched(request, watch, threads);
      EXPECT_FALSE(watch.fell) << name;
      if (!part.hasResults) continue;
      const auto close = [&](double a, double b) { return std::abs(a - b) <= 1e-13 * std::abs(b) || a == b; };
      if (const auto* found = part.results.Find<AngleFound>(); found != nullptr && !request.Cloud()) {
        const auto& all = *whole.results.Find<AngleFound>();
        for (int row = 1; row <= all.S1.Rows(); ++row)
          if (found->rows.Contains(row)) {
            ASSERT_TRUE(close(found->S1.Re(row), all.S1.Re(row))) << name << " row " << row;
          }
      } else if (const auto* spectrum = part.results.Find<SpectrumFound>()) {
        const auto& all = whole.results.Find<SpectrumFound>()->perpendicular;
        ASSERT_LE(spectrum->perpendicular.size(), all.size());
        EXPECT_EQ(spectrum->perpendicular.size() % static_cast<std::size_t>(spectrum->done), 0U) << name;
        for (std::size_t i = 0; i < spectrum->perpendicular.size(); ++i) ASSERT_EQ(spectrum->perpendicular[i], all[i]);
      } else if (const auto* axis = part.results.Find<AxisFound>()) {
        const auto& all = *whole.results.Find<AxisFound>();
        for (int point = 1; point <= axis->done; ++point) {
          const auto i = static_cast<std::size_t>(point);
          ASSERT_EQ(axis->Qext[i], all.Qext[i]) << name << " point " << point;
          if (point > all.S1.Rows()) continue;
          ASSERT_EQ(axis->S1.Re(point), all.S1.Re(point)) << name << " point " << point;
        }
      } else if (const auto* map = part.results.Find<MapFound>()) {
        const auto& all = *whole.results.Find<MapFound>();
        ASSERT_GT(map->done, 0) << name;
        const std::size_t cells = map->At(map->done, 0);
        for (std::size_t panel = 0; panel < map->panels.size(); ++panel) {
          const auto& cellsFound = map->OfSpectrum() ? map->panels[panel].green : map->panels[panel].value;
          const auto& expected = map->OfSpectrum() ? all.panels[panel].green : all.panels[panel].value;
          for (std::size_t i = 0; i < cellsFound.size(); ++i)
            ASSERT_EQ(cellsFound[i], i < cells ? expected[i] : 0) << name;
        }
      } else if (const auto* chart = part.results.Find<TwoAngleFound>()) {
        const auto& all = whole.results.Find<TwoAngleFound>()->first.cells;
        for (std::size_t i = 0; i < all.size(); ++i)
          if (std::isfinite(chart->first.cells[i])) {
            ASSERT_EQ(chart->first.cells[i], all[i]) << name;
          }
      }
    }
  }
}

TEST(Runs, AStopAtOnceFindsNothing) {
  for (const auto& [name, request] : EveryKind()) {
    StopAt watch(0);
    const RunEnd end = RunWatched(request, watch, 2);
    EXPECT_TRUE(end.outcome == Outcome::Stopped || end.outcome == Outcome::Done) << name;
    if (const auto* axis = end.results.Find<AxisFound>(); end.hasResults && axis != nullptr) {
      EXPECT_GT(axis->done, 0) << name;
    }
  }
}

TEST(Runs, TwoAtOnceDoNotKnowOfEachOther) {
  const RunRequest first = AngleRequest(200, 0.05), second = SpectrumRequest(10, 0.5, 6);
  const Numbers alone1(RunSilently(first, 1).results), alone2(RunSilently(second, 1).results);
  auto other = std::async(std::launch::async, [&] { return RunSilently(second, 3); });
  auto stopped = std::async(std::launch::async, [&] {
    StopAt watch(0.3);
    return RunWatched(AngleRequest(1000, 0.01), watch, 2).outcome;
  });
  const RunEnd mine = RunSilently(first, 2);
  EXPECT_TRUE(SameBits(Numbers(mine.results).all, alone1.all));
  EXPECT_TRUE(SameBits(Numbers(other.get().results).all, alone2.all));
  EXPECT_EQ(stopped.get(), Outcome::Stopped);
}

TEST(Runs, AnAngleRunIsTheSeriesItself) {
  const RunRequest request = AngleRequest(25, 0.1);
  const RunEnd end = RunSilently(request);
  const double n = std::get<WaterFormula>(request.particle.sphere).density;
  ASSERT_NEAR(n, 1, 1e-3);
  MieRequest mie;
  mie.x = 2 * std::numbers::pi * 25 / 0.65;
  mie.mRe = end.results.last.relativeRe;
  mie.NANG = 901;
  SilentMonitor silent;
  const MieResult result = SolveMie(mie, silent);
  const auto& found = *end.results.Find<AngleFound>();
  EXPECT_NEAR(end.results.last.sizeParameter, mie.x, 1e-12);
  EXPECT_EQ(end.results.last.efficiencies.Qext, result.efficiencies.Qext);
  for (int row = 1; row <= 1801; ++row) {
    ASSERT_EQ(found.S1.Re(row), result.S1.Re(row)) << row;
    ASSERT_EQ(found.S2.Im(row), result.S2.Im(row)) << row;
  }
}

TEST(Runs, EfficienciesOfACloudAreTheMeansOfSingleRuns) {
  for (const Method method : {Method::Mie, Method::Debye, Method::Rayleigh, Method::Diffraction}) {
    RunRequest cloud = AngleRequest(0.03, 1, method);
    cloud.sizes = LogNormal(0.3);
    const CloudSamples samples = SamplesOf(cloud.sizes, 0.03);
    double Qext = 0, Qsca = 0, Qback = 0;
    for (int i = 1; i <= samples.Count(); ++i) {
      RunRequest single = AngleRequest(samples.radius[static_cast<std::size_t>(i)], 1, method);
      const Efficiencies e = RunSilently(single).results.last.efficiencies;
      Qext += e.Qext / samples.Count();
      Qsca += e.Qsca / samples.Count();
      Qback += e.Qback / samples.Count();
    }
    for (const auto& [low, high] : {std::pair{0.0, 180.0}, std::pair{10.0, 170.0}}) {
      cloud.run = AngleRun{RowsFor(low, high, 1)};
      const Efficiencies e = RunSilently(cloud).results.last.efficiencies;
      const double tolerance = method == Method::Rayleigh ? 1e-3 : 1e-12;  // a sum over rows of 1 degree
      EXPECT_NEAR(e.Qext / Qext, 1, tolerance) << static_cast<int>(method) << " from " << low;
      EXPECT_NEAR(e.Qsca / Qsca, 1, tolerance) << static_cast<int>(method) << " from " << low;
      EXPECT_NEAR(e.Qback, Qback, 1e-12 * Qback) << static_cast<int>(method) << " from " << low;
    }
  }
}

TEST(Runs, ARefusalIsDataAndLeavesNothing) {
  const auto refused = [](const RunRequest& request, const char* text) {
    const RunEnd end = RunSilently(request, 2);
    EXPECT_EQ(end.outcome, Outcome::Refused);
    EXPECT_FALSE(end.hasResults);
    EXPECT_EQ(end.refusal.text, text);
  };
  refused(AngleRequest(40000, 1), "Reduce radius or increase wavelength");
  refused(AxisRequest({11, 1}, 1, 40000, 20), "Reduce radius or increase wavelength");
  RunRequest none = AngleRequest(10, 1, Method::Debye);
  none.method.rays = {0, 0};
  refused(none, "No rays selected");
  none.run = AxisRequest({11, 1}, 1, 4, 20).run;
  none.graph = GraphOf({11, 1});
  refused(none, "No rays selected");
  RunRequest gold = AxisRequest({15, 1}, 400, 3000, 10);
  gold.particle.sphere = MetalFilm{MetalName::Gold, TableRule::Linear};
  refused(gold, "Help! RI of sphere undefined");
  RunRequest wet = AngleRequest(1, 1);
  wet.light.lambda = 0.005;
  wet.particle.sphere = FixedIndex{1.5, 0};
  wet.particle.medium = WaterTable{WaterSource::Segelstein, false};
  refused(wet, "Help! RI of medium undefined");
  RunRequest wide = AngleRequest(1, 1);
  wide.sizes = NormalSizes{{0, 1, -1}, 1.5, false};
  refused(wide, "Reduce standard deviation to avoid negative values of radius");
  RunRequest overflow = AngleRequest(1e-200, 1);
  EXPECT_EQ(RunSilently(overflow).outcome, Outcome::Overflow);
}

// Graphs in absolute units know neither the division by x, whatever the sizes it was by, nor that by k^2.
TEST(Units, AbsoluteUnitsKnowNoDivision) {
  const auto curve = [](RunRequest request, bool divided, const CurveLook& look) {
    request.method.divideBySize = divided;
    if (auto* axis = std::get_if<AxisRun>(&request.run)) axis->range.step = 1;
    const RunEnd end = RunSilently(request);
    EXPECT_EQ(end.outcome, Outcome::Done);
    return CurvesOf(end.results, look);
  };
  const CurveLook plain, perWaveNumber{.amplitude = true, .invWavelength = true};
  const auto over = [](GraphCode code) {
    RunRequest request = AngleRequest(5, 1);
    request.graph = GraphOf(code);
    return request;
  };
  std::vector<RunRequest> requests = {over({1, 2}), over({1, 3}), over({1, 4}), over({1, 7}),
                                      AxisRequest({18, 1}, 2, 4, 2)};
  for (std::size_t i = 0; i < 5; ++i) {
    requests.push_back(requests[i]);
    requests.back().sizes = LogNormal(0.3);
  }
  for (const RunRequest& request : requests) {
    const Curves right = curve(request, false, plain);
    const std::size_t middle = right.unpolarised.size() / 2;
    ASSERT_GT(right.unpolarised[middle], 0) << request.graph.code.type << "/" << request.graph.code.subType;
    for (const bool divided : {false, true})
      for (const CurveLook& look : {plain, perWaveNumber}) {
        const Curves found = curve(request, divided, look);
        EXPECT_NEAR(found.unpolarised[middle] / right.unpolarised[middle], 1, 1e-9)
            << request.graph.code.type << "/" << request.graph.code.subType << ", cloud " << request.Cloud();
        EXPECT_NEAR(found.scatteredPower, right.scatteredPower, 1e-9 * right.scatteredPower);
      }
  }
  // Of intensities and amplitudes the wave number is taken out: once from an amplitude, twice from an intensity.
  const double k = 2 * std::numbers::pi / 0.65e-6;
  for (const auto& request : {AngleRequest(5, 1), AxisRequest({11, 1}, 1, 2, 10)}) {
    const double modulus = curve(request, false, {.amplitude = true}).perpendicular[5];
    EXPECT_NEAR(curve(request, false, {.invWavelength = true}).perpendicular[5] * k * k / (modulus * modulus), 1, 1e-9);
    EXPECT_NEAR(curve(request, false, perWaveNumber).perpendicular[5] * k / modulus, 1, 1e-9);
  }
}

// Methods without a series for Qsca are normalised by their own sum over the sphere.
TEST(Units, PhaseFunctionsOfAllMethodsHaveTheMeanOne) {
  for (const Method method :
       {Method::Mie, Method::Debye, Method::Rayleigh, Method::Diffraction, Method::Airy, Method::Descartes,
        Method::Young, Method::YoungMod, Method::YoungAiry, Method::Huygens, Method::Aperture, Method::VanDeHulst}) {
    RunRequest request = AngleRequest(method == Method::Rayleigh ? 0.01 : 10, 0.1, method);
    request.graph = GraphOf({1, 2});
    const RunEnd end = RunSilently(request);
    ASSERT_EQ(end.outcome, Outcome::Done) << static_cast<int>(method);
    const Curves curves = CurvesOf(end.results, {});
    const auto rows = std::span(curves.unpolarised).subspan(1);
    EXPECT_NEAR(SphereMean(rows), 1, method == Method::Mie ? 1e-3 : 1e-9) << static_cast<int>(method);
  }
}

// Four columns, three arrays: each is the sum over the wavelengths of the intensity times its weight and its colour.
TEST(Runs, SumsOfASpectrumAreThoseOfItsWavelengths) {
  RunRequest request = SpectrumRequest(3, 5, 3);
  auto& light = *request.light.spectrum;
  for (std::size_t i = 1; i <= 3; ++i) {
    light.weight[i] = 0.5F * static_cast<float>(i);
    light.red[i] = 0.1 * static_cast<double>(i);
    light.green[i] = 0.7 - 0.2 * static_cast<double>(i);
    light.blue[i] = 0.3;
  }
  const RunEnd end = RunSilently(request);
  ASSERT_EQ(end.outcome, Outcome::Done);
  for (const bool divided : {false, true}) {
    const CurveLook look{.amplitude = false, .invWavelength = divided};
    const SpectrumSums sums = SumsOf(end.results, look);
    for (const std::size_t row : {1U, 8U, 19U, 30U, 37U}) {
      for (std::size_t column = 0; column < 4; ++column) {
        double perpendicular = 0, parallel = 0;
        for (int i = 1; i <= 3; ++i) {
          const auto k = static_cast<std::size_t>(i);
          const Curves one = CurvesOfWavelength(end.results, look, i);
          const double colour = std::array{1.0, light.red[k], light.green[k], light.blue[k]}.at(column);
          perpendicular += one.perpendicular[row] * colour;
          parallel += one.parallel[row] * colour;
        }
        const double close = 1e-12 * (perpendicular + parallel);
        EXPECT_NEAR(sums.perpendicular.At(row, column), perpendicular, close) << row << " " << column;
        EXPECT_NEAR(sums.parallel.At(row, column), parallel, close) << row << " " << column;
        EXPECT_NEAR(sums.mean.At(row, column), (perpendicular + parallel) / 2, close) << row << " " << column;
      }
    }
  }
}

}  // namespace
}  // namespace lumivex
