#include "pages/frame/colours.h"

namespace lumivex {

Colour ColourSet(ColourTriple channels) {
  return RGB(channels.r, channels.g, channels.b);
}

Colour HalfOf(Colour colour) {
  return RGB(0.5 * colour.Red(), 0.5 * colour.Green(), 0.5 * colour.Blue());
}

Colour OnPaper(Colour curve) {
  constexpr double lightest = 160;
  const double lightness = 0.3 * curve.Red() + 0.59 * curve.Green() + 0.11 * curve.Blue();
  const double factor = lightness > lightest ? 0.5 : 1;
  return RGB(factor * curve.Red(), factor * curve.Green(), factor * curve.Blue());
}

LinePair LineColour(const PenLook& pen, double lambda) {
  if (!pen.trueColour) return {pen.first, pen.second};
  const ColourTriple c = colRGB2(lambda);
  return {ColourSet(c), RGB(0.5 * c.r, 0.5 * c.g, 0.5 * c.b)};
}

Colour ColourScale(double value, FalseColours rule) {
  switch (rule) {
    case FalseColours::Greys:
      return RGB(255 * value, 255 * value, 255 * value);
    case FalseColours::Ratio:
      return ColourSet(RatioColour(value));
    case FalseColours::RainbowPale:
      return ColourSet(LogarithmColour(value, true));
    case FalseColours::Rainbow:
      break;
  }
  return ColourSet(LogarithmColour(value, false));
}

}  // namespace lumivex
