#pragma once

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"

namespace lumivex {

/// A range of scattering angles (radians), low < high.
struct AngleRange {
  double low = 0;
  double high = 0;
};

/// The rows of a grid whose steps of width DANG reach into a range; empty where the range lies outside 0 to pi.
RowWindow RowsOfRange(const AngleGrid& grid, const AngleRange& range);

/// Integral over a range of angles of Re(S1 S2*) sin(theta): the sum over the rows of (S1.re S2.re + S1.im S2.im)
/// sin(theta) DANG. A row stands for half a step on either side; an edge of the range within that step takes its part
/// of it, so that ranges which touch share nothing and a row on the edge counts half.
///
/// Re(S1 S2*) is the element S33 of the scattering matrix (Bohren and Huffman 1983, section 3.3). Near the forward
/// direction, where S1 and S2 are alike, it is the intensity.
/// @param S1, S2  amplitudes by row (dimensionless); rows of the range must have been summed.
double IntegrateProduct(const AmplitudeTable& S1, const AmplitudeTable& S2, const AngleGrid& grid,
                        const AngleRange& range);

}  // namespace lumivex
