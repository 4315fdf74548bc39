#pragma once

namespace lumivex {

/// Three colour channels, 0 to 255 unless a function says otherwise.
struct ColourTriple {
  double r = 0, g = 0, b = 0;
};

/// Colour of a wavelength by a piecewise linear rule: violet to blue to 440 nm, cyan at 490, green 510, yellow 580, red
/// from 645. There is no fade at the ends, and below 380 nm red rises above 255.
/// @param lambda  wavelength (um).
ColourTriple colRGB2(double lambda);

/// The same with a fade towards violet and nothing outside 380 to 700 nm: an alternative rule.
ColourTriple colrgb3(double lambda);

/// What to do with a cell of which a channel exceeds 255.
enum class SaturationRule {
  Photo,      ///< such channels become 255, the others stay: the hue shifts towards white as on film
  PeakWhite,  ///< the cell becomes white
  Freeze      ///< all are scaled by the same factor: the hue is held
};
ColourTriple Saturation(ColourTriple cell, SaturationRule rule);

enum class GammaRule {
  None,
  IndividualRGB,  ///< each channel goes through the curve
  GroupRGB        ///< the greatest goes through it and takes the others along
};

/// The transfer curve of ITU-R BT.709 on 0 to 255.
double TransferCurve(double channel);

/// Applies the curve; a black cell stays black under every rule.
ColourTriple GammaCorrect(ColourTriple cell, GammaRule rule);

/// False colour of a positive ratio: dark blue at 0, cyan at 1, green, yellow and red to 3, white from 4.
ColourTriple RatioColour(double ratio);

/// False colour of a logarithm at or below zero: white at 0 down through red, yellow, green, blue and violet, to black
/// at -2.4; with `paleEnd` violet fades to a pale grey instead, which reads on a grey surround.
ColourTriple LogarithmColour(double logarithm, bool paleEnd);

}  // namespace lumivex
