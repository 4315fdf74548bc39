#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "materials/files/import_text.h"
#include "materials/files/index_import.h"
#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

/// A unit of the first column: a length in micrometres, or what a length of one micrometre is in it.
struct SpectralUnit {
  std::string_view word;
  double micrometres;
  bool inverse = false;
};
constexpr double electronVolt = 1.239841984;  ///< h c / e (eV um)
constexpr SpectralUnit units[] = {
    {"angstrom", 1e-4},
    {"angstroms", 1e-4},
    {"\u00E5", 1e-4},
    {"\u00C5", 1e-4},
    {"\u212B", 1e-4},
    {"\xC5", 1e-4},  // as Latin-1 writes it
    {"\u00E5ngstr\u00F6m", 1e-4},
    {"\u00C5ngstr\u00F6m", 1e-4},
    {"nm", 1e-3},
    {"nanometer", 1e-3},
    {"nanometers", 1e-3},
    {"nanometre", 1e-3},
    {"nanometres", 1e-3},
    {"um", 1},
    {"\u00B5m", 1},
    {"\u03BCm", 1},
    {"\xB5m", 1},
    {"micrometer", 1},
    {"micrometers", 1},
    {"micrometre", 1},
    {"micrometres", 1},
    {"micron", 1},
    {"microns", 1},
    {"mm", 1e3},
    {"m", 1e6},
    {"ev", electronVolt, true},
    {"cm-1", 1e4, true},
};
constexpr std::string_view spectralWords[] = {"wavelength", "wavelengths", "lambda",     "\u03BB",      "\u039B",
                                              "wl",         "energy",      "wavenumber", "wavenumbers", "frequency"};
/// Of these no unit is understood by itself.
constexpr std::string_view wordsThatNeedUnit[] = {"energy", "wavenumber", "wavenumbers", "frequency"};
/// What may stand where the unit does without being one.
constexpr std::string_view remarksBesideUnit[] = {"in", "vacuum", "vac", "air"};
/// Units that no column is read in, told apart from other words.
constexpr std::string_view foreignUnits[] = {"fm",  "pm",  "cm",  "km",  "hz",   "khz", "mhz",
                                             "ghz", "thz", "mev", "kev", "nm-1", "um-1"};
/// How the columns of an index are called in words. A name of k may hold one of n: "imaginary refractive index".
constexpr std::string_view wordsOfN[] = {"index", "refractive", "ri", "nr"};
constexpr std::string_view wordsOfK[] = {"extinction", "kappa", "imaginary", "imag", "im", "ki"};
constexpr std::string_view writingsOfPerCm[] = {"cm^-1", "cm^{-1}", "cm\u207B\u00B9", "1/cm"};

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

/// A heading in small letters, with "cm-1" for all its writings.
std::string Plain(std::string_view heading) {
  std::string text = Lower(heading);
  for (const auto writing : writingsOfPerCm)
    if (const auto at = text.find(writing); at != std::string::npos) text.replace(at, writing.size(), "cm-1");
  return text;
}

