// Whole runs, request to results, beside the sum of their kernels: ratios of run times in one program.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#include "best_time.h"
#include "runs/run.h"
#include "runs/settings.h"
#include "solvers/series/mie_efficiencies.h"
#include "solvers/series/mie_series.h"

namespace {

using namespace lumivex;

double sink = 0.0;

AngleRows WholeCircle(double step) {
  AngleRows rows;
  rows.step = step;
  rows.NANG = static_cast<int>(std::lround(90 / step)) + 1;
  rows.window = {1, 2 * rows.NANG - 1};
  return rows;
}

RunRequest Spectrum(double radius, int wavelengths, int samples) {
  RunRequest request;
  request.particle.radius = radius;
  request.particle.sphere = WaterFormula{.complex = false};
  SpectrumOfLight light;
  const auto count = static_cast<std::size_t>(wavelengths) + 1;
  for (auto* list : {&light.wavelength, &light.weight}) list->assign(count, 1.0F);
  for (auto* list : {&light.red, &light.green, &light.blue}) list->assign(count, 0.5);
  for (std::size_t i = 1; i < count; ++i)
    light.wavelength[i] = 0.38F + 0.32F * static_cast<float>(i) / static_cast<float>(count);
  request.light.spectrum = light;
  request.run = SpectrumRun{WholeCircle(0.1)};
  if (samples < 2) return request;
  NormalSizes sizes;
  sizes.z.push_back(0);
  for (int i = 0; i < samples; ++i) sizes.z.push_back(static_cast<float>(2.0 * i / samples - 1));
  sizes.relativeSD = 0.05;
  request.sizes = sizes;
  return request;
}

/// The series of all wavelengths and sizes alone.
void Kernels(const RunRequest& request) {
  const AngleRows& rows = std::get<SpectrumRun>(request.run).rows;
  const auto cosines = std::make_shared<const AngleCosines>(AngleGrid(rows.NANG), rows.window);
  for (int i = 1; i <= request.Wavelengths(); ++i) {
    const double lambda = request.light.spectrum->wavelength[static_cast<std::size_t>(i)];
    const Setting setting = SettingAt(request, lambda).setting;
    const CloudSamples samples = SamplesOf(request.sizes, setting.radius);
    for (int k = 1; k <= samples.Count(); ++k) {
      MieRequest mie;
      mie.x = SizeParameterOf(samples.radius[static_cast<std::size_t>(k)], 1, lambda);
      mie.mRe = setting.mRe;
      mie.NANG = rows.NANG;
      mie.cosines = cosines;
      SilentMonitor silent;
      sink += SolveMie(mie, silent).S1.Re(1);
    }
  }
}

void Compare(const char* name, const RunRequest& request, int runs) {
  const auto run = [&](unsigned threads) {
    return BestTime(runs, [&] {
      SilentWatch silent;
      sink += Run(request, silent, threads).results.last.efficiencies.Qext;
    });
  };
  const double kernels = BestTime(runs, [&] { Kernels(request); });
  const double one = run(1), all = run(0);
  std::printf("%-44s kernels %8.2f ms, run on 1 thread %8.2f ms (%.2f times), on all %8.2f ms (%.2f times faster)\n",
              name, kernels, one, one / kernels, all, one / all);
}

/// Radii from 5 to 500 um in the light of 100 wavelengths, over the primary rainbow.
RunRequest LeeDiagram() {
  RunRequest request = Spectrum(10, 100, 1);
  request.graph = GraphOf({20, 1});
  AngleRows rows = WholeCircle(0.1);
  rows.window = {1301, 1451};
  request.run = AngleMapRun{rows, {Swept::Radius, 5, 500, 99, true}, false};
  return request;
}

void CompareLee(const RunRequest& request, int runs) {
  const auto& run = std::get<AngleMapRun>(request.run);
  const auto cosines = std::make_shared<const AngleCosines>(AngleGrid(run.rows.NANG), run.rows.window);
  const double kernels = BestTime(runs, [&] {
    for (int column = 0; column < run.columns.Count(); ++column)
      for (int i = 1; i <= request.Wavelengths(); ++i) {
        const double lambda = request.light.spectrum->wavelength[static_cast<std::size_t>(i)];
        MieRequest mie;
        mie.x = SizeParameterOf(run.columns.At(column), 1, lambda);
        mie.mRe = SettingAt(request, lambda).setting.mRe;
        mie.NANG = run.rows.NANG;
        mie.window = run.rows.window;
        mie.cosines = cosines;
        SilentMonitor silent;
        sink += SolveMie(mie, silent).S1.Re(run.rows.window.low);
      }
  });
  std::size_t bytes = 0;
  const auto time = [&](unsigned threads) {
    return BestTime(runs, [&] {
      SilentWatch silent;
      const RunEnd end = Run(request, silent, threads);
      const auto& map = *end.results.Find<MapFound>();
      sink += double{map.panels[0].red.back()};
      bytes = map.panels.size() * map.At(map.columns, 0) * (3 * sizeof(float) + sizeof(std::uint16_t));
    });
  };
  const double one = time(1), all = time(0);
  std::printf(
      "%-44s kernels %8.2f ms, run on 1 thread %8.2f ms (kernels %.0f %%), on all %8.2f ms (%.2f times faster), %.1f "
      "MB\n",
      "Lee diagram, 100 radii x 100 wavelengths", kernels, one, 100 * kernels / one, all, one / all,
      static_cast<double>(bytes) / 1e6);
}

void CompareRadii(int runs) {
  RunRequest request;
  request.graph = GraphOf({14, 1});
  request.particle.sphere = FixedIndex{1.3326, 0};
  AxisRun axis;
  axis.xmin = 0.01;
  axis.xmax = 100;
  axis.step = 1000;
  axis.logSteps = true;
  axis.points = 1001;
  request.run = axis;
  const std::size_t points = 1001;
  std::vector<double> x(points), mRe(points, 1.3326), mIm(points, 0.0), Qext(points), Qsca(points), Qback(points),
      g(points);
  for (std::size_t i = 0; i < points; ++i)
    x[i] = SizeParameterOf(AxisPosition(axis, StepRatio(axis), static_cast<int>(i) + 1), 1, 0.65);
  const double kernels = BestTime(runs, [&] {
    SilentMonitor silent;
    sink += static_cast<double>(SolveEfficiencies({x, mRe, mIm}, {Qext, Qsca, Qback, g}, {}, silent));
  });
  const auto run = [&](unsigned threads) {
    return BestTime(runs, [&] {
      SilentWatch silent;
      sink += Run(request, silent, threads).results.last.efficiencies.Qext;
    });
  };
  const double one = run(1), all = run(0);
  std::printf("%-44s kernels %8.3f ms, run on 1 thread %8.3f ms (%.2f times), on all %8.3f ms (%.2f times faster)\n",
              "Efficiencies of 1001 radii, 0.01 to 100 um", kernels, one, one / kernels, all, one / all);
}

}  // namespace

int main() {
  std::printf("%u threads\n", std::thread::hardware_concurrency());
  CompareRadii(200);
  Compare("300 wavelengths at 100 um, 0.1 degrees", Spectrum(100, 300, 1), 5);
  Compare("50 sizes x 300 wavelengths at 10 um", Spectrum(10, 300, 50), 2);
  CompareLee(LeeDiagram(), 3);
  return sink == 42 ? 1 : 0;
}
