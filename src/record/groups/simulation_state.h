#pragma once

#include <array>
#include <type_traits>

namespace lumivex {

/// What the simulation window knows beside its controls.
struct SimulationState {
  double HalfWidth = 0, HalfHeight = 0;                ///< half the size of the picture (pixels)
  double ImageFocal = 0;                               ///< focal length (pixels); 0 before the first reading
  int ScaleDoubtful = 0;                               ///< 1 where the shape of the picture is that of no film
  int QuadNE = 1, QuadNW = 0, QuadSE = 1, QuadSW = 0;  ///< 1: the quadrant is painted
  int XFrom = 0, XTo = -1, YFrom = 0, YTo = -1;        ///< columns and rows that hold the chosen quadrants, from 0
  int CirclesShown = 0, GridShown = 0;
  int PointShown = 0;                    ///< kind of point that the boxes hold, a place in cboPoint; not listed below
  int ArcPointCount = 0;                 ///< marked points of the arc, 0 to 3
  std::array<double, 3> ArcX{}, ArcY{};  ///< where they are (pixels); not listed below
  int StopFlag = 0;                      ///< 1 after Stop simulation
  int PolarisationCode = 0;              ///< 0 unpolarised, 1 perpendicular, 2 parallel
  int ViewCode = 0;                      ///< 0 unpolarised, 1 polarised V, 2 polarised H
  int SimTableRows = 0;                  ///< rows of the stored colours; 0 where none are stored
  double SimTableFirst = 0, SimTableStep = 0;  ///< angle of the first row, and from row to row (degrees)
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SimulationState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("HalfWidth", g.HalfWidth);
  visit("HalfHeight", g.HalfHeight);
  visit("ImageFocal", g.ImageFocal);
  visit("ScaleDoubtful", g.ScaleDoubtful);
  visit("QuadNE", g.QuadNE);
  visit("QuadNW", g.QuadNW);
  visit("QuadSE", g.QuadSE);
  visit("QuadSW", g.QuadSW);
  visit("XFrom", g.XFrom);
  visit("XTo", g.XTo);
  visit("YFrom", g.YFrom);
  visit("YTo", g.YTo);
  visit("CirclesShown", g.CirclesShown);
  visit("GridShown", g.GridShown);
  visit("ArcPointCount", g.ArcPointCount);
  visit("StopFlag", g.StopFlag);
  visit("PolarisationCode", g.PolarisationCode);
  visit("ViewCode", g.ViewCode);
  visit("SimTableRows", g.SimTableRows);
  visit("SimTableFirst", g.SimTableFirst);
  visit("SimTableStep", g.SimTableStep);
}

}  // namespace lumivex
