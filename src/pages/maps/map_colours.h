#pragma once

#include <vector>

#include "pages/frame/colours.h"
#include "pages/look.h"
#include "pages/maps/map_cells.h"
#include "record/page_map.h"

namespace lumivex {

/// How values become false colours.
///
/// Efficiencies are ratios: x = 4 value / P / b on the ramp that ends in white at 4. All else goes over decades: x =
/// lg(value / P) / b on the ramp that ends in black at -2.4, and a value that is not positive is black. P is the value
/// of full brightness and b the brightness. Where the brightness is typed as 0 or below the colours are greys, of
/// value / P or of the ratio above.
struct FalseColourRule {
  FalseColours ramp = FalseColours::Rainbow;
  bool ratio = false;     ///< of values in place of their logarithms
  double brightness = 1;  ///< above 0, but for a typed 0

  /// x of a value, whose reference is `reference`; nothing where the cell is black.
  std::optional<double> PositionOf(double value, double reference) const;
  Colour ColourOf(double value, double reference) const;
};

/// The false colours that a look asks for of a graph.
FalseColourRule FalseColoursFor(const ColourLook& look, const Graph& graph);

/// The key of a rule. Over decades it goes from 0 at the left to 7 below at the right, and its numbers are decades
/// below full brightness: x times the brightness. Of ratios and greys it goes from 0 to white, and its numbers are
/// parts of P.
ColourKey KeyOf(const FalseColourRule& rule);

/// What the pictures of a map are coloured by.
struct MapInk {
  const ColourLook* look = nullptr;
  FalseColourRule falseColours;
  std::vector<ColourTriple> light;  ///< of one wavelength its colour in each column, channels 0 to 1
  double scaleMaximum = 0;          ///< reference of all columns, where they have one
  Colour ground;                    ///< of cells that were not calculated
};

/// Colours of a picture's cells, row by row from the top left.
///
/// The reference of a column is its own greatest value in this picture, or that of all columns. A spectrum's channels
/// go through the rules of ColourRules, and so does a value times the colour of its light; false colours look at the
/// greatest channel.
std::vector<Colour> ColoursOf(const MapFound& found, std::size_t picture, ShownRows rows, const MapInk& ink);

}  // namespace lumivex
