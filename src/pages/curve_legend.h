#pragma once

#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// Name of a curve for the legend, the read-out and the exported columns: its polarisation, or the efficiency or cross
/// section that it is.
/// @param curveKind  1 perpendicular, 2 parallel, 3 unpolarised.
std::string CurveName(const GraphKind& kind, int curveKind, bool secondPanel);

/// Name of a ratio of the scattering matrix: S12/S11, S33/S11, S34/S11 for 1 to 3.
std::string_view MatrixRatio(int curveKind);

/// Prints the legend below the plot: one line a polarisation, each name in its curve's colour; overplots of another
/// colour stand beside it. Without absorption the efficiencies are told in one line. The legend stays with the graph.
void PolarLabel(Session& session);

/// Prints the legend of the graph on the screen once more.
void PaintLegend(Session& session);

}  // namespace lumivex
