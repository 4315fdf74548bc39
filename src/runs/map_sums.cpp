#include "runs/map_sums.h"

#include <algorithm>

namespace lumivex {

ColumnSums::ColumnSums(RowWindow window, bool spectrum) : window_(window), spectrum_(spectrum) {
  Begin();
}

void ColumnSums::Begin() {
  const auto rows = static_cast<std::size_t>(window_.high - window_.low + 1), channels = spectrum_ ? rows : 0;
  for (Panel* panel : {&perpendicular_, &parallel_}) {
    panel->first.assign(rows, 0);
    for (auto* list : {&panel->green, &panel->blue, &panel->most}) list->assign(channels, 0);
    panel->strongest.assign(channels, 0);
  }
}

void ColumnSums::Add(const AmplitudeTable& S1, const AmplitudeTable& S2, const Weight& weight, int wavelength) {
  Add(perpendicular_, S1, weight, wavelength);
  Add(parallel_, S2, weight, wavelength);
}

void ColumnSums::Add(Panel& panel, const AmplitudeTable& S, const Weight& weight, int wavelength) const {
  const std::size_t rows = panel.first.size();
  const auto re = S.RealParts().subspan(static_cast<std::size_t>(window_.low), rows);
  const auto im = S.ImaginaryParts().subspan(static_cast<std::size_t>(window_.low), rows);
  for (std::size_t i = 0; i < rows; ++i) {
    const double intensity = weight.intensity * (re[i] * re[i] + im[i] * im[i]);
    panel.first[i] += weight.red * intensity;
    if (!spectrum_) continue;
    panel.green[i] += weight.green * intensity;
    panel.blue[i] += weight.blue * intensity;
    if (intensity <= panel.most[i]) continue;
    panel.most[i] = intensity;
    panel.strongest[i] = static_cast<std::uint16_t>(wavelength);
  }
}

void ColumnSums::Write(MapFound& map, int column) const {
  const auto first = static_cast<std::ptrdiff_t>(map.At(column, 0));
  const auto write = [first](const auto& from, auto& to) {
    std::ranges::transform(from, to.begin() + first, [](auto sum) { return static_cast<float>(sum); });
  };
  std::size_t place = 0;
  for (const Panel* panel : {&perpendicular_, &parallel_}) {
    MapPanel& cells = map.panels[place];
    write(panel->first, spectrum_ ? cells.red : cells.value);
    if (spectrum_) {
      write(panel->green, cells.green);
      write(panel->blue, cells.blue);
      std::ranges::copy(panel->strongest, map.strongest[place].begin() + first);
    }
    ++place;
  }
}

MapFound EmptyMap(int columns, int rows, int panels, bool spectrum) {
  MapFound map;
  map.rows = rows;
  map.columns = columns;
  const std::size_t cells = map.At(columns, 0);
  map.panels.resize(static_cast<std::size_t>(panels));
  for (MapPanel& panel : map.panels) {
    panel.value.resize(spectrum ? 0 : cells);
    for (auto* channel : {&panel.red, &panel.green, &panel.blue}) channel->resize(spectrum ? cells : 0);
  }
  if (spectrum) map.strongest.assign(map.panels.size(), std::vector<std::uint16_t>(cells));
  return map;
}

MapFound FirstColumns(const MapFound& map, int columns) {
  MapFound part = EmptyMap(map.columns, map.rows, static_cast<int>(map.panels.size()), map.OfSpectrum());
  part.firstRow = map.firstRow;
  part.done = std::clamp(columns, 0, map.columns);
  const auto cells = static_cast<std::ptrdiff_t>(map.At(part.done, 0));
  const auto copy = [cells](const auto& from, auto& to) {
    if (!from.empty()) std::copy_n(from.begin(), cells, to.begin());
  };
  for (std::size_t i = 0; i < map.panels.size(); ++i) {
    const MapPanel& from = map.panels[i];
    MapPanel& to = part.panels[i];
    copy(from.value, to.value);
    copy(from.red, to.red);
    copy(from.green, to.green);
    copy(from.blue, to.blue);
  }
  for (std::size_t i = 0; i < map.strongest.size(); ++i) copy(map.strongest[i], part.strongest[i]);
  return part;
}

MapFound FirstRows(const MapFound& map, int rows) {
  MapFound part = EmptyMap(map.columns, rows, static_cast<int>(map.panels.size()), false);
  part.firstRow = map.firstRow;
  part.done = map.columns;
  for (std::size_t i = 0; i < map.panels.size(); ++i)
    for (int column = 0; column < map.columns; ++column)
      std::copy_n(map.panels[i].value.begin() + static_cast<std::ptrdiff_t>(map.At(column, 0)), rows,
                  part.panels[i].value.begin() + static_cast<std::ptrdiff_t>(part.At(column, 0)));
  return part;
}

}  // namespace lumivex
