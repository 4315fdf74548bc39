#pragma once

#include "record/session.h"

namespace lumivex {

/// Slowest and fastest machine that a calibration may stand for (million terms a second).
inline constexpr double slowestMachine = 0.01, fastestMachine = 1e6;

/// Seconds for one term of one pair of angles on this machine: a small series of known length, the best of three.
double MeasurePairTerm(Platform& platform);

/// Asks in dlogCalibration how fast this machine is: a short series is timed, and the figure may be taken as it is or
/// typed. OK makes it the one by which the time of runs is told (SecondsPerPairTerm), sets CalibrationState to 1, or to
/// 3 where nobody wants to be asked before a long run, and raises Settings_Changed, which keeps it for the next start.
void mnuCalibration_Click(Session& session);

/// Times the series again and puts the figure into the input.
void dlogCalibration_cmdMeasure_Click(Session& session);
/// What the figure means: how long a run that everybody knows would take.
void dlogCalibration_txtCalibration_Change(Session& session);
/// A figure that no machine has is marked and told.
void dlogCalibration_OKButton_Click(Session& session);

}  // namespace lumivex
