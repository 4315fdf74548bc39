#pragma once

#include "colour/wavelength_colour.h"
#include "record/colour.h"

namespace lumivex {

/// How sums of red, green and blue become the colour of a cell.
struct ColourRules {
  double brightness = 1;   ///< factor; its sign means nothing here
  bool saturated = false;  ///< the greatest channel of each cell is full, whatever the others of the picture are
  SaturationRule saturation = SaturationRule::Photo;
  GammaRule gamma = GammaRule::IndividualRGB;
  bool operator==(const ColourRules&) const = default;
};

/// Colours of cells that have one reference in common.
///
/// Channel times brightness times 255/reference, or with saturated colours times 255/the cell's greatest; then the rule
/// for channels beyond 255, then the transfer curve, then whole numbers. A cell without light stays black, and so does
/// every cell where the reference is not positive.
class CellColours {
 public:
  /// @param reference  of full brightness, in the unit of the sums.
  CellColours(const ColourRules& rules, double reference);

  Colour Of(double red, double green, double blue) const;

 private:
  ColourRules rules_;
  double factor_ = 0;  ///< of the channels; 0 leaves all cells black
};

}  // namespace lumivex
