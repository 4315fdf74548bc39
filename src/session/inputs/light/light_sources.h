#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Clears the ticks of all light sources.
void ClearMenuSpectrum(Session& session);

/// Each chooses a light source: shows its dialog where it has one (not while settings are being restored), ticks it
/// alone and writes lblSpectrum. A cancelled dialog, or a file that cannot be read, leaves the present source.
void mnuSpectrumLee_Click(Session& session);
void mnuSpectrumWernand_Click(Session& session);
void mnuSpectrumWernand2_Click(Session& session);
void mnuSpectrumFlat_Click(Session& session);
void mnuBlackBody_Click(Session& session);
/// With a spectrum held, dlogSpectrumFile asks whether to use it or to read a new file.
void mnuSpectrumFile_Click(Session& session);
/// The source is the spectrum that was read from a file last.
void UseSpectrumFile(Session& session);
/// The same for a file just read, whichever way: it is the light from now on, and one wavelength would go on without
/// it. Where the graph takes no more than one, the user is told what the spectrum waits for.
void LightBySpectrum(Session& session, const std::string& title);

/// The band of a calculation with several wavelengths, asked for in its dialog.
void mnuSpectrumBand_Click(Session& session);

/// Checks of the dialogs' fields: an elevation must be from 0 to below 90 (below 10 it is marked yellow), a temperature
/// above 0, the limits of the band above 0 and ascending.
void dlogWernand_txtElevation_Change(Session& session);
void dlogBlackBody_txtBlackBody_Change(Session& session);
void dlogSpectrumBand_Change(Session& session);
void dlogSpectrumBand_OKButton_Click(Session& session);

/// Asks for the power of the incident light and the distance of the observer, and writes them to IncidentDensity,
/// Distance, lblWatts and lblDistance. They scale the graphs in Watts and the power readings, nothing else.
void AskIncidentLight(Session& session);
/// Takes the two fields over where both are positive numbers; a bad one is marked and told.
void dlogIncident_OKButton_Click(Session& session);
void dlogIncident_Change(Session& session);

}  // namespace lumivex
