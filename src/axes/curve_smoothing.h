#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace lumivex {

/// Mean of the values j from Int(i - w/2) to Int(i + w/2) that lie within first..last; values that are not numbers do
/// not count. Not a number where the value itself is none. A width of 0 gives the value, one of 1 the
/// mean with the value before.
/// @param y  first index 1.
double RunningMean(std::span<const double> y, std::size_t i, double w, std::size_t first, std::size_t last);

/// Weights of the solar disc by offset from the middle, rows 0 to `rows` + 1 (the last one 0), and their sum over both
/// sides.
struct DiscWeights {
  std::vector<double> weight;
  int rows = 0;
  double total = 1;
};

/// Weights of a disc 0.5 degrees wide: its chord at each offset, or 1 for a rectangular source.
/// @param step  degrees from row to row; a step that is not positive gives the middle alone.
DiscWeights SunDiscWeights(double step, bool rectangular);

/// A curve as a source of the disc's width shows it: row i is the mean of rows i - K to i + K under the weights. Rows
/// before the first reflect at it (0 degrees), rows after `mirror` at that one (180 degrees) unless `mirror` is 0.
/// A row with a neighbour that is not a number becomes none.
/// @param y  first index 1; element 0 is passed on.
std::vector<double> FoldedWithDisc(std::span<const double> y, const DiscWeights& disc, std::size_t mirror);

/// The cubic through four values at -1, 0, 1 and 2, at t (Lagrange).
double CubicThrough(std::span<const double, 4> values, double t);

}  // namespace lumivex
