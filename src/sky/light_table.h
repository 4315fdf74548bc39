#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "colour/wavelength_colour.h"

namespace lumivex {

/// Light of the two polarisations: linear channels, of which 255 is full brightness; more than that is possible.
struct PolarisedLight {
  ColourTriple perpendicular, parallel;
};

/// The colours of a run by scattering angle, in linear channels, before any rule for too bright ones and before the
/// transfer curve: light from two places can be added, and lies on a straight line between its rows.
struct LightTable {
  double first = 0;  ///< angle of the first row (degrees)
  double step = 1;   ///< from row to row (degrees)
  std::vector<PolarisedLight> rows;
  /// Of flattened drops the rows of each sector of the clock, which is divided evenly from the top of the bow to its
  /// foot; the other side mirrors them. Empty where the light is the same all round.
  std::vector<std::vector<PolarisedLight>> sectors = {};
  /// Where the secondary and the primary bow stand in the middle of each sector (degrees), not a number where one has
  /// ended; empty where that is not known.
  std::vector<std::array<double, 2>> bows = {};

  double Last() const { return first + step * (rows.empty() ? 0.0 : static_cast<double>(rows.size() - 1)); }
  bool Holds(double angle) const { return !rows.empty() && angle >= first && angle <= Last(); }
};

/// The light of a table at a scattering angle that it holds (degrees): the components times their weights, no channel
/// below 0.
ColourTriple SimPlot2(const LightTable& table, double angle, double perpendicular, double parallel);

/// The same at an angle along the clock (radians, of either sign), between the middles of two sectors: what lies at
/// the same place to their bows is mixed, so that a bow which moves from one sector to the next does so evenly.
ColourTriple LightOfSectors(const LightTable& table, double clock, double angle, double perpendicular, double parallel);

}  // namespace lumivex
