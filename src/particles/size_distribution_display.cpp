#include "particles/size_distribution_display.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "materials/dialog_use.h"
#include "particles/size_distribution.h"
#include "session/record/number_text.h"
#include "solvers/sphere_size.h"

namespace lumivex {

namespace {

// The side strip (surface units).
constexpr double stripLeft = 12000, stripRight = 15600, stripBottom = 2800;
constexpr double axisLeft = 12150, axisRight = 15450;
constexpr double peakTop = 100, barHeight = 2000, base = peakTop + barHeight;

struct RadiusAxis {
  double low, high;
  bool logarithmic;

  double Place(double radius) const {
    const double t = logarithmic ? std::log(radius / low) / std::log(high / low) : (radius - low) / (high - low);
    return axisLeft + std::clamp(t, 0.0, 1.0) * (axisRight - axisLeft);
  }
};

RadiusAxis AxisOf(const Session& session) {
  const auto& s = session.state;
  RadiusAxis axis{s.DistMin, s.DistMax, session.forms.dlogDistDisplay.optLogX.Checked};
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
    const double top = peakTop + barHeight * (1 - heights[i]);
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

void DrawAxis(Session& session, const RadiusAxis& axis) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  surface.Line(axisLeft, base, axisRight, base);
  const bool overIndex = s.GraphType == 20 && s.GraphSubType == 2;
  const std::string low = Significant(axis.low, 3), high = Significant(axis.high, 3);
  const std::string title = overIndex ? "Refractive index" : "Radius (\u00B5m)";
  constexpr double numbersTop = base + 40, captionTop = base + 280;
  PrintAt(surface, axisLeft, numbersTop, low);
  PrintAt(surface, (axisLeft + axisRight - surface.TextWidth(title)) / 2, numbersTop, title);
  PrintAt(surface, axisRight - surface.TextWidth(high), numbersTop, high);
  PrintAt(surface, axisLeft, captionTop, CaptionOf(session));
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
  auto& surface = *session.surface;
  const SurfacePen before = surface;
  surface.ForeColour = surface.BackColour;
  surface.Line(stripLeft, 0, stripRight, stripBottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  const RadiusAxis axis = AxisOf(session);
  DrawBars(session, axis);
  DrawAxis(session, axis);
  static_cast<SurfacePen&>(surface) = before;
}

void AskDistDisplay(Session& session) {
  if (session.form1.cboDistrib.Text == "Special" || !session.form1.optDisp.Checked) return;
  if (AskIn(session, session.forms.dlogDistDisplay)) DistDisplay(session);
}

}  // namespace lumivex
