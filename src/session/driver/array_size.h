#pragma once

#include "record/session.h"

namespace lumivex {

/// Most rows of a graph against angle, 0 to 180 degrees: a step of 0.0002 degrees, some 80 MB of results.
inline constexpr double mostAngleRows = 900001;

/// Sizes the result arrays for the graph chosen and sets AngleRows, AngleLow, AngleHigh and MirrorCount from txtXmin,
/// txtXmax and cboStep. Arrays keep the values they hold, new elements are 0. The inputs must have passed the range
/// check; a step that would need more than mostAngleRows rows leaves everything as it is.
void Array_Size(Session& session);

}  // namespace lumivex
