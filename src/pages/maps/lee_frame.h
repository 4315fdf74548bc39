#pragma once

#include <vector>

#include "pages/frame/frame_paint.h"

namespace lumivex {

/// The box of a panel of a map, `number` from 0 at the left. Panels are PageGeometry::panelWidth apart; on a surface
/// that is too narrow or too low for three of them, with their numbers and the lines below, they are smaller.
GraphBox LeePanelBox(const PageGeometry& geometry, const PageStyle& style, int number);

/// A row of ticks along a side: at the multiples of a step.
struct TickRow {
  double start = 0, end = 1, step = 1;  ///< from the multiple at or below `start` up to `end`
  double low = 0, high = 1;             ///< ends of the axis; what is outside of them is left out
  bool logarithmic = false;
};

/// The values of the ticks. A start within 1E-9 of a whole number of steps counts as that number.
std::vector<double> TickValues(const TickRow& row);

/// Draws a row of ticks from y to y + length between the places of the ends of the axis.
void GridLeeTicks(DrawingSurface& surface, const TickRow& row, double left, double right, double y, double length);

/// Paints the frame of a panel: the box, 15 units outside of the cells, ticks above and below it, numbers and title
/// below, and ticks and numbers at its left.
void LeeFrame(FramePaint& paint);

/// Prints the title over a panel, and over the numbers of the first one what runs upward.
void PaintLeeTitles(FramePaint& paint, std::size_t number);

/// Prints the site line over the cells of each panel, in the corner that the page has for it.
void LogoLee(DrawingSurface& surface, const Page& page);

/// Lower edge of the title of the panels (surface units).
double BottomOfLeeTitle(const DrawingSurface& surface, const Page& page);

}  // namespace lumivex
