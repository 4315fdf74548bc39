#include "pages/read_out.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "axes/polar_coordinates.h"
#include "pages/curve_path.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double degreesPerRadian = 180 / 3.14159265358979;
constexpr std::string_view squareMicrometres = "sq \u00B5m";

std::string WithUnit(double value, int digits, std::string_view unit) {
  const std::string number(Trim(Significant(value, digits)));
  return unit.empty() ? number : number + " " + std::string(unit);
}

/// Digits that tell neighbouring places of an axis apart.
int DigitsOfX(double x, XRange range) {
  const double width = range.xmax - range.xmin;
  if (!(width > 0) || x == 0) return 5;
  return std::clamp(5 + static_cast<int>(std::floor(std::log10(std::abs(x) / width))), 3, 12);
}

/// Cursor values of a polar plot.
bool ReadPolar(const GraphState& graph, double surfaceX, double surfaceY, GraphReading& reading) {
  const PolarMap map = PolarMapOf(graph, graph.Drawn.kind, graph.Drawn.panels.front().limits);
  double r = 0, theta = 0;
  RectangularPolar(surfaceX - map.centreX, surfaceY - map.centreY, r, theta);
  if (!(r <= map.radius) || !(map.radius > 0)) return false;
  reading.x = theta * degreesPerRadian + (theta < 0 ? 360 : 0);
  const double part = r / map.radius;
  reading.y = map.logarithmic ? map.inner * std::pow(map.outer / map.inner, part) : map.outer * part;
  return true;
}

bool ReadPanels(const GraphState& graph, double surfaceX, double surfaceY, GraphReading& reading) {
  const auto& panels = graph.Drawn.panels;
  for (std::size_t i = 0; i < panels.size(); ++i) {
    if (!panels[i].box.Holds(surfaceX, surfaceY)) continue;
    const PanelMap map{panels[i].box, panels[i].limits, graph.Drawn.kind.logX, panels[i].logY};
    reading.panel = i;
    reading.x = map.XAt(surfaceX);
    reading.y = map.YAt(surfaceY);
    return true;
  }
  return false;
}

void FindNearest(const GraphState& graph, double surfaceX, double surfaceY, GraphReading& reading) {
  double nearest = std::numeric_limits<double>::infinity();
  const KeptPanel& panel = graph.Drawn.panels[reading.panel];
  for (std::size_t c = 0; c < graph.Drawn.curves.size(); ++c) {
    const KeptCurve& curve = graph.Drawn.curves[c];
    if (curve.panel != reading.panel) continue;
    const RowSpan shown = RowsWithin(curve.x, {panel.limits.xmin, panel.limits.xmax});
    for (const auto& [row, p] : PlacedRows(graph, panel, curve)) {
      const double distance = std::hypot(p.x - surfaceX, p.y - surfaceY);
      if (!(distance < nearest)) continue;
      nearest = distance;
      reading.onCurve = true;
      reading.curve = c;
      reading.curveX = curve.angle.empty() ? curve.x[row] : curve.angle[row];
      reading.curveY = DrawnValue(curve, row, shown);
      reading.place = p;
    }
  }
}

/// All that an axis may show: 0 to 180 degrees, otherwise the frame and its curves.
XRange Bounds(const GraphState& graph) {
  if (graph.Drawn.kind.graphType < 10 && !graph.Drawn.kind.fourier) {
    // A logarithmic axis has no 0.
    const double lowest = graph.Drawn.kind.logX ? std::min(graph.Drawn.home.xmin, 0.01) : 0;
    return {lowest, 180};
  }
  XRange bounds = graph.Drawn.home;
  for (const auto& curve : graph.Drawn.curves) {
    for (std::size_t i = 1; i < curve.x.size(); ++i) {
      if (!std::isfinite(curve.x[i]) || (graph.Drawn.kind.logX && curve.x[i] <= 0)) continue;
      bounds.xmin = std::min(bounds.xmin, curve.x[i]);
      bounds.xmax = std::max(bounds.xmax, curve.x[i]);
    }
  }
  return bounds;
}

