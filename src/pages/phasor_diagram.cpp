#include "pages/phasor_diagram.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>

#include "axes/panel_map.h"
#include "pages/colours.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double centreX = 18500, centreY = 7000;
constexpr double largestRadius = 5000, smallestRadius = 1000;
constexpr double boxLeft = 1000, boxTop = 4000, widestBox = 13000, narrowestBox = 9000, lowestBox = 12000, gap = 300;
constexpr int mostRings = 20;
constexpr double halfDot = 10;
constexpr int firstFarTerm = 50;  // terms from here on are drawn in blue
constexpr Colour farTerms{0xFF0000};
constexpr Colour rings{0x00FFFF};

/// Where the circle stands, and the right and bottom edges of the box beside it.
struct Disc {
  double x = centreX;
  double radius = largestRadius;
  double boxRight = widestBox, boxBottom = lowestBox;
};

/// On a surface that is too narrow the box gives way first, then the circle.
Disc PlaceDisc(const DrawingSurface& surface) {
  Disc disc;
  disc.boxBottom = std::clamp(surface.ScaleHeight() - gap, boxTop + gap, lowestBox);
  const double right = surface.ScaleWidth() - gap;
  // Below the circle a line tells its scale.
  const double most = std::clamp(surface.ScaleHeight() - centreY - 2 * gap, smallestRadius, largestRadius);
  disc.radius = most;
  if (right >= centreX + most) return disc;
  disc.boxRight = std::clamp(right - 2 * most - gap, narrowestBox, widestBox);
  disc.radius = std::clamp((right - disc.boxRight - gap) / 2, smallestRadius, most);
  disc.x = right - disc.radius;
  return disc;
}

/// Distance from the centre; negative for what lies below the scale.
double Distance(double value, const AxisLimits& scale, bool logarithmic, double radius) {
  if (!logarithmic) return radius * (value - scale.ymin) / (scale.ymax - scale.ymin);
  return value > 0 ? radius * std::log(value / scale.ymin) / std::log(scale.ymax / scale.ymin) : -1;
}

/// Phase from 0 to 2 pi.
double Phase(double re, double im) {
  double phase = re == 0 ? (im >= 0 ? pi / 2 : -pi / 2) : std::atan(im / re);
  if (re < 0) phase += pi;
  return phase < 0 ? phase + 2 * pi : phase;
}

void PaintDisc(Session& session, const Disc& disc, const AxisLimits& scale, bool logarithmic) {
  auto& surface = *session.surface;
  surface.FillStyle = 0;
  surface.FillColour = session.state.PlotBackColourMono;
  surface.Circle(disc.x, centreY, disc.radius, colours::Black);
  surface.FillStyle = 1;
  surface.ForeColour = colours::Black;
  surface.Line(boxLeft, boxTop, disc.boxRight, disc.boxBottom, LineKind::Box);
  for (int k = 1; k <= mostRings; ++k) {
    const double value = std::pow(10.0, -k);
    if (value > scale.ymin && value < scale.ymax)
      surface.Circle(disc.x, centreY, Distance(value, scale, logarithmic, disc.radius), rings);
  }
  surface.CurrentX = disc.x - 300;
  surface.CurrentY = 1500;
  surface.Print("X = " + Format(session.state.SizeParameter, "#,##0.####"), false);
}

bool HasLabel(const DotLabels& labels, int j, double part) {
  switch (labels.rule) {
    case DotLabels::Rule::UpToTerm:
      return j - 1 <= labels.number;
    case DotLabels::Rule::AboveSize:
      return part >= std::pow(10.0, -labels.number);
    case DotLabels::Rule::All:
      break;
  }
  return true;
}

DotLabels LabelsAsked(const DlogDebyeSeq& dialog) {
  if (!dialog.chkLabels.Checked) return {};
  const int number = ToWhole(std::clamp(Val(dialog.txtTerms.Text), 0.0, 1e6));
  return {dialog.optTerms.Checked ? DotLabels::Rule::UpToTerm : DotLabels::Rule::AboveSize, number};
}

/// The limits asked for, or decades around all terms (0 on a linear scale).
AxisLimits LimitsOf(const Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  constexpr double mostDecades = 16;
  double low = 1e300, high = 0;
  for (const auto* dots : {&s.DebyeDots1, &s.DebyeDots2})
    for (int j = 1; j <= std::min(s.DebyeDotCount, dots->Rows()); ++j) {
      const double size = std::hypot(dots->Re(j), dots->Im(j));
      if (!(size > 0)) continue;
      low = std::min(low, size);
      high = std::max(high, size);
    }
  if (!(high > 0)) low = high = 1;
  AxisLimits limits{0, 1, 0, std::pow(10.0, std::ceil(std::log10(high)))};
  if (form.OptLog.Checked)
    limits.ymin = std::max(std::pow(10.0, std::floor(std::log10(low))), limits.ymax * std::pow(10.0, -mostDecades));
  if (form.cboYmin.Text != "Automatic") limits.ymin = Val(form.cboYmin.Text);
  if (form.cboYmax.Text != "Automatic") limits.ymax = Val(form.cboYmax.Text);
  return limits;
}

