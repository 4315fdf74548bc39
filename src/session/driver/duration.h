#pragma once

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// Longest run that starts without asking (seconds on this machine).
inline constexpr double secondsWithoutAsking = 30;

/// Asks the user's leave where the run would take long on this machine, as its work and a short calibration tell; No
/// sets CommandAborted. The duration named is that of the reference machine, a 600 MHz computer, by which users have
/// always compared runs. Nothing is asked with CalibrationState 3.
void Duration(Session& session, const RunRequest& request);

/// Seconds that the run would take on the reference machine. A series against angle has a fit of measured times, of Mie
/// and of Debye's terms, times the wavelengths and sizes of the run; every other run goes by its work, at what the fit
/// gives for that of the first plot.
double ReferenceSeconds(const RunRequest& request);

}  // namespace lumivex
