#pragma once

#include "record/session.h"

namespace lumivex {

/// Most wavelengths of a run.
inline constexpr int mostWavelengths = 2001;

/// Fills the wavelengths of a run, their weights and their colours (WavelengthList, SpectrumWeight,
/// SpectrumWeightInUse, WavelengthRed, -Green, -Blue, WavelengthColours) from NumberWavelengths, cboWave, the band's
/// dialog and the ticked light source. NumberWavelengths must be settled before; more than 2001 become 2001.
///
/// One wavelength has no list: row 1 of the colours is that of Lambda. "RGB" is 0.65, 0.51 and 0.44 um, whatever the
/// band. All others are the centres of equal slices of the band.
void lambdaN(Session& session);

/// Weight of the ticked light source at a wavelength (um).
double SourceWeight(const Session& session, double lambda);

}  // namespace lumivex
