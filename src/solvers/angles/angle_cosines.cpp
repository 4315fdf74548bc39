#include "solvers/angles/angle_cosines.h"

#include <algorithm>
#include <cmath>

#include "solvers/series/folded_series.h"

namespace lumivex {

RowWindow AngleCosines::Folded(const AngleGrid& grid, RowWindow window) {
  const RowWindow rows{std::max(window.low, 1), std::min(window.high, grid.RowCount())};
  if (rows.Empty()) return {};
  if (rows.high <= grid.NANG) return rows;
  if (rows.low >= grid.NANG) return {grid.Mirror(rows.high), grid.Mirror(rows.low)};
  return {std::min(rows.low, grid.Mirror(rows.high)), grid.NANG};
}

AngleCosines::AngleCosines(const AngleGrid& grid, RowWindow window) : NANG_(grid.NANG), rows_(Folded(grid, window)) {
  if (rows_.Empty()) return;
  const auto count = static_cast<std::size_t>(rows_.high - rows_.low) + 1;
  // A block of the sum reads past the last row.
  cosines_.assign(count + PairBlock, 0.0);
  for (std::size_t i = 0; i < count; ++i) {
    const double theta = grid.Angle(rows_.low + static_cast<int>(i));
    cosines_[i] = std::cos(theta);
    if (theta >= AngularEndZone) continue;
    const double sine = std::sin(0.5 * theta);
    versines_.push_back(2.0 * sine * sine);
    lastNear_ = rows_.low + static_cast<int>(i);
  }
  versines_.resize(versines_.size() + PairBlock, 0.0);
}

bool AngleCosines::Covers(const AngleGrid& grid, RowWindow window) const {
  const RowWindow rows = Folded(grid, window);
  return grid.NANG == NANG_ && (rows.Empty() || (rows_.low <= rows.low && rows.high <= rows_.high));
}

}  // namespace lumivex
