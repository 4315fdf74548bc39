#pragma once

#include <cstddef>
#include <functional>
#include <span>

namespace lumivex {

/// How the input panel is made to fit into a window.
///
/// The panel has 12000 surface units, whatever its size in pixels: a denser one makes the unit smaller, and with it
/// everything that is drawn below it.
struct PanelDensity {
  double fontShare;  ///< the panel's font against the application's
  int stretch;       ///< width of its letters (per cent)
  bool tight;        ///< with less air about frames and inputs
};

/// From airy to what can just be read.
std::span<const PanelDensity> PanelDensities();

inline constexpr double panelUnits = 12000;         ///< width of the panel
inline constexpr double unitsWithReadings = 13750;  ///< and of the readings beside it

struct PanelFit {
  std::size_t density = 0;
  double leastUnits = unitsWithReadings;  ///< what has to be seen of the drawing's width
};

/// The airiest panel that leaves room for the readings in so many pixels. In less room than the densest needs the
/// readings give way, so that the commands and the whole graph are there.
/// @param readings  whether they are shown at all.
/// @param unitOf    pixels to a unit with a density.
PanelFit FitInto(double roomPx, bool readings, const std::function<double(std::size_t density)>& unitOf);

}  // namespace lumivex
