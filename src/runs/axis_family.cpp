/// Runs over the points of an axis.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "runs/families.h"
#include "runs/run.h"
#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;

/// Points whose spheres share vector lanes in one task: whole groups of lanes, so that no neighbour changes.
constexpr std::size_t pointsPerTask = 64;

/// The settings of all points, or why one of them has none.
Refusal PlacePoints(const RunRequest& request, const AxisRun& axis, std::vector<Setting>& settings, AxisFound& found) {
  Setting base;
  if (request.graph.axis != AxisVariable::Wavelength) {
    const SettingResult at = SettingAt(request, request.light.lambda);
    if (!at.Good()) return at.refusal;
    base = at.setting;
  }
  const double ratio = StepRatio(axis);
  settings.reserve(static_cast<std::size_t>(axis.points));
  for (int point = 1; point <= axis.points; ++point) {
    const auto i = static_cast<std::size_t>(point);
    found.x[i] = AxisPosition(axis, ratio, point);
    const SettingResult at = SettingAtPoint(request, request.graph.axis, found.x[i], base);
    if (!at.Good()) return at.refusal;
    settings.push_back(at.setting);
    found.radius[i] = at.setting.radius;
    found.size[i] = at.setting.x;
    found.waveNumber[i] = at.setting.WaveNumber();
  }
  return {};
}

AxisFound Sized(int points, bool amplitudes) {
  AxisFound found;
  const auto size = static_cast<std::size_t>(points) + 1;
  for (auto* list : {&found.x, &found.waveNumber, &found.radius, &found.size, &found.Qext, &found.Qsca, &found.Qback,
                     &found.g, &found.Cext, &found.Csca, &found.powerPerp, &found.powerPar})
    list->assign(size, 0.0);
  if (!amplitudes) return found;
  found.S1.Resize(points);
  found.S2.Resize(points);
  return found;
}

/// Mie spheres side by side in vector lanes: efficiencies and, where the graph has one, the amplitudes at its angle.
Refusal SolveLanes(const RunRequest& request, const AxisRun& axis, const std::vector<Setting>& settings, TaskPool& pool,
                   AxisFound& found) {
  for (const Setting& setting : settings)
    if (Refusal beyond = BeyondLimits(request.method, setting.x, setting.mRe, setting.mIm); !beyond.text.empty())
      return beyond;
  const std::size_t points = settings.size();
  std::vector<double> x(points), mRe(points), mIm(points), S1Re, S1Im, S2Re, S2Im;
  for (std::size_t i = 0; i < points; ++i) {
    x[i] = settings[i].x;
    mRe[i] = settings[i].mRe;
    mIm[i] = settings[i].mIm;
  }
  EfficiencyOptions options{request.method.divideBySize, request.method.classicStart};
  if (request.graph.AtOneAngle()) {
    options.angle = axis.angle;
    for (auto* list : {&S1Re, &S1Im, &S2Re, &S2Im}) list->resize(points);
  }
  TaskList tasks;
  tasks.count = (points + pointsPerTask - 1) / pointsPerTask;
  const auto sizeOf = [points](std::size_t task) { return std::min(pointsPerTask, points - task * pointsPerTask); };
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    const std::size_t first = task * pointsPerTask, size = sizeOf(task);
    const auto part = [&](std::vector<double>& list) {
      return list.empty() ? std::span<double>() : std::span(list).subspan(first, size);
    };
    const auto from1 = [&](std::vector<double>& list) { return std::span(list).subspan(first + 1, size); };
    const EfficiencyLists lists{from1(found.Qext), from1(found.Qsca), from1(found.Qback), from1(found.g),
                                part(S1Re),        part(S1Im),        part(S2Re),         part(S2Im)};
    return SolveEfficiencies({part(x), part(mRe), part(mIm)}, lists, options, monitor) == size;
  };
  tasks.take = [](std::size_t, std::size_t) { return true; };
  tasks.place = [&](std::size_t task, RunProgress& progress) {
    progress.point = static_cast<int>(task * pointsPerTask) + 1;
  };
  found.done = static_cast<int>(std::min(points, pool.Do(tasks) * pointsPerTask));
  for (int point = 1; point <= found.done; ++point) {
    const auto i = static_cast<std::size_t>(point);
    const double area = pi * found.radius[i] * found.radius[i];
    found.Cext[i] = area * found.Qext[i];
    found.Csca[i] = area * found.Qsca[i];
    if (!options.angle) continue;
    found.S1.Set(point, S1Re[i - 1], S1Im[i - 1]);
    found.S2.Set(point, S2Re[i - 1], S2Im[i - 1]);
  }
  return {};
}

