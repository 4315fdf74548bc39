#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Draws the chart of the last two-angle run: the cross-section into the first range of angles to the right, that into
/// the second upward, one line of segments an index through the points of its radii. On logarithmic axes a sphere whose
/// cross-section is not positive has no place. Follows PlotMode as Display does.
void DisplayTwoAngle(Session& session);

/// Prints what the lines stand for, on a chart that has been drawn: a mark at every radius, the index at the end of its
/// line, radii beside their points with a dotted line that joins equal ones. Numbers that would touch are left out.
void PaintTwoAngleNotes(Session& session);

/// Titles of the axes, which name the ranges of angle.
std::string TwoAngleXTitle(const TwoAngleState& state);
std::string TwoAngleYTitle(const TwoAngleState& state);

}  // namespace lumivex
