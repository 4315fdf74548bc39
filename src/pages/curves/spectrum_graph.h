#pragma once

#include "pages/curves/line_graph.h"

namespace lumivex {

/// Puts the results of several wavelengths on a page.
///
/// Up to seven wavelengths are curves of their own, each in the colour of its light; of red, green and blue alone these
/// are the three components, which the look may want. Otherwise the sum over the spectrum is one curve, coloured along
/// its way as the light is that is scattered there. With a second panel the sums stand above their degree of
/// polarisation.
void PlotNColour(Page& page, const RunToDraw& run);

/// The curves that are wanted, in the order parallel, unpolarised, perpendicular.
/// @param curves      of the wavelength, or of the sum.
/// @param wavelength  in its colour, from 1; 0 is the sum over the spectrum in true colour: perpendicular at full
///                    brightness, the others darker.
void PlotColour(Page& page, const RunToDraw& run, const Curves& curves, int wavelength);

/// Whether wavelengths are drawn apart.
bool ShowsWavelengthsApart(const RunToDraw& run);

/// A wavelength in words: "650 nm".
std::string WavelengthWords(const SpectrumOfLight& light, int wavelength);

}  // namespace lumivex
