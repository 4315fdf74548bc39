#include "materials/files/import_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "materials/files/input_items.h"

namespace lumivex {

namespace {

constexpr std::size_t longestLine = 65536;
constexpr std::string_view blanks = " \t";

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  for (line = Trimmed(line); !line.empty(); line = Trimmed(line)) {
    words.push_back(line.substr(0, line.find_first_of(blanks)));
    line.remove_prefix(words.back().size());
  }
  return words;
}

/// Whether a line is made of numbers between blanks of which some have a decimal comma and none a point.
bool HasDecimalCommas(std::string_view line) {
  const auto words = Words(line);
  const auto whole = [](std::string_view word) { return NumberOfItem(word) && word.find('.') == word.npos; };
  const auto decimal = [](std::string_view word) {
    const auto comma = word.find(',');
    return comma != word.npos && comma > 0 && comma + 1 < word.size() && word.find('.') == word.npos &&
           NumberOfCell(word).has_value();
  };
  return words.size() > 1 && std::ranges::any_of(words, decimal) &&
         std::ranges::all_of(words, [&](std::string_view word) { return whole(word) || decimal(word); });
}

/// The character that parts the cells of a line; a blank stands for any number of them.
char SeparatorOf(std::string_view line) {
  for (const char separator : {';', '\t'})
    if (line.find(separator) != line.npos) return separator;
  return line.find(',') != line.npos && !HasDecimalCommas(line) ? ',' : ' ';
}

std::string WithoutQuotes(std::string_view cell) {
  cell = Trimmed(cell);
  if (cell.size() > 1 && cell.front() == '"' && cell.back() == '"') cell = Trimmed(cell.substr(1, cell.size() - 2));
  return std::string(cell);
}

}  // namespace

bool ImportLines::Next(std::string& line) {
  constexpr int endOfFile = std::char_traits<char>::eof();
  line.clear();
  cut_ = false;
  int c = buffer_->sbumpc();
  if (c == endOfFile) return false;
  for (; c != endOfFile && c != '\n' && c != '\r'; c = buffer_->sbumpc()) {
    if (line.size() < longestLine)
      line += static_cast<char>(c);
    else
      cut_ = true;
  }
  if (c == '\r' && buffer_->sgetc() == '\n') buffer_->sbumpc();
  if (number_++ == 0 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
  // A tab at the end of a line is an empty cell.
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return true;
}

std::vector<std::string> CellsOf(std::string_view line) {
  std::vector<std::string> cells;
  const char separator = SeparatorOf(line);
  if (separator == ' ') {
    for (const auto word : Words(line)) cells.push_back(WithoutQuotes(word));
    return cells;
  }
  std::size_t begin = 0;
  bool quoted = false;
  for (std::size_t i = 0; i <= line.size(); ++i) {
    if (i < line.size() && line[i] == '"') quoted = !quoted;
    if (i < line.size() && (quoted || line[i] != separator)) continue;
    cells.push_back(WithoutQuotes(line.substr(begin, i - begin)));
    begin = i + 1;
  }
  return cells;
}

std::optional<double> NumberOfCell(std::string_view cell) {
  const auto comma = cell.find(',');
  if (comma == cell.npos || cell.find('.') != cell.npos) return NumberOfItem(cell);
  std::string pointed(cell);
  pointed[comma] = '.';
  return NumberOfItem(pointed);
}

bool BeginsAsNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\"+-.,"), text.size()));
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

bool ImportedCurves::Add(double lambda, std::optional<double> n, std::optional<double> k) {
  constexpr double largest = 1e30;
  const auto usable = [](std::optional<double> value) { return !value || std::abs(*value) < largest; };
  if (!(lambda > 0 && lambda < largest) || !usable(n) || !usable(k)) return false;
  if (n) n_.emplace_back(lambda, *n);
  if (k) k_.emplace_back(lambda, *k);
  return true;
}

bool ImportedCurves::Full() const {
  constexpr std::size_t most = 2 * static_cast<std::size_t>(mostTableRows);
  return n_.size() > most || k_.size() > most;
}

ImportedCurves::Points ImportedCurves::Settled(Points points) {
  std::ranges::stable_sort(points, {}, &Points::value_type::first);
  const auto same = [](const auto& a, const auto& b) { return a.first == b.first; };
  points.erase(std::unique(points.begin(), points.end(), same), points.end());
  return points;
}

double ImportedCurves::At(const Points& points, double lambda) {
  const auto above = std::ranges::lower_bound(points, lambda, {}, &Points::value_type::first);
  if (above == points.end()) return 0;
  if (above->first == lambda) return above->second;
  if (above == points.begin()) return 0;
  const auto below = above - 1;
  const double t = (lambda - below->first) / (above->first - below->first);
  return below->second + t * (above->second - below->second);
}

IndexFileResult ImportedCurves::Table() const {
  const Points n = Settled(n_), k = Settled(k_);
  if (n.empty()) return {IndexFileFault::Data, "There is no refractive index in this file", {}};
  if (n.size() > static_cast<std::size_t>(mostTableRows))
    return {IndexFileFault::Data, "There are more than " + std::to_string(mostTableRows) + " rows in this file", {}};
  IndexFileResult result;
  for (const auto& [lambda, value] : n)
    result.table.Add(static_cast<float>(lambda), static_cast<float>(value), static_cast<float>(At(k, lambda)));
  result.table.endRow = result.table.count;
  return result;
}

IndexFileResult ImportFault(int line, std::string_view what) {
  return {IndexFileFault::Data, "Line " + std::to_string(line) + ": " + std::string(what), {}};
}

}  // namespace lumivex
