#include "pages/compare/paint_points.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "pages/curves/curve_rows.h"

namespace lumivex {

namespace {

/// Half the size of a mark, and of the stroke at the end of an error (surface units).
constexpr double markSize = 55, capSize = 35;

/// A closed line of small steps, filled by lines across it.
void FilledDiamond(DrawingSurface& surface, SurfacePoint at) {
  constexpr double step = 7.5;
  for (double down = -markSize; down <= markSize; down += step) {
    const double half = markSize - std::abs(down);
    surface.Line(at.x - half, at.y + down, at.x + half, at.y + down);
  }
}

void FilledTriangle(DrawingSurface& surface, SurfacePoint at) {
  constexpr double step = 7.5;
  for (double down = -markSize; down <= markSize; down += step) {
    const double half = 0.5 * (down + markSize);
    surface.Line(at.x - half, at.y + down, at.x + half, at.y + down);
  }
}

/// A vertical stroke with a cap at each end that is in the panel.
void PaintError(DrawingSurface& surface, const PanelMap& map, SurfacePoint at, double low, double high) {
  const GraphBox& box = map.box;
  const auto place = [&](double value) {
    const double y = map.logY && !(value > 0) ? box.bottom + 1 : map.Y(value);
    return std::clamp(y, box.top - 1, box.bottom + 1);
  };
  const double top = place(high), bottom = place(low);
  if (top > box.bottom || bottom < box.top) return;
  surface.Line(at.x, std::max(top, box.top), at.x, std::min(bottom, box.bottom));
  for (const double end : {top, bottom})
    if (end >= box.top && end <= box.bottom) surface.Line(at.x - capSize, end, at.x + capSize, end);
}

}  // namespace

void PaintPoint(DrawingSurface& surface, int data, SurfacePoint at, Colour colour) {
  constexpr int shapes = 4;
  const SurfacePen pen = surface;
  surface.ForeColour = surface.FillColour = colour;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  switch (data % shapes) {
    case 2:
      surface.Line(at.x - 0.85 * markSize, at.y - 0.85 * markSize, at.x + 0.85 * markSize, at.y + 0.85 * markSize,
                   LineKind::FilledBox);
      break;
    case 3:
      FilledDiamond(surface, at);
      break;
    case 0:
      FilledTriangle(surface, at);
      break;
    default:
      surface.FillStyle = 0;
      surface.Circle(at.x, at.y, markSize, colour);
  }
  static_cast<SurfacePen&>(surface) = pen;
}

void PaintPoints(DrawingSurface& surface, const Page& page, const PageCurve& points) {
  const PagePanel& panel = page.panels[points.panel];
  const PanelMap map{panel.box, panel.limits, page.kind.logX, panel.logY};
  surface.ForeColour = points.colour;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  const RowSpan rows = RowsWithin(points.x, {panel.limits.xmin, panel.limits.xmax});
  for (std::size_t i = rows.first; i <= rows.last; ++i) {
    const double y = points.y[i];
    if (!std::isfinite(y)) continue;
    const SurfacePoint at{map.X(points.x[i]), map.Y(y)};
    if (!std::isfinite(at.x)) continue;
    if (i < points.error.size() && std::isfinite(points.error[i]))
      PaintError(surface, map, at, y - points.error[i], y + points.error[i]);
    if (panel.box.Holds(at.x, at.y)) PaintPoint(surface, points.data, at, points.colour);
  }
}

void PaintMarkers(DrawingSurface& surface, const Page& page) {
  constexpr double ring = 60, air = 40, fontSize = 8;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = fontSize;
  surface.FontBold = true;
  surface.FillStyle = 1;
  for (const PageMarker& marker : page.markers) {
    const PagePanel& panel = page.panels[marker.panel];
    const PanelMap map{panel.box, panel.limits, page.kind.logX, panel.logY};
    const SurfacePoint at =
        page.kind.polar ? PolarMapOf(page).Point(marker.x, marker.y) : SurfacePoint{map.X(marker.x), map.Y(marker.y)};
    if (!std::isfinite(at.x) || !std::isfinite(at.y) || (!page.kind.polar && !panel.box.Holds(at.x, at.y))) continue;
    surface.Circle(at.x, at.y, ring, colours::Black);
    const std::string number = std::to_string(marker.number);
    const double width = surface.TextWidth(number), height = surface.TextHeight(number);
    // Above to the right, within the panel.
    const double x = std::min(at.x + ring, panel.box.right - width - air);
    const double y = std::max(at.y - ring - height, panel.box.top + air);
    surface.ForeColour = page.style.ground;
    surface.Line(x, y, x + width, y + height, LineKind::FilledBox);
    surface.ForeColour = page.style.ground == colours::Black ? colours::White : colours::Black;
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.Print(number, false);
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
