#include "record/drawing_surface.h"

namespace lumivex {

void DrawingSurface::Polyline(std::span<const SurfacePoint> points) {
  for (std::size_t i = 1; i < points.size(); ++i)
    Line(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y, LineKind::Plain);
}

void DrawingSurface::Image(const CellBlock& block, std::span<const Colour> cells) {
  if (block.columns <= 0 || block.rows <= 0) return;
  const double width = (block.right - block.left) / block.columns;
  const double height = (block.bottom - block.top) / block.rows;
  const Colour before = ForeColour;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const auto columns = static_cast<std::size_t>(block.columns);
    const double x = block.left + width * static_cast<double>(i % columns);
    const std::size_t row = i / columns;
    const double y = block.top + height * static_cast<double>(row);
    ForeColour = cells[i];
    Line(x, y, x + width, y + height, LineKind::FilledBox);
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
