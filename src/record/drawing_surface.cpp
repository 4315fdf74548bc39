#include "record/drawing_surface.h"

#include <algorithm>

namespace lumivex {

void DrawingSurface::Polyline(std::span<const SurfacePoint> points) {
  for (std::size_t i = 1; i < points.size(); ++i)
    Line(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y, LineKind::Plain);
}

void DrawingSurface::Image(const CellBlock& block, std::span<const Colour> cells) {
  const CellPart part = block.Part();
  if (block.columns <= 0 || block.rows <= 0 || !(part.right > part.left) || !(part.bottom > part.top)) return;
  const double width = (block.right - block.left) / (part.right - part.left);
  const double height = (block.bottom - block.top) / (part.bottom - part.top);
  const auto columns = static_cast<std::size_t>(block.columns);
  const Colour before = ForeColour;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const auto column = static_cast<double>(i % columns), row = static_cast<double>(i / columns);
    const double x1 = std::max(column, part.left), x2 = std::min(column + 1, part.right);
    const double y1 = std::max(row, part.top), y2 = std::min(row + 1, part.bottom);
    if (!(x2 > x1) || !(y2 > y1)) continue;
    ForeColour = cells[i];
    Line(block.left + width * (x1 - part.left), block.top + height * (y1 - part.top),
         block.left + width * (x2 - part.left), block.top + height * (y2 - part.top), LineKind::FilledBox);
  }
  ForeColour = before;
}

void DrawingSurface::Print(std::string_view text, bool newline) {
  if (!text.empty()) Text(CurrentX, CurrentY, text);
  if (newline) {
    CurrentY += TextHeight("X");
    CurrentX = 0;
  } else {
    CurrentX += TextWidth(text);
  }
}

}  // namespace lumivex
