#pragma once

#include <string>
#include <vector>

#include "pages/look.h"
#include "record/drawing_surface.h"
#include "runs/results.h"

namespace lumivex {

/// Right edge of the readings (surface units).
inline constexpr double ReadingsRight = 13900;

/// The readings of results: the efficiencies of a sphere or cloud lit by a plane wave, with the powers of a graph in
/// Watts and the intensities straight forward and back of a graph against angle; of a spectrum its wavelengths. None
/// for a method that has no efficiencies.
std::vector<PageLine> VisibleData(const Results& results);

/// Paints the readings of a page beside the inputs, at x 12000 of the surface; where one would be cut at its right
/// edge, all in rows at its foot.
void PaintReadings(DrawingSurface& surface, const Page& page);

/// What the reading at a place of the surface means and what it is measured in; empty where there is none, or nothing
/// to say of it.
std::string MeaningOfReadingAt(DrawingSurface& surface, const Page& page, double x, double y);

/// Top of the rows at the foot; the height of the surface where there are none.
double TopOfFoot(DrawingSurface& surface, const Page& page);

/// What is kept free for them at the foot of a narrow surface, before anybody knows their words (surface units).
double RoomForFoot(const Page& page);

}  // namespace lumivex