bool CanZoom(const GraphState& graph) {
  return !graph.Drawn.panels.empty() && !graph.Drawn.kind.polar;
}

}  // namespace

std::string_view XUnit(const GraphKind& kind) {
  const int type = kind.graphType, sub = kind.graphSubType;
  if (kind.fourier) return "";
  if (kind.IsTwoAngle()) return squareMicrometres;
  if (type < 10) return "deg";
  if (type == 10 || type == 15) return "nm";
  if (type == 11) return sub == 2 ? "" : "\u00B5m";
  if (type == 14) return sub == 3 || sub == 4 || sub == 9 || sub == 12 ? "" : "\u00B5m";
  if (type == 16 || type == 17) return sub == 1 ? "\u00B5m" : sub == 3 ? "nm" : "";
  if (type == 18) return sub == 3 ? "nm" : "\u00B5m";
  return "";
}

std::string_view YUnit(const GraphKind& kind, bool secondPanel) {
  if (secondPanel) return kind.ampPhase ? "deg" : "";
  if (kind.IsTwoAngle()) return squareMicrometres;
  const int type = kind.graphType, sub = kind.graphSubType;
  if ((type == 14 && (sub == 2 || sub == 4 || sub == 6)) || (type == 15 && sub == 2)) return "sq m";
  if (type == 1 && sub == 3) return "W/sq m";
  return type == 18 ? "W" : "";
}

std::optional<GraphReading> ReadGraph(const GraphState& graph, double surfaceX, double surfaceY) {
  const KeptGraph& drawn = graph.Drawn;
  GraphReading reading;
  if (drawn.panels.empty()) return std::nullopt;
  const bool inside =
      drawn.kind.polar ? ReadPolar(graph, surfaceX, surfaceY, reading) : ReadPanels(graph, surfaceX, surfaceY, reading);
  if (!inside) return std::nullopt;
  FindNearest(graph, surfaceX, surfaceY, reading);

  const KeptPanel& panel = drawn.panels[reading.panel];
  const XRange range{panel.limits.xmin, panel.limits.xmax};
  const std::string_view xUnit = XUnit(drawn.kind), yUnit = YUnit(drawn.kind, panel.second);
  reading.text = WithUnit(reading.x, DigitsOfX(reading.x, range), xUnit) + "   " + WithUnit(reading.y, 4, yUnit);
  if (reading.onCurve && drawn.kind.IsTwoAngle()) {
    reading.text += "      " + drawn.curves[reading.curve].name + ", r = " + WithUnit(reading.curveX, 6, "\u00B5m");
  } else if (reading.onCurve) {
    reading.text += "      " + drawn.curves[reading.curve].name + ": " +
                    WithUnit(reading.curveX, DigitsOfX(reading.curveX, range), xUnit) + "   " +
                    WithUnit(reading.curveY, 6, yUnit);
  }
  return reading;
}

XRange RangeShown(const GraphState& graph) {
  if (graph.Drawn.panels.empty()) return {};
  const AxisLimits& limits = graph.Drawn.panels.front().limits;
  return {limits.xmin, limits.xmax};
}

XRange HomeRange(const GraphState& graph) {
  return graph.Drawn.home;
}

XRange ZoomAt(const GraphState& graph, double surfaceX, double factor) {
  const XRange shown = RangeShown(graph);
  if (!CanZoom(graph)) return shown;
  const KeptPanel& panel = graph.Drawn.panels.front();
  const PanelMap map{panel.box, panel.limits, graph.Drawn.kind.logX, panel.logY};
  return ZoomedRange(shown, factor, map.XAt(surfaceX), Bounds(graph), graph.Drawn.kind.logX);
}

XRange PanBy(const GraphState& graph, double surfaceUnits) {
  const XRange shown = RangeShown(graph);
  if (!CanZoom(graph)) return shown;
  const double width = graph.Drawn.panels.front().box.Width();
  return PannedRange(shown, -surfaceUnits / width, Bounds(graph), graph.Drawn.kind.logX);
}

}  // namespace lumivex
