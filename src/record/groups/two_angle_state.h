#pragma once

#include <type_traits>
#include <vector>

#include "record/groups/run_state.h"

namespace lumivex {

/// What the last two-angle run was made of: MapPerp holds the cross-sections into the first range of angles (um2),
/// MapPar those into the second, a row a radius and a column an index, first index 0.
struct TwoAngleState {
  double Angle1Min = 0, Angle1Max = 0;  ///< first range (degrees)
  double Angle2Min = 0, Angle2Max = 0;  ///< second range (degrees)
  std::vector<double> TwoAngleIndex;    ///< real index of each column, first index 0
  std::vector<double> TwoAngleRadius;   ///< radius of each row (um), first index 0
};

/// Whether the graph chosen is the two-angle contour, which has inputs of its own in place of the angle scale and the
/// radius.
inline bool IsTwoAngleContour(const RunState& s) {
  return s.GraphType == 1 && s.GraphSubType == 5;
}

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, TwoAngleState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("Angle1Min", g.Angle1Min);
  visit("Angle1Max", g.Angle1Max);
  visit("Angle2Min", g.Angle2Min);
  visit("Angle2Max", g.Angle2Max);
  visit("TwoAngleIndex", g.TwoAngleIndex);
  visit("TwoAngleRadius", g.TwoAngleRadius);
}

}  // namespace lumivex
