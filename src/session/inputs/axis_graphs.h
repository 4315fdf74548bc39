#pragma once

#include <string_view>

namespace lumivex {

/// What varies along the x axis of a graph that is not against angle.
enum class AxisVariable { Wavelength, Radius, SizeParameter, Diameter, RefractiveIndex, Iterations };

/// What such a graph shows.
enum class AxisQuantity { Intensity, ScatteringMatrix, Q, CrossSection, Qback, Qradar, Asymmetry, Albedo, Power };

/// One graph with an x axis: codes, axis, quantity, and the captions and start values of its inputs. A sub-type of 0 is
/// whatever sub-type stands.
struct AxisGraph {
  int type, subType;
  AxisVariable variable;
  AxisQuantity quantity;
  bool logSteps;                      ///< whether it starts with logarithmic steps
  std::string_view xmin, xmax, step;  ///< start values when the family is chosen anew
};

/// The row of a graph; null for graphs against angle and all others without such an axis.
const AxisGraph* FindAxisGraph(int type, int subType);

/// Caption of the axis' frame and the unit of its limits ("" or "nm").
struct AxisCaptions {
  std::string_view frame, unit;
};
AxisCaptions CaptionsOf(const AxisGraph& graph);

/// Whether the graph shows efficiencies, so that no angle is asked for.
bool NeedsNoAngle(const AxisGraph& graph);

}  // namespace lumivex
