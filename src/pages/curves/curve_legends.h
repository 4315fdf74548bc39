#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Prints the name of each curve beside its start, in its colour, where the page has it so; names that would touch
/// stand one above the other.
void PaintLegends(DrawingSurface& surface, const Page& page);

}  // namespace lumivex
