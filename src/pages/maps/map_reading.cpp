#include "pages/maps/map_reading.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "pages/maps/map_cells.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int digitsOfValue = 6;

PanelMap MapOf(const Page& page, std::size_t panel) {
  return {page.panels[panel].box, page.panels[panel].limits, page.kind.logX, page.panels[panel].logY};
}

/// A value of a side with digits that tell samples apart.
std::string SideText(const MapSide& side, double value) {
  const SampleAxis& samples = side.samples;
  const double step = std::abs(samples.At(1) - samples.At(0));
  const double size = std::max(std::abs(samples.first), std::abs(samples.last));
  int digits = 5;
  if (samples.count > 1 && step > 0) digits = static_cast<int>(std::ceil(std::log10(size / step))) + 2;
  const std::string number = Significant(value, std::clamp(digits, 4, 12));
  return side.unit.empty() ? number : number + " " + side.unit;
}

/// Beyond the rows or columns that a stopped run has, there is no cell.
bool HasSampleAt(const SampleAxis& samples, double value) {
  const double place = samples.PlaceOf(value);
  return place >= -1 && place <= samples.count;
}

int NearestSample(const SampleAxis& samples, double value) {
  return std::clamp(static_cast<int>(std::lround(samples.PlaceOf(value))), 0, std::max(samples.count - 1, 0));
}

bool WasCalculated(const PageMap& map, const MapCell& cell) {
  const MapFound& values = *map.values;
  if (cell.column >= values.done) return false;
  const PictureCells cells(values, cell.picture);
  return !std::isnan(cells.Greatest(values.At(cell.column, map.lowest + cell.row)));
}

std::string ValueText(const PageMap& map, const MapCell& place) {
  const MapFound& values = *map.values;
  const PictureCells cells(values, place.picture);
  const std::size_t cell = values.At(place.column, map.lowest + place.row);
  const auto number = [](double value) { return Significant(value, digitsOfValue); };
  if (!cells.OfSpectrum()) return number(cells.Value(cell));
  const auto [red, green, blue] = cells.Channels(cell);
  std::string text = "red " + number(red) + "  green " + number(green) + "  blue " + number(blue);
  const std::size_t stored = place.picture < values.panels.size() ? place.picture : cells.SecondIsGreater(cell);
  if (stored >= values.strongest.size() || values.strongest[stored].empty()) return text;
  const std::size_t strongest = values.strongest[stored][cell];
  if (strongest >= 1 && strongest <= map.wavelengths.size())
    text += "   most at " + Significant(map.wavelengths[strongest - 1], 4) + " nm";
  return text;
}

/// Adds the nearest cell to a reading that has its place on the sides.
void AddCell(const Page& page, MapCell cell, GraphReading& reading) {
  const PageMap& map = *page.map;
  const PanelMap place = MapOf(page, cell.picture);
  reading.text = SideText(map.across, reading.x) + "   " + SideText(map.up, reading.y);
  if (!WasCalculated(map, cell)) return;
  reading.onCurve = true;
  reading.curveX = map.across.samples.At(cell.column);
  reading.curveY = map.up.samples.At(cell.row);
  const GraphBox& box = page.panels[cell.picture].box;
  reading.place = {std::clamp(place.X(reading.curveX), box.left, box.right),
                   std::clamp(place.Y(reading.curveY), box.top, box.bottom)};
  reading.text += "      " + map.pictures[cell.picture].name + ": " + SideText(map.across, reading.curveX) + "   " +
                  SideText(map.up, reading.curveY) + "   " + ValueText(map, cell);
}

}  // namespace

std::optional<GraphReading> ReadMap(const Page& page, double surfaceX, double surfaceY) {
  for (std::size_t i = 0; i < page.panels.size(); ++i) {
    if (!page.panels[i].box.Holds(surfaceX, surfaceY)) continue;
    GraphReading reading;
    reading.panel = i;
    reading.x = MapOf(page, i).XAt(surfaceX);
    reading.y = MapOf(page, i).YAt(surfaceY);
    if (!HasSampleAt(page.map->across.samples, reading.x) || !HasSampleAt(page.map->up.samples, reading.y)) {
      reading.text = SideText(page.map->across, reading.x) + "   " + SideText(page.map->up, reading.y);
      return reading;
    }
    AddCell(page,
            {i, NearestSample(page.map->across.samples, reading.x), NearestSample(page.map->up.samples, reading.y)},
            reading);
    return reading;
  }
  return std::nullopt;
}

GraphReading ReadCell(const Page& page, MapCell cell) {
  GraphReading reading;
  reading.panel = cell.picture;
  reading.x = page.map->across.samples.At(cell.column);
  reading.y = page.map->up.samples.At(cell.row);
  AddCell(page, cell, reading);
  return reading;
}

MapCell CellOf(const Page& page, const GraphReading& reading) {
  return {reading.panel, NearestSample(page.map->across.samples, reading.curveX),
          NearestSample(page.map->up.samples, reading.curveY)};
}

}  // namespace lumivex
