#pragma once

#include <type_traits>

#include "record/groups/kept_graph.h"

namespace lumivex {

/// The frame of the graph and what drawing keeps from call to call.
struct GraphState {
  double PolarCentreX = 5200;  ///< centre of the polar plot (surface units)
  double PolarCentreY = 6600;
  int PolarRadius = 3200;      ///< its radius (surface units)
  float LeePanelWidth = 5000;  ///< width of one colour panel (surface units)
  int SecondPanel = 0;         ///< 1 while the lower of two panels is drawn
  int CurveKind = 1;           ///< 1 perpendicular, 2 parallel, 3 unpolarised
  double SavedYmax = 0;        ///< limits of the upper panel while the lower one is drawn
  double SavedYautomax = 0;
  double StoredTop = 100000;  ///< top and bottom of the last scaling: what "Automatic" means on an overplot
  double StoredBottom = 0.1;
  double GridUnit = 1;     ///< unit of the last top chosen, which the next value of the form 10^p takes over
  double GridOddTest = 0;  ///< number last tested for being odd: a range of 10 looks at that of the frame before
  KeptGraph Drawn;         ///< the graph on the screen; not part of what is saved
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, GraphState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("PolarCentreX", g.PolarCentreX);
  visit("PolarCentreY", g.PolarCentreY);
  visit("PolarRadius", g.PolarRadius);
  visit("LeePanelWidth", g.LeePanelWidth);
  visit("SecondPanel", g.SecondPanel);
  visit("CurveKind", g.CurveKind);
  visit("SavedYmax", g.SavedYmax);
  visit("SavedYautomax", g.SavedYautomax);
  visit("StoredTop", g.StoredTop);
  visit("StoredBottom", g.StoredBottom);
  visit("GridUnit", g.GridUnit);
  visit("GridOddTest", g.GridOddTest);
}

}  // namespace lumivex