Refusal SolvePoints(const RunRequest& request, const AxisRun& axis, std::vector<Setting> settings, TaskPool& pool,
                    AxisFound& found, LastSphere& last) {
  const bool power = request.graph.quantity == Quantity::Power;
  const PowerRows rows(axis.range);
  SettingsPlan plan{request,
                    std::move(settings),
                    power ? rows.grid : AngleGrid::At(axis.angle),
                    power ? rows.window : RowWindow{1, 1},
                    false,
                    true,
                    {},
                    {}};
  if (request.Cloud())
    for (auto* cross : {&found.crossRe, &found.crossIm}) cross->assign(plan.settings.size() + 1, 0.0);
  plan.keep = [&](std::size_t index, SettingFound&& at) {
    const auto i = index + 1;
    const int point = static_cast<int>(i);
    const Efficiencies& e = at.sphere.efficiencies;
    found.Qext[i] = e.Qext;
    found.Qsca[i] = e.Qsca;
    found.Qback[i] = e.Qback;
    found.g[i] = e.g;
    found.Cext[i] = at.Cext;
    found.Csca[i] = at.Csca;
    if (power) {
      const Setting setting = plan.settings[index];
      const double x2 = SphereOptions(request).divideBySize ? setting.x * setting.x : 1;
      const double k = setting.WaveNumber();
      const double scale = request.light.incidentDensity * 2 * pi / (k * k) * x2;
      found.powerPerp[i] = scale * rows.Integral(at.sphere.S1);
      found.powerPar[i] = scale * rows.Integral(at.sphere.S2);
    } else if (request.graph.AtOneAngle()) {
      found.S1.Set(point, at.sphere.S1.Re(1), at.sphere.S1.Im(1));
      found.S2.Set(point, at.sphere.S2.Re(1), at.sphere.S2.Im(1));
      if (request.Cloud() && at.crossRe.size() > 1) {
        found.crossRe[i] = at.crossRe[1];
        found.crossIm[i] = at.crossIm[1];
      }
    }
    found.done = point;
    TellSphere(at.sphere, last);
    last.samples = at.samples;
  };
  plan.place = [](std::size_t index, RunProgress& progress) { progress.point = static_cast<int>(index) + 1; };
  return RunSettings(plan, pool).refusal;
}

}  // namespace

PowerRows::PowerRows(const AxisRun::Range& range) : grid(static_cast<int>(std::nearbyint(90 / range.step)) + 1) {
  const double rowsPerDegree = (grid.NANG - 1) / 90.0;
  const auto row = [&](double degrees) { return static_cast<int>(std::nearbyint(degrees * rowsPerDegree)) + 1; };
  window.low = std::clamp(row(range.low), 1, grid.RowCount());
  window.high = std::clamp(row(range.high), window.low, grid.RowCount());
}

double PowerRows::Integral(const AmplitudeTable& S) const {
  double sum = 0;
  for (int row = window.low; row <= window.high; ++row)
    sum += std::sin(grid.Angle(row)) * (row == window.low || row == window.high ? 0.5 : 1) * S.Intensity(row);
  return sum * grid.DANG;
}

SettingResult SettingAtPoint(const RunRequest& request, AxisVariable axis, double x, const Setting& base) {
  if (axis == AxisVariable::Wavelength) return SettingAt(request, x / 1000);
  SettingResult result{base, {}};
  Setting& setting = result.setting;
  const double medium = setting.indices.MediumInUse();
  switch (axis) {
    case AxisVariable::Radius:
      setting.radius = x;
      break;
    case AxisVariable::Diameter:
      setting.radius = x / 2;
      break;
    case AxisVariable::SizeParameter:
      setting.radius = x * setting.lambda / (2 * pi * medium);
      break;
    case AxisVariable::RefractiveIndex:
      setting.mRe = x / medium;
      setting.indices.sphereN = x;
      break;
    default:
      break;
  }
  setting.x = axis == AxisVariable::SizeParameter ? x : SizeParameterOf(setting.radius, medium, setting.lambda);
  return result;
}

double StepRatio(const AxisRun& axis) {
  return axis.logSteps ? std::pow(axis.xmax / axis.xmin, 1 / axis.step) : 1;
}

double AxisPosition(const AxisRun& axis, double ratio, int point) {
  const double position = axis.logSteps ? axis.xmin * std::pow(ratio, point - 1) : axis.xmin + (point - 1) * axis.step;
  return std::min(position, axis.xmax);
}

FamilyEnd RunAxis(const RunRequest& request, const AxisRun& run, TaskPool& pool, Results& results) {
  if (run.pulse) return RunPulseAnswer(request, run, pool, results);
  AxisFound found = Sized(run.points, request.graph.AtOneAngle());
  std::vector<Setting> settings;
  Refusal refusal = PlacePoints(request, run, settings, found);
  if (!refusal.text.empty()) return {false, std::move(refusal)};
  const bool lanes = request.method.method == Method::Mie && request.method.beam.Plane() &&
                     request.graph.quantity != Quantity::Power && !request.Cloud();
  const std::vector<Setting> all = settings;
  if (request.graph.quantity == Quantity::BowAngle)
    refusal = SolveBows(request, all.front(), pool, found);
  else
    refusal = lanes ? SolveLanes(request, run, settings, pool, found)
                    : SolvePoints(request, run, std::move(settings), pool, found, results.last);
  if (!refusal.text.empty() || found.done < 1) return {false, std::move(refusal)};
  const auto i = static_cast<std::size_t>(found.done);
  TellSetting(all[i - 1], results.last);
  LastSphere& last = results.last;
  last.efficiencies = {found.Qext[i], found.Qsca[i], found.Qback[i], found.g[i]};
  if (request.method.method == Method::Mie && request.method.beam.Plane()) last.NSTOP = NStopEstimate(all[i - 1].x);
  if (request.graph.AtOneAngle()) TellAngle(run.angle, last);
  results.found = std::move(found);
  return {true, {}};
}

}  // namespace lumivex
