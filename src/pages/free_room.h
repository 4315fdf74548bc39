#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Top left corner (surface units) of a note of that size that is laid over a page, where it hides least: beside the
/// readings and the histogram in the strip over the graph, beside the graph, or in the corner of the plot that the
/// fewest curves run through.
/// @param left   least distance from the left edge in the strip.
/// @param right  right edge of what is to be seen of the surface.
SurfacePoint FreeRoom(const Page& page, double width, double height, double left, double right);

}  // namespace lumivex
