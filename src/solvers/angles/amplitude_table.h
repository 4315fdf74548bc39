#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"

namespace lumivex {

/// Complex amplitudes by row (dimensionless): rows 0..Rows(), columns 0 (real) and 1 (imaginary).
///
/// Rows are counted from 1; row 0 exists and stays 0. Real and imaginary parts lie apart, each in one piece.
class AmplitudeTable {
 public:
  AmplitudeTable() : AmplitudeTable(0) {}
  explicit AmplitudeTable(int rows) { Resize(rows); }

  /// Gives the table rows 0..rows, all zero: earlier values are lost.
  void Resize(int rows) {
    re_.assign(static_cast<std::size_t>(rows) + 1, 0.0);
    im_.assign(static_cast<std::size_t>(rows) + 1, 0.0);
  }

  /// The last row.
  int Rows() const { return static_cast<int>(re_.size()) - 1; }

  double Re(int row) const { return re_[static_cast<std::size_t>(row)]; }
  double Im(int row) const { return im_[static_cast<std::size_t>(row)]; }

  /// @param column  0 for the real part, anything else for the imaginary part.
  double At(int row, int column) const { return column == 0 ? Re(row) : Im(row); }
  double& At(int row, int column) {
    return column == 0 ? re_[static_cast<std::size_t>(row)] : im_[static_cast<std::size_t>(row)];
  }

  ComplexD Value(int row) const { return {Re(row), Im(row)}; }
  /// |S|^2 of a row.
  double Intensity(int row) const { return Re(row) * Re(row) + Im(row) * Im(row); }

  /// The parts of all rows, row 0 first.
  std::span<double> RealParts() { return re_; }
  std::span<double> ImaginaryParts() { return im_; }
  std::span<const double> RealParts() const { return re_; }
  std::span<const double> ImaginaryParts() const { return im_; }

  void Set(int row, double real, double imaginary) {
    re_[static_cast<std::size_t>(row)] = real;
    im_[static_cast<std::size_t>(row)] = imaginary;
  }

  /// Multiplies both columns of every row.
  void Scale(double factor) {
    for (double& value : re_) value *= factor;
    for (double& value : im_) value *= factor;
  }

  friend bool operator==(const AmplitudeTable&, const AmplitudeTable&) = default;

 private:
  std::vector<double> re_;
  std::vector<double> im_;
};

}  // namespace lumivex
