#include "pages/items/drop_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

#include "record/number_text.h"
#include "solvers/drops/drop_rainbow.h"

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr int outlinePoints = 120, clockStep = 6;
/// How far rays are drawn beyond the drop, and half of what a section shows (radii).
constexpr double rayLength = 1.2, sectionReach = 1.9;

Colour ColourOf(int p) {
  const std::array<Colour, 3> bows = {RGB(200, 0, 0), RGB(0, 0, 255), RGB(0, 130, 0)};
  return bows[static_cast<std::size_t>(std::clamp(p - 2, 0, 2))];
}

std::vector<PageDrop::Point> OutlineOf(const DropShape& shape) {
  std::vector<PageDrop::Point> points;
  for (int i = 0; i <= outlinePoints; ++i) {
    const double angle = 2 * std::numbers::pi * i / outlinePoints;
    const double r = shape.Radius(std::cos(angle));
    points.push_back({r * std::sin(angle), -r * std::cos(angle)});
  }
  return points;
}

std::optional<PageDrop::Ray> RayOf(const DropToDraw& drop, const DropLight& light, int p, double clock) {
  const auto bow = FindDropBow(drop.shape, drop.m, light, p, clock);
  if (!bow) return std::nullopt;
  const DropPath path = PathOfDropRay(drop.shape, drop.m, light, bow->b, bow->X, p);
  if (path.points.empty()) return std::nullopt;
  PageDrop::Ray ray{p, {}};
  const auto add = [&ray](const SpaceVector& at) { ray.points.push_back({at.x, at.z}); };
  add(path.points.front() - rayLength * light.e0);
  for (const SpaceVector& point : path.points) add(point);
  add(path.points.back() + rayLength * path.direction);
  return ray;
}

PageDrop::Bow BowOf(const DropToDraw& drop, const DropLight& light, int p, const std::vector<double>& clock) {
  PageDrop::Bow bow{p, {}};
  for (const double at : clock) {
    const auto found = FindDropBow(drop.shape, drop.m, light, p, at * degree);
    bow.angle.push_back(found ? found->angle / degree : std::numeric_limits<double>::quiet_NaN());
  }
  return bow;
}

/// A box of a plot on a surface.
struct Box {
  double left, right, top, bottom;
  double low = 0, high = 1;
  double X(double clock) const { return left + clock / 180 * (right - left); }
  double Y(double angle) const { return bottom - (angle - low) / (high - low) * (bottom - top); }
};

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

void PaintSection(DrawingSurface& surface, const PageDrop& drop, const Box& box) {
  const double scale = std::min(box.right - box.left, box.bottom - box.top) / (2 * sectionReach);
  const double x0 = (box.left + box.right) / 2, y0 = (box.top + box.bottom) / 2;
  const auto place = [&](const PageDrop::Point& point) {
    return SurfacePoint{x0 + scale * point.x, y0 - scale * point.z};
  };
  const auto draw = [&](const std::vector<PageDrop::Point>& points) {
    std::vector<SurfacePoint> line;
    for (const PageDrop::Point& point : points) line.push_back(place(point));
    if (line.size() > 1) surface.Polyline(line);
  };
  for (const PageDrop::Ray& ray : drop.rays) {
    surface.ForeColour = ColourOf(ray.p);
    draw(ray.points);
  }
  surface.ForeColour = colours::Black;
  surface.DrawWidth = 2;
  draw(drop.outline);
  surface.DrawWidth = 1;
}

/// Steps of 1, 2 or 5 degrees times a power of ten, three to seven of them.
double StepOf(double range) {
  const double unit = std::pow(10, std::floor(std::log10(range)));
  const double whole = range / unit;
  return whole < 2 ? unit / 2 : whole < 5 ? unit : 2 * unit;
}

void FitRange(const PageDrop& drop, Box& box) {
  double low = std::numeric_limits<double>::infinity(), high = -low;
  for (const PageDrop::Bow& bow : drop.bows)
    for (const double angle : bow.angle) {
      if (!std::isfinite(angle)) continue;
      low = std::min(low, angle);
      high = std::max(high, angle);
    }
  if (!(low <= high)) low = 120, high = 150;
  if (high - low < 1) low -= 0.5, high += 0.5;
  const double step = StepOf(high - low);
  box.low = step * std::floor(low / step);
  box.high = step * std::ceil(high / step);
}

