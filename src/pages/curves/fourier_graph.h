#pragma once

#include <vector>

#include "pages/look.h"
#include "record/page.h"
#include "runs/curves.h"
#include "runs/results.h"

namespace lumivex {

/// More than the rows of any curve.
inline constexpr int mostFourierPoints = 1 << 20;

/// Whether curves of such results have a spectrum of frequencies: one wavelength or an axis, in equal steps.
bool HasSpectrum(const Results& results);

/// Whether their amplitudes have phases: of one sphere, at the angles or at the angle of the graph.
bool HasAmplitudes(const Results& results);

/// The look of a page of frequencies: its axis shows these, on equal steps and in one panel. A look that asks for none,
/// or results without a spectrum, leave the look as it is but for the transform.
Look LookOfSpectrum(const Results& results, Look look);

/// A transform: arrays of FFTLength samples from index 0, perpendicular and parallel, and what is drawn of them.
struct FourierCurves {
  int FFTLength = 0;
  std::vector<double> FFTRealIn, FFTImagIn;      ///< of the curve transformed last
  std::vector<double> FFTRealOut, FFTImagOut;    ///< perpendicular
  std::vector<double> FFTRealOut2, FFTImagOut2;  ///< parallel
  Curves curves;                                 ///< magnitudes against frequency
};

/// The transform of samples of the curves, or of the complex amplitudes, as they stand: no window is laid over them.
/// Samples that were not calculated, and those beyond the last, count as 0.
///
/// The unpolarised curve is the transform of the unpolarised curve; of amplitudes, which do not interfere with each
/// other, the root of the mean of both squared magnitudes.
///
/// @param found  curves of the results.
FourierCurves FFTcalc(const Results& results, const Curves& found, const FourierLook& look);

/// From one frequency to the next, cycles a unit of the axis.
double FrequencyStep(const Results& results, const FourierLook& look);

/// Where rays p = 0 to 6 are expected by their geometry in the middle of the samples: of amplitudes each ray, with its
/// sign, of curves the difference of each pair. Of extinction the light straight through against that beside the
/// sphere.
std::vector<PageFrequencies::Ray> RayFrequenciesOf(const Results& results, const FourierLook& look);

}  // namespace lumivex