/// The words of a heading: "Wavelength (cm^-1)" has two, "wavelength" and "cm-1".
std::vector<std::string> WordsOf(std::string_view heading) {
  const std::string text = Plain(heading);
  std::vector<std::string> words(1);
  for (const char c : text) {
    if (std::string_view(" \t()[]{}/_:=,'*").find(c) == std::string_view::npos)
      words.back() += c;
    else if (!words.back().empty())
      words.emplace_back();
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

const SpectralUnit* FindUnit(std::string_view word) {
  const auto* unit = std::ranges::find(units, word, &SpectralUnit::word);
  return unit == std::end(units) ? nullptr : unit;
}

template <std::size_t count>
bool IsOneOf(const std::string_view (&words)[count], std::string_view word) {
  return std::ranges::find(words, word) != std::end(words);
}

bool IsSpectral(const std::string& word) {
  return FindUnit(word) != nullptr || IsOneOf(spectralWords, word);
}

/// What stands in brackets or behind a slash: the places of a unit.
std::string PlacesOfUnit(std::string_view heading) {
  std::string inside;
  char until = 0;
  for (const char c : Plain(heading)) {
    const auto bracket = std::string_view("([{/").find(c);
    if (until != 0 && c == until) {
      until = 0;
      inside += ' ';
    } else if (until != 0) {
      inside += c;
    } else if (bracket != std::string_view::npos) {
      until = ")]} "[bracket];
    }
  }
  return inside;
}

enum class CellKind { Spectral, N, K, Other };

/// A column of wavelengths is headed by the word itself, or by the unit.
CellKind KindOf(const std::vector<std::string>& words) {
  const auto has = [&words](std::string_view word) { return std::ranges::find(words, word) != words.end(); };
  if (has("n") != has("k")) return has("n") ? CellKind::N : CellKind::K;
  return !words.empty() && IsSpectral(words.front()) ? CellKind::Spectral : CellKind::Other;
}

/// The headings of a line, cell by cell.
struct Headings {
  std::vector<std::string> texts;
  std::vector<std::vector<std::string>> words;
  std::vector<CellKind> kinds;

  explicit Headings(const std::vector<std::string>& cells) {
    for (const auto& cell : cells) {
      auto ofCell = WordsOf(cell);
      // "wavelength (um) n k": the unit is no column of its own.
      if (!words.empty() && cell.starts_with('(')) {
        words.back().insert(words.back().end(), ofCell.begin(), ofCell.end());
        texts.back() += ' ' + cell;
        continue;
      }
      kinds.push_back(KindOf(ofCell));
      words.push_back(std::move(ofCell));
      texts.push_back(cell);
    }
  }

  std::optional<std::size_t> Place(CellKind kind) const {
    const auto found = std::ranges::find(kinds, kind);
    return found == kinds.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - kinds.begin()));
  }

  /// The column of wavelengths: the one headed so, else one that speaks of them ("Photon energy"), else the first that
  /// is neither n nor k.
  std::size_t Lambda() const {
    if (const auto headed = Place(CellKind::Spectral)) return *headed;
    for (std::size_t i = 0; i < words.size(); ++i)
      if (kinds[i] == CellKind::Other && std::ranges::any_of(words[i], IsSpectral)) return i;
    return Place(CellKind::Other).value_or(0);
  }

  const SpectralUnit* UnitOf(std::size_t column) const {
    for (const auto& word : words[column])
      if (const auto* unit = FindUnit(word)) return unit;
    // One letter alone is a name, and within a sentence an article; in brackets or behind the name it is the unit.
    const auto inside = WordsOf(PlacesOfUnit(texts[column]));
    const bool letter = words[column].size() > 1 && words[column].back() == "a";
    return letter || (!inside.empty() && inside.front() == "a") ? FindUnit("angstrom") : nullptr;
  }

  /// Whether a column has a unit that is not known, or lacks one that it needs.
  bool HasStrangeUnit(std::size_t column) const {
    const auto strange = [](const std::string& word) {
      return word != "a" && !IsSpectral(word) && !IsOneOf(remarksBesideUnit, word);
    };
    const auto foreign = [](const std::string& word) { return IsOneOf(foreignUnits, word); };
    const auto needing = [](const std::string& word) { return IsOneOf(wordsThatNeedUnit, word); };
    return std::ranges::any_of(WordsOf(PlacesOfUnit(texts[column])), strange) ||
           std::ranges::any_of(words[column], foreign) ||
           (UnitOf(column) == nullptr && std::ranges::any_of(words[column], needing));
  }

  /// Whether a column that no letter names may be n, or k, by its place: one without a heading may.
  bool MayBeN(std::size_t column) const {
    return words[column].empty() || (!Speaks(column, wordsOfK) && Speaks(column, wordsOfN));
  }
  bool MayBeK(std::size_t column) const { return words[column].empty() || Speaks(column, wordsOfK); }

 private:
  template <std::size_t count>
  bool Speaks(std::size_t column, const std::string_view (&of)[count]) const {
    return std::ranges::any_of(words[column], [&of](const std::string& word) { return IsOneOf(of, word); });
  }
};

/// What the columns hold, by their places.
struct Columns {
  std::size_t count = 0;  ///< cells in a row; 0 as long as no row or heading has told
  std::size_t lambda = 0;
  std::optional<std::size_t> n = 1, k = 2;
  SpectralUnit unit{"um", 1};
  bool named = false;  ///< n or k has a heading
  std::string fault;   ///< why rows below the heading cannot be told apart; a title that looks like one needs no rows

  double Micrometres(double value) const { return unit.inverse ? unit.micrometres / value : value * unit.micrometres; }

