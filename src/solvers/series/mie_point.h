#pragma once

#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"
#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

/// One sphere seen at one angle.
struct MiePointRequest {
  double x = 0, mRe = 1, mIm = 0;  ///< As in MieRequest.
  double angle = 0;                ///< Scattering angle in radians, exactly.
  bool divideBySize = false;
  bool classicStart = false;
};

struct MiePoint {
  MieRefusal refusal = MieRefusal::None;  ///< Where not None, nothing else is set.
  ComplexD S1, S2;
  Efficiencies efficiencies;
  int NSTOP = 0, NMX = 0;
};

/// The Mie series of one sphere at one angle, without tables of angles: what a graph against size, wavelength or index
/// asks for at each of its points. The same numbers as SolveMie. The monitor is asked once, at the end.
MiePoint SolveMiePoint(const MiePointRequest& request, RunMonitor& monitor);

}  // namespace lumivex
