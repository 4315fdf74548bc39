/// Runs about one sphere at one angle, and the cross-sections into two ranges of angle.

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "runs/beam_methods.h"
#include "runs/families.h"
#include "runs/run.h"
#include "solvers/angles/angle_window.h"
#include "solvers/functions/complex_algebra.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_series.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr int tenthsTo90 = 901;  // rows of 0.1 degrees
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

/// What a series leaves of its running sums.
struct Sums {
  Refusal refusal;
  ConvergenceFound found;
  SphereSolution sphere;
};

struct Point {
  double angle;  ///< radians
  int row;       ///< of the grid, the nearest
};

/// Amplitudes at exactly the angle asked for, in the place of the row nearest to it.
void SumAtAngle(ConvergenceFound& found, const Point& at, double scale, RunMonitor& monitor) {
  AmplitudeTable S1(1), S2(1);
  if (SumAngularSeries(found.waves, std::span(&at.angle, 1), S1, S2, monitor) != 1) return;
  found.S1.Set(at.row, scale * S1.Re(1), scale * S1.Im(1));
  found.S2.Set(at.row, scale * S2.Re(1), scale * S2.Im(1));
}

Sums SumMie(const RunRequest& request, const Setting& setting, const Point& at, RunMonitor& monitor) {
  MieRequest asked;
  asked.x = setting.x;
  asked.mRe = setting.mRe;
  asked.mIm = setting.mIm;
  asked.NANG = tenthsTo90;
  asked.window = {at.row, at.row};
  asked.divideBySize = request.method.divideBySize;
  asked.classicStart = request.method.classicStart;
  asked.convergence = true;
  asked.convergenceAngle = at.angle;
  MieResult result = SolveMie(asked, monitor);
  Sums sums;
  if (result.refusal != MieRefusal::None) {
    sums.refusal = BeyondMie();
    return sums;
  }
  sums.found = {std::move(result.convergence.perpendicular),
                std::move(result.convergence.parallel),
                std::move(result.convergence.unpolarised),
                std::move(result.S1),
                std::move(result.S2),
                std::move(result.waves)};
  SumAtAngle(sums.found, at, request.method.divideBySize ? 1 / setting.x : 1, monitor);
  sums.sphere.efficiencies = result.efficiencies;
  sums.sphere.NSTOP = result.truncation.NSTOP;
  sums.sphere.NMX = result.truncation.NMX;
  return sums;
}

Sums SumDebye(const RunRequest& request, const Setting& setting, const Point& at, RunMonitor& monitor) {
  Sums sums;
  if (std::ranges::none_of(request.method.rays, [](int p) { return p != 0; })) {
    sums.refusal = NoRays();
    return sums;
  }
  DebyeRequest asked;
  asked.x = setting.x;
  asked.mRe = setting.mRe;
  asked.mIm = setting.mIm;
  asked.NANG = tenthsTo90;
  asked.window = {at.row, at.row};
  asked.selected = request.method.rays;
  asked.byRatio = request.method.byRatio;
  asked.convergence = true;
  if (const auto& range = request.method.partialWaves) {
    asked.partial = true;
    asked.firstRatio = range->first;
    asked.lastRatio = range->last;
  }
  DebyeResult result = SolveDebye(asked, monitor);
  if (result.refusal != MieRefusal::None) {
    sums.refusal = {"Error", "Reduce radius or increase wavelength"};
    return sums;
  }
  sums.sphere.efficiencies = EfficienciesOf(result.waves, setting.x);
  if (setting.mIm == 0) sums.sphere.efficiencies.Qsca = sums.sphere.efficiencies.Qext;
  sums.sphere.NSTOP = result.NSTOP;
  sums.sphere.NMX = result.NMX;
  sums.sphere.partialWaveFirst = result.PartialWaveFirst;
  sums.sphere.partialWaveLast = result.PartialWaveLast;
  sums.found = {std::move(result.convergence.perpendicular),
                std::move(result.convergence.parallel),
                std::move(result.convergence.unpolarised),
                std::move(result.S1),
                std::move(result.S2),
                std::move(result.waves)};
  SumAtAngle(sums.found, at, 1, monitor);
  return sums;
}

