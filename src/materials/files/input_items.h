#pragma once

#include <fstream>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace lumivex {

/// Reads a text file item by item: an item ends at a comma or at the end of a line, leading blanks are dropped, a text
/// may stand in quotes. Numbers end at blanks too, and blank lines before them are passed over. Line ends of every
/// kind and a byte-order mark are understood. An item keeps its first 4096 characters, so that no file can fill the
/// memory.
///
/// The first failure stays: whatever is read after it is empty or 0, so that a reader may read on and look once.
class InputItems {
 public:
  explicit InputItems(std::istream& stream);

  /// The next text; nothing at the end of the file, which is no failure by itself.
  std::optional<std::string> TextIfAny();
  /// The next text; the end of the file is a failure.
  std::string Text();
  /// The next number, with a point and an exponent after e, E, d or D. Anything else is a failure.
  double Number();
  /// The same within the range of single precision.
  float Single();
  /// A whole number in a range (a fraction is rounded to the nearest one, ties to even); outside it is a failure.
  int Whole(int lowest, int highest);
  /// Passes over items.
  void Skip(int items);

  /// The end of a row of so many numbers: more in its line is a failure, as is a comma for a decimal point, which parts
  /// a number in two. A row that lacks numbers takes them from the next line: the failure is told of its own line.
  void EndRow(int numbers);
  /// The end of the data: anything but blank lines is a failure, for it would be lost.
  void EndData();

  /// Makes the reading fail at the last item's line, unless it has failed before.
  void Fail(std::string_view reason);
  bool Failed() const { return !failure_.empty(); }
  /// "Line 21: "1.3x" is not a number"; empty while all is well. Quotes are cut and made readable (Readable).
  const std::string& Failure() const { return failure_; }
  /// Line of the last item, from 1.
  int Line() const { return itemLine_; }

 private:
  int Peek() const { return buffer_->sgetc(); }
  int Take();
  void TakeLineEnd();
  void SkipBlanks();
  std::string Unquoted();
  std::string Quoted();
  std::string NumberToken();

  std::streambuf* buffer_;
  int line_ = 1;      ///< where the next character stands
  int itemLine_ = 1;  ///< where the last item began
  int rowLine_ = 0;   ///< where the first number since the last text or row stands; 0 without one
  std::string failure_;
};

/// The whole text as a finite number with the exponent after e, E, d or D; nothing for anything else.
std::optional<double> NumberOfItem(std::string_view text);

/// Opens a regular file for reading.
/// @return empty, or in one sentence why not: a directory, a device or a text in UTF-16 is not read.
std::string OpenInput(std::ifstream& file, const std::string& path);

}  // namespace lumivex
