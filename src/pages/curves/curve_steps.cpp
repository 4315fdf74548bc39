#include "pages/curves/curve_steps.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/curves/curve_names.h"
#include "pages/curves/curve_path.h"
#include "pages/maps/map_reading.h"

namespace lumivex {

namespace {

/// The points of a curve that can be seen.
std::vector<PlacedRow> SeenRows(const Page& page, std::size_t index) {
  const PageCurve& curve = page.curves[index];
  const GraphBox& box = page.panels[curve.panel].box;
  auto rows = PlacedRows(page, page.panels[curve.panel], curve);
  std::erase_if(rows, [&](const PlacedRow& placed) {
    const SurfacePoint& p = placed.point;
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return true;
    return !page.kind.polar && !box.Holds(p.x, p.y);
  });
  return rows;
}

/// The reading at a point of a curve. Where curves cross in that very point the reading names the one that is meant.
GraphReading ReadingAt(const Page& page, std::size_t index, SurfacePoint point, const GraphReading& before) {
  auto reading = ReadAt(page, point.x, point.y);
  if (!reading || !reading->onCurve) return before;
  const CurveNames names(page);
  const std::string nearest = names.Of(page.curves[reading->curve]);
  const auto at = reading->text.find(nearest);
  if (at != std::string::npos) reading->text.replace(at, nearest.size(), names.Of(page.curves[index]));
  reading->curve = index;
  return *reading;
}

bool IsOnCurve(const Page& page, const GraphReading& reading) {
  return reading.onCurve && reading.curve < page.curves.size();
}

/// The cell so many columns and pictures on, as far as there is one.
GraphReading OtherCell(const Page& page, const GraphReading& reading, int columns, int pictures) {
  const PageMap& map = *page.map;
  MapCell cell = CellOf(page, reading);
  cell.column = std::clamp(cell.column + columns, 0, std::max(map.across.samples.count - 1, 0));
  const auto count = static_cast<int>(page.panels.size());
  cell.picture = static_cast<std::size_t>((static_cast<int>(cell.picture) + pictures + count) % count);
  const GraphReading other = ReadCell(page, cell);
  return other.onCurve ? other : reading;
}

}  // namespace

GraphReading StepAlongCurve(const Page& page, const GraphReading& reading, int direction) {
  if (page.map && reading.onCurve) return OtherCell(page, reading, direction > 0 ? 1 : -1, 0);
  if (!IsOnCurve(page, reading)) return reading;
  const auto rows = SeenRows(page, reading.curve);
  const auto here = std::ranges::min_element(rows, {}, [&](const PlacedRow& placed) {
    return std::hypot(placed.point.x - reading.place.x, placed.point.y - reading.place.y);
  });
  const auto next = (here - rows.begin()) + (direction > 0 ? 1 : -1);
  if (next < 0 || next >= static_cast<std::ptrdiff_t>(rows.size())) return reading;
  return ReadingAt(page, reading.curve, rows[static_cast<std::size_t>(next)].point, reading);
}

std::optional<GraphReading> NeighbourCurve(const Page& page, const GraphReading& reading, int direction) {
  if (page.map && reading.onCurve) return OtherCell(page, reading, 0, direction > 0 ? 1 : -1);
  const std::size_t count = page.curves.size();
  if (count < 2 || !IsOnCurve(page, reading)) return {};
  for (std::size_t step = 1; step < count; ++step) {
    const std::size_t index = (reading.curve + (direction > 0 ? step : count - step)) % count;
    const auto rows = SeenRows(page, index);
    const auto nearest = std::ranges::min_element(
        rows, {}, [&](const PlacedRow& placed) { return std::abs(placed.point.x - reading.place.x); });
    if (nearest != rows.end()) return ReadingAt(page, index, nearest->point, reading);
  }
  return {};
}

}  // namespace lumivex
