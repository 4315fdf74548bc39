/// Fuzzes what takes texts apart: numbers, lines of scripts and configurations.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "files/settings/ini_text.h"
#include "fuzz/require.h"
#include "materials/files/import_text.h"
#include "materials/files/readable_text.h"
#include "record/number_text.h"
#include "scripts/script_line.h"

namespace {

using namespace lumivex;

constexpr std::string_view patterns[] = {"Scientific", "#,##0.####", "###,##0.#######", "#0.##", "0.00", "0"};

/// A text is read as a finite number or as 0, and a number survives its way through text.
void CheckNumbers(std::string_view text) {
  const double value = Val(text);
  Require(std::isfinite(value));
  if (IsNumber(text)) Require(Val(Trim(text)) == value);
  Require(Val(Shortest(value)) == value);
  Require(Val(Exact(value)) == value);
  for (const auto pattern : patterns) Require(!Format(value, pattern).empty());
  // The largest number of all is rounded up, beyond what is a number.
  if (std::abs(value) < 1e308) {
    Require(IsNumber(Str(value)));
    for (const int digits : {1, 7, 15}) Require(IsNumber(Significant(value, digits)));
  }
  Require(std::abs(ToWhole(value) - std::clamp(value, -2147483648.0, 2147483647.0)) <= 0.5);
}

/// A pattern may be anything too.
void CheckPattern(std::string_view pattern) {
  for (const double value : {0.0, -0.5, 999.9996, 1e22, -1e-300}) Format(value, pattern);
}

/// Words and comment of a line are parts of it, in their order.
void CheckLine(std::string_view line) {
  const std::string_view command = WithoutComment(line);
  Require(line.starts_with(command));
  std::string_view rest = command;
  while (!Trim(rest).empty()) {
    const std::size_t before = rest.size();
    const std::string word = TakeWord(rest);
    Require(!word.empty() && rest.size() < before && command.find(word) != std::string_view::npos);
  }
  Require(PathIn(line).size() <= line.size());
}

/// A quote is short and can be printed; its quote is itself.
void CheckQuote(std::string_view text) {
  const std::string quote = Readable(text);
  Require(quote.size() <= std::size_t{4} * 40 && Readable(quote) == quote);
  Require(std::ranges::none_of(quote, [](unsigned char c) { return c < 0x20 || c == 0x7F; }));
  for (const auto& cell : CellsOf(text)) NumberOfCell(cell);
}

/// What was read of a configuration is written so that the same is read again.
void CheckIni(std::string_view text) {
  const IniText ini = IniText::Read(text);
  const std::string written = ini.Write();
  Require(IniText::Read(written).Write() == written);
  for (const auto& section : ini.Sections())
    for (const auto& [key, value] : section.values) Require(ini.Value(section.name, key).has_value());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  CheckNumbers(text);
  CheckPattern(text);
  CheckLine(text);
  CheckQuote(text);
  CheckIni(text);
  return 0;
}
