#pragma once

#include <span>
#include <vector>

#include "runs/results.h"

namespace lumivex {

/// What of the results is drawn.
struct CurveLook {
  bool amplitude = false;      ///< moduli in place of intensities
  bool invWavelength = false;  ///< intensities freed of the square of the wave number, wavelengths as their inverse
};

/// The curves of results; first index 1. A value that was not calculated is not a number.
struct Curves {
  std::vector<double> x;  ///< in the unit of the axis
  std::vector<double> perpendicular, parallel, unpolarised;
  std::vector<double> extra1;          ///< degree of polarisation, or S12/S11
  std::vector<double> extra2, extra3;  ///< phases of S1 and S2 (degrees), or S33/S11 and S34/S11
  /// Of many spheres what they would send each for itself; empty for other graphs.
  std::vector<double> alonePerpendicular, aloneParallel, aloneUnpolarised;
  int firstRow = 1, lastRow = 0;                      ///< that hold results
  double scatteredPower = 0, backscatteredPower = 0;  ///< of a graph in Watts (W)
  double intensityNorm = 1;                           ///< what the last intensities were divided by
};

/// Fills the curves of any results: intensities or amplitudes, and what the graph's quantity makes of them.
///
/// Graphs against angle: phase function (mean over the sphere 1), Watts/m2 at the distance and incident density of the
/// request, differential cross-section (m2/sr), scattering matrix (S11 in all three curves), cumulative probability.
/// A spectrum: the sums over its wavelengths. Axes: efficiencies (Qext, Qsca, Qabs), cross-sections (m2), and the rest.
Curves CurvesOf(const Results& results, const CurveLook& look);

/// Sums over the wavelengths that were done, of intensity times weight: row j is the row of the curves; column 0 is the
/// total, columns 1, 2 and 3 red, green and blue. There is no division by the sum of the weights, so that a brighter
/// source gives a brighter result.
struct SpectrumSums {
  Table2D perpendicular, parallel, mean;
};
SpectrumSums SumsOf(const Results& results, const CurveLook& look);

/// The intensities of one wavelength (from 1) as a run of a spectrum has them, from the first row of its window on, and
/// the weight that they have in the sums. The results own them.
struct WavelengthLight {
  std::span<const double> perpendicular, parallel;
  double weight = 1;
};
WavelengthLight LightOfWavelength(const Results& results, const CurveLook& look, int wavelength);

/// One wavelength of a spectrum (from 1), weighed as in the sums.
Curves CurvesOfWavelength(const Results& results, const CurveLook& look, int wavelength);

/// The inverse of a wavelength (nm) as an axis shows it: in 1/um.
double InverseWavelength(double nm);

/// Angles of the rows (degrees), first index 1; not a number outside their window.
std::vector<double> AnglesOf(const AngleRows& rows);

/// The rows of an angle request; null for a family without.
const AngleRows* RowsOf(const FamilyRun& run);

/// Degrees, or units of the axis, from row to row.
double StepOf(const RunRequest& asked);

/// The axis of points of a request; null for a family without.
const AxisRun* AxisOf(const FamilyRun& run);

}  // namespace lumivex
