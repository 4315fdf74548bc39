#pragma once

#include "runs/results.h"
#include "runs/settings.h"

namespace lumivex {

/// What a family leaves: whether anything was found, and a refusal where it gave up. Stops and overflows are told by
/// the pool.
struct FamilyEnd {
  bool found = false;
  Refusal refusal;
};

// One function a family, each for its alternative of the request. They fill `results.found` and `results.last`.
FamilyEnd RunAngles(const RunRequest& request, const AngleRun& run, TaskPool& pool, Results& results);
FamilyEnd RunSpectrum(const RunRequest& request, const SpectrumRun& run, TaskPool& pool, Results& results);
FamilyEnd RunAxis(const RunRequest& request, const AxisRun& run, TaskPool& pool, Results& results);
FamilyEnd RunConvergence(const RunRequest& request, const ConvergenceRun& run, TaskPool& pool, Results& results);
FamilyEnd RunDebyeAnalysis(const RunRequest& request, const DebyeAnalysisRun& run, TaskPool& pool, Results& results);
FamilyEnd RunTwoAngle(const RunRequest& request, const TwoAngleRun& run, TaskPool& pool, Results& results);
FamilyEnd Overplot_Map(const RunRequest& request, const AngleMapRun& run, TaskPool& pool, Results& results);
FamilyEnd Overplot_Map(const RunRequest& request, const EfficiencyMapRun& run, TaskPool& pool, Results& results);
/// A picture of angle and time: what each direction receives of a pulse. Rows are done in blocks; a run that is stopped
/// keeps whole blocks.
/// @param mostRowsOfBlock  further limit of a block beside that of memory.
FamilyEnd RunImpulse(const RunRequest& request, const AngleMapRun& run, TaskPool& pool, Results& results,
                     int mostRowsOfBlock = 1 << 30);
/// Light at one angle, or efficiencies, as the answer to a pulse: an axis of time. A run that is stopped finds nothing.
FamilyEnd RunPulseAnswer(const RunRequest& request, const AxisRun& run, TaskPool& pool, Results& results);
/// A run that is stopped finds nothing: sums over some of the spheres would be those of another cloud.
FamilyEnd RunVolume(const RunRequest& request, const VolumeRun& run, TaskPool& pool, Results& results);

/// Wavelength, size and index at a point of an axis; what the axis does not vary is that of `base`.
SettingResult SettingAtPoint(const RunRequest& request, AxisVariable axis, double x, const Setting& base);

/// Setting of a column (from 0) of a map over angle at a wavelength (um); of a column that is a wavelength at that one.
SettingResult SettingOfColumn(const RunRequest& request, const AngleMapRun& run, int column, double lambda);
/// Setting of a cell of a map without angles; first indices 0.
SettingResult SettingOfCell(const RunRequest& request, const EfficiencyMapRun& run, int column, int row);

/// The work of each column in the unit of PairTermsOf; 0 by a method without a series.
std::vector<double> WorkOfColumns(const RunRequest& request, const AngleMapRun& run);

/// Power scattered into a range of angles: the incident density times 2 pi/k^2 times the integral of |S|^2 sin(theta).
struct PowerRows {
  AngleGrid grid;
  RowWindow window;

  explicit PowerRows(const AxisRun::Range& range);
  double Integral(const AmplitudeTable& S) const;
};

/// The orders whose rainbows are told apart.
inline constexpr int lowestBow = 2, highestBow = 4;
/// Fills the bows of the selected orders at the clock angles `found.x` (degrees).
Refusal SolveBows(const RunRequest& request, const Setting& setting, TaskPool& pool, AxisFound& found);

/// What a setting tells of the last sphere.
void TellSetting(const Setting& setting, LastSphere& last);
/// The row of a grid of 0.01 degrees that is nearest to the one angle (radians) of a run.
void TellAngle(double angle, LastSphere& last);
/// What a solution tells of it; leaves the setting's part.
void TellSphere(const SphereSolution& sphere, LastSphere& last);

}  // namespace lumivex
