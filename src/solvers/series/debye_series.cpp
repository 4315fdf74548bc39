#include "solvers/series/debye_series.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace lumivex {

namespace {

constexpr double ConvergenceStretch = 1.2;
constexpr int RecurrenceMargin = 15;

int NearestWhole(double value, int highest) {
  return static_cast<int>(std::clamp(std::nearbyint(value), 0.0, static_cast<double>(highest)));
}

DebyeConvergence Convergence(const DebyeSurfaces& surfaces, const std::vector<int>& selected) {
  std::vector<int> top(selected);
  const auto last = std::find_if(top.rbegin(), top.rend(), [](int p) { return p != 0; });
  if (last != top.rend()) std::fill(top.begin(), last.base() - 1, 0);
  SilentMonitor silent;
  const PartialWaves waves = SumDebyeTerms(surfaces, top, 1, surfaces.Terms(), silent);
  const std::size_t size = waves.aRe.size();
  DebyeConvergence c{std::vector<double>(size), std::vector<double>(size), std::vector<double>(size)};
  for (std::size_t n = 0; n < size; ++n) {
    c.perpendicular[n] = 4.0 * (waves.aRe[n] * waves.aRe[n] + waves.aIm[n] * waves.aIm[n]);
    c.parallel[n] = 4.0 * (waves.bRe[n] * waves.bRe[n] + waves.bIm[n] * waves.bIm[n]);
    c.unpolarised[n] = (c.perpendicular[n] + c.parallel[n]) / 2.0;
  }
  return c;
}

/// int(max(|m x|, estimate)) + 15, which the limit counts.
int TermsCounted(double x, double mRe, double mIm) {
  return static_cast<int>(std::max<double>(std::hypot(x * mRe, x * mIm), NStopEstimate(x, DebyeSeriesMargin))) +
         RecurrenceMargin;
}

}  // namespace

MieRefusal CheckDebyeLimits(double x, double mRe, double mIm) {
  if (!(std::hypot(x * mRe, x * mIm) <= MaxSeriesTerms)) return MieRefusal::SizeTooLarge;
  return TermsCounted(x, mRe, mIm) > MaxSeriesTerms ? MieRefusal::SeriesTooLong : MieRefusal::None;
}

DebyeResult SolveDebye(const DebyeRequest& request, RunMonitor& monitor) {
  const AngleGrid grid = request.angle ? AngleGrid::At(*request.angle) : AngleGrid(request.NANG);
  DebyeResult result;
  result.S1.Resize(grid.RowCount());
  result.S2.Resize(grid.RowCount());
  result.refusal = CheckDebyeLimits(request.x, request.mRe, request.mIm);
  if (result.refusal == MieRefusal::SizeTooLarge) return result;
  const int estimate = NStopEstimate(request.x, DebyeSeriesMargin);
  result.NMX = TermsCounted(request.x, request.mRe, request.mIm);
  if (result.refusal != MieRefusal::None) return result;
  result.NSTOP = request.convergence ? static_cast<int>(std::nearbyint(ConvergenceStretch * estimate)) : estimate;
  result.PartialWaveLast = result.NSTOP;
  if (request.partial) {
    result.PartialWaveFirst = NearestWhole(request.firstRatio * request.x, MaxSeriesTerms);
    result.PartialWaveLast = NearestWhole(request.lastRatio * request.x, MaxSeriesTerms);
  }

  const DebyeSurfaces surfaces(request.x, request.mRe, request.mIm, result.NSTOP, request.byRatio, monitor);
  // After a Stop among the partial waves no row can hold the whole sum.
  if (surfaces.Terms() < result.NSTOP) return result;
  result.waves = SumDebyeTerms(surfaces, request.selected, result.PartialWaveFirst, result.PartialWaveLast, monitor);
  if (request.convergence) result.convergence = Convergence(surfaces, request.selected);
  if (!request.angle) {
    result.rows = SumAngularSeries(result.waves, grid, request.window, result.S1, result.S2, monitor);
  } else if (SumAngularSeries(result.waves, std::span(&*request.angle, 1), result.S1, result.S2, monitor) == 1) {
    result.rows.forward = {1, 1};
  }
  return result;
}

}  // namespace lumivex
