#pragma once

#include <algorithm>

namespace lumivex {

/// A quarter turn with the fifteen decimals of the grid, in radians. It is 1.6e-15 short of pi/2, so that row NANG
/// keeps a cosine above 0 and the mirrored rows never meet.
inline constexpr double AngleGridQuarterTurn = 1.570796326794895;

/// The rows of scattering angles: NANG rows from 0 to 90 degrees inclusive, mirrored to 180 degrees.
///
/// The first row is 1, at 0 degrees; row NANG is 90 degrees, row 2 NANG - 1 is 180 degrees. A grid of one angle (At)
/// has row 1 alone, wherever that angle is. Rows of a beam, which has two sides, begin at any angle and go on by any
/// step (From): nothing is mirrored there.
struct AngleGrid {
  int NANG = 2;                        ///< Rows from 0 to 90 degrees, at least 2; 1 for a single angle.
  double DANG = AngleGridQuarterTurn;  ///< Step between rows, radians.
  double first = 0.0;                  ///< Angle of row 1, radians: 0 where rows are mirrored.

  AngleGrid() = default;

  /// @param rows  wanted NANG; below 2 becomes 2.
  explicit AngleGrid(int rows) : NANG(std::max(rows, 2)), DANG(AngleGridQuarterTurn / (NANG - 1)) {}

  /// The grid whose only row is that angle (radians).
  static AngleGrid At(double angle) {
    AngleGrid grid;
    grid.NANG = 1;
    grid.first = angle;
    return grid;
  }

  /// 2 NANG - 1 rows from an angle on (radians).
  static AngleGrid From(double angle, double step, int NANG) {
    AngleGrid grid(NANG);
    grid.first = angle;
    grid.DANG = step;
    return grid;
  }

  /// Rows over 0 to 180 degrees: 2 NANG - 1.
  int RowCount() const { return 2 * NANG - 1; }

  /// Angle of row j = 1..RowCount() in radians: (j - 1) DANG.
  double Angle(int row) const { return first + (row - 1) * DANG; }

  /// The row of the same cosine apart from its sign: row NANG is its own mirror.
  int Mirror(int row) const { return 2 * NANG - row; }
};

/// Rows low..high, both included; low > high is the empty window.
struct RowWindow {
  int low = 1;
  int high = 0;

  bool Contains(int row) const { return low <= row && row <= high; }
  bool Empty() const { return low > high; }
  friend bool operator==(const RowWindow&, const RowWindow&) = default;
};

}  // namespace lumivex
