#include "pages/curve_steps.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/curve_path.h"

namespace lumivex {

namespace {

/// The points of a curve that can be seen.
std::vector<PlacedRow> SeenRows(const GraphState& graph, std::size_t index) {
  const KeptCurve& curve = graph.Drawn.curves[index];
  const GraphBox& box = graph.Drawn.panels[curve.panel].box;
  auto rows = PlacedRows(graph, graph.Drawn.panels[curve.panel], curve);
  std::erase_if(rows, [&](const PlacedRow& placed) {
    const SurfacePoint& p = placed.point;
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return true;
    return !graph.Drawn.kind.polar && !box.Holds(p.x, p.y);
  });
  return rows;
}

/// The reading at a point of a curve. Where curves cross in that very point the reading names the one that is meant.
GraphReading ReadingAt(const GraphState& graph, std::size_t index, SurfacePoint point, const GraphReading& before) {
  auto reading = ReadGraph(graph, point.x, point.y);
  if (!reading || !reading->onCurve) return before;
  const std::string& nearest = graph.Drawn.curves[reading->curve].name;
  const auto at = reading->text.find(nearest);
  if (at != std::string::npos) reading->text.replace(at, nearest.size(), graph.Drawn.curves[index].name);
  reading->curve = index;
  return *reading;
}

bool IsOnCurve(const GraphState& graph, const GraphReading& reading) {
  return reading.onCurve && reading.curve < graph.Drawn.curves.size();
}

}  // namespace

GraphReading StepAlongCurve(const GraphState& graph, const GraphReading& reading, int direction) {
  if (!IsOnCurve(graph, reading)) return reading;
  const auto rows = SeenRows(graph, reading.curve);
  const auto here = std::ranges::min_element(rows, {}, [&](const PlacedRow& placed) {
    return std::hypot(placed.point.x - reading.place.x, placed.point.y - reading.place.y);
  });
  const auto next = (here - rows.begin()) + (direction > 0 ? 1 : -1);
  if (next < 0 || next >= static_cast<std::ptrdiff_t>(rows.size())) return reading;
  return ReadingAt(graph, reading.curve, rows[static_cast<std::size_t>(next)].point, reading);
}

std::optional<GraphReading> NeighbourCurve(const GraphState& graph, const GraphReading& reading, int direction) {
  const std::size_t count = graph.Drawn.curves.size();
  if (count < 2 || !IsOnCurve(graph, reading)) return {};
  for (std::size_t step = 1; step < count; ++step) {
    const std::size_t index = (reading.curve + (direction > 0 ? step : count - step)) % count;
    const auto rows = SeenRows(graph, index);
    const auto nearest = std::ranges::min_element(
        rows, {}, [&](const PlacedRow& placed) { return std::abs(placed.point.x - reading.place.x); });
    if (nearest != rows.end()) return ReadingAt(graph, index, nearest->point, reading);
  }
  return {};
}

}  // namespace lumivex
