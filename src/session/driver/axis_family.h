#pragma once

#include "record/session.h"

namespace lumivex {

/// A run against wavelength, size or refractive index: at each point of the axis the size, wavelength and indices, then
/// the solver for one angle (that of txtAngle, exactly) or for the efficiencies alone, and the curves after the graph's
/// quantity. Amplitudes go to S1ofPoint and S2ofPoint, one row a point. Graph 13 shows the running sums of one sphere.
///
/// A refused run leaves PlotMode 4 and the old results; a stopped one stores the points that were done, the others hold
/// not-a-number.
void CalculateAxis(Session& session);

/// Fills the curves of an intensity graph from S1ofPoint and S2ofPoint, as amplitudes or intensities.
void FillAxisCurves(Session& session);

/// Most points of an x axis.
inline constexpr int mostPoints = 18001;

}  // namespace lumivex
