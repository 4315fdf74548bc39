#include "solvers/series/mie_point.h"

#include <span>

#include "solvers/series/angular_sum.h"

namespace lumivex {

MiePoint SolveMiePoint(const MiePointRequest& request, RunMonitor& monitor) {
  MiePoint point;
  point.refusal = CheckMieLimits(request.x, request.mRe, request.mIm);
  if (point.refusal != MieRefusal::None) return point;
  const MieTruncation truncation =
      ComputeMieTruncation(request.x, request.mRe, request.mIm, false, request.classicStart);
  const PartialWaves waves = MieCoefficients(request.x, request.mRe, request.mIm, truncation);
  AmplitudeTable S1(1), S2(1);
  SumAngularSeries(waves, std::span(&request.angle, 1), S1, S2, monitor);
  const double scale = request.divideBySize ? 1 / request.x : 1;
  point.S1 = {scale * S1.Re(1), scale * S1.Im(1)};
  point.S2 = {scale * S2.Re(1), scale * S2.Im(1)};
  point.efficiencies = EfficienciesOf(waves, request.x, request.divideBySize);
  point.NSTOP = truncation.NSTOP;
  point.NMX = truncation.NMX;
  return point;
}

}  // namespace lumivex
