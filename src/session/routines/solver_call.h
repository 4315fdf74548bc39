#pragma once

#include <optional>

namespace lumivex {

/// What every plane-wave solver is asked, in the words of the record.
struct SolverCall {
  double x;         ///< size parameter
  double mRe, mIm;  ///< relative refractive index, absorption positive
  int NANG;         ///< angles from 0 to 90 degrees inclusive
  int RowLow, RowHigh;
  /// Where set, one scattering angle (radians) takes the place of the grid: row 1 of S1 and S2 is that angle exactly,
  /// and the record keeps its grid.
  std::optional<double> angle = std::nullopt;
};

}  // namespace lumivex
