#pragma once

#include "record/session.h"

namespace lumivex {

/// Longest run that starts without asking (seconds on this machine).
inline constexpr double secondsWithoutAsking = 30;

/// Asks the user's leave where the run would take long on this machine, as a short calibration tells; No sets
/// CommandAborted. The duration named is that of the reference machine, a 600 MHz computer, by which users have always
/// compared runs. Nothing is asked with CalibrationState 3.
void Duration(Session& session);

/// Seconds that the run would take on the reference machine: a fit of measured times for one Mie series against angle,
/// times the wavelengths and sizes of the run.
double ReferenceSeconds(const Session& session);

}  // namespace lumivex
