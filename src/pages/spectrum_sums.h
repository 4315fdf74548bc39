#pragma once

#include <cstddef>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// Most rows of a graph of several wavelengths: 0 to 180 degrees in steps of 0.01.
inline constexpr int mostSpectrumRows = 18001;

/// Gives ColourMain, ColourPerp and ColourPar rows 0 to mostSpectrumRows and colourColumns columns, all 0.
void SizeColourTables(SpectrumResults& results);

/// After a run of one wavelength: nothing of a spectrum is stored any more.
void ForgetSpectrum(SpectrumResults& results);

/// Sums the stored intensities over the wavelengths that were done, into ColourPerp, ColourPar and ColourMain, and
/// fills the curves of the total: Iperp and Ipar are column 0, Iunpol their mean, Extra1 the degree of polarisation.
///
/// A wavelength counts with SpectrumWeightInUse; there is no division by the sum of the weights, so that a brighter
/// source gives a brighter result. mnuInvWavelength divides each by the square of its wave number first. mnuAmplitude
/// shows the roots of the totals: amplitudes of different wavelengths do not add. The disc of the sun is folded in when
/// a curve is drawn, as for one wavelength; that changes nothing, since both are sums.
void FoldSpectrum(Session& session);

/// Curves by row (first index 1), as long as XValues; not a number in rows without results.
struct SpectrumCurves {
  std::vector<double> perpendicular, parallel, unpolarised;
};

/// One wavelength of the results, weighed as in the sums.
/// @param wavelength  1 to WavelengthsDone.
SpectrumCurves CurvesOfWavelength(const Session& session, int wavelength);

}  // namespace lumivex
