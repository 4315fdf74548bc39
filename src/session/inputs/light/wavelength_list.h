#pragma once

#include <string_view>

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// Most wavelengths of a run.
inline constexpr int mostWavelengths = 2001;

/// How many wavelengths a text of cboWave means for a sphere of that radius (um): a number, "RGB" 3, "High", "Med." and
/// "Low" the more the smaller the sphere. At least 1.
int WavelengthCount(std::string_view text, double radius);

/// Wavelengths of a spectrum with the weights of the ticked light source and their colours. "RGB" is 0.65, 0.51 and
/// 0.44 um, whatever the band; all others are the centres of equal slices of the band.
SpectrumOfLight ChosenSpectrum(const Session& session, int count);

/// Puts a spectrum into the record: WavelengthList, SpectrumWeight, SpectrumWeightInUse, WavelengthRed, -Green, -Blue
/// and WavelengthColours.
void StoreSpectrum(MainFormState& s, const SpectrumOfLight& light);

/// Fills the wavelengths of a run, their weights and their colours (WavelengthList, SpectrumWeight,
/// SpectrumWeightInUse, WavelengthRed, -Green, -Blue, WavelengthColours) and the band from ChosenSpectrum.
/// NumberWavelengths must be settled before; more than 2001 become 2001.
///
/// One wavelength has no list: row 1 of the colours is that of Lambda.
void lambdaN(Session& session);

/// Weight of the ticked light source at a wavelength (um).
double SourceWeight(const Session& session, double lambda);

}  // namespace lumivex
