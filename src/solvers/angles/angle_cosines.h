#pragma once

#include <cstddef>
#include <vector>

#include "solvers/angles/angle_grid.h"

namespace lumivex {

/// Below this angle from 0 or 180 degrees (radians) the recurrence of an angular sum goes by differences. Above it,
/// rounding of the cosine shifts the angle by less than ten times what rounding of the angle itself does.
inline constexpr double AngularEndZone = 0.1;

/// Cosines of the rows of a grid, folded to 0..90 degrees, as the angular sum reads them. They are a sixth of the work
/// of a sum over a small sphere: a cloud of many spheres computes them once. Nothing in it changes after construction,
/// so threads may share one.
class AngleCosines {
 public:
  AngleCosines() = default;
  /// @param window  rows of the whole grid that will be asked for, cut to it; their mirrors come along.
  AngleCosines(const AngleGrid& grid, RowWindow window);

  /// The rows of both halves of a window, folded to 1..NANG; empty where the window is.
  static RowWindow Folded(const AngleGrid& grid, RowWindow window);

  /// Whether it holds all rows of a window of this grid.
  bool Covers(const AngleGrid& grid, RowWindow window) const;

  /// cos(theta) from a folded row on, at least PairBlock values.
  const double* Cosines(int row) const { return &cosines_[static_cast<std::size_t>(row - rows_.low)]; }
  /// 1 - cos(theta) = 2 sin^2(theta / 2) from a folded row within the end zone on, at least PairBlock values.
  const double* Versines(int row) const { return &versines_[static_cast<std::size_t>(row - rows_.low)]; }
  /// Last row within the end zone; 0 where none is held.
  int LastNear() const { return lastNear_; }

 private:
  int NANG_ = 0;
  RowWindow rows_;
  int lastNear_ = 0;
  std::vector<double> cosines_;
  std::vector<double> versines_;
};

}  // namespace lumivex
