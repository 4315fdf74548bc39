#include <algorithm>
#include <cmath>
#include <numbers>

#include "files/results/own_block.h"
#include "runs/curves.h"
#include "runs/run.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

double Known(double value) {
  return std::isfinite(value) ? value : 0;
}

// Results to rows.

struct ToRows {
  const Results& results;
  RowWindow window;
  CurveRows& rows;

  void operator()(const AngleFound& found) const {
    for (int row = window.low; row <= window.high; ++row) {
      const bool done = found.rows.Contains(row);
      rows.perpendicular.resize(At(row) + 1);
      rows.parallel.resize(At(row) + 1);
      rows.unpolarised.resize(At(row) + 1);
      rows.perpendicular[At(row)] = done ? found.S1.Intensity(row) : 0;
      rows.parallel[At(row)] = done ? found.S2.Intensity(row) : 0;
      rows.unpolarised[At(row)] = (rows.perpendicular[At(row)] + rows.parallel[At(row)]) / 2;
    }
    rows.angleS1 = found.S1;
    rows.angleS2 = found.S2;
  }
  void operator()(const SpectrumFound& found) const {
    rows.perpendicular = found.perpendicular;
    rows.parallel = found.parallel;
  }
  void operator()(const MapFound& found) const {
    rows.cells = found;
    if (const AngleRows* angles = RowsOf(results.asked.run)) {
      rows.leeRowStart = static_cast<int>(std::lround(angles->firstPoint));
      rows.leeRowEnd = static_cast<int>(std::lround(angles->lastPoint));
    }
  }
  void operator()(const TwoAngleFound&) const {}
  template <class Found>
  void operator()(const Found& found) const {
    if constexpr (std::is_same_v<Found, AxisFound>) {
      rows.S1 = found.S1;
      rows.S2 = found.S2;
    }
    const Curves curves = CurvesOf(results, {});
    rows.x = curves.x;
    rows.perpendicular = curves.perpendicular;
    rows.parallel = curves.parallel;
    rows.unpolarised = curves.unpolarised;
    for (auto* list : {&rows.x, &rows.perpendicular, &rows.parallel, &rows.unpolarised})
      std::ranges::transform(*list, list->begin(), Known);
    rows.lastPoint = static_cast<int>(curves.x.size()) - 1;
  }
};

// Rows to results.

double Root(double intensity) {
  return intensity > 0 ? std::sqrt(intensity) : 0;
}

/// The sphere of the request, as its run tells it: a plain run of a few angles. Without a ray there is none to be run,
/// and yet the sphere is known.
LastSphere SphereOf(const RunRequest& request) {
  RunRequest one = request;
  one.graph = GraphOf({1, 1});
  one.light.spectrum.reset();
  // Rays take long, and leave no efficiencies.
  if (TraitsOf(one.method.method).takesLong) one.method = {};
  one.run = AngleRun{{0, 180, 90, 2, {1, 3}, 1, 3}};
  SilentWatch watch;
  if (RunEnd end = Run(one, watch); end.hasResults) return end.results.last;
  one.method = {};
  LastSphere sphere = Run(one, watch).results.last;
  sphere.efficiencies = {};
  return sphere;
}

struct FromRows {
  const CurveRows& rows;
  Results& results;