/// Of a coated sphere: the running sums of the whole, or of its selected terms.
Sums SumCoated(const RunRequest& request, const Setting& setting, const Point& at, RunMonitor& monitor) {
  SphereAsked asked{setting.x, setting.mRe, setting.mIm, AngleGrid(tenthsTo90), {}, nullptr};
  AskForSphere(request.particle, setting, setting.radius, asked);
  Sums sums;
  sums.sphere = SolveSphere(request.method, asked, monitor);
  sums.refusal = sums.sphere.refusal;
  if (sums.sphere.Refused()) return sums;
  sums.found.waves = CoatedWavesBeyond(request.method, asked, monitor);
  ConvergenceSeries series = SumConvergence(sums.found.waves, at.angle);
  sums.found.perpendicular = std::move(series.perpendicular);
  sums.found.parallel = std::move(series.parallel);
  sums.found.unpolarised = std::move(series.unpolarised);
  sums.sphere.NSTOP = sums.found.waves.Terms();
  sums.found.S1 = std::move(sums.sphere.S1);
  sums.found.S2 = std::move(sums.sphere.S2);
  SumAtAngle(sums.found, at, request.method.divideBySize ? 1 / setting.x : 1, monitor);
  return sums;
}

/// The parts of a double series one after the other.
void SumParts(const std::vector<BeamSeries::Part>& parts, std::size_t begin, ConvergenceFound& found) {
  ComplexD S1, S2;
  std::vector<ComplexD> sums1, sums2;
  for (std::size_t i = begin; i < parts.size(); ++i) {
    const BeamSeries::Part& part = parts[i];
    sums1.push_back(S1 = S1 + part.S1());
    sums2.push_back(S2 = S2 + part.S2());
  }
  const auto modulus = [](const ComplexD& z) { return std::hypot(z.re, z.im); };
  const auto fill = [&](const std::vector<ComplexD>& sums, const ComplexD& whole, std::vector<double>& intensity,
                        ConvergenceFound::Terms& terms, auto ofPi, auto ofTau) {
    intensity = {0};
    terms = {{0}, {0}, {0}};
    for (std::size_t i = 0; i < sums.size(); ++i) {
      intensity.push_back(SquaredModulus(sums[i]));
      terms.ofPi.push_back(modulus(ofPi(parts[begin + i])));
      terms.ofTau.push_back(modulus(ofTau(parts[begin + i])));
      terms.ratio.push_back(modulus(whole) > 0 ? modulus(sums[i]) / modulus(whole) : 0);
    }
  };
  using Part = BeamSeries::Part;
  fill(
      sums1, S1, found.perpendicular, found.perpendicularTerms, [](const Part& p) { return p.pi1; },
      [](const Part& p) { return p.tau1; });
  fill(
      sums2, S2, found.parallel, found.parallelTerms, [](const Part& p) { return p.pi2; },
      [](const Part& p) { return p.tau2; });
  for (std::size_t i = 0; i < found.perpendicular.size(); ++i)
    found.unpolarised.push_back((found.perpendicular[i] + found.parallel[i]) / 2);
}

/// Of a beam: sums over L with all M, or over |M| with all L.
Sums SumBeam(const RunRequest& request, const Setting& setting, const Point& at, RunMonitor& monitor) {
  SphereAsked asked{setting.x, setting.mRe, setting.mIm, AngleGrid::At(at.angle), {1, 1}, nullptr};
  AskForSphere(request.particle, setting, setting.radius, asked);
  Sums sums;
  const BeamScattering beam = ScatterBeam(request.method, asked, monitor);
  sums.refusal = beam.refusal;
  if (!beam.series) return sums;
  sums.sphere = SolutionOf(beam, asked);
  BeamSeries::Parts parts = beam.series->SumInParts(at.angle, monitor);
  if (parts.ofL.empty()) return sums;
  if (request.method.divideBySize)
    for (auto* list : {&parts.ofL, &parts.ofM})
      for (BeamSeries::Part& part : *list)
        for (ComplexD* z : {&part.pi1, &part.tau1, &part.pi2, &part.tau2}) *z = (1 / setting.x) * *z;
  const bool overL = std::get<ConvergenceRun>(request.run).over == ConvergenceRun::Over::L;
  ConvergenceFound& found = sums.found;
  found.first = overL ? 1 : 0;
  SumParts(overL ? parts.ofL : parts.ofM, overL ? 1 : 0, found);
  ComplexD S1, S2;
  for (const BeamSeries::Part& part : parts.ofM) {
    S1 = S1 + part.S1();
    S2 = S2 + part.S2();
  }
  found.S1.Resize(2 * tenthsTo90 - 1);
  found.S2.Resize(2 * tenthsTo90 - 1);
  found.S1.Set(at.row, S1.re, S1.im);
  found.S2.Set(at.row, S2.re, S2.im);
  return sums;
}

