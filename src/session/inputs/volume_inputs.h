#pragma once

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// Most spheres of a volume, and most steps of all of them in Brownian motion: minutes of calculation.
inline constexpr double mostVolumeSpheres = 1e6, mostVolumeSteps = 1e9;
/// Widest cube: 1 m in micrometres, across which phases keep nine digits.
inline constexpr double widestVolume = 1e6;
inline constexpr double largestSeed = 1e9;

/// Holds the fields of dlogVolume against their limits; the first that cannot be used is marked and told. The number of
/// spheres is not asked of a graph that has it along its axis.
bool VolumeHolds(Session& session);

/// The cube of the dialog with the axis of the panel.
VolumeRun ReadVolume(const Session& session, const AxisRun& axis);

/// Shows the dialog, unless settings are being restored. A graph that has just been chosen and is cancelled here gives
/// way to the one before, with all its inputs.
void AskVolume(Session& session);

/// What stands in the dialog at the start.
void RestoreVolume(Session& session);

/// Choose the graph; where it is chosen already, they show its dialog.
void mnuVolumePlace_Click(Session& session);
void mnuVolumeNumber_Click(Session& session);
void mnuVolumeTime_Click(Session& session);
void mnuVolumeRadius_Click(Session& session);

/// OK of the dialog holds the inputs against their limits.
void dlogVolume_OKButton_Click(Session& session);

}  // namespace lumivex
