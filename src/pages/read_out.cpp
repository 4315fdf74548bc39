#include "pages/read_out.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "axes/polar_coordinates.h"
#include "pages/bars/bar_place.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_path.h"
#include "pages/items/phasor_diagram.h"
#include "pages/maps/map_reading.h"
#include "pages/photograph/photograph_page.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double degreesPerRadian = 180 / 3.14159265358979;

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
bool ReadPolar(const Page& page, double surfaceX, double surfaceY, GraphReading& reading) {
  const PolarMap map = PolarMapOf(page);
  double r = 0, theta = 0;
  RectangularPolar(surfaceX - map.centreX, surfaceY - map.centreY, r, theta);
  if (!(r <= map.radius) || !(map.radius > 0)) return false;
  reading.x = theta * degreesPerRadian + (theta < 0 ? 360 : 0);
  const double part = r / map.radius;
  reading.y = map.logarithmic ? map.inner * std::pow(map.outer / map.inner, part) : map.outer * part;
  return true;
}

/// A column of a bar under the cursor.
std::optional<GraphReading> ReadBar(const Page& page, double surfaceX, double surfaceY) {
  const auto column = BarColumnAt(page, surfaceX, surfaceY);
  if (!column) return std::nullopt;
  GraphReading reading;
  reading.x = page.bars->angle[column->row];
  reading.text = WordsOf(*page.bars, *column);
  return reading;
}

bool ReadPanels(const Page& page, double surfaceX, double surfaceY, GraphReading& reading) {
  const auto& panels = page.panels;
  for (std::size_t i = 0; i < panels.size(); ++i) {
    if (!panels[i].box.Holds(surfaceX, surfaceY)) continue;
    const PanelMap map{panels[i].box, panels[i].limits, page.kind.logX, panels[i].logY};
    reading.panel = i;
    reading.x = map.XAt(surfaceX);
    reading.y = map.YAt(surfaceY);
    return true;
  }
  return false;
}

void FindNearest(const Page& page, double surfaceX, double surfaceY, GraphReading& reading) {
  double nearest = std::numeric_limits<double>::infinity();
  const PagePanel& panel = page.panels[reading.panel];
  for (std::size_t c = 0; c < page.curves.size(); ++c) {
    const PageCurve& curve = page.curves[c];
    if (curve.panel != reading.panel) continue;
    const auto row = NearestRow(page, panel, curve, {surfaceX, surfaceY});
    if (!row) continue;
    const double distance = std::hypot(row->point.x - surfaceX, row->point.y - surfaceY);
    if (!(distance < nearest)) continue;
    nearest = distance;
    reading.onCurve = true;
    reading.curve = c;
    reading.curveX = curve.angle.empty() ? curve.x[row->row] : curve.angle[row->row];
    reading.curveY = row->value;
    reading.place = row->point;
  }
}

/// All that an axis may show: 0 to 180 degrees, otherwise the frame and its curves.
XRange Bounds(const Page& page) {
  if (page.kind.graph.AgainstAngle() && !page.kind.fourier) {
    // A logarithmic axis has no 0.
    const double lowest = page.kind.logX ? std::min(page.home.xmin, 0.01) : 0;
    return {lowest, 180};
  }
  XRange bounds = page.home;
  for (const auto& curve : page.curves) {
    for (std::size_t i = 1; i < curve.x.size(); ++i) {
      if (!std::isfinite(curve.x[i]) || (page.kind.logX && curve.x[i] <= 0)) continue;
      bounds.xmin = std::min(bounds.xmin, curve.x[i]);
      bounds.xmax = std::max(bounds.xmax, curve.x[i]);
    }
  }
  return bounds;
}

/// The panel under or over a place: those of a map stand side by side.
const PagePanel& PanelAt(const Page& page, double surfaceX) {
  const auto reaches = [surfaceX](const PagePanel& panel) { return surfaceX <= panel.box.right; };
  const auto panel = std::ranges::find_if(page.panels, reaches);
  return panel == page.panels.end() ? page.panels.back() : *panel;
}

/// Fewer cells side by side show nothing more.
constexpr double fewestCells = 2;

double CellsAcross(const PageMap& map, XRange range) {
  return map.across.samples.PlaceOf(range.xmax) - map.across.samples.PlaceOf(range.xmin);
}

