#include "pages/compare/below_panel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "axes/scale_rules.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_rows.h"
#include "pages/frame/colours.h"
#include "pages/frame/frame.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

std::string_view TitleOf(BelowGraph how) {
  return how == BelowGraph::Ratio ? "Ratio" : "Difference";
}

/// Between the two names: a minus sign, or a stroke.
std::string Joined(const std::string& first, const std::string& second, BelowGraph how) {
  return first + (how == BelowGraph::Ratio ? " / " : " \u2212 ") + second;
}

/// A line of words over the panel (surface units), and how many there is room for.
constexpr double noteLine = 190;
constexpr std::size_t mostNotes = 4;

std::size_t LinesOfNotes(const Page& page) {
  return std::clamp<std::size_t>(page.notes.size(), 1, mostNotes);
}

struct Extremes {
  double lowest = std::numeric_limits<double>::infinity(), highest = -std::numeric_limits<double>::infinity();
  void Meet(double value) {
    if (!std::isfinite(value)) return;
    lowest = std::min(lowest, value);
    highest = std::max(highest, value);
  }
  bool Empty() const { return lowest > highest; }
};

Extremes ExtremesOf(const std::vector<PageCurve>& curves, XRange view) {
  Extremes seen;
  for (const PageCurve& curve : curves) {
    const RowSpan rows = RowsWithin(curve.x, view);
    for (std::size_t i = rows.first; i <= rows.last; ++i) {
      seen.Meet(curve.y[i]);
      // An error as large as its value would push the others together.
      const double error = i < curve.error.size() ? curve.error[i] : 0;
      if (!(error < 0.5 * std::abs(curve.y[i]))) continue;
      seen.Meet(curve.y[i] - error);
      seen.Meet(curve.y[i] + error);
    }
  }
  return seen;
}

/// Round ends of a linear scale about a value that is in its middle or at its foot.
XRange RoundRange(const Extremes& seen) {
  constexpr double ticks = 4;
  const double width = seen.highest - seen.lowest;
  const double step = RoundStepAbove((width > 0 ? width : std::max(std::abs(seen.highest), 1e-300)) / ticks);
  const double air = 0.02 * step;
  return {step * std::floor((seen.lowest - air) / step), step * std::ceil((seen.highest + air) / step)};
}

/// Ratios that go over more than a decade are seen on a logarithmic scale; what lies far out makes way.
constexpr double manyTimes = 8, mostTimes = 1e4;

bool WantsLog(const Extremes& seen) {
  return seen.lowest > 0 && seen.highest / seen.lowest > manyTimes;
}

}  // namespace

void BelowPanel::AddPair(const PageCurve& first, const PageCurve& second) {
  const CurveNames names(page_);
  PageCurve curve = first;
  curve.y = ComparedValues(first, second, how_);
  curve.averageRows = 0;
  curve.wraps = false;
  curve.interpolate = false;
  curve.markers = false;
  curve.colours.clear();
  curve.name = std::string(TitleOf(how_));
  curve.givenName = Joined(names.InKey(first), names.InKey(second), how_);
  const std::string note = curve.givenName;
  Add(std::move(curve), note);
}

void BelowPanel::AddData(const PageCurve& points, const PageCurve& reference, const ScaleFit& fit,
                         const std::string& note) {
  const CurveNames names(page_);
  PageCurve curve = points;
  std::vector<double> y(points.y.size(), nothing), error(points.error.size(), nothing);
  for (std::size_t i = 1; i < y.size(); ++i) {
    const double c = fit.curve[i - 1], divisor = how_ == BelowGraph::Ratio ? c : 1;
    const double compared = how_ == BelowGraph::Ratio ? points.y[i] / c : points.y[i] - c;
    if (!std::isfinite(compared)) continue;
    y[i] = compared;
    if (i < error.size()) error[i] = points.error[i] / std::abs(divisor);
  }
  curve.y = std::move(y);
  curve.error = std::move(error);
  curve.givenName = Joined(points.givenName, names.InKey(reference), how_);
  Add(std::move(curve), note);
}

