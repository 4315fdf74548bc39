#pragma once

#include <span>
#include <type_traits>

#include "axes/table2d.h"

namespace lumivex {

/// Cells of one channel of a map, where the last results hold them: column by column, the lowest row first. Nothing is
/// copied; the view is good as long as those results are the last.
struct CellView {
  std::span<const float> cells;
  int rows = 0;
};

/// What a Lee diagram or a map leaves.
struct LeeResults {
  // Sums of intensity times weight by red, green and blue; of one wavelength all three are the intensity itself. Where
  // efficiencies were mapped there are none.
  CellView LeeRedPerp, LeeGreenPerp, LeeBluePerp;  ///< perpendicular polarisation
  CellView LeeRedPar, LeeGreenPar, LeeBluePar;     ///< parallel
  Table2D LeeColumnMaximum;                        ///< greatest value of each column (a row each) in the three panels
  int LeeRowStart = 1;  ///< first and last row on show, of the grid of angles or of the second quantity, from 1
  int LeeRowEnd = 1;
  int LeeRowOffset = 0;     ///< rows of the grid below the lowest one that is stored
  double FoldedShare = -1;  ///< of a size distribution folded in, the particles left out; -1 where none is
  float LeeCellWidth = 0;   ///< of a column on the page (surface units)
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, LeeResults>
void ForEachField(Group& g, Visitor&& visit) {
  visit("LeeRedPerp", g.LeeRedPerp);
  visit("LeeGreenPerp", g.LeeGreenPerp);
  visit("LeeBluePerp", g.LeeBluePerp);
  visit("LeeRedPar", g.LeeRedPar);
  visit("LeeGreenPar", g.LeeGreenPar);
  visit("LeeBluePar", g.LeeBluePar);
  visit("LeeColumnMaximum", g.LeeColumnMaximum);
  visit("LeeRowStart", g.LeeRowStart);
  visit("LeeRowEnd", g.LeeRowEnd);
  visit("LeeRowOffset", g.LeeRowOffset);
  visit("FoldedShare", g.FoldedShare);
  visit("LeeCellWidth", g.LeeCellWidth);
}

}  // namespace lumivex
