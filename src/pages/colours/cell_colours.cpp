#include "pages/colours/cell_colours.h"

#include <algorithm>
#include <cmath>

#include "colour/rounded_curve.h"

namespace lumivex {

namespace {

Colour Transferred(ColourTriple cell) {
  static const RoundedCurve curve;
  return Colour{curve(cell.r) | (curve(cell.g) << 8U) | (curve(cell.b) << 16U)};
}

}  // namespace

CellColours::CellColours(const ColourRules& rules, double reference) : rules_(rules) {
  if (reference > 0) factor_ = std::abs(rules.brightness) * 255 / reference;
}

Colour CellColours::Of(double red, double green, double blue) const {
  double factor = factor_;
  if (rules_.saturated) {
    const double greatest = std::max({red, green, blue});
    factor = greatest > 0 ? 255 / greatest : 0;
  }
  if (!(factor > 0)) return colours::Black;
  ColourTriple cell{factor * red, factor * green, factor * blue};
  if (cell.r > 255 || cell.g > 255 || cell.b > 255) cell = Saturation(cell, rules_.saturation);
  const bool inRange = cell.r >= 0 && cell.g >= 0 && cell.b >= 0 && cell.r <= 255 && cell.g <= 255 && cell.b <= 255;
  if (rules_.gamma == GammaRule::IndividualRGB && inRange) return Transferred(cell);
  cell = GammaCorrect(cell, rules_.gamma);
  return RGB(cell.r, cell.g, cell.b);
}

}  // namespace lumivex
