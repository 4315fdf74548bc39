#pragma once

#include <memory>
#include <variant>

#include "pages/look.h"
#include "runs/results.h"

namespace lumivex {

/// A Lee diagram or a map on its way onto a page.
struct MapToDraw {
  const RunRequest& asked;
  const Look& look;
  std::shared_ptr<const MapFound> found;
  Sweep columns;                        ///< to the right
  std::variant<AngleRows, Sweep> rows;  ///< upward
};

/// Puts a map on a page: the pictures side by side, each a panel with the swept quantity to the right and the
/// scattering angle, or the second swept quantity, upward; the lines below them and the key of false colours above.
///
/// Intensities have three pictures, the third the mean of both polarisations; efficiencies those that were calculated.
/// Of a map over angle the panels show the angles that the look asks for, and the values are folded with the disc of
/// the sun where it shines. Full brightness is the greatest value of all columns in view, or what a series of maps is
/// held against; see ColoursOf.
///
/// Values are shared with those found, and copied only where the sun changes them.
void PlotLee(Page& page, const MapToDraw& map);

/// The same with the words of slides over the panels.
void PlotLeeSpecial(Page& page, const MapToDraw& map);

}  // namespace lumivex
