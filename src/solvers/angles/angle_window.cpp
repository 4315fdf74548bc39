#include "solvers/angles/angle_window.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

RowWindow RowsOfRange(const AngleGrid& grid, const AngleRange& range) {
  const double last = grid.RowCount() - 1;
  // An edge on the border of two steps belongs to the inner one, whatever its rounding.
  constexpr double rounding = 1e-9;
  const double low = range.low / grid.DANG + rounding, high = range.high / grid.DANG - rounding;
  if (!(low < high) || high < 0 || low > last) return {};
  return {static_cast<int>(std::lround(std::clamp(low, 0.0, last))) + 1,
          static_cast<int>(std::lround(std::clamp(high, 0.0, last))) + 1};
}

double IntegrateProduct(const AmplitudeTable& S1, const AmplitudeTable& S2, const AngleGrid& grid,
                        const AngleRange& range) {
  const RowWindow rows = RowsOfRange(grid, range);
  double sum = 0;
  for (int row = rows.low; row <= rows.high; ++row) {
    const double angle = grid.Angle(row), half = grid.DANG / 2;
    const double part = std::min(range.high, angle + half) - std::max(range.low, angle - half);
    const double product = S1.Re(row) * S2.Re(row) + S1.Im(row) * S2.Im(row);
    sum += product * std::sin(angle) * part;
  }
  return sum;
}

}  // namespace lumivex
