#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "materials/files/index_file.h"

namespace lumivex {

// What the readers of other programs' tables have in common: lines, cells and the joining of n and k.

/// The lines of a text, whatever ends them (LF, CR LF, CR); a byte-order mark and the blanks at their ends are dropped.
class ImportLines {
 public:
  explicit ImportLines(std::istream& stream) : buffer_(stream.rdbuf()) {}
  /// The next line; false at the end of the text.
  bool Next(std::string& line);
  /// Number of the line read last, from 1.
  int Number() const { return number_; }
  /// Whether it was longer than any row can be: its rest was dropped.
  bool Cut() const { return cut_; }

 private:
  std::streambuf* buffer_;
  int number_ = 0;
  bool cut_ = false;
};

/// The cells of a line, without the blanks and quotes around them: parted by semicolons or tabs where there are any,
/// else by commas, else by blanks. Cells between separators may be empty. Where blanks part numbers that hold one comma
/// each ("0,4 1,5"), the commas are decimal ones.
std::vector<std::string> CellsOf(std::string_view line);

/// The number that a cell is: a comma that did not part cells is a decimal one. Nothing for anything else.
std::optional<double> NumberOfCell(std::string_view cell);

/// Whether a text begins as a number does: with a digit, perhaps after a sign or a point.
bool BeginsAsNumber(std::string_view text);

/// A curve of n and one of k by wavelength (um), as rows are met.
class ImportedCurves {
 public:
  /// @return whether the row can be: a positive wavelength, values within single precision.
  bool Add(double lambda, std::optional<double> n, std::optional<double> k);
  /// More rows than a table can have.
  bool Full() const;
  /// n and k on the wavelengths of n: rows sorted, of equal wavelengths the first; k straight between its own rows and
  /// 0 outside them.
  IndexFileResult Table() const;

 private:
  using Points = std::vector<std::pair<double, double>>;
  static Points Settled(Points points);
  static double At(const Points& points, double lambda);

  Points n_, k_;
};

/// A fault of the data: "Line 12: " and what is wrong.
IndexFileResult ImportFault(int line, std::string_view what);

/// Reads a table line by line, until it is full or a line is at fault.
/// @tparam Reader  has Take(line), which returns what is wrong with it or nothing, and Curves(), the rows so far.
template <class Reader>
IndexFileResult ReadImport(std::istream& stream) {
  Reader reader;
  ImportLines lines(stream);
  for (std::string line; lines.Next(line) && !reader.Curves().Full();)
    if (const std::string fault = lines.Cut() ? "the line is too long" : reader.Take(line); !fault.empty())
      return ImportFault(lines.Number(), fault);
  return reader.Curves().Table();
}

}  // namespace lumivex
