#include "session/inputs/sizes/size_distribution_display.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "pages/visible_data.h"
#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/size_distribution.h"

namespace lumivex {

namespace {

// The side strip (surface units). The readings of a run stand in its left part; the distribution then takes the rest
// or, in a narrow window, what is below them.
constexpr double stripLeft = 12000, stripRight = 15600, stripBottom = 2800;
constexpr double readingsRight = 13900, readingsBottom = 1800, marginOfAxis = 150, leastAxis = 800;
constexpr double peakTop = 100, barHeight = 2000, lowPeakTop = 1850, lowBarHeight = 420;

/// Where the bars stand.
struct Strip {
  double left = 0, right = 0;
  double top = peakTop, base = peakTop + barHeight;

  bool HasRoom() const { return right - left >= leastAxis; }
  double NumbersTop() const { return base + 40; }
  double CaptionTop() const { return base + 280; }
};

/// The powers of a graph in watts are readings, too.
bool HasPowerReadings(const RunState& s) {
  return s.PrevGraphType == 1 && s.PrevGraphSubType == 3;
}

/// A strip without room where there is no place for one.
Strip StripOf(const Session& session) {
  const double right = std::min(stripRight, session.surface->ScaleWidth()) - marginOfAxis;
  const Strip whole{stripLeft + marginOfAxis, right};
  if (!ShowsReadings(session)) return whole;
  const Strip beside{readingsRight + marginOfAxis, right};
  if (beside.HasRoom()) return beside;
  if (HasPowerReadings(session.state)) return {};
  return {whole.left, whole.right, lowPeakTop, lowPeakTop + lowBarHeight};
}

struct RadiusAxis {
  double low, high;
  bool logarithmic;
  Strip strip;

  double Place(double radius) const {
    const double t = logarithmic ? std::log(radius / low) / std::log(high / low) : (radius - low) / (high - low);
    return strip.left + std::clamp(t, 0.0, 1.0) * (strip.right - strip.left);
  }
};

RadiusAxis AxisOf(const Session& session) {
  const auto& s = session.state;
  RadiusAxis axis{s.DistMin, s.DistMax, session.forms.dlogDistDisplay.optLogX.Checked, StripOf(session)};
  if (axis.logarithmic && !(axis.low > 0)) axis.low = axis.high / 1000;
  if (!(axis.high > axis.low)) {
    // All samples alike: a bar in the middle.
    axis.low *= 0.9;
    axis.high *= 1.1;
  }
  return axis;
}

/// Density at each sample over the largest one, rows 1 up: equally probable samples take that of the normal
/// distribution, all others their own weight.
std::vector<double> Heights(const Session& session) {
  const auto& s = session.state;
  const std::string& name = session.form1.cboDistrib.Text;
  const bool normal = name == "Normal" || name == "Log-normal";
  std::vector<double> heights(s.DistRadius.size(), 0);
  for (std::size_t i = 1; i < heights.size(); ++i)
    heights[i] = normal ? std::exp(-0.5 * double{s.DistSample[i]} * double{s.DistSample[i]}) : s.DistWeight[i];
  const double peak = *std::ranges::max_element(heights);
  if (peak > 0)
    for (double& height : heights) height /= peak;
  return heights;
}

void DrawBars(Session& session, const RadiusAxis& axis) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  const bool classes = session.form1.cboDistrib.Text == "Special" && s.SizeTableMode == 1;
  const auto heights = Heights(session);
  for (std::size_t i = 1; i < heights.size(); ++i) {
    const double base = axis.strip.base, top = base - (base - axis.strip.top) * heights[i];
    if (!classes) {
      const double x = axis.Place(s.DistRadius[i]);
      surface.Line(x, base, x, top);
      continue;
    }
    const double left = axis.Place(std::max(double{s.SizeTableUniform[i]}, axis.low));
    surface.Line(left, base, axis.Place(s.SizeTableUpper[i]), top, LineKind::Box);
  }
}

std::string CaptionOf(const Session& session) {
  const auto& s = session.state;
  const std::string& name = session.form1.cboDistrib.Text;
  if (name == "Special") return "Histogram from file: " + FileNameOf(s.SizeFileName);
  return std::to_string(s.NumberSamples) + "-point approximation of " + name + " distribution";
}

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

/// The caption may begin under the readings, which end above it; a narrow window goes without.
void PrintCaption(Session& session, const Strip& strip) {
  auto& surface = *session.surface;
  const std::string caption = CaptionOf(session);
  const double fontSize = surface.FontSize;
  const double room = strip.right - stripLeft;
  constexpr double smallestFont = 6;
  while (surface.TextWidth(caption) > room && surface.FontSize > smallestFont) surface.FontSize -= 0.5;
  const double width = surface.TextWidth(caption);
  if (width <= room) PrintAt(surface, strip.right - width, strip.CaptionTop(), caption);
  surface.FontSize = fontSize;
}

/// Numbers at both ends, between them the title or, where there is no room, its unit.
void DrawAxis(Session& session, const RadiusAxis& axis) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  const Strip& strip = axis.strip;
  surface.Line(strip.left, strip.base, strip.right, strip.base);
  const bool overIndex = s.GraphType == 20 && s.GraphSubType == 2;
  const std::string low = Significant(axis.low, 3), high = Significant(axis.high, 3);
  const double numbersTop = strip.NumbersTop();
  const double lowWidth = surface.TextWidth(low), highWidth = surface.TextWidth(high);
  PrintAt(surface, strip.left, numbersTop, low);
  PrintAt(surface, strip.right - highWidth, numbersTop, high);
  for (const std::string title : {overIndex ? "Refractive index" : "Radius (\u00B5m)", overIndex ? "n" : "\u00B5m"}) {
    const double width = surface.TextWidth(title), x = (strip.left + strip.right - width) / 2;
    if (x <= strip.left + lowWidth || x + width >= strip.right - highWidth) continue;
    PrintAt(surface, x, numbersTop, title);
    break;
  }
  PrintCaption(session, strip);
}

}  // namespace

void DistDisplay(Session& session, bool aloud) {
  auto& s = session.state;
  if (!session.form1.optDisp.Checked) return;
  const double radius = s.Radius;
  s.Radius = SphereRadius(session);
  const bool good = PrepareSizes(session, aloud);
  s.Radius = radius;
  if (!good) return;
  const RadiusAxis axis = AxisOf(session);
  // Where there is room for one of the two the readings stay; without them the distribution is shown.
  if (!axis.strip.HasRoom()) return;
  auto& surface = *session.surface;
  const SurfacePen before = surface;
  surface.ForeColour = surface.BackColour;
  const Strip& strip = axis.strip;
  const double top = strip.top > readingsBottom ? readingsBottom : 0;
  surface.Line(strip.left - marginOfAxis, top, stripRight, stripBottom, LineKind::FilledBox);
  surface.Line(stripLeft, strip.CaptionTop(), stripRight, stripBottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  DrawBars(session, axis);
  DrawAxis(session, axis);
  static_cast<SurfacePen&>(surface) = before;
}

void AskDistDisplay(Session& session) {
  if (session.form1.cboDistrib.Text == "Special" || !session.form1.optDisp.Checked) return;
  if (AskIn(session, session.forms.dlogDistDisplay)) DistDisplay(session);
}

}  // namespace lumivex
