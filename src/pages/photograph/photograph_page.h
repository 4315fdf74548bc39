#pragma once

#include <optional>

#include "pages/read_out.h"
#include "record/page.h"

namespace lumivex {

/// A page with a photograph on a surface.
///
/// The whole picture fits at zoom 1; zoomed, the middle of the view is the page's. A dot of the screen shows the mean
/// of the pixels that it covers. A preview paints its light on the dots in view alone.
void PaintPhotograph(const Page& page, DrawingSurface& surface);

/// What of the picture a surface of that size shows: pixels to a dot, and the corner.
PictureWindow WindowOf(const PagePhotograph& photograph, double surfaceWidth, double surfaceHeight);

/// The point of the picture at a place of the surface, and back; both may lie beside it.
PicturePoint PicturePointAt(const PagePhotograph& photograph, const PictureWindow& window, const SurfacePoint& place);
SurfacePoint PlaceOfPoint(const PagePhotograph& photograph, const PictureWindow& window, const PicturePoint& point);

/// Pixel, altitude, azimuth and scattering angle at a place of the surface; nothing beside the picture.
std::optional<GraphReading> ReadPhotograph(const Page& page, double surfaceX, double surfaceY);

/// The same photograph `factor` times as large as it is, with what is at that place of the surface kept there.
void ZoomPhotograph(Page& page, const SurfacePoint& place, double factor);
/// Moves the view with a drag by so many surface units.
void PanPhotograph(Page& page, double right, double down);

}  // namespace lumivex
