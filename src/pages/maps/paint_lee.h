#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Paints the map of a page: each picture one image in its frame, titles, site lines, the lines below and the key of
/// its false colours.
void PaintLee(DrawingSurface& surface, const Page& page);

/// The cells of a picture as they lie in its panel: what of them is within the limits, and the box of that; nothing
/// where none is. The first and the last cell of a whole axis are half as wide as the others.
std::optional<CellBlock> CellsIn(const Page& page, const PagePanel& panel);

/// The box of the key of false colours: over the third panel.
GraphBox KeyBox(const GraphBox& thirdPanel);

}  // namespace lumivex
