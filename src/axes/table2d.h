#pragma once

#include <cstddef>
#include <vector>

namespace lumivex {

/// A rectangular table of reals, row by row; first index 0 both ways.
struct Table2D {
  std::size_t rows = 0, columns = 0;
  std::vector<double> cells;

  /// Sets the size and every cell to 0.
  void Resize(std::size_t rowCount, std::size_t columnCount) {
    rows = rowCount;
    columns = columnCount;
    cells.assign(rows * columns, 0.0);
  }
  double& At(std::size_t row, std::size_t column) { return cells[row * columns + column]; }
  double At(std::size_t row, std::size_t column) const { return cells[row * columns + column]; }
};

}  // namespace lumivex
