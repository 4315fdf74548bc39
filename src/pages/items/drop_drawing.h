#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"
#include "solvers/drops/drop_rays.h"

namespace lumivex {

/// What a drawing of a drop shows.
struct DropToDraw {
  DropShape shape;
  double m = 1.333;
  double elevation = 0;                 ///< of the sun (radians)
  std::vector<int> orders;              ///< of the bows, p >= 2
  double clockFrom = 0, clockTo = 180;  ///< that are counted (degrees)
};

/// The section of a drop by the vertical plane of the sun with the rays of its bows, at their top and at their foot,
/// and the angles of the bows along the clock.
PageDrop DropDrawing(const DropToDraw& drop);

/// Paints both beside each other on the whole surface.
void PaintDrop(DrawingSurface& surface, const PageDrop& drop);

}  // namespace lumivex
