#pragma once

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"

namespace lumivex {

/// Sums over the angles of a scattering pattern.
struct AngularIntegral {
  double sum = 0.0;     ///< Integral of (|S1|^2 + |S2|^2)/2 sin(theta) over 0..180 degrees, dimensionless.
  double moment = 0.0;  ///< The same with cos(theta) beside: moment/sum is the asymmetry parameter.
};

/// Integrates a pattern by the rectangle rule over all rows of the grid: the weight of a row is
/// (|S1|^2 + |S2|^2)/2 sin(theta) DANG. The end rows carry sin(theta) = 0, so that is the trapezium rule.
///
/// The scattering cross section is 2 pi/k^2 times the sum (Bohren and Huffman 1983, section 3.4), for methods
/// that have no series for their efficiencies.
///
/// @param S1, S2  at least 2 NANG - 1 rows.
AngularIntegral IntegrateAngles(const AmplitudeTable& S1, const AmplitudeTable& S2, const AngleGrid& grid);

}  // namespace lumivex
