#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "axes/curve_smoothing.h"
#include "runs/results.h"

namespace lumivex {

/// The cells of one picture of a map: a panel that is stored, or the mean of the two stored polarisations, which is
/// light without polarisation.
class PictureCells {
 public:
  /// @param picture  from 0; beyond the stored panels it is the mean of the first two.
  PictureCells(const MapFound& found, std::size_t picture)
      : first_(&found.panels[picture < found.panels.size() ? picture : 0]),
        second_(picture < found.panels.size() ? nullptr : &found.panels[1]) {}

  /// Whether cells have channels instead of a value.
  bool OfSpectrum() const { return first_->value.empty(); }
  double Value(std::size_t cell) const { return Of(&MapPanel::value, cell); }
  std::array<double, 3> Channels(std::size_t cell) const {
    return {Of(&MapPanel::red, cell), Of(&MapPanel::green, cell), Of(&MapPanel::blue, cell)};
  }
  /// The value, or the greatest channel.
  double Greatest(std::size_t cell) const {
    if (!OfSpectrum()) return Value(cell);
    const auto channels = Channels(cell);
    return std::max({channels[0], channels[1], channels[2]});
  }
  /// The stored panel that gives most to a cell.
  bool SecondIsGreater(std::size_t cell) const;

 private:
  double Of(std::vector<float> MapPanel::*channel, std::size_t cell) const {
    const double value = (first_->*channel)[cell];
    return second_ == nullptr ? value : (value + double{(second_->*channel)[cell]}) / 2;
  }

  const MapPanel *first_, *second_;
};

/// Rows of a map that are shown: `count` from the stored row `lowest` on.
struct ShownRows {
  int lowest = 0, count = 0;
};

/// The greatest value of a column in the rows shown; 0 where none is above it.
double GreatestOf(const MapFound& found, const PictureCells& cells, int column, ShownRows rows);

/// A map over angle as a source of the disc's width shows it: every column is folded as curves are. Only the rows shown
/// are kept; a row with a neighbour that was not calculated is not a number.
/// @param mirror  the row of the grid at 180 degrees, at which rows reflect; 0 where they do not.
MapFound SeenUnderDisc(const MapFound& found, ShownRows rows, const DiscWeights& disc, int mirror);

}  // namespace lumivex
