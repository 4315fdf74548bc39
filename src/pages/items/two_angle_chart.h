#pragma once

#include <string>

#include "pages/curves/line_graph.h"
#include "record/drawing_surface.h"

namespace lumivex {

/// Puts a two-angle run on a page: the cross-section into the first range of angles to the right, that into the second
/// upward, one line of segments an index through the points of its radii. On logarithmic axes a sphere whose
/// cross-section is not positive has no place.
void DisplayTwoAngle(Page& page, const RunToDraw& run);

/// Paints what the lines stand for: a mark at every radius, the index at the end of its line, radii beside their points
/// with a dotted line that joins equal ones. Numbers that would touch are left out.
void PaintTwoAngleNotes(DrawingSurface& surface, const Page& page);

/// Titles of the axes, which name the ranges of angle.
std::string TwoAngleXTitle(const TwoAngleRun& run);
std::string TwoAngleYTitle(const TwoAngleRun& run);

}  // namespace lumivex
