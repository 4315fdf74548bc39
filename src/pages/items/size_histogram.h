#pragma once

#include <optional>
#include <string>

#include "particles/size_distribution.h"
#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Right edge of the strip that it stands in (surface units).
inline constexpr double HistogramRight = 15600;

/// A size distribution as a histogram: a bar a sample, as high as its density (a box a class of a table of classes).
/// @param name         of the distribution, for the caption.
/// @param logarithmic  axis of the radius.
/// @param graph        that it stands beside.
/// @return nothing for one size, and for a distribution that cannot be used.
std::optional<PageHistogram> DistDisplay(const SizeDistribution& sizes, double radius, const std::string& name,
                                         bool logarithmic, const Graph& graph);

/// What else stands in the strip over the graph.
struct StripTaken {
  bool byReadings = false;  ///< the histogram then takes the place beside or, in a narrow window, below
  bool byPowers = false;    ///< which reach down to where that would be
};

/// Paints a histogram in the strip over the graph, 2000 units high at the peak where nothing else stands there, over an
/// axis of the radius. Where there is room for one of the two the readings stay.
/// @param wiped  what stood in its place is painted over first.
void PaintHistogram(DrawingSurface& surface, const PageHistogram& histogram, StripTaken taken, bool wiped);

}  // namespace lumivex
