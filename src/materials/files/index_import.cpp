#include "materials/files/index_import.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "materials/files/input_items.h"
#include "materials/index/dispersion_formulas.h"

namespace lumivex {

namespace {

constexpr int formulaSteps = 1000;
constexpr std::size_t longestLine = 65536;

/// One quantity by wavelength (um).
struct Curve {
  std::vector<std::pair<double, double>> points;

  void Add(double lambda, double value) { points.emplace_back(lambda, value); }

  void Settle() {
    std::ranges::stable_sort(points, {}, &std::pair<double, double>::first);
    const auto same = [](const auto& a, const auto& b) { return a.first == b.first; };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
  }

  /// Straight between the points, 0 outside.
  double At(double lambda) const {
    const auto above = std::ranges::lower_bound(points, lambda, {}, &std::pair<double, double>::first);
    if (above == points.end()) return 0;
    if (above->first == lambda) return above->second;
    if (above == points.begin()) return 0;
    const auto below = above - 1;
    const double t = (lambda - below->first) / (above->first - below->first);
    return below->second + t * (above->second - below->second);
  }
};

IndexFileResult DataFault(std::string detail) {
  return {IndexFileFault::Data, std::move(detail), {}};
}

/// A line without its end and the blanks before it; what passes the longest line is dropped.
bool ReadLine(std::istream& stream, std::string& line) {
  constexpr int endOfFile = std::char_traits<char>::eof();
  std::streambuf& buffer = *stream.rdbuf();
  line.clear();
  int c = buffer.sbumpc();
  if (c == endOfFile) return false;
  for (; c != endOfFile && c != '\n'; c = buffer.sbumpc())
    if (line.size() < longestLine) line += static_cast<char>(c);
  if (line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ' || line.back() == '\t')) line.pop_back();
  return true;
}

/// The parts of a line between separators; headings may hold blanks where their line has other separators.
std::vector<std::string> Fields(std::string_view line, std::string_view separators = ",; \t\"") {
  std::vector<std::string> fields;
  std::string field;
  const auto end = [&] {
    if (!field.empty()) fields.push_back(std::exchange(field, {}));
  };
  for (const char c : line) {
    if (separators.find(c) != std::string_view::npos)
      end();
    else
      field += c;
  }
  end();
  return fields;
}

std::optional<std::vector<double>> Numbers(std::string_view line) {
  std::vector<double> numbers;
  for (const auto& field : Fields(line)) {
    const auto number = NumberOfItem(field);
    if (!number) return std::nullopt;
    numbers.push_back(*number);
  }
  if (numbers.empty()) return std::nullopt;
  return numbers;
}

/// n and k on the wavelengths of n.
IndexFileResult Join(Curve n, Curve k) {
  n.Settle();
  k.Settle();
  if (n.points.empty()) return DataFault("There is no refractive index in this file");
  if (n.points.size() > static_cast<std::size_t>(mostTableRows))
    return DataFault("There are more than " + std::to_string(mostTableRows) + " rows in this file");
  IndexFileResult result;
  for (const auto& [lambda, value] : n.points)
    result.table.Add(static_cast<float>(lambda), static_cast<float>(value), static_cast<float>(k.At(lambda)));
  return result;
}

bool Usable(double lambda, double value) {
  return lambda > 0 && lambda < 1e30 && std::abs(value) < 1e30;
}

std::string Lower(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

/// What the columns of a CSV hold.
struct CsvColumns {
  double factor = 1;
  std::size_t n = 1, k = 2;
  bool hasN = true, hasK = true;

  void ReadHeading(const std::string& line) {
    if (Lower(line).find("nm") != std::string::npos) factor = 0.001;
    const bool parted = line.find_first_of(",;\t") != std::string::npos;
    const auto fields = Fields(Lower(line), parted ? ",;\t\"" : " \"");
    const auto place = [&](const char* name) { return std::ranges::find(fields, name) - fields.begin(); };
    const auto count = static_cast<std::ptrdiff_t>(fields.size());
    if (place("n") == count && place("k") == count) return;
    hasN = place("n") < count;
    hasK = place("k") < count;
    n = static_cast<std::size_t>(place("n"));
    k = static_cast<std::size_t>(place("k"));
  }
};

/// The blocks of a YAML index file as they are met.
struct YamlReader {
  Curve n, k;
  std::string type;
  double low = 0, high = 0;
  std::string failure;

  static std::string After(const std::string& line, std::string_view key) {
    const auto at = line.find(key);
    return at == std::string::npos ? "" : line.substr(at + key.size());
  }

  void Row(const std::vector<double>& row, int lineNumber) {
    const bool both = type == "tabulated nk", onlyK = type == "tabulated k";
    if (row.size() < (both ? 3U : 2U) || !Usable(row[0], row[1])) {
      failure = "Line " + std::to_string(lineNumber) + ": a wavelength and its index are needed";
      return;
    }
    if (onlyK)
      k.Add(row[0], row[1]);
    else
      n.Add(row[0], row[1]);
    if (both) k.Add(row[0], row[2]);
  }

  void Formula(const std::vector<double>& coefficients, int lineNumber) {
    const int number = type.size() > 8 ? type[8] - '0' : 0;
    if (!(low > 0 && high > low && high < 1e30) || number < 1 || number > 9) {
      failure = "Line " + std::to_string(lineNumber) + ": a known formula and its range of wavelengths are needed";
      return;
    }
    for (int i = 0; i <= formulaSteps; ++i) {
      const double lambda =
          i == formulaSteps ? high : low * std::pow(high / low, static_cast<double>(i) / formulaSteps);
      const double index = DispersionFormula(number, coefficients, lambda);
      if (std::isfinite(index)) n.Add(lambda, index);
    }
  }

  void Line(const std::string& line, int lineNumber) {
    if (line.find("type:") != std::string::npos) {
      type = line.substr(line.find("type:") + 5);
      type.erase(0, type.find_first_not_of(" \"'"));
      while (!type.empty() && (type.back() == '"' || type.back() == '\'')) type.pop_back();
      low = high = 0;
    } else if (line.find("range:") != std::string::npos) {
      const auto range = Numbers(After(line, "range:"));
      if (range && range->size() == 2) std::tie(low, high) = std::pair((*range)[0], (*range)[1]);
    } else if (line.find("coefficients:") != std::string::npos && type.starts_with("formula")) {
      if (const auto coefficients = Numbers(After(line, "coefficients:"))) Formula(*coefficients, lineNumber);
    } else if (type.starts_with("tabulated")) {
      if (const auto row = Numbers(line)) Row(*row, lineNumber);
    }
  }
};

}  // namespace

IndexFileResult ReadIndexCsv(std::istream& stream) {
  Curve n, k;
  CsvColumns columns;
  int lineNumber = 0;
  for (std::string line; ReadLine(stream, line);) {
    ++lineNumber;
    if (line.empty() || line.front() == '#') continue;
    const auto row = Numbers(line);
    if (!row) {
      columns.ReadHeading(line);
      continue;
    }
    const double lambda = row->front() * columns.factor;
    const auto value = [&](bool has, std::size_t column) {
      return has && column < row->size() ? std::optional((*row)[column]) : std::nullopt;
    };
    const auto index = value(columns.hasN, columns.n), absorption = value(columns.hasK, columns.k);
    if ((!index && !absorption) || !Usable(lambda, index.value_or(0)) || !Usable(lambda, absorption.value_or(0)))
      return DataFault("Line " + std::to_string(lineNumber) + ": a wavelength and its index are needed");
    if (index) n.Add(lambda, *index);
    if (absorption) k.Add(lambda, *absorption);
    if (n.points.size() + k.points.size() > 2 * static_cast<std::size_t>(mostTableRows)) break;
  }
  return Join(std::move(n), std::move(k));
}

IndexFileResult ReadIndexYaml(std::istream& stream) {
  YamlReader reader;
  int lineNumber = 0;
  for (std::string line; ReadLine(stream, line) && reader.failure.empty();) {
    ++lineNumber;
    reader.Line(line, lineNumber);
    if (reader.n.points.size() + reader.k.points.size() > 4 * static_cast<std::size_t>(mostTableRows)) break;
  }
  if (!reader.failure.empty()) return DataFault(reader.failure);
  return Join(std::move(reader.n), std::move(reader.k));
}

}  // namespace lumivex
