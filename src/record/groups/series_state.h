#pragma once

#include <memory>
#include <type_traits>

#include "solvers/series/angular_sum.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Where the loops of a calculation stand, and the sizes of the last series.
struct SeriesState {
  int NSTOP = 0;             ///< series terms summed
  int NMX = 0;               ///< start of the downward recurrence as the limit on the terms counts it
  int NANG = 2;              ///< angles from 0 to 90 degrees inclusive
  int NN = 3;                ///< 2 NANG - 1, rows from 0 to 180 degrees
  double DANG = 0;           ///< angle step (radians)
  double THETA = 0;          ///< angle of the running row (radians)
  int AngleLoopIndex = 0;    ///< running row
  int MirrorAngleIndex = 0;  ///< its mirror row
  int SeriesLoopIndex = 0;   ///< running term
  int ColumnIndex = 0;
  int RowIndex = 0;
  double PointIndex = 0;  ///< running point of an x-axis run, from 1
  double FirstPoint = 1;  ///< first and last row or point of the run
  double LastPoint = 1;
  int AngleLow = 1;             ///< first row wanted of a solver
  int AngleHigh = 1;            ///< last row wanted
  int SelectedAngleIndex = 1;   ///< row of txtAngle
  int MaxSeriesTerms = 200000;  ///< most terms of a series
  PartialWaves Waves;           ///< a_n, b_n of the last series, n = 1 to NSTOP
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SeriesState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("NSTOP", g.NSTOP);
  visit("NMX", g.NMX);
  visit("NANG", g.NANG);
  visit("NN", g.NN);
  visit("DANG", g.DANG);
  visit("THETA", g.THETA);
  visit("AngleLoopIndex", g.AngleLoopIndex);
  visit("MirrorAngleIndex", g.MirrorAngleIndex);
  visit("SeriesLoopIndex", g.SeriesLoopIndex);
  visit("ColumnIndex", g.ColumnIndex);
  visit("RowIndex", g.RowIndex);
  visit("PointIndex", g.PointIndex);
  visit("FirstPoint", g.FirstPoint);
  visit("LastPoint", g.LastPoint);
  visit("AngleLow", g.AngleLow);
  visit("AngleHigh", g.AngleHigh);
  visit("SelectedAngleIndex", g.SelectedAngleIndex);
  visit("MaxSeriesTerms", g.MaxSeriesTerms);
  visit("Waves", g.Waves);
}

}  // namespace lumivex
