#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumivex {

/// A text as a JSON string, with its quotes. Bytes that are no UTF-8 become the sign for an unreadable character.
std::string JsonString(std::string_view text);

/// A text as a JSON value: true and false, a number where it is written as one (with all of its digits), null for a
/// number that is none ("nan", "inf"), otherwise a string.
std::string JsonValue(std::string_view text);

/// What a script prints: lines for people, or a JSON object a line for other programs (docs/json-lines.md).
class ScriptPrinter {
 public:
  explicit ScriptPrinter(std::ostream& output) : output_(output) {}

  void UseJson() { json_ = true; }
  /// The line of the script that is carried out, from 1, and its command.
  void Begin(int line, std::string_view command);

  /// A value by its name.
  void Value(std::string_view name, std::string_view value);
  /// A table as CSV, its first row the names of the columns; of a map several, each after a line "# name".
  void Table(std::string_view csv);
  /// Rows of numbers as CSV, of an array.
  void Array(std::string_view name, std::string_view csv);
  /// Lines of words.
  void Lines(std::string_view text);
  /// Titles and texts.
  void Messages(const std::vector<std::pair<std::string, std::string>>& messages);
  /// Why the script ends at this line. People find it on standard error alone.
  void Failure(std::string_view what);

 private:
  /// The beginning of an object, up to its first own member.
  void Open();

  std::ostream& output_;
  bool json_ = false;
  int line_ = 0;
  std::string command_;
};

}  // namespace lumivex
