#pragma once

#include "record/session.h"

namespace lumivex {

/// Most intensities of one polarisation that are stored, wavelengths times rows: 160 MB.
inline constexpr double mostSpectrumValues = 20e6;

/// Whether the run is one of several wavelengths against scattering angle.
bool IsSpectrumRun(const RunState& s);

/// Settles the wavelengths of the run, with their weights and colours, for the radius in the size box, and puts the
/// wavelength in the middle of the list into Lambda: the one that a run of several stands for where only one can be
/// told. With "RGB" chkComponents is ticked.
void PrepareSpectrum(Session& session);

/// A run of several wavelengths against scattering angle: at each, the index of the materials, the size parameter and
/// the solver, or the cloud of the size distribution; the intensities go to WavelengthPerp and WavelengthPar, their
/// sums over the spectrum to the colour tables and the curves. Steps finer than 0.01 degrees become 0.01.
///
/// A Stop keeps the wavelengths that were whole. Where there is none, and in a run that is refused, PlotMode is 4,
/// StopAnswer 0, and the old results stay.
void CalculateSpectrum(Session& session);

/// Puts wavelengths, weights and colours of the old results back after a run that was refused.
void RestoreLight(MainFormState& s, const LightState& before);

}  // namespace lumivex
