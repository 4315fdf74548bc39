#include "pages/frame/polar_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "pages/curves/curve_path.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979;

constexpr int mostRings = 20;

/// Ticks keep so far from each other (surface units); where a curve turns back on itself they would cover it.
constexpr double betweenTicks = 100;

/// A ring at the very centre or on the rim says nothing new.
constexpr double ringRounding = 1e-9;

constexpr std::array rimAngles = {0, 180, 330, 210, 300, 240, 270, 30, 150, 60, 120, 90};

void PaintRings(FramePaint& paint, const PolarMap& map) {
  auto& surface = paint.surface;
  const auto ring = [&](double part) {
    surface.Circle(map.centreX, map.centreY, part * map.radius, paint.style.gridColour);
  };
  surface.FillColour = paint.style.ground;
  surface.FillStyle = 0;
  ring(1);
  if (!map.logarithmic) {
    for (const double part : {0.8, 0.6, 0.4, 0.2}) ring(part);
  } else {
    const AxisLimits& limits = paint.map.limits;
    const double perDecade = paint.kind.amplitude || paint.kind.IsComplexPolar() ? 0.5 : 1;
    for (int k = 1; k <= mostRings; ++k) {
      const double value = limits.ymax / std::pow(10.0, k * perDecade);
      const double part = std::log(value / limits.ymin) / std::log(limits.ymax / limits.ymin);
      if (part > ringRounding && part < 1 - ringRounding) ring(part);
    }
  }
  surface.FillStyle = 1;
}

void PaintSpokes(FramePaint& paint, const PolarMap& map) {
  for (int a = 0; a <= 180; a += 30) {
    const double x = map.radius * std::cos(a * pi / 180), y = map.radius * std::sin(a * pi / 180);
    paint.Rule(map.centreX + x, map.centreY + y, map.centreX - x, map.centreY - y, paint.style.gridColour);
  }
}

/// Angles round the rim: each text stands clear of the circle, outward from its spoke.
void PaintRimAngles(FramePaint& paint, const PolarMap& map) {
  auto& surface = paint.surface;
  for (const int a : rimAngles) {
    const std::string text = std::to_string(a);
    const double width = surface.TextWidth(text), height = surface.TextHeight(text);
    const double c = std::cos(a * pi / 180), s = std::sin(a * pi / 180);
    const double reach = map.radius * 3080 / 3000;
    const double x = map.centreX + (reach + 0.5 * width) * c - 0.5 * width;
    const double y = map.centreY + (reach + 0.5 * height) * s - 0.5 * height;
    // The highest one stands inside: the title of the run is printed above the circle.
    if (a == 270)
      paint.labels.Print(text, map.centreX + 50, map.centreY - map.radius + 50);
    else
      paint.labels.Print(text, x, y);
  }
}

/// Below the circle, or beside it where the page ends before.
void PaintScaleText(FramePaint& paint, const PolarMap& map) {
  auto& surface = paint.surface;
  std::vector<std::string> lines;
  if (paint.kind.IsComplexPolar()) lines.emplace_back("Amplitude");
  lines.emplace_back(map.logarithmic ? "Logarithmic scale" : "Linear scale");
  lines.push_back("Value at outer circle = " + Format(map.outer, "Scientific"));
  lines.push_back("Value at centre = " + Format(map.logarithmic ? map.inner : 0, "Scientific"));

  const double height = surface.TextHeight("X"), total = height * static_cast<double>(lines.size());
  double y = map.centreY + map.radius * 3080 / 3000 + 1.3 * height + 60;
  const bool below = y + total <= surface.ScaleHeight();
  if (!below) y = map.centreY - 0.5 * total;
  for (const auto& text : lines) {
    const double width = surface.TextWidth(text);
    surface.CurrentX = below ? map.centreX - 0.5 * width : map.centreX + 1.25 * map.radius;
    surface.CurrentY = y;
    paint.labels.Take(surface.CurrentX, y, width, height);
    surface.Print(text, false);
    y += height;
  }
}

}  // namespace

void PaintPolarFrame(FramePaint& paint) {
  const PolarMap map = PolarMapOf(paint.page);
  PaintRings(paint, map);
  PaintSpokes(paint, map);
  paint.surface.ForeColour = colours::Black;
  PaintRimAngles(paint, map);
  PaintScaleText(paint, map);
  paint.surface.FontBold = false;
}

void PaintPolarTicks(DrawingSurface& surface, const Page& page, const PageCurve& curve, TickLabels& labels) {
  const auto rows = PlacedRows(page, page.panels[curve.panel], curve);
  const SurfacePen pen = surface;
  surface.ForeColour = curve.colour;
  surface.FontSize = 7;
  surface.FontBold = false;
  const auto angleAt = [&](std::size_t row) { return curve.angle.empty() ? curve.x[row] : curve.angle[row]; };
  bool started = false;
  std::size_t count = 0;
  SurfacePoint last;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const SurfacePoint& p = rows[i].point;
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) continue;
    if (!started) {
      started = true;
      last = p;
      surface.Circle(p.x, p.y, 20, curve.colour);
      labels.Print(TickText(RoundTo(angleAt(rows[i].row), 1)), p.x - 100, p.y + 100);
    } else if (count % 10 == 0 && i > 0) {
      const SurfacePoint& before = rows[i - 1].point;
      const double dx = p.x - before.x, dy = p.y - before.y;
      const double length = std::hypot(dx, dy);
      if (!(length > 0)) {
        ++count;
        continue;
      }
      const bool longTick = count % 100 == 0;
      if (!longTick && std::hypot(p.x - last.x, p.y - last.y) < betweenTicks) {
        ++count;
        continue;
      }
      last = p;
      // Across the curve: 50 units to each side, 90 at the hundreds.
      const double half = longTick ? std::sqrt(8100.0) : std::sqrt(2500.0);
      const double x = -half * dy / length, y = half * dx / length;
      surface.Line(p.x - x, p.y - y, p.x + x, p.y + y);
      if (longTick) labels.Print(TickText(RoundTo(angleAt(rows[i].row), 1)), p.x + x + 20, p.y + y);
    }
    ++count;
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