bool CanZoom(const Page& page) {
  return !page.panels.empty() && !page.kind.polar;
}

std::string_view XUnit(const PageKind& kind) {
  return XUnitOf(kind.graph, {kind.fourier, kind.invWavelength});
}

std::string_view YUnit(const PageKind& kind, const PagePanel& panel) {
  if (kind.fourier || panel.below == BelowGraph::Ratio) return "";
  if (panel.second && panel.below == BelowGraph::Nothing) return kind.second == SecondPanel::Phases ? "deg" : "";
  return YUnitOf(kind.graph, {kind.amplitude, kind.invWavelength, kind.perVolume});
}

/// The rays whose frequency is the nearest, within one step of the transform.
std::string RaysNear(const PageFrequencies& frequencies, double x) {
  const PageFrequencies::Ray* nearest = nullptr;
  for (const auto& ray : frequencies.rays)
    if (!nearest || std::fabs(ray.frequency - x) < std::fabs(nearest->frequency - x)) nearest = &ray;
  const bool near = nearest && std::fabs(nearest->frequency - x) <= frequencies.bin;
  return near ? "rays " + nearest->name : "no rays";
}

}  // namespace

std::optional<GraphReading> ReadAt(const Page& page, double surfaceX, double surfaceY) {
  if (page.photograph) return ReadPhotograph(page, surfaceX, surfaceY);
  if (page.phasors) return ReadPhasors(*page.phasors, surfaceX, surfaceY);
  GraphReading reading;
  if (page.panels.empty()) return std::nullopt;
  if (page.map) return ReadMap(page, surfaceX, surfaceY);
  const bool inside =
      page.kind.polar ? ReadPolar(page, surfaceX, surfaceY, reading) : ReadPanels(page, surfaceX, surfaceY, reading);
  if (!inside) return ReadBar(page, surfaceX, surfaceY);
  FindNearest(page, surfaceX, surfaceY, reading);

  const PagePanel& panel = page.panels[reading.panel];
  const XRange range{panel.limits.xmin, panel.limits.xmax};
  const std::string_view xUnit = XUnit(page.kind), yUnit = UnitOfY(page, panel);
  reading.text = WithUnit(reading.x, DigitsOfX(reading.x, range), xUnit) + "   " + WithUnit(reading.y, 4, yUnit);
  const CurveNames names(page);
  if (reading.onCurve && page.kind.IsTwoAngle()) {
    reading.text += "      " + names.Of(page.curves[reading.curve]) + ", r = " + WithUnit(reading.curveX, 6, "\u00B5m");
  } else if (reading.onCurve) {
    reading.text += "      " + names.Of(page.curves[reading.curve]) + ": " +
                    WithUnit(reading.curveX, DigitsOfX(reading.curveX, range), xUnit) + "   " +
                    WithUnit(reading.curveY, 6, yUnit);
  }
  if (page.kind.fourier)
    reading.text += "      " + RaysNear(page.frequencies, reading.onCurve ? reading.curveX : reading.x);
  return reading;
}

std::string_view UnitOfY(const Page& page, const PagePanel& panel) {
  return YUnit(page.kind, panel);
}

XRange RangeShown(const Page& page) {
  if (page.panels.empty()) return {};
  const AxisLimits& limits = page.panels.front().limits;
  return {limits.xmin, limits.xmax};
}

XRange ZoomAt(const Page& page, double surfaceX, double factor) {
  const XRange shown = RangeShown(page);
  if (!CanZoom(page)) return shown;
  const PagePanel& panel = page.map ? PanelAt(page, surfaceX) : page.panels.front();
  const PanelMap map{panel.box, panel.limits, page.kind.logX, panel.logY};
  const XRange zoomed = ZoomedRange(shown, factor, map.XAt(surfaceX), Bounds(page), page.kind.logX);
  return factor < 1 && page.map && CellsAcross(*page.map, zoomed) < fewestCells ? shown : zoomed;
}

XRange PanBy(const Page& page, double surfaceUnits) {
  const XRange shown = RangeShown(page);
  if (!CanZoom(page)) return shown;
  const double width = page.panels.front().box.Width();
  return PannedRange(shown, -surfaceUnits / width, Bounds(page), page.kind.logX);
}

}  // namespace lumivex
