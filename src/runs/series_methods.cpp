/// The methods that sum partial waves.

#include <algorithm>
#include <utility>

#include "runs/beam_methods.h"
#include "runs/further_methods.h"
#include "runs/sphere_solver.h"
#include "runs/watched.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_point.h"
#include "solvers/series/mie_series.h"

namespace lumivex {

namespace {

/// Beyond this absorption nothing comes out of the sphere any more.
constexpr double opaque = 700;

bool OneAngle(const AngleGrid& grid) {
  return grid.NANG == 1;
}

SphereSolution MieAtAngle(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  MiePoint point = SolveMiePoint(
      {asked.x, asked.mRe, asked.mIm, asked.grid.first, options.divideBySize, options.classicStart}, watched);
  SphereSolution solution;
  solution.finished = watched.goesOn;
  if (point.refusal != MieRefusal::None) {
    solution.refusal = BeyondMie();
    return solution;
  }
  solution.S1.Resize(1);
  solution.S2.Resize(1);
  solution.S1.Set(1, point.S1.re, point.S1.im);
  solution.S2.Set(1, point.S2.re, point.S2.im);
  solution.rows.forward = {1, 1};
  solution.efficiencies = point.efficiencies;
  solution.NSTOP = point.NSTOP;
  solution.NMX = point.NMX;
  return solution;
}

DebyeRequest RequestOf(const MethodOptions& options, const SphereAsked& asked) {
  DebyeRequest request;
  request.x = asked.x;
  request.mRe = asked.mRe;
  request.mIm = asked.mIm;
  request.NANG = std::max(asked.grid.NANG, 2);
  request.window = asked.window;
  if (OneAngle(asked.grid)) request.angle = asked.grid.first;
  request.selected = options.rays;
  request.byRatio = options.byRatio;
  if (options.partialWaves) {
    request.partial = true;
    request.firstRatio = options.partialWaves->first;
    request.lastRatio = options.partialWaves->last;
  }
  return request;
}

RowWindow Both(const RowWindow& a, const RowWindow& b) {
  return {std::max(a.low, b.low), std::min(a.high, b.high)};
}

}  // namespace

void TakeDifference(const MethodOptions& options, const SphereAsked& asked, SphereSolution& series,
                    RunMonitor& monitor) {
  const bool fromMie = options.difference == Difference::MieLessDebye;
  // What is taken away from the series are bare rays; where it is taken from rays, they may have diffraction with them,
  // as the series has in p = 0.
  const auto mie = options.beam.Plane() ? BHMIE : MIE_Gaussian;
  const auto solve = fromMie ? mie : options.difference == Difference::RaysLessDebye ? GO : GO2;
  SphereSolution other = solve(options, asked, monitor);
  if (other.Refused()) {
    series.refusal = other.refusal;
    return;
  }
  const double sign = options.difference == Difference::DebyeLessRays ? -1 : 1;
  const int last = std::min({asked.window.high, series.S1.Rows(), other.S1.Rows()});
  for (int row = std::max(asked.window.low, 1); row <= last; ++row) {
    series.S1.Set(row, sign * (other.S1.Re(row) - series.S1.Re(row)), sign * (other.S1.Im(row) - series.S1.Im(row)));
    series.S2.Set(row, sign * (other.S2.Re(row) - series.S2.Re(row)), sign * (other.S2.Im(row) - series.S2.Im(row)));
  }
  series.rows = {Both(series.rows.forward, other.rows.forward), Both(series.rows.mirrored, other.rows.mirrored)};
  series.finished = series.finished && other.finished;
  if (fromMie) {
    // Summed last.
    series.NSTOP = other.NSTOP;
    series.NMX = other.NMX;
  }
  series.S1b = std::move(other.S1);
  series.S2b = std::move(other.S2);
}

bool IsOpaque(const MethodOptions& options, const SphereAsked& asked) {
  return options.OnlyReflected() && asked.x * asked.mIm > opaque;
}

Refusal BeyondLimits(const MethodOptions& options, double x, double mRe, double mIm) {
  const bool series = options.method == Method::Mie || options.difference == Difference::MieLessDebye;
  if (series && CheckMieLimits(x, mRe, mIm) != MieRefusal::None)
    return options.beam.Plane() ? BeyondMie() : BeyondMieInBeam();
  const bool opaqueSphere = options.OnlyReflected() && x * mIm > opaque;
  if (options.method == Method::Debye && !opaqueSphere && CheckDebyeLimits(x, mRe, mIm) != MieRefusal::None)
    return {"Error", "Reduce radius or increase wavelength"};
  if (options.method == Method::SurfaceWave) return BeyondSurfaceWaves(options, x, mRe);
  if (options.method == Method::Heiligenschein) return BeyondDew(x);
  return {};
}

SphereSolution BHMIE(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  if (OneAngle(asked.grid)) return MieAtAngle(options, asked, monitor);
  MieRequest request;
  request.x = asked.x;
  request.mRe = asked.mRe;
  request.mIm = asked.mIm;
  request.NANG = asked.grid.NANG;
  request.window = asked.window;
  request.cosines = asked.cosines;
  request.divideBySize = options.divideBySize;
  request.classicStart = options.classicStart;
  MieResult result = SolveMie(request, monitor);
  SphereSolution solution;
  if (result.refusal != MieRefusal::None) {
    solution.refusal = BeyondMie();
    return solution;
  }
  solution.finished = !result.stopped;
  solution.S1 = std::move(result.S1);
  solution.S2 = std::move(result.S2);
  solution.rows = result.rows;
  solution.efficiencies = result.efficiencies;
  solution.waves = std::move(result.waves);
  solution.NSTOP = result.truncation.NSTOP;
  solution.NMX = result.truncation.NMX;
  return solution;
}

SphereSolution DebyeSeries(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  if (IsOpaque(options, asked)) {
    SphereSolution mie = BHMIE(options, asked, monitor);
    if (!mie.waves.aRe.empty() && mie.waves.Terms() > 0) mie.efficiencies = EfficienciesOf(mie.waves, asked.x);
    return mie;
  }
  SphereSolution solution;
  if (std::ranges::count(options.rays, 0) == std::ssize(options.rays)) {
    solution.refusal = NoRays();
    return solution;
  }
  Watched watched(monitor);
  DebyeResult result = SolveDebye(RequestOf(options, asked), watched);
  if (result.refusal != MieRefusal::None) {
    solution.refusal = {"Error", "Reduce radius or increase wavelength"};
    return solution;
  }
  solution.finished = watched.goesOn;
  solution.S1 = std::move(result.S1);
  solution.S2 = std::move(result.S2);
  solution.rows = result.rows;
  solution.NSTOP = result.NSTOP;
  solution.NMX = result.NMX;
  solution.partialWaveFirst = result.PartialWaveFirst;
  solution.partialWaveLast = result.PartialWaveLast;
  solution.waves = std::move(result.waves);
  if (solution.waves.Terms() > 0) solution.efficiencies = EfficienciesOf(solution.waves, asked.x);
  if (asked.mIm == 0) solution.efficiencies.Qsca = solution.efficiencies.Qext;
  if (options.difference == Difference::None) return solution;
  if (solution.finished)
    TakeDifference(options, asked, solution, monitor);
  else
    solution.rows = {};  // of a difference nothing is there yet
  return solution;
}

}  // namespace lumivex