  bool operator()(const AngleRun& run) const {
    AngleFound found;
    const int last = 2 * run.rows.NANG - 1;
    found.S1.Resize(last + 100);
    found.S2.Resize(last + 100);
    for (int row = run.rows.window.low; row <= run.rows.window.high; ++row) {
      if (At(row) >= rows.perpendicular.size()) break;
      found.S1.Set(row, Root(rows.perpendicular[At(row)]), 0);
      found.S2.Set(row, Root(rows.parallel[At(row)]), 0);
      if (row > rows.angleS1.Rows()) continue;
      found.S1.Set(row, rows.angleS1.Re(row), rows.angleS1.Im(row));
      found.S2.Set(row, rows.angleS2.Re(row), rows.angleS2.Im(row));
    }
    found.rows.forward = {run.rows.window.low, std::min(run.rows.window.high, run.rows.NANG)};
    found.rows.mirrored = {std::max(run.rows.window.low, run.rows.NANG + 1), run.rows.window.high};
    results.last.NANG = run.rows.NANG;
    results.found = std::move(found);
    return true;
  }
  bool operator()(const SpectrumRun& run) const {
    SpectrumFound found;
    const SpectrumOfLight& light = *results.asked.light.spectrum;
    const auto count = static_cast<std::size_t>(run.rows.window.high - run.rows.window.low + 1);
    found.done = light.Count();
    found.perpendicular = rows.perpendicular;
    found.parallel = rows.parallel;
    found.waveNumber.assign(At(found.done) + 1, 0);
    for (int i = 1; i <= found.done; ++i) {
      const SettingResult at = SettingAt(results.asked, double{light.wavelength[At(i)]});
      if (!at.Good()) throw BadFile{at.refusal.text};
      found.waveNumber[At(i)] = at.setting.WaveNumber();
    }
    found.S1.Resize(2 * run.rows.NANG - 1);
    found.S2.Resize(2 * run.rows.NANG - 1);
    const std::size_t first = At(found.done - 1) * count;
    for (std::size_t k = 0; k < count && first + k < found.perpendicular.size(); ++k) {
      found.S1.Set(run.rows.window.low + static_cast<int>(k), Root(found.perpendicular[first + k]), 0);
      found.S2.Set(run.rows.window.low + static_cast<int>(k), Root(found.parallel[first + k]), 0);
    }
    results.last.NANG = run.rows.NANG;
    results.found = std::move(found);
    return true;
  }
  /// The sphere at a point of the axis.
  Setting At1(const AxisRun&, double x) const {
    RunRequest asked = results.asked;
    const AxisVariable axis = asked.graph.axis;
    double lambda = asked.light.lambda;
    if (axis == AxisVariable::Wavelength) lambda = x / 1000;
    if (axis == AxisVariable::Radius) asked.particle.radius = x;
    if (axis == AxisVariable::Diameter) asked.particle.radius = x / 2;
    SettingResult at = SettingAt(asked, lambda);
    if (!at.Good()) throw BadFile{at.refusal.text};
    if (axis != AxisVariable::SizeParameter) return at.setting;
    at.setting.radius = x * lambda / (2 * std::numbers::pi * at.setting.indices.MediumInUse());
    at.setting.x = x;
    return at.setting;
  }
  /// The quantity's own field of the three curves.
  void TakeQuantity(AxisFound& found, std::size_t i) const {
    const double first = rows.perpendicular[i], second = rows.parallel[i];
    const double area = std::numbers::pi * found.radius[i] * found.radius[i];  // um2
    switch (results.asked.graph.quantity) {
      case Quantity::Efficiencies:
        found.Qext[i] = first;
        found.Qsca[i] = second;
        found.Cext[i] = first * area;
        found.Csca[i] = second * area;
        if (!found.Qabs.empty()) found.Qabs[i] = rows.unpolarised[i];
        return;
      case Quantity::CrossSections:
        found.Cext[i] = first * 1e12;
        found.Csca[i] = second * 1e12;
        found.Qext[i] = area > 0 ? found.Cext[i] / area : 0;
        found.Qsca[i] = area > 0 ? found.Csca[i] / area : 0;
        return;
      case Quantity::Qback:
        found.Qback[i] = first;
        return;
      case Quantity::Qradar:
        found.Qback[i] = first / (4 * std::numbers::pi);
        return;
      case Quantity::Asymmetry:
        found.g[i] = first;
        return;
      case Quantity::Albedo:
        found.Qext[i] = found.Cext[i] = 1;
        found.Qsca[i] = found.Csca[i] = first;
        return;
      case Quantity::Power:
        found.powerPerp[i] = first;
        found.powerPar[i] = second;
        return;
      default:
        found.S1.Set(static_cast<int>(i), Root(first), 0);
        found.S2.Set(static_cast<int>(i), Root(second), 0);
    }
  }
  bool operator()(const AxisRun& run) const {
    AxisFound found;
    const std::size_t size = At(run.points) + 1;
    for (auto* list : {&found.x, &found.waveNumber, &found.radius, &found.size, &found.Qext, &found.Qsca, &found.Qback,
                       &found.g, &found.Cext, &found.Csca, &found.powerPerp, &found.powerPar})
      list->assign(size, 0);
    if (run.pulse) found.Qabs.assign(size, 0);
    found.S1.Resize(run.points);
    found.S2.Resize(run.points);
    const double ratio = StepRatio(run);
    const bool matrix = results.asked.graph.quantity == Quantity::ScatteringMatrix;
    for (int point = 1; point <= run.points; ++point) {
      const std::size_t i = At(point);
      const bool there = matrix ? point <= rows.S1.Rows() : i < rows.perpendicular.size();
      if (!there) break;
      found.x[i] = i < rows.x.size() ? rows.x[i] : AxisPosition(run, ratio, point);
      const Setting setting = At1(run, found.x[i]);
      found.waveNumber[i] = setting.WaveNumber();
      found.radius[i] = setting.radius;
      found.size[i] = setting.x;
      if (matrix) {
        found.S1.Set(point, rows.S1.Re(point), rows.S1.Im(point));
        found.S2.Set(point, rows.S2.Re(point), rows.S2.Im(point));
      } else {
        TakeQuantity(found, i);
      }
      found.done = point;
    }
    results.found = std::move(found);
    return true;
  }
  bool operator()(const ConvergenceRun&) const {
    ConvergenceFound found;
    found.perpendicular = rows.perpendicular;
    found.parallel = rows.parallel;
    found.unpolarised = rows.unpolarised;
    results.last.NSTOP = static_cast<int>(rows.perpendicular.size()) - 1;
    if (rows.x.size() > 1) found.first = ToWhole(rows.x[1]);
    results.found = std::move(found);
    return true;
  }
  bool Cells(bool spectrum) const {
    MapFound found = rows.cells;
    const std::size_t cells = At(found.columns) * At(found.rows);
    if (spectrum) found.strongest.assign(found.panels.size(), std::vector<std::uint16_t>(cells));
    results.found = std::move(found);
    return true;
  }
  bool operator()(const AngleMapRun&) const {
    return results.asked.graph.family != Family::Lee && Cells(results.asked.light.spectrum.has_value());
  }
  bool operator()(const EfficiencyMapRun&) const { return Cells(false); }
  bool operator()(const DebyeAnalysisRun&) const { return false; }
  bool operator()(const TwoAngleRun&) const { return false; }
  bool operator()(const VolumeRun&) const { return false; }
};

}  // namespace

CurveRows RowsForFile(const Results& results, RowWindow window) {
  CurveRows rows;
  std::visit(ToRows{results, window, rows}, results.found);
  rows.Qsca = results.last.efficiencies.Qsca;
  return rows;
}

bool FillFromRows(const CurveRows& rows, Results& results) {
  results.last = SphereOf(results.asked);
  if (rows.Qsca > 0) results.last.efficiencies.Qsca = rows.Qsca;
  return std::visit(FromRows{rows, results}, results.asked.run);
}

}  // namespace lumivex