/// What is left after each term, in the box beside the circle: moduli of both polarisations and the phase of the first.
void PrintTerms(Session& session) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  surface.ForeColour = colours::Black;
  const Disc disc = PlaceDisc(surface);
  constexpr double columns[] = {0.025, 0.21, 0.45, 0.62, 0.86};  // of the box
  constexpr double firstLine = 4200, lineHeight = 300;
  constexpr int digits = 6;
  const auto line = [&](int number, std::initializer_list<std::string> texts) {
    const double* column = columns;
    for (const auto& text : texts) {
      surface.CurrentX = boxLeft + *column++ * (disc.boxRight - boxLeft);
      surface.CurrentY = firstLine + lineHeight * number;
      surface.Print(text, false);
    }
  };
  const auto degrees = [](double re, double im) { return Format(Phase(re, im) * 180 / pi, "0.00") + "\u00B0"; };
  line(0, {"Terms", "Perpendicular", "phase", "Parallel", "phase"});
  const auto room = static_cast<int>((disc.boxBottom - firstLine) / lineHeight) - 2;
  const int count = std::min(s.DebyeDotCount, room);
  for (int j = 1; j <= count; ++j) {
    const AmplitudeTable& a = s.DebyeDots1;
    const AmplitudeTable& b = s.DebyeDots2;
    const std::string terms = j == 1 ? "Mie" : j == 2 ? "- p = 0" : "- p = 0 to " + std::to_string(j - 2);
    line(j, {terms, Significant(std::hypot(a.Re(j), a.Im(j)), digits), degrees(a.Re(j), a.Im(j)),
             Significant(std::hypot(b.Re(j), b.Im(j)), digits), degrees(b.Re(j), b.Im(j))});
  }
  if (count < s.DebyeDotCount) line(count + 1, {"..."});
}

/// The values at the centre and at the rim, below the circle.
void PrintScale(Session& session, const AxisLimits& limits) {
  auto& surface = *session.surface;
  surface.ForeColour = colours::Black;
  const std::string text =
      "|S| from " + Significant(limits.ymin, 3) + " at the centre to " + Significant(limits.ymax, 3) + " at the rim";
  surface.CurrentX = session.state.PolarCentreX - surface.TextWidth(text) / 2;
  surface.CurrentY = centreY + session.state.PolarRadius + 200;
  surface.Print(text, false);
}

}  // namespace

void PlotDots(Session& session, const AmplitudeTable& a, int count, double ymin, double ymax, const DotLabels& labels,
              DotSeries series) {
  auto& state = session.state;
  auto& surface = *session.surface;
  const bool logarithmic = session.form1.OptLog.Checked;
  const AxisLimits scale = RepairedLimits({0, 1, ymin, ymax}, false, logarithmic);
  const Disc disc = PlaceDisc(surface);
  state.PolarCentreX = disc.x;
  state.PolarCentreY = centreY;
  state.PolarRadius = static_cast<int>(disc.radius);
  if (state.PlotMode == 1) PaintDisc(session, disc, scale, logarithmic);
  LineColour(session);
  const Colour dots = series == DotSeries::Parallel ? state.SecondLineColour : surface.ForeColour;

  const std::string_view pol = session.form1.cboPol.Text;
  const std::string_view own = series == DotSeries::Parallel ? "Parallel" : "Perpendicular";
  if (pol != "Both" && pol != "All 3" && !pol.starts_with(own)) return;
  for (int j = 1; j <= std::min(count, a.Rows()); ++j) {
    const double size = std::hypot(a.Re(j), a.Im(j));
    const double distance = Distance(size, scale, logarithmic, disc.radius);
    if (!(distance >= 0)) continue;
    const double phase = Phase(a.Re(j), a.Im(j));
    const double x = disc.x + distance * std::sin(phase), y = centreY - distance * std::cos(phase);
    if (HasLabel(labels, j, size / scale.ymax)) {
      surface.ForeColour = colours::Black;
      surface.CurrentX = x + 30;
      surface.CurrentY = y - 80;
      surface.Print(j == 1 ? " Mie" : std::to_string(j - 1), false);
    }
    surface.ForeColour = j < firstFarTerm ? dots : farTerms;
    surface.Line(x - halfDot, y - halfDot, x + halfDot, y + halfDot, LineKind::FilledBox);
  }
}

bool ShowsDebyeAnalysis(const GraphState& graph) {
  return graph.Drawn.kind.graphType == 10 && graph.Drawn.kind.graphSubType == 10;
}

void DrawDebyeAnalysis(Session& session) {
  auto& state = session.state;
  auto& surface = *session.surface;
  surface.BackColour = session.form1.mnuWhite.Checked ? colours::White : colours::ButtonFace;
  surface.Cls();
  state.Drawn = {};
  state.Drawn.kind.graphType = state.Drawn.kind.graphSubType = 10;
  const AxisLimits limits = LimitsOf(session);
  state.Ymin = limits.ymin;
  state.Ymax = limits.ymax;
  const DotLabels labels = LabelsAsked(session.forms.dlogDebyeSeq);
  const int mode = state.PlotMode;
  state.PlotMode = 1;
  PlotDots(session, state.DebyeDots1, state.DebyeDotCount, limits.ymin, limits.ymax, labels);
  state.PlotMode = 2;
  PlotDots(session, state.DebyeDots2, state.DebyeDotCount, limits.ymin, limits.ymax, labels, DotSeries::Parallel);
  state.PlotMode = mode;
  PrintTerms(session);
  PrintScale(session, limits);
  surface.ForeColour = colours::Black;
}

}  // namespace lumivex