void BelowPanel::Add(PageCurve curve, const std::string& note) {
  notes_.push_back({note, curve.colour});
  curves_.push_back(std::move(curve));
}

void BelowPanel::Finish() {
  if (curves_.empty()) return;
  const AxisLimits& above = page_.panels.front().limits;
  Extremes seen = ExtremesOf(curves_, {above.xmin, above.xmax});
  const bool ratio = how_ == BelowGraph::Ratio;
  seen.Meet(ratio ? 1 : 0);
  PagePanel panel;
  panel.place = PanelPlace::Below;
  panel.second = true;
  panel.below = how_;
  panel.oddTest = page_.panels.back().oddTest;
  panel.logY = ratio && WantsLog(seen);
  XRange y = RoundRange(seen);
  if (panel.logY) {
    const double lowest = std::max(seen.lowest, 1 / mostTimes), highest = std::min(seen.highest, mostTimes);
    y = {std::pow(10.0, std::floor(std::log10(lowest))), std::pow(10.0, std::ceil(std::log10(highest)))};
  }
  panel.limits = RepairedLimits({above.xmin, above.xmax, y.xmin, y.xmax}, page_.kind.logX, panel.logY);
  page_.panels.push_back(panel);
  for (PageCurve& curve : curves_) {
    curve.panel = page_.panels.size() - 1;
    page_.curves.push_back(std::move(curve));
  }
  page_.notes = std::move(notes_);
  for (PagePanel& each : page_.panels) each.box = BoxOf(page_, each.place);
}

void PaintBelowScale(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  constexpr double majorTick = 100, ticks = 4, rounding = 1e-6;
  const double step = RoundStepAbove((limits.ymax - limits.ymin) / ticks * (1 - rounding));
  for (double k = std::ceil(limits.ymin / step - rounding); k <= limits.ymax / step + rounding; ++k) {
    const double value = k * step, y = paint.map.Y(value);
    if (paint.style.gridLines.majorY) paint.HorizontalLine(y, paint.style.gridColour);
    paint.TickLeft(y, majorTick);
    paint.LabelLeft(k == 0 ? "0" : Significant(value, 3), y);
  }
}

void PaintBelowMiddle(FramePaint& paint) {
  const double middle = paint.panel.below == BelowGraph::Ratio ? 1 : 0;
  const auto& limits = paint.map.limits;
  if (!(middle > limits.ymin) || !(middle < limits.ymax)) return;
  paint.surface.DrawStyle = 1;
  paint.HorizontalLine(paint.map.Y(middle), RGB(128, 128, 128));
  paint.surface.DrawStyle = 0;
}

void PaintBelowTitle(FramePaint& paint) {
  auto& surface = paint.surface;
  surface.CurrentX = 50;
  surface.CurrentY = paint.Box().top - noteLine - 0.5 * surface.TextHeight("X");
  surface.Print(TitleOf(paint.panel.below), false);
}

double RoomForNotes(const Page& page) {
  constexpr double numbers = 440;
  return numbers + noteLine * static_cast<double>(LinesOfNotes(page));
}

void PaintBelowNotes(DrawingSurface& surface, const Page& page, const PagePanel& panel) {
  constexpr double largest = 8, smallest = 5, fontStep = 0.5, air = 20;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontBold = false;
  const std::size_t lines = LinesOfNotes(page);
  double y = panel.box.top - air - noteLine * static_cast<double>(lines);
  for (std::size_t i = 0; i < lines; ++i) {
    const bool cut = i + 1 == lines && page.notes.size() > lines;
    const PageNote note =
        cut ? PageNote{"and " + std::to_string(page.notes.size() - i) + " more", colours::Black} : page.notes[i];
    surface.FontSize = largest;
    while (surface.TextWidth(note.text) > panel.box.Width() && surface.FontSize > smallest)
      surface.FontSize -= fontStep;
    surface.ForeColour = OnPaper(note.colour);
    surface.CurrentX = panel.box.left;
    surface.CurrentY = y;
    surface.Print(note.text, false);
    y += noteLine;
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
