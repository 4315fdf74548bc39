#pragma once

#include "colour/wavelength_colour.h"
#include "pages/look.h"

namespace lumivex {

/// Three channels as one colour, each clipped at 255.
Colour ColourSet(ColourTriple channels);

/// A colour with its channels halved.
Colour HalfOf(Colour colour);

/// Colour of a first curve and the shade of the second.
struct LinePair {
  Colour first, second;
};
/// The colours of a pen; the true colour is that of a wavelength (um).
LinePair LineColour(const PenLook& pen, double lambda);

/// Text in the colour of its curve, darker where that is too light for the page around the plot.
Colour OnPaper(Colour curve);

/// How a value becomes a false colour.
enum class FalseColours {
  Greys,       ///< 0 to 1 from black to white
  Ratio,       ///< the ramp of ratios, as the maps of Q use it
  Rainbow,     ///< of a logarithm below zero
  RainbowPale  ///< the same with an end that reads on grey
};
Colour ColourScale(double value, FalseColours rule);

}  // namespace lumivex
