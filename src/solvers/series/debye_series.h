#pragma once

#include <optional>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/debye_coefficients.h"
#include "solvers/series/mie_series.h"

namespace lumivex {

/// The selected Debye terms of a homogeneous sphere in a plane wave.
struct DebyeRequest {
  double x = 0.0;                           ///< Size parameter, > 0.
  double mRe = 1.0;                         ///< Relative refractive index m = mRe + i mIm, not (0, 0);
  double mIm = 0.0;                         ///< absorption for mIm > 0.
  int NANG = 2;                             ///< Rows from 0 to 90 degrees; below 2 becomes 2.
  RowWindow window{1, 2 * MaxSeriesTerms};  ///< Rows wanted, cut to 1..2 NANG - 1.
  std::optional<double> angle;              ///< One angle (radians) in place of the rows: row 1 is that angle.
  std::vector<int> selected;                ///< selected[p] is not 0 for the terms wanted.
  bool byRatio = false;                     ///< See DebyeSurfaces.
  bool convergence = false;                 ///< Sum 1.2 times the terms and fill DebyeResult::convergence.
  bool partial = false;                     ///< Sum only the partial waves from firstRatio x to lastRatio x.
  double firstRatio = 0.2;
  double lastRatio = 0.4;
};

/// |a|^2 and |b|^2 of the coefficients without the factor -1/2, by partial wave n = 0..NSTOP, of the highest term that
/// is selected.
struct DebyeConvergence {
  std::vector<double> perpendicular;  ///< a-type
  std::vector<double> parallel;       ///< b-type
  std::vector<double> unpolarised;    ///< their mean
};

struct DebyeResult {
  MieRefusal refusal = MieRefusal::None;  ///< Where not None, the tables are zero and nothing else is set.
  int NSTOP = 0;                          ///< Partial waves of the series.
  int NMX = 0;                            ///< int(max(|m x|, estimate)) + 15, which the limit counts.
  int PartialWaveFirst = 0;               ///< Partial waves summed.
  int PartialWaveLast = 0;
  AmplitudeTable S1;  ///< Rows 1..2 NANG - 1; rows not summed are 0.
  AmplitudeTable S2;
  PartialWaves waves;  ///< The coefficients summed over the selected terms.
  DebyeConvergence convergence;
  RowsDone rows;  ///< Rows of the window that hold the whole sum.
};

/// Whether a sphere lies within the limits of the series; to be asked before a long run.
MieRefusal CheckDebyeLimits(double x, double mRe, double mIm);

/// The Debye series (Debye 1908; van der Pol and Bremmer 1937; Hovenac and Lock 1992): the amplitudes of reflection and
/// diffraction (p = 0), direct transmission (p = 1) and p - 1 internal reflections (p >= 2), in the convention of the
/// Mie series, so that the sum over all p is the Mie series. See DebyeSurfaces and SumAngularSeries for the algorithm.
///
/// Refused where |m x| or NMX is above MaxSeriesTerms, or not a number. A stopped run has whole rows only.
DebyeResult SolveDebye(const DebyeRequest& request, RunMonitor& monitor);

}  // namespace lumivex
