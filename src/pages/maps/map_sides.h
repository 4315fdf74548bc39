#pragma once

#include "record/page_map.h"
#include "runs/request.h"

namespace lumivex {

/// The side of a swept quantity.
MapSide SideOf(const Sweep& sweep);

/// The side of scattering angles of so many rows, the first of which is that row of the grid.
MapSide SideOf(const AngleRows& rows, int firstRow, int count);

/// Whether a map varies the quantity along one of its sides.
bool Sweeps(const FamilyRun& run, Swept quantity);

/// A sweep in words: "Radius: 10 to 20 \u00B5m in 4 steps".
std::string SweepWords(const Sweep& sweep);

}  // namespace lumivex
