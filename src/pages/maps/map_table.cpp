#include "pages/maps/map_table.h"

#include <array>
#include <charconv>
#include <cmath>

#include "pages/maps/map_cells.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::array<std::string_view, 3> channelNames = {"red", "green", "blue"};

/// Digits that tell samples of any axis apart and leave out what comes of its arithmetic.
constexpr int digitsOfSide = 10;

std::string SideName(const MapSide& side) {
  return side.unit.empty() ? side.name : side.name + " (" + side.unit + ")";
}

/// The shortest text that reads back as the same number in single precision.
std::string SingleText(double value) {
  if (!std::isfinite(value)) return "";
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(value));
  return {text.data(), end.ptr};
}

bool OfSpectrum(const PageMap& map) {
  return !map.pictures.empty() && PictureCells(*map.values, 0).OfSpectrum();
}

}  // namespace

std::size_t MapTableCount(const PageMap& map) {
  return map.pictures.size() * (OfSpectrum(map) ? channelNames.size() : 1);
}

MapTable MapTableOf(const PageMap& map, std::size_t number) {
  const bool spectrum = OfSpectrum(map);
  const std::size_t picture = spectrum ? number / channelNames.size() : number;
  const std::size_t channel = spectrum ? number % channelNames.size() : 0;
  const MapFound& values = *map.values;
  const PictureCells cells(values, picture);
  MapTable table;
  table.name = map.pictures[picture].name;
  if (spectrum) table.name += ": " + std::string(channelNames[channel]);
  const int rows = map.up.samples.count;
  TableColumn side{SideName(map.up) + " \\ " + SideName(map.across), {}};
  for (int row = 0; row < rows; ++row) side.cells.push_back(Significant(map.up.samples.At(row), digitsOfSide));
  table.columns.push_back(std::move(side));
  for (int column = 0; column < values.done; ++column) {
    TableColumn made{Significant(map.across.samples.At(column), digitsOfSide), {}};
    made.cells.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
      const std::size_t cell = values.At(column, map.lowest + row);
      made.cells.push_back(SingleText(spectrum ? cells.Channels(cell)[channel] : cells.Value(cell)));
    }
    table.columns.push_back(std::move(made));
  }
  return table;
}

}  // namespace lumivex
