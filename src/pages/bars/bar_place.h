#pragma once

#include <array>
#include <optional>
#include <string>

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// What the bars of a page need below the axis and its title (surface units): 0 for pages without.
double RoomForBars(const Page& page);

/// The three bars below the title of the horizontal axis, as wide as the plot: perpendicular, parallel, unpolarised.
/// On a low surface they get lower, and where they would be mere lines there are none.
std::optional<std::array<GraphBox, 3>> BarBoxes(const Page& page);

/// Titles and bars, each bar one image in a frame, and below them a line where their scale is not their own.
void PaintBars(DrawingSurface& surface, const Page& page);

/// Lower edge of all that; nothing where there are no bars.
std::optional<double> BottomOfBars(const DrawingSurface& surface, const Page& page);

/// A column of a bar.
struct BarColumn {
  std::size_t bar = 0;  ///< 0 perpendicular, 1 parallel, 2 unpolarised
  std::size_t row = 1;
};
/// The column at a place of the surface.
std::optional<BarColumn> BarColumnAt(const Page& page, double surfaceX, double surfaceY);

/// What a column shows, in words: angle, the three sums, the colour drawn, and the wavelength that gives most.
std::string WordsOf(const PageBars& bars, const BarColumn& column);

/// "Perpendicular", "Parallel", "Unpolarized".
std::string_view BarTitle(std::size_t bar);

}  // namespace lumivex
