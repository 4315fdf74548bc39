#include "pages/items/profile_graph.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <string>

#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int points = 401;
constexpr int mostStairs = 64;  // more of them cannot be told from the curve

/// The box of the plot on a surface, with room for the numbers.
struct Box {
  double left, right, top, bottom;
  double low, high;

  double X(double r) const { return left + r * (right - left); }
  double Y(double n) const { return bottom - (n - low) / (high - low) * (bottom - top); }
};

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

/// Steps of 1, 2 or 5 times a power of ten, three to seven of them.
double StepOf(double range) {
  const double unit = std::pow(10, std::floor(std::log10(range)));
  const double whole = range / unit;
  return whole < 2 ? unit / 4 : whole < 4 ? unit / 2 : unit;
}

void FitRange(PageProfile& profile) {
  double low = std::numeric_limits<double>::infinity(), high = -low;
  for (const double n : profile.n) {
    if (!std::isfinite(n)) continue;
    low = std::min(low, n);
    high = std::max(high, n);
  }
  if (!(low <= high)) low = 1, high = 2;
  if (high - low < 0.01) low -= 0.05, high += 0.05;
  const double step = StepOf(high - low);
  profile.lowest = step * std::floor(low / step);
  profile.highest = step * std::ceil(high / step);
}

void PaintTicks(DrawingSurface& surface, const Box& box) {
  const Colour grid = RGB(208, 208, 208);
  constexpr int tenths = 10;
  const double line = surface.TextHeight("0");
  for (int i = 0; i <= tenths; i += 2) {
    const double r = static_cast<double>(i) / tenths;
    surface.ForeColour = grid;
    surface.Line(box.X(r), box.top, box.X(r), box.bottom);
    surface.ForeColour = colours::Black;
    const std::string text = Shortest(r);
    PrintAt(surface, box.X(r) - surface.TextWidth(text) / 2, box.bottom + line / 4, text);
  }
  const double step = StepOf(box.high - box.low);
  const int steps = static_cast<int>(std::nearbyint((box.high - box.low) / step));
  for (int i = 0; i <= steps; ++i) {
    const double n = box.low + i * step;
    surface.ForeColour = grid;
    surface.Line(box.left, box.Y(n), box.right, box.Y(n));
    surface.ForeColour = colours::Black;
    const std::string text = Significant(n, 4);
    PrintAt(surface, box.left - surface.TextWidth(text + " "), box.Y(n) - line / 2, text);
  }
}

void PaintCurve(DrawingSurface& surface, const PageProfile& profile, const Box& box) {
  std::vector<SurfacePoint> piece;
  const auto flush = [&] {
    if (piece.size() > 1) surface.Polyline(piece);
    piece.clear();
  };
  for (std::size_t i = 0; i < profile.r.size(); ++i) {
    if (std::isfinite(profile.n[i]))
      piece.push_back({box.X(profile.r[i]), box.Y(profile.n[i])});
    else
      flush();
  }
  flush();
}

void PaintStairs(DrawingSurface& surface, const std::vector<double>& layers, const Box& box) {
  const auto count = static_cast<double>(layers.size());
  std::vector<SurfacePoint> piece;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (!std::isfinite(layers[i])) {
      if (piece.size() > 1) surface.Polyline(piece);
      piece.clear();
      continue;
    }
    // The index of a layer may lie beyond those of the curve's points by a hair.
    const double y = std::clamp(box.Y(layers[i]), box.top, box.bottom);
    const auto at = static_cast<double>(i);
    piece.push_back({box.X(at / count), y});
    piece.push_back({box.X((at + 1) / count), y});
  }
  if (piece.size() > 1) surface.Polyline(piece);
}

}  // namespace

PageProfile ProfileGraph(const std::function<double(double)>& index, int layers) {
  PageProfile profile;
  for (int i = 0; i < points; ++i) {
    const double r = static_cast<double>(i) / (points - 1);
    profile.r.push_back(r);
    profile.n.push_back(index(r));
  }
  if (layers <= mostStairs)
    for (int layer = 0; layer < layers; ++layer) profile.layers.push_back(index((layer + 0.5) / layers));
  FitRange(profile);
  return profile;
}

void PaintProfile(DrawingSurface& surface, const PageProfile& profile) {
  const double line = surface.TextHeight("0");
  const Box box{surface.TextWidth("00.0000 "),
                surface.ScaleWidth() - surface.TextWidth("00"),
                1.6 * line,
                surface.ScaleHeight() - 2.8 * line,
                profile.lowest,
                profile.highest};
  if (!(box.right > box.left) || !(box.bottom > box.top)) return;
  surface.ForeColour = colours::White;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
  PaintTicks(surface, box);
  surface.ForeColour = RGB(150, 150, 150);
  PaintStairs(surface, profile.layers, box);
  surface.ForeColour = RGB(0, 0, 255);
  surface.DrawWidth = 2;
  PaintCurve(surface, profile, box);
  surface.DrawWidth = 1;
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
  const std::string title = "r";
  PrintAt(surface, (box.left + box.right - surface.TextWidth(title)) / 2, box.bottom + 1.4 * line, title);
  PrintAt(surface, line / 4, 0.1 * line, "n(r)");
}

}  // namespace lumivex
