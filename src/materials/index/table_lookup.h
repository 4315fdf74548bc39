#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace lumivex {

/// A complex refractive index.
struct IndexValue {
  double n = 0, k = 0;
};

/// Rows of n and k beside a column of wavelengths: columns 0 n, 1 k, 2 unused.
using IndexRow = std::array<float, 3>;

/// Whether a table is read along straight lines or by cubics through four rows.
enum class TableRule { Linear, Cubic };

/// The cubic through four points (Lagrange): the sum of y_i times the product over j not i of (x - x_j)/(x_i - x_j).
/// Two equal x_i give a division by zero, and so no number.
double LagrangePolynomial(const std::array<double, 4>& x, const std::array<double, 4>& y, double at);

/// Linear interpolation in a table of single-precision values, as all built-in water tables are read: the search stops
/// at the first hit.
///
/// @param lambda  wavelengths, ascending (um).
/// @param values  one value a wavelength.
/// @param wanted  the wavelength (um), rounded to single precision where the caller's rule says so.
/// @return the value in the first interval that holds the wavelength; the last value exactly at the last wavelength;
///         nothing outside the table.
std::optional<double> LookUpLinear(std::span<const float> lambda, std::span<const float> values, double wanted);

/// The same rule for a table whose very end is told apart.
struct EndedLookup {
  std::optional<double> value;  ///< interpolated, at the end too
  bool atEnd = false;           ///< the wavelength is exactly the last one
};
EndedLookup LookUpToEnd(std::span<const float> lambda, std::span<const float> values, double wanted);

/// Index from one of the metal tables. The search does not stop at a hit: at an inner row both neighbouring intervals
/// match and the later one stands.
///
/// @param lambda  wavelengths, rows 1 up; row 0 is never read.
/// @param rows    n and k, row by row.
/// @param wanted  the wavelength in single precision (um).
/// @return nothing outside the table.
std::optional<IndexValue> LookUpMetal(std::span<const float> lambda, std::span<const IndexRow> rows, float wanted,
                                      TableRule rule);

/// Where the straight line of the last interval of a table of the format .rix ends, whatever its length: tables that
/// the rule was made for have 49 rows, and results saved with other tables rely on it.
inline constexpr int fileEndRow = 49;

/// A table read from a file, first index 1.
struct FileTable {
  std::span<const float> lambda;   ///< ascending (um)
  std::span<const IndexRow> rows;  ///< n and k
  int count = 0;                   ///< N, the last row
  int endRow = fileEndRow;         ///< the row read at exactly the last wavelength
};

/// Which rows the cubics of a file table may take.
struct CubicGate {
  int rows = 0;           ///< the cubic is used in interval i where i + 3 <= rows
  bool endCubic = false;  ///< the last interval has a cubic of its own; the one before needs row i + 2
  bool operator==(const CubicGate&) const = default;
};

struct FileLookup {
  std::optional<IndexValue> value;
  bool beyondRows = false;  ///< the row wanted does not exist
};

/// Index from a file table; wavelengths outside hold the end rows' values.
///
/// The search compares in single precision; cubics are evaluated at the wavelength in double. A straight line of the
/// last interval ends in the table's endRow; a table that is too short has no such row: beyondRows.
FileLookup LookUpFile(const FileTable& table, double wavelength, TableRule rule, CubicGate gate);

}  // namespace lumivex
