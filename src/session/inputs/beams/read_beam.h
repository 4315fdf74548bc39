#pragma once

#include <string>

#include "record/session.h"
#include "runs/request.h"
#include "runs/results.h"

namespace lumivex {

/// Whether a beam takes the place of the plane wave.
bool InBeam(const Form1& form);

/// The light as menus and dlogGaussianBeam stand, its series without typed limits. For a method that is never lit by a
/// beam a plane wave.
Illumination ReadBeam(const Session& session);

/// Rows of scattering angle (degrees) from the lowest to the highest: in a beam none is the mirror of another.
AngleRows RowsOfBeam(double xmin, double xmax, double step);

/// Puts limits and sums that were typed in dlogMmax into a request whose sphere is read, as far as they differ from
/// those that follow from beam and sphere. They count as long as the diagnostics are on.
void TakeTypedLimits(const Session& session, RunRequest& request);

/// What the beam of a request comes to for its sphere at its wavelength, with no limits typed; nothing where a material
/// has no index there.
std::optional<BeamNumbers> NumbersOf(const RunRequest& request);

/// Mmax from which logarithms are used, as it starts: half of the orders.
int StartOfLogarithms(const BeamLimits& limits);

/// Lmax and Mmax for the inputs as they stand.
BeamLimits LimitsNow(const Session& session);

}  // namespace lumivex
