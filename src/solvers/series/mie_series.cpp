#include "solvers/series/mie_series.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace lumivex {

ConvergenceSeries SumConvergence(const PartialWaves& waves, double angle) {
  const std::size_t size = waves.aRe.size();
  ConvergenceSeries series{std::vector<double>(size), std::vector<double>(size), std::vector<double>(size)};
  const double cosine = std::cos(angle);
  double pi = 1.0;
  double piBefore = 0.0;
  ComplexD S1;
  ComplexD S2;
  for (std::size_t i = 1; i < size; ++i) {
    const auto n = static_cast<double>(i);
    const double weight = (2.0 * n + 1.0) / (n * (n + 1.0));
    const double tau = n * cosine * pi - (n + 1.0) * piBefore;
    S1.re += weight * (waves.aRe[i] * pi + waves.bRe[i] * tau);
    S1.im += weight * (waves.aIm[i] * pi + waves.bIm[i] * tau);
    S2.re += weight * (waves.aRe[i] * tau + waves.bRe[i] * pi);
    S2.im += weight * (waves.aIm[i] * tau + waves.bIm[i] * pi);
    series.perpendicular[i] = S1.re * S1.re + S1.im * S1.im;
    series.parallel[i] = S2.re * S2.re + S2.im * S2.im;
    series.unpolarised[i] = (series.perpendicular[i] + series.parallel[i]) / 2.0;
    const double piNext = ((2.0 * n + 1.0) * cosine * pi - (n + 1.0) * piBefore) / n;
    piBefore = pi;
    pi = piNext;
  }
  return series;
}

MieResult SolveMie(const MieRequest& request, RunMonitor& monitor) {
  const AngleGrid grid(request.NANG);
  MieResult result;
  const int tableRows = std::max(request.tableRows, grid.RowCount());
  result.S1.Resize(tableRows);
  result.S2.Resize(tableRows);
  result.refusal = CheckMieLimits(request.x, request.mRe, request.mIm, request.convergence);
  if (result.refusal != MieRefusal::None) return result;

  result.truncation =
      ComputeMieTruncation(request.x, request.mRe, request.mIm, request.convergence, request.classicStart);
  result.waves = MieCoefficients(request.x, request.mRe, request.mIm, result.truncation);
  result.efficiencies = EfficienciesOf(result.waves, request.x, request.divideBySize);
  if (request.convergence) result.convergence = SumConvergence(result.waves, request.convergenceAngle);

  bool stopped = false;
  struct Watch final : RunMonitor {
    RunMonitor& outer;
    bool& stop;
    Watch(RunMonitor& monitored, bool& flag) : outer(monitored), stop(flag) {}
    bool Report(std::size_t index, std::size_t count) override {
      const bool goOn = outer.Report(index, count);
      stop |= !goOn;
      return goOn;
    }
  } watch(monitor, stopped);
  const bool known = request.cosines && request.cosines->Covers(grid, request.window);
  result.rows = known ? SumAngularSeries(result.waves, grid, *request.cosines, request.window, result.S1, result.S2,
                                         watch, request.set)
                      : SumAngularSeries(result.waves, grid, request.window, result.S1, result.S2, watch, request.set);
  result.stopped = stopped;
  if (request.divideBySize) {
    const double scale = 1.0 / request.x;
    result.S1.Scale(scale);
    result.S2.Scale(scale);
  }
  return result;
}

}  // namespace lumivex
