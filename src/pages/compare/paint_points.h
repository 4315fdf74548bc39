#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// The mark of measured data at a place: each of them has another, so that they are told apart without colours too.
void PaintPoint(DrawingSurface& surface, int data, SurfacePoint place, Colour colour);

/// Measured data as marks with their errors, as far as these reach into the panel.
void PaintPoints(DrawingSurface& surface, const Page& page, const PageCurve& points);

/// The numbers of marked points beside small rings.
void PaintMarkers(DrawingSurface& surface, const Page& page);

}  // namespace lumivex
