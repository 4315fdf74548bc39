#pragma once

#include "record/session.h"

namespace lumivex {

/// Qsca (to the record's Qsca) and the asymmetry parameter (to Gsca) by integration of S1 and S2 over the angles, for
/// methods that have no series for them: 2 pi/k^2 times the integral of (|S1|^2 + |S2|^2)/2 sin(theta), over pi a^2.
/// The radius a follows mnuRadius, mnuDiameter and mnuRadiusX; k is that in the medium.
void CrossSection(Session& session, const AmplitudeTable& S1, const AmplitudeTable& S2);

}  // namespace lumivex
