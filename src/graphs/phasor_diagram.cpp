#include "graphs/phasor_diagram.h"

#include <algorithm>
#include <cmath>

#include "graphs/colours.h"
#include "graphs/kernel/panel_map.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double centreX = 18500, centreY = 7000;
constexpr int radius = 5000;
constexpr int mostRings = 20;
constexpr double halfDot = 10;
constexpr int firstFarTerm = 50;  // terms from here on are drawn in blue
constexpr Colour farTerms{0xFF0000};
constexpr Colour rings{0x00FFFF};

/// Distance from the centre; negative for what lies below the scale.
double Distance(double value, const AxisLimits& scale, bool logarithmic) {
  if (!logarithmic) return radius * (value - scale.ymin) / (scale.ymax - scale.ymin);
  return value > 0 ? radius * std::log(value / scale.ymin) / std::log(scale.ymax / scale.ymin) : -1;
}

/// Phase from 0 to 2 pi.
double Phase(double re, double im) {
  double phase = re == 0 ? (im >= 0 ? pi / 2 : -pi / 2) : std::atan(im / re);
  if (re < 0) phase += pi;
  return phase < 0 ? phase + 2 * pi : phase;
}

void PaintFrame(Session& session, const AxisLimits& scale, bool logarithmic) {
  auto& surface = *session.surface;
  surface.FillStyle = 0;
  surface.FillColour = session.state.PlotBackColourMono;
  surface.Circle(centreX, centreY, radius, colours::Black);
  surface.FillStyle = 1;
  surface.ForeColour = colours::Black;
  surface.Line(1000, 4000, 13000, 12000, LineKind::Box);
  for (int k = 1; k <= mostRings; ++k) {
    const double value = std::pow(10.0, -k);
    if (value > scale.ymin && value < scale.ymax)
      surface.Circle(centreX, centreY, Distance(value, scale, logarithmic), rings);
  }
  surface.CurrentX = 18200;
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

}  // namespace

void PlotDots(Session& session, const AmplitudeTable& a, int count, double ymin, double ymax, const DotLabels& labels) {
  auto& state = session.state;
  auto& surface = *session.surface;
  const bool logarithmic = session.form1.OptLog.Checked;
  const AxisLimits scale = RepairedLimits({0, 1, ymin, ymax}, false, logarithmic);
  state.PolarCentreX = centreX;
  state.PolarCentreY = centreY;
  state.PolarRadius = radius;
  if (state.PlotMode == 1) PaintFrame(session, scale, logarithmic);
  LineColour(session);
  const Colour dots = surface.ForeColour;

  const std::string_view pol = session.form1.cboPol.Text;
  if (pol != "Both" && !pol.starts_with("Perpendicular")) return;
  for (int j = 1; j <= std::min(count, a.Rows()); ++j) {
    const double size = std::hypot(a.Re(j), a.Im(j));
    const double distance = Distance(size, scale, logarithmic);
    if (!(distance >= 0)) continue;
    const double phase = Phase(a.Re(j), a.Im(j));
    const double x = centreX + distance * std::sin(phase), y = centreY - distance * std::cos(phase);
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

}  // namespace lumivex
