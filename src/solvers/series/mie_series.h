#pragma once

#include <memory>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// One plane-wave calculation of a homogeneous sphere.
struct MieRequest {
  double x = 0.0;                               ///< Size parameter 2 pi a / wavelength in the medium, > 0.
  double mRe = 1.0;                             ///< Refractive index relative to the medium, m = mRe + i mIm,
  double mIm = 0.0;                             ///< absorption for mIm > 0 (time factor exp(-i omega t)).
  int NANG = 2;                                 ///< Rows from 0 to 90 degrees; below 2 becomes 2.
  int tableRows = 0;                            ///< Rows of the tables, where more than 2 NANG - 1 are wanted.
  std::shared_ptr<const AngleCosines> cosines;  ///< Those of the window, from a call before; computed where it has not.
  RowWindow window{1, 2 * MaxSeriesTerms};      ///< Rows wanted, cut to 1..2 NANG - 1.
  bool divideBySize = false;                    ///< Divide amplitudes by x before Qext and Qback are formed.
  bool classicStart = false;                    ///< See ComputeMieTruncation.
  bool convergence = false;                     ///< Fill MieResult::convergence; sums 1.2 times the terms.
  double convergenceAngle = 0.0;                ///< Of the convergence series, radians.
  InstructionSet set = BestInstructionSet();    ///< For tests and benchmarks: one that this machine runs.
};

/// Intensities of the running sums at one angle, after each term N = 1..NSTOP; index 0 is unused and 0.
struct ConvergenceSeries {
  std::vector<double> perpendicular;  ///< |S1|^2
  std::vector<double> parallel;       ///< |S2|^2
  std::vector<double> unpolarised;    ///< their mean
};

struct MieResult {
  MieRefusal refusal = MieRefusal::None;  ///< Where not None, the tables are zero and nothing else is set.
  MieTruncation truncation;               ///< NSTOP, NMX.
  Efficiencies efficiencies;              ///< Of the sphere, whatever the window of rows.
  AmplitudeTable S1;                      ///< Rows 1..2 NANG - 1 or tableRows; rows not summed are 0.
  AmplitudeTable S2;
  PartialWaves waves;
  ConvergenceSeries convergence;
  RowsDone rows;         ///< Rows of the window that hold the whole sum.
  bool stopped = false;  ///< The monitor asked to stop: only `rows` are done.
};

/// The Mie series: coefficients, efficiencies and amplitudes of a homogeneous sphere in a plane wave (Mie 1908;
/// Bohren and Huffman 1983, chapter 4 and appendix A). See MieCoefficients and SumAngularSeries for the algorithm.
///
/// A stopped run has its coefficients and efficiencies, and whole rows only. The convergence series is not
/// divided by x.
///
/// @param monitor  asked after the coefficients, then as SumAngularSeries does.
MieResult SolveMie(const MieRequest& request, RunMonitor& monitor);

/// Intensities of the running sums at one angle.
///
/// @param angle  radians, 0..pi.
ConvergenceSeries SumConvergence(const PartialWaves& waves, double angle);

}  // namespace lumivex
