#pragma once

#include <type_traits>

#include "record/page.h"

namespace lumivex {

/// The frame of the graph, and what the scales remember from frame to frame.
struct GraphState : ScaleMemory {
  double PolarCentreX = 5200;  ///< centre of the polar plot (surface units)
  double PolarCentreY = 6600;
  int PolarRadius = 3200;      ///< its radius (surface units)
  float LeePanelWidth = 5000;  ///< width of one colour panel (surface units)
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, GraphState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("PolarCentreX", g.PolarCentreX);
  visit("PolarCentreY", g.PolarCentreY);
  visit("PolarRadius", g.PolarRadius);
  visit("LeePanelWidth", g.LeePanelWidth);
  visit("StoredTop", g.StoredTop);
  visit("StoredBottom", g.StoredBottom);
  visit("GridUnit", g.GridUnit);
  visit("GridOddTest", g.GridOddTest);
}

}  // namespace lumivex