Sums SumSeries(const RunRequest& request, const Setting& setting, const Point& at, RunMonitor& monitor) {
  if (!request.method.beam.Plane()) return SumBeam(request, setting, at, monitor);
  switch (request.method.method) {
    case Method::Debye:
      return SumDebye(request, setting, at, monitor);
    case Method::CoatedSphere:
      return SumCoated(request, setting, at, monitor);
    default:
      return SumMie(request, setting, at, monitor);
  }
}

}  // namespace

FamilyEnd RunConvergence(const RunRequest& request, const ConvergenceRun& run, TaskPool& pool, Results& results) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  const Point point{run.angle * pi / 180,
                    std::clamp(static_cast<int>(std::nearbyint(run.angle * 10)) + 1, 1, 2 * tenthsTo90 - 1)};
  Sums sums;
  TaskList one;
  one.count = 1;
  one.work = [&](std::size_t, std::size_t, RunMonitor& monitor) {
    sums = SumSeries(request, at.setting, point, monitor);
    return monitor.Report(1, 1) && sums.refusal.text.empty();
  };
  one.take = [](std::size_t, std::size_t) { return true; };
  if (pool.Do(one) == 0) return {false, std::move(sums.refusal)};
  TellSetting(at.setting, results.last);
  TellSphere(sums.sphere, results.last);
  results.last.NANG = tenthsTo90;
  results.last.selectedRow = point.row;
  results.found = std::move(sums.found);
  return {true, {}};
}

FamilyEnd RunDebyeAnalysis(const RunRequest& request, const DebyeAnalysisRun& run, TaskPool& pool, Results& results) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  SphereAsked asked{at.setting.x, at.setting.mRe, at.setting.mIm, AngleGrid::At(run.angle), {1, 1}, nullptr};
  AskForSphere(request.particle, at.setting, at.setting.radius, asked);
  DebyeAnalysisFound found;
  found.dots1.Resize(run.limit + 2);
  found.dots2.Resize(run.limit + 2);
  std::vector<SphereSolution> slots(pool.Slots());
  Refusal refusal;
  SphereSolution mie;
  TaskList tasks;
  tasks.count = static_cast<std::size_t>(run.limit) + 2;  // the sphere, then each p from 0
  tasks.work = [&](std::size_t task, std::size_t slot, RunMonitor& monitor) {
    MethodOptions options = request.method;
    options.difference = Difference::None;
    options.method = task == 0 ? Method::Mie : Method::Debye;
    options.rays.assign(task, 0);
    if (task > 0) options.rays.back() = 1;
    slots[slot] = SolveSphere(options, asked, monitor);
    return slots[slot].finished && !slots[slot].Refused();
  };
  tasks.take = [&](std::size_t task, std::size_t slot) {
    SphereSolution& term = slots[slot];
    const int row = static_cast<int>(task) + 1;
    if (task == 0) {
      found.dots1.Set(1, term.S1.Re(1), term.S1.Im(1));
      found.dots2.Set(1, term.S2.Re(1), term.S2.Im(1));
      mie = std::move(term);
    } else {
      mie.NSTOP = term.NSTOP;
      mie.NMX = term.NMX;
      found.dots1.Set(row, found.dots1.Re(row - 1) - term.S1.Re(1), found.dots1.Im(row - 1) - term.S1.Im(1));
      found.dots2.Set(row, found.dots2.Re(row - 1) - term.S2.Re(1), found.dots2.Im(row - 1) - term.S2.Im(1));
    }
    found.done = row;
    return true;
  };
  tasks.place = [](std::size_t task, RunProgress& progress) { progress.point = static_cast<int>(task) + 1; };
  const std::size_t taken = pool.Do(tasks);
  if (taken < tasks.count && !pool.Stopped())
    for (const SphereSolution& slot : slots)
      if (slot.Refused()) refusal = slot.refusal;
  if (!refusal.text.empty() || found.done == 0) return {false, std::move(refusal)};
  TellSetting(at.setting, results.last);
  TellSphere(mie, results.last);
  results.last.NANG = 9001;
  found.S1b = std::move(mie.S1);
  found.S2b = std::move(mie.S2);
  results.found = std::move(found);
  return {true, {}};
}

