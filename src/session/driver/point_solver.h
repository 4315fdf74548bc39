#pragma once

#include <optional>

#include "record/session.h"
#include "solvers/functions/complex_pairs.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

/// What a solver finds of one sphere at one angle.
struct PointResult {
  ComplexD S1, S2;
  Efficiencies efficiencies;
  ComplexD cross;             ///< of a cloud, the mean of S1 conj(S2)
  double Cext = 0, Csca = 0;  ///< cross-sections (um2); of a cloud, their means
};

/// The sphere that stands in the record (SizeParameter, RefRelReal, RefRelImag), seen at one angle (radians), by the
/// solver of CalcMethod. The record's grid becomes that of 0.01 degrees, SelectedAngleIndex its row nearest to the
/// angle; what is calculated stands at the angle itself. Nothing after a failure, which sets PlotMode to 4 and is told.
std::optional<PointResult> SolvePoint(Session& session, double angle);

/// Whether a sphere lies beyond the limits of the Mie series; it is then told and PlotMode is 4.
bool RefuseBeyondMie(Session& session, double x, double mRe, double mIm);

}  // namespace lumivex
