#pragma once

#include <type_traits>

namespace lumivex {

/// The axes of the graph: as entered, as in use, and the extremes of the curves.
struct AxisState {
  double Xmin = 0;          ///< as entered
  double Xmax = 180;        ///< as entered
  double PlotXmin = 0;      ///< in use
  double PlotXmax = 180;    ///< in use
  double Xstep = 0.1;       ///< step, or number of steps
  double Ymin = 0;          ///< bottom of the vertical axis
  double Ymax = 0;          ///< top of the vertical axis
  double YAutoMin = 0;      ///< smallest value of the curves drawn
  double YAutoMax = 0;      ///< largest value of the curves drawn
  double LogStepRatio = 1;  ///< ratio of neighbouring points of a logarithmic axis
  int YAxisMode = 0;        ///< 2 for graphs that plot a ratio
  double AngleRows = 1801;  ///< 180 / step + 1
  int MirrorCount = 0;      ///< 2 NANG - 1 - AngleLow
  int ArrayRows = 0;        ///< rows of the result arrays
  double AxisMin = 0;       ///< size axis of Lee diagrams and maps
  double AxisMax = 0;
  double AxisSteps = 0;
  double AxisRatio = 1;
  float GraphLeft = 1000;  ///< plot box (surface units)
  float GraphRight = 15000;
  float GraphTop = 3400;
  float GraphBottom = 9800;
  int ScreenWidthPx = 1280;
  int ScreenHeightPx = 1024;
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, AxisState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("Xmin", g.Xmin);
  visit("Xmax", g.Xmax);
  visit("PlotXmin", g.PlotXmin);
  visit("PlotXmax", g.PlotXmax);
  visit("Xstep", g.Xstep);
  visit("Ymin", g.Ymin);
  visit("Ymax", g.Ymax);
  visit("YAutoMin", g.YAutoMin);
  visit("YAutoMax", g.YAutoMax);
  visit("LogStepRatio", g.LogStepRatio);
  visit("YAxisMode", g.YAxisMode);
  visit("AngleRows", g.AngleRows);
  visit("MirrorCount", g.MirrorCount);
  visit("ArrayRows", g.ArrayRows);
  visit("AxisMin", g.AxisMin);
  visit("AxisMax", g.AxisMax);
  visit("AxisSteps", g.AxisSteps);
  visit("AxisRatio", g.AxisRatio);
  visit("GraphLeft", g.GraphLeft);
  visit("GraphRight", g.GraphRight);
  visit("GraphTop", g.GraphTop);
  visit("GraphBottom", g.GraphBottom);
  visit("ScreenWidthPx", g.ScreenWidthPx);
  visit("ScreenHeightPx", g.ScreenHeightPx);
}

}  // namespace lumivex
