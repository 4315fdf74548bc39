#include "pages/items/two_angle_chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "pages/curves/curve_path.h"
#include "pages/frame/frame.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::string_view unit = "(sq \u00B5m)";

/// Half the size of a mark, of many marks, and the distance of a number from its point (surface units).
constexpr double halfMark = 35, halfMarkOfMany = 18, besidePoint = 90;
constexpr std::size_t manyPoints = 100;

/// Points from the end of a line that may bear its number.
constexpr std::size_t pointsTried = 8;

constexpr Colour radiusLines{0x909090};

std::string RangeWords(double low, double high) {
  return Shortest(low) + " to " + Shortest(high) + " deg.";
}

struct Extremes {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();
  bool Empty() const { return !(low <= high); }
};

Extremes ExtremesOf(const Table2D& table, bool positiveOnly) {
  Extremes found;
  for (const double value : table.cells) {
    if (!std::isfinite(value) || (positiveOnly && value <= 0)) continue;
    found.low = std::min(found.low, value);
    found.high = std::max(found.high, value);
  }
  return found;
}

/// Round ends: of decades on a logarithmic axis, otherwise from 0, or from below it where values are.
XRange RoundEnds(const Extremes& e, bool logarithmic) {
  if (e.Empty()) return {logarithmic ? 0.1 : 0, 1};
  if (logarithmic) {
    const double low = std::floor(std::log10(e.low)), high = std::ceil(std::log10(e.high));
    return {std::pow(10, low), std::pow(10, high > low ? high : low + 1)};
  }
  double scratch = 1;
  return {e.low < 0 ? -RoundedTop(-e.low, scratch) : 0, e.high > 0 ? RoundedTop(e.high, scratch) : 0};
}

AxisLimits LimitsOf(Page& page, const TwoAngleFound& found, const ScaleLook& look) {
  const XRange x = RoundEnds(ExtremesOf(found.first, look.logX), look.logX);
  const XRange y = RoundEnds(ExtremesOf(found.second, look.logY), look.logY);
  page.autoBottom = y.xmin;
  page.autoTop = y.xmax;
  return {x.xmin, x.xmax, look.ymin.value_or(y.xmin), look.ymax.value_or(y.xmax)};
}

/// Colours from red over green to blue, dark enough for a pale ground, part 0 to 1.
Colour RampColour(double part) {
  constexpr double darkest = 200;
  const double hue = 4 * std::clamp(part, 0.0, 1.0);
  const auto rise = [&](double centre) { return darkest * std::clamp(2 - std::abs(hue - centre), 0.0, 1.0); };
  return RGB(rise(0), 0.75 * rise(2), rise(4));
}

PageCurve CurveOf(const Page& page, const RunToDraw& run, std::size_t column) {
  const TwoAngleFound& found = *run.results.Find<TwoAngleFound>();
  const auto& asked = std::get<TwoAngleRun>(run.results.asked.run);
  const PenLook& pen = run.look.pen;
  PageCurve curve;
  curve.run = page.runs.empty() ? 0 : page.runs.size() - 1;
  curve.name = "n = " + Shortest(asked.index[column]);
  std::vector<double> x(found.first.rows + 1, 0.0), y = x, radius = x;
  for (std::size_t row = 0; row < found.first.rows; ++row) {
    x[row + 1] = found.first.At(row, column);
    y[row + 1] = found.second.At(row, column);
    radius[row + 1] = asked.radius[row];
  }
  curve.x = std::move(x);
  curve.y = std::move(y);
  curve.angle = std::move(radius);
  // "True colour" tells the indices apart, any other colour the charts that are drawn over each other.
  const std::size_t columns = found.first.columns;
  const double part = columns > 1 ? static_cast<double>(column) / static_cast<double>(columns - 1) : 0;
  curve.colour = pen.trueColour ? RampColour(part) : pen.first;
  curve.drawStyle = pen.style;
  curve.drawWidth = pen.width;
  return curve;
}

/// Where each radius of a curve lies, first index 1; nothing outside the box.
std::vector<std::optional<SurfacePoint>> Places(const Page& page, const PagePanel& panel, const PageCurve& curve) {
  std::vector<std::optional<SurfacePoint>> places(curve.x.size());
  constexpr double rounding = 1;
  const GraphBox& b = panel.box;
  const GraphBox box{b.left - rounding, b.right + rounding, b.top - rounding, b.bottom + rounding};
  for (const auto& [row, p, value] : PlacedRows(page, panel, curve))
    if (std::isfinite(p.x) && std::isfinite(p.y) && box.Holds(p.x, p.y)) places[row] = p;
  return places;
}

/// The curves of one run with the places of their points.
struct RunOnChart {
  std::vector<const PageCurve*> curves;
  std::vector<std::vector<std::optional<SurfacePoint>>> places;
};

std::vector<RunOnChart> RunsOf(const Page& page) {
  std::vector<RunOnChart> runs;
  std::size_t drawn = 0;
  for (const auto& curve : page.curves) {
    if (curve.angle.size() != curve.x.size()) continue;
    if (runs.empty() || curve.run != drawn) runs.emplace_back();
    drawn = curve.run;
    runs.back().curves.push_back(&curve);
    runs.back().places.push_back(Places(page, page.panels.front(), curve));
  }
  return runs;
}

