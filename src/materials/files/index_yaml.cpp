#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "materials/files/import_text.h"
#include "materials/files/index_import.h"
#include "materials/files/readable_text.h"
#include "materials/index/dispersion_formulas.h"

namespace lumivex {

namespace {

constexpr int formulaSteps = 1000;

/// Text without blanks and quotes around it.
std::string_view Bare(std::string_view text) {
  constexpr std::string_view around = " \t\"'";
  const auto first = text.find_first_not_of(around);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(around) - first + 1);
}

/// All cells as numbers; nothing where one is none.
std::optional<std::vector<double>> Numbers(std::string_view line) {
  std::vector<double> numbers;
  for (const auto& cell : CellsOf(Bare(line))) {
    const auto number = NumberOfCell(cell);
    if (!number) return std::nullopt;
    numbers.push_back(*number);
  }
  return numbers;
}

std::string Short(double value) {
  constexpr int digits = 6;
  std::array<char, 32> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, digits);
  return {buffer.data(), end};
}

/// A line of the file as "key: value"; the dash of a list belongs to neither.
struct KeyValue {
  std::string_view key, value;
};

std::optional<KeyValue> ReadKey(std::string_view line) {
  const auto colon = line.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::string_view key = Bare(line.substr(0, colon));
  if (key.starts_with("- ")) key = Bare(key.substr(2));
  return KeyValue{key, Bare(line.substr(colon + 1))};
}

/// The blocks of the file as they are met.
class YamlReader {
 public:
  /// @return empty, or what is wrong with the line.
  std::string Take(std::string_view line) {
    line = Bare(line);
    if (line.empty() || line.starts_with('#')) return {};
    const auto key = ReadKey(line);
    if (inTable_ && (!key || BeginsAsNumber(line))) return Row(line);
    if (!key) return {};
    inTable_ = false;
    if (key->key == "type") return Type(key->value);
    if (key->key == "wavelength_range" || key->key == "range") return Range(key->value);
    if (key->key == "coefficients" && formula_ > 0) return Formula(key->value);
    if (key->key == "data" && formula_ == 0 && !type_.empty()) {
      inTable_ = true;
      // A first row may stand behind the key; '|' announces rows to come.
      if (BeginsAsNumber(key->value)) return Row(key->value);
    }
    return {};
  }

  const ImportedCurves& Curves() const { return curves_; }

 private:
  std::string Type(std::string_view type) {
    type_ = type;
    formula_ = 0;
    low_ = high_ = 0;
    if (type_ == "tabulated nk" || type_ == "tabulated n" || type_ == "tabulated k") return {};
    constexpr std::string_view word = "formula ";
    if (type.starts_with(word)) {
      type.remove_prefix(word.size());
      const auto [end, error] = std::from_chars(type.data(), type.data() + type.size(), formula_);
      const bool known = error == std::errc{} && end == type.data() + type.size() && formula_ >= 1 && formula_ <= 9;
      if (known) return {};
    }
    return "\"" + Readable(type_) + "\" is not a known kind of data";
  }

  std::string Range(std::string_view value) {
    const auto range = Numbers(value);
    if (!range || range->size() != 2) return "a range is two wavelengths";
    low_ = (*range)[0];
    high_ = (*range)[1];
    return {};
  }

  std::string Row(std::string_view line) {
    const bool both = type_ == "tabulated nk", onlyK = type_ == "tabulated k";
    const auto row = Numbers(line);
    if (!row) return "\"" + Readable(line) + "\" is not a row of numbers";
    if (row->size() != (both ? 3U : 2U)) return std::string("a row has ") + (both ? "3" : "2") + " numbers here";
    const double lambda = (*row)[0], first = (*row)[1];
    const bool good = both    ? curves_.Add(lambda, first, (*row)[2])
                      : onlyK ? curves_.Add(lambda, std::nullopt, first)
                              : curves_.Add(lambda, first, std::nullopt);
    return good ? "" : "a wavelength and its index are needed";
  }

  std::string Formula(std::string_view value) {
    const auto coefficients = Numbers(value);
    if (!coefficients || coefficients->empty()) return "the coefficients of a formula are numbers";
    if (!(low_ > 0 && high_ > low_ && high_ < 1e30)) return "a formula needs its range of wavelengths";
    for (int i = 0; i <= formulaSteps; ++i) {
      const double lambda =
          i == formulaSteps ? high_ : low_ * std::pow(high_ / low_, static_cast<double>(i) / formulaSteps);
      const double index = DispersionFormula(formula_, *coefficients, lambda);
      // A table with gaps would be read straight across them.
      if (!std::isfinite(index) || !curves_.Add(lambda, index, std::nullopt))
        return "the formula gives no index at " + Short(lambda) + " um";
    }
    return {};
  }

  ImportedCurves curves_;
  std::string type_;
  int formula_ = 0;  ///< its number; 0 in a table
  double low_ = 0, high_ = 0;
  bool inTable_ = false;
};

}  // namespace

IndexFileResult ReadIndexYaml(std::istream& stream) {
  return ReadImport<YamlReader>(stream);
}

}  // namespace lumivex
