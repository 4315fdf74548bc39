#pragma once

#include "record/session.h"

namespace lumivex {

/// Rows from 0 to 90 degrees of a two-angle run: steps of 0.1 degrees.
inline constexpr int twoAngleRowsTo90 = 901;

/// The two-angle run: for every index (ColumnIndex) and radius (RowIndex) of dlogTwoAngle the Mie series, and of it the
/// cross-sections into the two ranges of scattering angle, 2 pi/k^2 times the integral of Re(S1 S2*) sin(theta) (um2).
/// MapPerp holds those into the first range, MapPar those into the second.
///
/// The sphere keeps the absorption that stands in the record; wavelength and medium are those of the record too. A
/// refused run leaves PlotMode 4 and the old results; a stopped one stores the spheres that were done, the others hold
/// not-a-number.
void CalculateTwoAngle(Session& session);

}  // namespace lumivex
