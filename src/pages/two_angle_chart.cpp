#include "pages/two_angle_chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "pages/colours.h"
#include "pages/curve_path.h"
#include "pages/frame.h"
#include "pages/line_graph.h"
#include "pages/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int stopRequested = 4;
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

AxisLimits LimitsOf(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  const bool logX = form.optXLog.Checked && form.Frame8.Visible, logY = form.OptLog.Checked;
  const XRange x = RoundEnds(ExtremesOf(s.MapPerp, logX), logX);
  XRange y = RoundEnds(ExtremesOf(s.MapPar, logY), logY);
  s.YAutoMin = y.xmin;
  s.YAutoMax = y.xmax;
  if (form.cboYmin.Text != "Automatic") y.xmin = Val(form.cboYmin.Text);
  if (form.cboYmax.Text != "Automatic") y.xmax = Val(form.cboYmax.Text);
  return {x.xmin, x.xmax, y.xmin, y.xmax};
}

/// Colours from red over green to blue, dark enough for a pale ground, part 0 to 1.
Colour RampColour(double part) {
  constexpr double darkest = 200;
  const double hue = 4 * std::clamp(part, 0.0, 1.0);
  const auto rise = [&](double centre) { return darkest * std::clamp(2 - std::abs(hue - centre), 0.0, 1.0); };
  return RGB(rise(0), 0.75 * rise(2), rise(4));
}

KeptCurve CurveOf(Session& session, std::size_t column, int group) {
  const auto& s = session.state;
  const auto& form = session.form1;
  KeptCurve curve;
  curve.group = group;
  curve.name = "n = " + Shortest(s.TwoAngleIndex[column]);
  for (auto* list : {&curve.x, &curve.y, &curve.angle}) list->assign(s.MapPerp.rows + 1, 0.0);
  for (std::size_t row = 0; row < s.MapPerp.rows; ++row) {
    curve.x[row + 1] = s.MapPerp.At(row, column);
    curve.y[row + 1] = s.MapPar.At(row, column);
    curve.angle[row + 1] = s.TwoAngleRadius[row];
  }
  LineColour(session);
  // "True colour" tells the indices apart, any other colour the charts that are drawn over each other.
  const double part =
      s.MapPerp.columns > 1 ? static_cast<double>(column) / static_cast<double>(s.MapPerp.columns - 1) : 0;
  curve.colour = form.mnuTrueColour.Checked ? RampColour(part) : session.surface->ForeColour;
  curve.drawStyle = form.mnuDash.Checked ? 1 : form.mnuDot.Checked ? 2 : 0;
  curve.drawWidth = form.mnuDrawWidth2.Checked ? 2 : 1;
  return curve;
}

/// Where each radius of a curve lies, first index 1; nothing outside the box.
std::vector<std::optional<SurfacePoint>> Places(const GraphState& graph, const KeptPanel& panel,
                                                const KeptCurve& curve) {
  std::vector<std::optional<SurfacePoint>> places(curve.x.size());
  constexpr double rounding = 1;
  const GraphBox& b = panel.box;
  const GraphBox box{b.left - rounding, b.right + rounding, b.top - rounding, b.bottom + rounding};
  for (const auto& [row, p] : PlacedRows(graph, panel, curve))
    if (std::isfinite(p.x) && std::isfinite(p.y) && box.Holds(p.x, p.y)) places[row] = p;
  return places;
}

/// The curves of one run with the places of their points.
struct RunOnChart {
  std::vector<const KeptCurve*> curves;
  std::vector<std::vector<std::optional<SurfacePoint>>> places;
};

std::vector<RunOnChart> RunsOf(const GraphState& graph) {
  std::vector<RunOnChart> runs;
  int group = 0;
  for (const auto& curve : graph.Drawn.curves) {
    if (curve.angle.size() != curve.x.size()) continue;
    if (runs.empty() || curve.group != group) runs.emplace_back();
    group = curve.group;
    runs.back().curves.push_back(&curve);
    runs.back().places.push_back(Places(graph, graph.Drawn.panels.front(), curve));
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

std::string TwoAngleXTitle(const TwoAngleState& state) {
  return "Cross-section, " + RangeWords(state.Angle1Min, state.Angle1Max) + " " + std::string(unit);
}

std::string TwoAngleYTitle(const TwoAngleState& state) {
  return RangeWords(state.Angle2Min, state.Angle2Max) + " " + std::string(unit);
}

void DisplayTwoAngle(Session& session) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  if (!DrawsOver(session)) {
    AxisLimits limits = LimitsOf(session);
    s.Ymin = limits.ymin;
    s.Ymax = limits.ymax;
    const GraphBox box = WholeBox(s);
    Grid(session, box.left, box.right, box.top, box.bottom, limits.xmin, limits.xmax, limits.ymin, limits.ymax);
    s.PlotMode = 2;
  }
  const int group = s.Drawn.curves.empty() ? 1 : s.Drawn.curves.back().group + 1;
  for (std::size_t column = 0; column < s.MapPerp.columns; ++column) {
    session.platform.Yield();
    if (s.PlotMode == stopRequested) return;
    PlotCurve(session, CurveOf(session, column, group));
  }
  PaintTwoAngleNotes(session);
}

void PaintTwoAngleNotes(Session& session) {
  const KeptGraph& graph = session.state.Drawn;
  if (!graph.kind.IsTwoAngle() || graph.panels.empty()) return;
  const SurfacePen pen = *session.surface;
  FramePaint paint(session, graph.kind, graph.panels.front());
  paint.surface.FontName = "MS Sans Serif";
  paint.surface.FontSize = 8;
  paint.surface.FontBold = false;
  const Label& logo = session.form1.lblLogo;
  if (logo.Visible) {
    paint.surface.FontSize = logo.FontSize;
    paint.labels.Take(logo.Left, logo.Top, paint.surface.TextWidth(logo.Caption),
                      paint.surface.TextHeight(logo.Caption));
    paint.surface.FontSize = 8;
  }
  const auto runs = RunsOf(session.state);
  for (const auto& run : runs) PaintMarks(paint, run);
  for (const auto& run : runs) PaintIndices(paint, run);
  for (const auto& run : runs) PaintRadii(paint, run);
  static_cast<SurfacePen&>(paint.surface) = pen;
}

}  // namespace lumivex
