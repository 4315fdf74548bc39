#pragma once

#include <cmath>
#include <vector>

#include "runs/run.h"
#include "runs/settings.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

// Requests as values, without a session.

inline AngleRows RowsFor(double xmin, double xmax, double step) {
  AngleRows rows;
  rows.xmin = xmin;
  rows.xmax = xmax;
  rows.step = step;
  rows.NANG = static_cast<int>(std::nearbyint(90 / step)) + 1;
  rows.firstPoint = xmin / step + 1;
  rows.lastPoint = xmax / step + 1;
  rows.window = {static_cast<int>(std::nearbyint(rows.firstPoint)), static_cast<int>(std::nearbyint(rows.lastPoint))};
  return rows;
}

/// A drop of water in vacuo against angle.
inline RunRequest AngleRequest(double radius, double step, Method method = Method::Mie) {
  RunRequest request;
  request.graph = GraphOf({1, 1});
  request.method.method = method;
  if (TraitsOf(method).needsP) request.method.rays = {0, 0, 1};
  request.particle.radius = radius;
  request.particle.sphere = WaterFormula{.complex = false};
  request.run = AngleRun{RowsFor(0, 180, step)};
  return request;
}

inline SizeDistribution LogNormal(double relativeSD = 0.1) {
  NormalSizes sizes;
  sizes.z = {0, 0.25F, 0.67F, 1.28F, -0.25F, -0.67F};
  sizes.relativeSD = relativeSD;
  return sizes;
}

inline RunRequest SpectrumRequest(double radius, double step, int wavelengths) {
  RunRequest request = AngleRequest(radius, step);
  SpectrumOfLight light;
  const auto count = static_cast<std::size_t>(wavelengths) + 1;
  for (auto* list : {&light.wavelength, &light.weight}) list->assign(count, 1.0F);
  for (auto* list : {&light.red, &light.green, &light.blue}) list->assign(count, 0.5);
  for (std::size_t i = 1; i < count; ++i)
    light.wavelength[i] = 0.4F + 0.3F * static_cast<float>(i) / static_cast<float>(count);
  request.light.spectrum = light;
  request.run = SpectrumRun{std::get<AngleRun>(request.run).rows};
  return request;
}

inline RunRequest AxisRequest(GraphCode code, double xmin, double xmax, int steps, Method method = Method::Mie) {
  RunRequest request = AngleRequest(5, 1, method);
  request.graph = GraphOf(code);
  AxisRun axis;
  axis.xmin = xmin;
  axis.xmax = xmax;
  axis.step = (xmax - xmin) / steps;
  axis.points = steps + 1;
  axis.angle = 2.4;
  axis.range = {0, 180, 1};
  request.run = axis;
  return request;
}

/// A sweep of so many steps.
inline Sweep SweepOf(Swept quantity, double low, double high, int steps, bool geometric = false) {
  return {quantity, low, high, steps, geometric};
}

/// Columns of angles from 137 to 145 degrees, at one wavelength or several.
inline RunRequest AngleMapRequest(GraphCode code, const Sweep& columns, int wavelengths = 1,
                                  Method method = Method::Mie) {
  RunRequest request = wavelengths > 1 ? SpectrumRequest(10, 0.5, wavelengths) : AngleRequest(10, 0.5);
  request.method = AngleRequest(10, 0.5, method).method;
  request.graph = GraphOf(code);
  request.run = AngleMapRun{RowsFor(137, 145, 0.5), columns, false};
  return request;
}

inline RunRequest CellMapRequest(GraphCode code, const Sweep& columns, const Sweep& rows, Method method = Method::Mie) {
  RunRequest request = AngleRequest(3, 1, method);
  request.graph = GraphOf(code);
  request.run = EfficiencyMapRun{columns, rows, 2.4};
  return request;
}

/// Spheres of 5 um in a cube of 200 um; `type` is the graph's, 30 to 33.
inline RunRequest VolumeRequest(int type, int count, double xmin, double xmax, int steps) {
  RunRequest request = AxisRequest({type, 0}, xmin, xmax, steps);
  if (steps == 0) std::get<AxisRun>(request.run).step = 1;
  VolumeRun volume;
  volume.axis = std::get<AxisRun>(request.run);
  volume.count = count;
  volume.side = 200;
  request.run = volume;
  return request;
}

/// Stops once the share is reached.
class StopAt final : public RunWatch {
 public:
  explicit StopAt(double share) : share_(share) {}
  bool Look(const RunProgress& progress) override {
    fell |= progress.share < last;
    last = progress.share;
    return progress.share < share_;
  }
  double last = 0;
  bool fell = false;

 private:
  double share_;
};

/// Every number that results hold, in a fixed order.
class Numbers {
 public:
  explicit Numbers(const Results& r) {
    std::visit([this](const auto& found) { Add(found); }, r.found);
    const LastSphere& last = r.last;
    for (const double value : {last.lambda, last.radius, last.sizeParameter, last.relativeRe, last.relativeIm,
                               last.efficiencies.Qext, last.efficiencies.Qsca, last.efficiencies.Qback,
                               last.efficiencies.g, double(last.NSTOP), double(last.samples)})
      all.push_back(value);
  }
  std::vector<double> all;

 private:
  void Add(const std::vector<double>& list) { all.insert(all.end(), list.begin(), list.end()); }
  void Add(const AmplitudeTable& table) {
    for (const auto part : {table.RealParts(), table.ImaginaryParts()}) all.insert(all.end(), part.begin(), part.end());
  }
  void Add(const AngleFound& f) {
    for (const auto* table : {&f.S1, &f.S2, &f.S1b, &f.S2b}) Add(*table);
    Add(f.crossRe);
    Add(f.crossIm);
    for (const auto& rows : {f.rows.forward, f.rows.mirrored}) all.push_back(rows.low), all.push_back(rows.high);
  }
  void Add(const SpectrumFound& f) {
    Add(f.perpendicular);
    Add(f.parallel);
    all.push_back(f.done);
  }
  void Add(const AxisFound& f) {
    for (const auto* list :
         {&f.x, &f.crossRe, &f.crossIm, &f.Qext, &f.Qsca, &f.Qback, &f.g, &f.Cext, &f.Csca, &f.powerPerp, &f.powerPar})
      Add(*list);
    Add(f.S1);
    Add(f.S2);
    all.push_back(f.done);
  }
  void Add(const ConvergenceFound& f) { Add(f.perpendicular), Add(f.parallel); }
  void Add(const DebyeAnalysisFound& f) { Add(f.dots1), Add(f.dots2); }
  void Add(const TwoAngleFound& f) { Add(f.first.cells), Add(f.second.cells); }
  void Add(const MapFound& f) {
    for (const MapPanel& panel : f.panels)
      for (const auto* list : {&panel.value, &panel.red, &panel.green, &panel.blue})
        all.insert(all.end(), list->begin(), list->end());
    for (const auto& list : f.strongest) all.insert(all.end(), list.begin(), list.end());
    all.push_back(f.done);
  }
  void Add(const VolumeFound& f) {
    for (const auto* list : {&f.x, &f.alonePerp, &f.alonePar}) Add(*list);
    Add(f.S1), Add(f.S2);
  }
};

/// Run, for tests: they have a function of that name.
inline RunEnd RunWatched(const RunRequest& request, RunWatch& watch, unsigned threads) {
  return Run(request, watch, threads);
}

inline RunEnd RunSilently(const RunRequest& request, unsigned threads = 0) {
  SilentWatch silent;
  return Run(request, silent, threads);
}

}  // namespace lumivex
