#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "record/comparison.h"

namespace lumivex {

/// A text of columns, as instruments and spreadsheets write them.
///
/// Columns are parted by semicolons, tabs, commas or, where the first lines have none of these, by blanks. Where
/// semicolons or tabs part them a comma within a number is its decimal mark. Empty lines, and lines that begin with #,
/// % or ! are passed over. A first line without a number names the columns; a cell may stand in quotes.
struct ColumnText {
  struct Row {
    int line = 1;  ///< in the file
    std::vector<std::string> cells;
  };
  std::vector<std::string> names;  ///< of the columns, "1", "2", ... where the text has none
  std::vector<Row> rows;
  bool commaIsPoint = false;
  std::vector<std::string> firstLines;  ///< some lines as they stand, for people to look at
  std::string failure;                  ///< why it is no such text, in one sentence; empty where it is
};
ColumnText ReadColumns(std::string_view text);

/// Two or three columns of it as points, by rising x.
struct ReadPoints {
  std::shared_ptr<const MeasuredPoints> points;
  /// What is wrong with lines that were passed over: "line 17: \"abc\" in column 2 is no number".
  std::vector<std::string> faults;
};
/// @param x, y, error  columns from 0; an error of -1 for none. An error has to be above 0.
ReadPoints PointsFrom(const ColumnText& text, int x, int y, int error);

}  // namespace lumivex
