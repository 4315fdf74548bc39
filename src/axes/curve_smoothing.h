#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace lumivex {

/// Running mean: at row i the mean of the values j from Int(i - w/2) to Int(i + w/2) that lie within first..last;
/// values that are not numbers do not count. A row that is not a number, or lies outside first..last, stays as it is. A
/// width of 0 gives the values, one of 1 the mean with the value before.
///
/// The work does not depend on the width. Sums are only ever added to and never subtracted from, so that a small value
/// beside a forward peak ten decades above it keeps all its digits (van Herk's sums from both sides of a block).
/// @param y  first index 1.
std::vector<double> RunningMeans(std::span<const double> y, double w, std::size_t first, std::size_t last);

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
/// A row with a neighbour that is not a number, or not there, becomes none.
/// @param y             first index 1; element 0 is passed on.
/// @param firstMirrors  whether the first row is one of mirrors: that of a beam may stand at any angle.
std::vector<double> FoldedWithDisc(std::span<const double> y, const DiscWeights& disc, std::size_t mirror,
                                   bool firstMirrors = true);

/// The cubic through four values at -1, 0, 1 and 2, at t (Lagrange).
double CubicThrough(std::span<const double, 4> values, double t);

}  // namespace lumivex
