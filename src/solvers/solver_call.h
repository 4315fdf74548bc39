#pragma once

namespace lumivex {

/// What every plane-wave solver is asked, in the words of the record.
struct SolverCall {
  double x;         ///< size parameter
  double mRe, mIm;  ///< relative refractive index, absorption positive
  int NANG;         ///< angles from 0 to 90 degrees inclusive
  int RowLow, RowHigh;
};

}  // namespace lumivex
