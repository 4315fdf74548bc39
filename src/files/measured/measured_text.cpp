#include "files/measured/measured_text.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "materials/files/readable_text.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::size_t mostBytes = 64'000'000, mostRows = 1'000'000, mostColumns = 1000, linesToLookAt = 5;

bool IsComment(std::string_view line) {
  return line.empty() || line.front() == '#' || line.front() == '%' || line.front() == '!';
}

/// Lines that hold something, with their numbers.
struct NumberedLine {
  int number;
  std::string_view text;
};

std::vector<NumberedLine> LinesOf(std::string_view text) {
  std::vector<NumberedLine> lines;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  for (int number = 1; !text.empty(); ++number) {
    // Old programs end lines with a carriage return alone.
    const auto end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (!IsComment(Trim(line))) lines.push_back({number, line});
    if (end == std::string_view::npos) break;
    const bool both = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (both ? 2 : 1));
  }
  return lines;
}

char SeparatorOf(const std::vector<NumberedLine>& lines) {
  const std::size_t count = std::min(lines.size(), linesToLookAt);
  for (const char separator : {';', '\t', ','})
    for (std::size_t i = 0; i < count; ++i)
      if (Trim(lines[i].text).find(separator) != std::string_view::npos) return separator;
  return ' ';
}

std::vector<std::string> CellsOf(std::string_view line, char separator) {
  std::vector<std::string> cells;
  if (separator == ' ') line = Trim(line);
  std::string cell;
  bool quoted = false;
  const auto close = [&] {
    cells.emplace_back(Trim(cell));
    cell.clear();
  };
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') {
      quoted = !quoted;
      continue;
    }
    const bool parts = !quoted && (separator == ' ' ? c == ' ' || c == '\t' : c == separator);
    if (!parts) {
      cell += c;
      continue;
    }
    close();
    while (separator == ' ' && i + 1 < line.size() && (line[i + 1] == ' ' || line[i + 1] == '\t')) ++i;
  }
  close();
  // Some programs end each line with the separator.
  if (cells.size() > 1 && cells.back().empty()) cells.pop_back();
  return cells;
}

std::optional<double> NumberIn(std::string_view cell, bool commaIsPoint) {
  std::string text(cell);
  if (commaIsPoint) std::ranges::replace(text, ',', '.');
  const bool mark = text.find(',') != std::string::npos;
  if (mark || !IsNumber(text)) return std::nullopt;
  return Val(text);
}

bool HasNumber(const std::vector<std::string>& cells, bool commaIsPoint) {
  return std::ranges::any_of(cells, [&](const std::string& cell) { return NumberIn(cell, commaIsPoint).has_value(); });
}

ColumnText Refused(std::string why) {
  ColumnText refused;
  refused.failure = std::move(why);
  return refused;
}

void SortByX(MeasuredPoints& points) {
  std::vector<std::size_t> order(points.x.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return points.x[i]; });
  for (std::vector<double>* list : {&points.x, &points.y, &points.error}) {
    if (list->empty()) continue;
    std::vector<double> sorted;
    for (const std::size_t i : order) sorted.push_back((*list)[i]);
    *list = std::move(sorted);
  }
}

}  // namespace

ColumnText ReadColumns(std::string_view text) {
  if (text.size() > mostBytes) return Refused("It is longer than 64 MB.");
  if (text.find('\0') != std::string_view::npos) return Refused("It is no text.");
  const auto lines = LinesOf(text);
  if (lines.empty()) return Refused("There is no line with data in it.");
  ColumnText columns;
  const char separator = SeparatorOf(lines);
  columns.commaIsPoint = separator == ';' || separator == '\t';
  std::size_t most = 0;
  for (const NumberedLine& line : lines) {
    std::vector<std::string> cells = CellsOf(line.text, separator);
    if (columns.firstLines.size() < linesToLookAt) columns.firstLines.push_back(Readable(line.text));
    if (cells.size() > mostColumns)
      return Refused("Line " + std::to_string(line.number) + " has more than " + std::to_string(mostColumns) +
                     " columns.");
    if (columns.rows.empty() && columns.names.empty() && !HasNumber(cells, columns.commaIsPoint)) {
      for (const std::string& cell : cells) columns.names.push_back(Readable(cell));
      continue;
    }
    most = std::max(most, cells.size());
    columns.rows.push_back({line.number, std::move(cells)});
    if (columns.rows.size() > mostRows)
      return Refused("It has more than " + std::to_string(mostRows) + " lines of data.");
  }
  const auto hasNumber = [&](const ColumnText::Row& row) { return HasNumber(row.cells, columns.commaIsPoint); };
  if (std::ranges::none_of(columns.rows, hasNumber)) return Refused("There is no line with a number in it.");
  if (most < 2) return Refused("There is only one column: a horizontal axis and values are needed.");
  for (std::size_t i = columns.names.size(); i < most; ++i) columns.names.push_back(std::to_string(i + 1));
  return columns;
}

ReadPoints PointsFrom(const ColumnText& text, int x, int y, int error) {
  MeasuredPoints points;
  ReadPoints read;
  for (const ColumnText::Row& row : text.rows) {
    std::string fault;
    const auto value = [&](int column) {
      const auto at = static_cast<std::size_t>(column);
      const std::string_view cell = at < row.cells.size() ? std::string_view(row.cells[at]) : std::string_view();
      const auto number = NumberIn(cell, text.commaIsPoint);
      if (!number && fault.empty())
        fault = cell.empty() ? "column " + std::to_string(column + 1) + " is empty"
                             : "\"" + Readable(cell) + "\" in column " + std::to_string(column + 1) + " is no number";
      return number.value_or(0);
    };
    const double px = value(x), py = value(y), pe = error < 0 ? 1 : value(error);
    if (fault.empty() && !(pe > 0)) fault = "an error has to be above 0";
    if (!fault.empty()) {
      read.faults.push_back("line " + std::to_string(row.line) + ": " + fault);
      continue;
    }
    points.x.push_back(px);
    points.y.push_back(py);
    if (error >= 0) points.error.push_back(pe);
  }
  SortByX(points);
  read.points = std::make_shared<const MeasuredPoints>(std::move(points));
  return read;
}

}  // namespace lumivex