  /// Takes the cells of a line as headings if they are: at least one is named n or k, or a wavelength among several.
  /// A line between blanks, and a remark, are a sentence unless every word is a heading.
  bool TakeHeading(const std::vector<std::string>& cells, bool mayBeSentence) {
    const Headings headings(cells);
    const auto forN = headings.Place(CellKind::N), forK = headings.Place(CellKind::K);
    if (headings.kinds.size() < 2 || (mayBeSentence && headings.Place(CellKind::Other))) return false;
    if (!forN && !forK && !headings.Place(CellKind::Spectral)) return false;
    count = headings.kinds.size();
    lambda = headings.Lambda();
    if (const auto* told = headings.UnitOf(lambda)) unit = *told;
    named = forN || forK;
    if (named) {
      n = forN;
      k = forK;
    } else {
      n = lambda == 0 ? 1 : 0;
      k = count > 2 ? std::optional<std::size_t>(lambda == 2 ? 1 : 2) : std::nullopt;
    }
    fault = FaultOf(headings);
    return true;
  }

  std::string FaultOf(const Headings& headings) const {
    const auto quoted = [&headings](std::size_t column) { return '"' + Readable(headings.texts[column]) + '"'; };
    if (headings.HasStrangeUnit(lambda)) return "the unit in the heading " + quoted(lambda) + " is not known";
    if (named) return {};
    if (!headings.MayBeN(*n)) return "the heading " + quoted(*n) + " is neither n nor k";
    if (k && !headings.MayBeK(*k)) return "the heading " + quoted(*k) + " is neither n nor k";
    return {};
  }

  /// @return empty, or why a row of so many cells cannot be told apart.
  std::string Expect(std::size_t cells) {
    if (count == 0) {
      if (cells < 2) return "a wavelength and its index are needed";
      if (cells > 3) return "more than 3 columns need a heading (wavelength, n, k)";
      count = cells;
      if (cells == 2) k.reset();
    }
    if (cells == count) return {};
    return "a row has " + std::to_string(count) + " cells here, not " + std::to_string(cells);
  }
};

class CsvReader {
 public:
  /// @return empty, or what is wrong with the line.
  std::string Take(const std::string& line) {
    const auto start = line.find_first_not_of(" \t,;\"");
    if (start == std::string::npos) return {};  // blank, or a row of empty cells at the end of a sheet
    const bool remark = line[start] == '#';
    const auto cells = CellsOf(remark ? std::string_view(line).substr(start + 1) : line);
    const bool mayBeSentence = remark || line.find_first_of(",;\t") == std::string::npos;
    const bool looksLikeRow = !remark && BeginsAsNumber(std::string_view(line).substr(start));
    if (!looksLikeRow) {
      Columns heading = columns_;
      const bool isHeading = heading.TakeHeading(cells, mayBeSentence) && !(rowsMet_ && remark);
      // Below the first row only a block of k has one: rows of other columns or units would mix with those above.
      if (isHeading && rowsMet_ && !(heading.k && !heading.n)) return "only a block of k may have a heading here";
      if (isHeading) columns_ = heading;
      if (remark || isHeading || !rowsMet_) return {};
    }
    rowsMet_ = true;
    return Row(cells);
  }

  const ImportedCurves& Curves() const { return curves_; }

 private:
  std::string Row(const std::vector<std::string>& cells) {
    if (!columns_.fault.empty()) return columns_.fault;
    if (std::string fault = columns_.Expect(cells.size()); !fault.empty()) return fault;
    std::string fault;
    const auto number = [&](std::optional<std::size_t> column) -> std::optional<double> {
      if (!column || *column >= cells.size()) return std::nullopt;
      const auto value = NumberOfCell(cells[*column]);
      if (!value && fault.empty())
        fault = cells[*column].empty() ? "a cell is empty" : "\"" + Readable(cells[*column]) + "\" is not a number";
      return value;
    };
    const auto lambda = number(columns_.lambda), n = number(columns_.n), k = number(columns_.k);
    if (!fault.empty()) return fault;
    const bool good = lambda && (n || k) && *lambda > 0 && curves_.Add(columns_.Micrometres(*lambda), n, k);
    return good ? "" : "a wavelength and its index are needed";
  }

  ImportedCurves curves_;
  Columns columns_;
  bool rowsMet_ = false;
};

}  // namespace

IndexFileResult ReadIndexCsv(std::istream& stream) {
  return ReadImport<CsvReader>(stream);
}

}  // namespace lumivex