/// Prints a text beside a point, on the first side where it touches nothing and stays in the box.
bool PrintBeside(FramePaint& paint, const SurfacePoint& p, const std::string& text, bool rightFirst) {
  auto& surface = paint.surface;
  const double width = surface.TextWidth(text), height = surface.TextHeight(text);
  const double right = p.x + besidePoint, left = p.x - besidePoint - width;
  const double middle = p.y - 0.5 * height, above = p.y - besidePoint - height, below = p.y + besidePoint;
  const SurfacePoint corners[] = {{rightFirst ? right : left, middle},
                                  {rightFirst ? right : p.x - 0.5 * width, rightFirst ? below : above},
                                  {rightFirst ? p.x - 0.5 * width : left, above},
                                  {right, above},
                                  {rightFirst ? left : right, rightFirst ? middle : below}};
  const GraphBox& box = paint.Box();
  for (const auto& c : corners) {
    const bool inside = box.Holds(c.x, c.y) && box.Holds(c.x + width, c.y + height);
    if (inside && paint.labels.Print(text, c.x, c.y)) return true;
  }
  return false;
}

void PaintMarks(FramePaint& paint, const RunOnChart& run) {
  auto& surface = paint.surface;
  const bool many = run.curves.size() * run.curves.front()->x.size() > manyPoints;
  const double half = many ? halfMarkOfMany : halfMark;
  for (std::size_t c = 0; c < run.curves.size(); ++c) {
    surface.ForeColour = run.curves[c]->colour;
    for (const auto& p : run.places[c]) {
      if (!p) continue;
      surface.Line(p->x - half, p->y - half, p->x + half, p->y + half, LineKind::FilledBox);
      paint.labels.Take(p->x - half, p->y - half, 2 * half, 2 * half);
    }
  }
}

void PaintIndices(FramePaint& paint, const RunOnChart& run) {
  auto& surface = paint.surface;
  surface.FontBold = true;
  bool first = true;
  for (std::size_t c = 0; c < run.curves.size(); ++c) {
    const auto& places = run.places[c];
    const std::string& name = run.curves[c]->name;
    surface.ForeColour = run.curves[c]->colour;
    // At the end of the line, or at the nearest point before it that has room; the first number tells what it is.
    std::size_t triesLeft = pointsTried;
    for (auto p = places.rbegin(); p != places.rend() && triesLeft > 0; ++p) {
      if (!*p) continue;
      --triesLeft;
      if (!PrintBeside(paint, **p, first ? name : name.substr(4), true)) continue;
      first = false;
      break;
    }
  }
  surface.FontBold = false;
}

/// Radii along the first curve, and a dotted line through the same radius on the others.
void PaintRadii(FramePaint& paint, const RunOnChart& run) {
  auto& surface = paint.surface;
  bool first = true;
  for (std::size_t row = 1; row < run.curves.front()->angle.size(); ++row) {
    const std::string number = Shortest(run.curves.front()->angle[row]);
    std::vector<SurfacePoint> line;
    for (const auto& places : run.places)
      if (row < places.size() && places[row]) line.push_back(*places[row]);
    if (line.empty()) continue;
    surface.ForeColour = RGB(96, 96, 96);
    if (!PrintBeside(paint, line.front(), first ? "r = " + number + " \u00B5m" : number, false)) continue;
    first = false;
    surface.ForeColour = radiusLines;
    surface.DrawStyle = 2;
    if (line.size() > 1) surface.Polyline(line);
    surface.DrawStyle = 0;
  }
}

}  // namespace

std::string TwoAngleXTitle(const TwoAngleRun& run) {
  return "Cross-section, " + RangeWords(run.angle1Min, run.angle1Max) + " " + std::string(unit);
}

std::string TwoAngleYTitle(const TwoAngleRun& run) {
  return RangeWords(run.angle2Min, run.angle2Max) + " " + std::string(unit);
}

void DisplayTwoAngle(Page& page, const RunToDraw& run) {
  const auto* found = run.results.Find<TwoAngleFound>();
  if (found == nullptr) return;
  if (page.panels.empty()) Grid(page, PanelPlace::Whole, LimitsOf(page, *found, run.look.scale));
  for (std::size_t column = 0; column < found->first.columns; ++column)
    page.curves.push_back(CurveOf(page, run, column));
}

void PaintTwoAngleNotes(DrawingSurface& surface, const Page& page) {
  if (!page.kind.IsTwoAngle() || page.panels.empty()) return;
  const SurfacePen pen = surface;
  FramePaint paint(page, page.panels.front(), surface);
  surface.FontName = "MS Sans Serif";
  surface.FontBold = false;
  const LogoPlacement logo = LogoOf(page, page.panels.front());
  if (logo.visible) {
    surface.FontSize = logo.fontSize;
    paint.labels.Take(logo.left, logo.top, surface.TextWidth(page.style.logo), surface.TextHeight(page.style.logo));
  }
  surface.FontSize = 8;
  const auto runs = RunsOf(page);
  for (const auto& run : runs) PaintMarks(paint, run);
  for (const auto& run : runs) PaintIndices(paint, run);
  for (const auto& run : runs) PaintRadii(paint, run);
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
