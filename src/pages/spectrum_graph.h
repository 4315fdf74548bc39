#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Draws the results of several wavelengths, with a fresh frame where PlotMode is 1.
///
/// Up to seven wavelengths are curves of their own, each in the colour of its light; of "RGB" these are the three
/// components, which chkComponents shows. Otherwise the sum over the spectrum is one curve, coloured along its way as
/// the light is that is scattered there. mnuIntPol shows the sums with their degree of polarisation below.
void PlotNColour(Session& session);

/// Draws the curves that cboPol asks for, in the order parallel, unpolarised, perpendicular.
/// @param wavelength  1 to WavelengthsDone, in its colour; 0 is the sum over the spectrum in true colour: perpendicular
///                    at full brightness, the others darker.
void PlotColour(Session& session, int wavelength);

/// Whether wavelengths are drawn apart.
bool ShowsWavelengthsApart(const Session& session);

/// A wavelength of the results in words: "650 nm".
std::string WavelengthWords(const LightState& light, int wavelength);

}  // namespace lumivex