void PaintTicks(DrawingSurface& surface, const Box& box) {
  const double line = surface.TextHeight("0");
  constexpr int clockTick = 45;
  for (int clock = 0; clock <= 180; clock += clockTick) {
    surface.ForeColour = RGB(208, 208, 208);
    surface.Line(box.X(clock), box.top, box.X(clock), box.bottom);
    surface.ForeColour = colours::Black;
    const std::string text = std::to_string(clock);
    PrintAt(surface, box.X(clock) - surface.TextWidth(text) / 2, box.bottom + line / 4, text);
  }
  const double step = StepOf(box.high - box.low);
  const int steps = static_cast<int>(std::nearbyint((box.high - box.low) / step));
  for (int i = 0; i <= steps; ++i) {
    const double angle = box.low + i * step;
    surface.ForeColour = RGB(208, 208, 208);
    surface.Line(box.left, box.Y(angle), box.right, box.Y(angle));
    surface.ForeColour = colours::Black;
    const std::string text = Significant(angle, 4);
    PrintAt(surface, box.left - surface.TextWidth(text + " "), box.Y(angle) - line / 2, text);
  }
}

void PaintBow(DrawingSurface& surface, const PageDrop& drop, const PageDrop::Bow& bow, const Box& box) {
  std::vector<SurfacePoint> piece;
  const auto flush = [&] {
    if (piece.size() > 1) surface.Polyline(piece);
    piece.clear();
  };
  surface.ForeColour = ColourOf(bow.p);
  surface.DrawWidth = 2;
  for (std::size_t i = 0; i < bow.angle.size(); ++i) {
    if (std::isfinite(bow.angle[i]))
      piece.push_back({box.X(drop.clock[i]), box.Y(bow.angle[i])});
    else
      flush();
  }
  flush();
  surface.DrawWidth = 1;
}

void PaintBows(DrawingSurface& surface, const PageDrop& drop, Box box) {
  FitRange(drop, box);
  const double line = surface.TextHeight("0");
  surface.ForeColour = colours::White;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
  surface.ForeColour = RGB(255, 246, 204);
  surface.Line(box.X(drop.clockFrom), box.top, box.X(drop.clockTo), box.bottom, LineKind::FilledBox);
  PaintTicks(surface, box);
  double x = box.left + line / 2;
  for (const PageDrop::Bow& bow : drop.bows) {
    PaintBow(surface, drop, bow, box);
    const std::string name = "p = " + std::to_string(bow.p);
    PrintAt(surface, x, box.top - 1.3 * line, name);
    x += surface.TextWidth(name + "   ");
  }
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
  const std::string title = "Angle of the bow v. clock angle (deg.)";
  PrintAt(surface, (box.left + box.right - surface.TextWidth(title)) / 2, box.bottom + 1.4 * line, title);
}

}  // namespace

PageDrop DropDrawing(const DropToDraw& drop) {
  PageDrop page;
  page.outline = OutlineOf(drop.shape);
  page.clockFrom = drop.clockFrom;
  page.clockTo = drop.clockTo;
  for (int clock = 0; clock <= 180; clock += clockStep) page.clock.push_back(clock);
  const DropLight light(drop.elevation);
  for (const int p : drop.orders) {
    for (const double clock : {0.0, std::numbers::pi})
      if (auto ray = RayOf(drop, light, p, clock)) page.rays.push_back(std::move(*ray));
    page.bows.push_back(BowOf(drop, light, p, page.clock));
  }
  return page;
}

void PaintDrop(DrawingSurface& surface, const PageDrop& drop) {
  const double line = surface.TextHeight("0"), width = surface.ScaleWidth(), height = surface.ScaleHeight();
  const Box section{line / 4, 0.45 * width, line / 4, height - line / 4};
  const Box plot{0.45 * width + surface.TextWidth("000.00 "), width - surface.TextWidth("000"), 1.6 * line,
                 height - 2.8 * line};
  if (!(plot.right > plot.left) || !(plot.bottom > plot.top)) return;
  PaintSection(surface, drop, section);
  PaintBows(surface, drop, plot);
}

}  // namespace lumivex
