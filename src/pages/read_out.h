#pragma once

#include <optional>
#include <string>

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// What stands under the cursor.
struct GraphReading {
  std::size_t panel = 0;
  double x = 0, y = 0;            ///< values at the cursor, in the units of the axes (in a polar plot angle and value)
  bool onCurve = false;           ///< whether the panel has a curve, or a map a cell that was calculated
  std::size_t curve = 0;          ///< nearest curve, index into the kept ones
  double curveX = 0, curveY = 0;  ///< its nearest computed point, as drawn; of a map where the nearest cell stands
  SurfacePoint place;             ///< where that point lies on the surface
  std::string text;               ///< all of it in one line for the status bar, with units
};

/// Reads a page at a place of its surface; nothing outside its panels, circles and bars. Of a bar these are the angle
/// and the light of the column.
std::optional<GraphReading> ReadAt(const Page& page, double surfaceX, double surfaceY);

/// Unit of the vertical axis of a panel; empty where it has none.
std::string_view UnitOfY(const Page& page, const PagePanel& panel);

/// The x range after a zoom at a place of the surface: `factor` below 1 shows less, the value under the place stays
/// there. Angles keep within 0 to 180 degrees, other axes within the range of the frame and of its curves.
XRange ZoomAt(const Page& page, double surfaceX, double factor);

/// The x range after a drag by so many surface units to the right.
XRange PanBy(const Page& page, double surfaceUnits);

/// The x range shown.
XRange RangeShown(const Page& page);

}  // namespace lumivex
