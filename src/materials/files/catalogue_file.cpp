#include "materials/files/catalogue_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "materials/files/index_file.h"
#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

constexpr const char* marker = "Lumivex: Coefficients for Sellmeier equation";
constexpr const char* warning = "**** Machine-generated file: do NOT edit";
constexpr int oldestRefused = 3999;

std::string AsSingle(const std::string& text) {
  const double number = NumberOfItem(text).value_or(0);
  constexpr double largest = std::numeric_limits<float>::max();
  const float single = static_cast<float>(std::clamp(number, -largest, largest));
  std::array<char, 32> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), single);
  return {buffer.data(), end};
}

/// A name as one item: quoted where a comma or a quote would end it.
std::string AsItem(std::string name) {
  for (char& c : name)
    if (c == '\n' || c == '\r') c = ' ';
  if (name.find_first_of(",\"") == std::string::npos) return name;
  std::ranges::replace(name, '"', '\'');
  return '"' + name + '"';
}

}  // namespace

Catalogue ReadCatalogueFile(std::istream& stream) {
  InputItems items(stream);
  if (items.TextIfAny() != marker) return {{}, "Line 1: this is no catalogue"};
  items.Skip(1);
  if (!(items.Number() > oldestRefused)) items.Fail("the version must be above 3999");
  const int count = items.Whole(0, mostTableRows);
  Catalogue catalogue;
  for (int i = 0; i < count && !items.Failed(); ++i) {
    CatalogueEntry entry;
    items.Skip(1);
    entry.name = items.Text();
    entry.name.erase(0, std::min(entry.name.find_first_not_of(" \t"), entry.name.size()));
    entry.name.erase(entry.name.find_last_not_of(" \t") + 1);
    for (auto& number : entry.numbers) {
      number = items.Text();
      if (!NumberOfItem(number)) items.Fail("\"" + Readable(number) + "\" is not a number");
    }
    catalogue.entries.push_back(std::move(entry));
  }
  items.EndData();
  if (items.Failed()) return {{}, items.Failure()};
  return catalogue;
}

std::string CatalogueText(const std::vector<CatalogueEntry>& entries) {
  std::string text = std::string(marker) + "\n" + warning + "\n4000\n " + std::to_string(entries.size()) + "\n\n";
  for (const auto& entry : entries) {
    text += AsItem(entry.name) + "\n";
    for (const auto& number : entry.numbers) text += AsSingle(number) + "\n";
    text += "\n";
  }
  return text;
}

}  // namespace lumivex