FamilyEnd RunTwoAngle(const RunRequest& request, const TwoAngleRun& run, TaskPool& pool, Results& results) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  const double medium = at.setting.indices.MediumInUse();
  const double k = 2 * pi * medium / at.setting.lambda;  // 1/um
  const AngleGrid grid(twoAngleRowsTo90);
  const auto radians = [](double low, double high) { return AngleRange{low * pi / 180, high * pi / 180}; };
  const AngleRange first = radians(run.angle1Min, run.angle1Max), second = radians(run.angle2Min, run.angle2Max);
  const RowWindow a = RowsOfRange(grid, first), b = RowsOfRange(grid, second);
  const RowWindow rows{std::min(a.low, b.low), std::max(a.high, b.high)};
  const auto cosines = std::make_shared<const AngleCosines>(grid, rows);
  const std::size_t lines = run.radius.size();

  TwoAngleFound found;
  for (Table2D* table : {&found.first, &found.second}) {
    table->Resize(lines, run.index.size());
    std::ranges::fill(table->cells, notComputed);
  }
  struct Slot {
    SphereSolution sphere;
    double first = 0, second = 0;
  };
  std::vector<Slot> slots(pool.Slots());
  bool refused = false;
  TaskList tasks;
  tasks.count = lines * run.index.size();
  const auto sizeOf = [&](std::size_t task) { return k * run.radius[task % lines]; };
  tasks.work = [&](std::size_t task, std::size_t slotIndex, RunMonitor& monitor) {
    Slot& slot = slots[slotIndex];
    const double x = sizeOf(task);
    slot.sphere =
        BHMIE(request.method, {x, run.index[task / lines] / medium, at.setting.mIm, grid, rows, cosines}, monitor);
    if (slot.sphere.Refused() || !slot.sphere.finished) return false;
    const double scale = 2 * pi / (k * k) * (request.method.divideBySize ? x * x : 1);
    slot.first = scale * IntegrateProduct(slot.sphere.S1, slot.sphere.S2, grid, first);
    slot.second = scale * IntegrateProduct(slot.sphere.S1, slot.sphere.S2, grid, second);
    return true;
  };
  tasks.take = [&](std::size_t task, std::size_t slotIndex) {
    Slot& slot = slots[slotIndex];
    found.waves = std::move(slot.sphere.waves);
    found.first.At(task % lines, task / lines) = slot.first;
    found.second.At(task % lines, task / lines) = slot.second;
    ++found.done;
    TellSphere(slot.sphere, results.last);
    return true;
  };
  tasks.place = [&](std::size_t task, RunProgress& progress) {
    progress.column = static_cast<int>(task / lines);
    progress.row = static_cast<int>(task % lines);
    progress.radius = run.radius[task % lines];
  };
  const std::size_t taken = pool.Do(tasks);
  if (taken < tasks.count && !pool.Stopped())
    refused = std::ranges::any_of(slots, [](const Slot& slot) { return slot.sphere.Refused(); });
  if (refused) return {false, BeyondMie()};
  if (found.done == 0) return {};
  TellSetting(at.setting, results.last);
  const auto lastSphere = static_cast<std::size_t>(found.done) - 1;
  results.last.radius = run.radius[lastSphere % lines];
  results.last.sizeParameter = sizeOf(lastSphere);
  results.last.relativeRe = run.index[lastSphere / lines] / medium;
  results.last.NANG = twoAngleRowsTo90;
  results.found = std::move(found);
  return {true, {}};
}

}  // namespace lumivex
