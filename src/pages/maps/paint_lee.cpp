#include "pages/maps/paint_lee.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "pages/maps/lee_frame.h"

namespace lumivex {

namespace {

/// An interval of cells with the interval of the surface that it fills.
struct Span {
  double first = 0, last = 0;  ///< cells from the first one's outer edge
  double from = 0, to = 0;     ///< surface units
};

/// The cells of an axis between two limits; nothing where there are none.
std::optional<Span> CellsBetween(const SampleAxis& samples, double low, double high, double from, double to) {
  if (samples.count < 1) return std::nullopt;
  if (samples.count == 1) return Span{0, 1, from, to};
  Span all{samples.PlaceOf(low) + 0.5, samples.PlaceOf(high) + 0.5, from, to};
  Span span = all;
  span.first = std::clamp(all.first, 0.0, static_cast<double>(samples.count));
  span.last = std::clamp(all.last, 0.0, static_cast<double>(samples.count));
  if (!(span.last > span.first)) return std::nullopt;
  const double unit = (to - from) / (all.last - all.first);
  span.from = from + (span.first - all.first) * unit;
  span.to = from + (span.last - all.first) * unit;
  return span;
}

void PaintGround(DrawingSurface& surface, const GraphBox& box, Colour ground) {
  surface.ForeColour = ground;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
}

/// The part of a line that lies within a box (Liang and Barsky); nothing where it passes it by.
std::optional<std::pair<SurfacePoint, SurfacePoint>> Clipped(SurfacePoint a, SurfacePoint b, const GraphBox& box) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  double from = 0, to = 1;
  const auto cut = [&](double p, double q) {
    if (p == 0) return q >= 0;
    const double t = q / p;
    if (p < 0)
      from = std::max(from, t);
    else
      to = std::min(to, t);
    return from <= to;
  };
  if (!cut(-dx, a.x - box.left) || !cut(dx, box.right - a.x) || !cut(-dy, a.y - box.top) || !cut(dy, box.bottom - a.y))
    return std::nullopt;
  return std::pair{SurfacePoint{a.x + from * dx, a.y + from * dy}, SurfacePoint{a.x + to * dx, a.y + to * dy}};
}

/// On a dark edge, so that it is seen on pale cells too; left out where another text stands.
void PaintText(DrawingSurface& surface, SurfacePoint at, const std::string& text, Colour colour, const GraphBox& box,
               std::vector<GraphBox>& taken) {
  constexpr double edge = 15;
  const double width = surface.TextWidth(text), height = surface.TextHeight(text);
  const double x = std::min(at.x + 50, box.right - width), y = std::clamp(at.y - height, box.top, box.bottom - height);
  const auto meets = [&](const GraphBox& other) {
    return x < other.right && x + width > other.left && y < other.bottom && y + height > other.top;
  };
  if (std::ranges::any_of(taken, meets)) return;
  taken.push_back({x, x + width, y, y + height});
  const auto print = [&](double right, double down, Colour ink) {
    surface.ForeColour = ink;
    surface.CurrentX = x + right;
    surface.CurrentY = y + down;
    surface.Print(text, false);
  };
  for (const double side : {-edge, edge}) print(side, 0, colours::Black), print(0, side, colours::Black);
  print(0, 0, colour);
}

/// Marks of one kind over a picture, as far as they lie within it.
void PaintMarks(DrawingSurface& surface, const MapMarks& marks, const FramePaint& paint, std::vector<GraphBox>& texts) {
  constexpr double dot = 15;  // a pixel to both sides
  const GraphBox& box = paint.Box();
  std::vector<SurfacePoint> places;
  for (const MapMarks::Place& place : marks.places)
    places.push_back({paint.map.X(place.across), paint.map.Y(place.up)});
  for (std::size_t i = 1; marks.joined && i < places.size(); ++i)
    if (const auto line = Clipped(places[i - 1], places[i], box)) {
      const auto& [a, b] = *line;
      surface.ForeColour = colours::Black;
      surface.DrawWidth = 2;
      surface.Line(a.x, a.y, b.x, b.y);
      surface.ForeColour = marks.colour;
      surface.DrawWidth = 1;
      surface.Line(a.x, a.y, b.x, b.y);
    }
  const auto inside = [&](const SurfacePoint& at) { return box.Holds(at.x, at.y); };
  for (const SurfacePoint& at : places) {
    if (marks.joined || !inside(at)) continue;
    surface.ForeColour = colours::Black;
    surface.Line(at.x - 2 * dot, at.y - 2 * dot, at.x + 2 * dot, at.y + 2 * dot, LineKind::FilledBox);
    surface.ForeColour = marks.colour;
    surface.Line(at.x - dot, at.y - dot, at.x + dot, at.y + dot, LineKind::FilledBox);
  }
  surface.FontSize = 6;
  for (std::size_t i = 0; i < marks.texts.size(); ++i)
    if (!marks.texts[i].empty() && inside(places[i]))
      PaintText(surface, places[i], marks.texts[i], marks.colour, box, texts);
  surface.FontSize = 8;
  surface.ForeColour = colours::Black;
}

void PaintLines(DrawingSurface& surface, const Page& page) {
  using Place = MapLine::Place;
  // The third panel, wherever the pictures end.
  const GraphBox third = LeePanelBox(page.geometry, page.style, 2);
  PrepareSurface(surface, page.style);
  if (page.style.special) surface.FontSize = 19;
  const double top = std::max(third.bottom + 600, BottomOfLeeTitle(surface, page) + 10);
  surface.FontSize = 8;
  surface.FontBold = false;
  for (const MapLine& line : page.map->lines) {
    const bool diagnostics = line.place == Place::Diagnostics || line.place == Place::Diagnostics3;
    if (diagnostics && !page.style.readingsVisible) continue;
    const double below = line.place == Place::ScaleMaximum ? 0 : line.place == Place::Diagnostics3 ? 400 : 200;
    const double end = third.right - surface.TextWidth(line.text);
    const double at = line.place == Place::ScaleMaximum ? end : std::min(third.left, end);
    surface.ForeColour = line.colour;
    surface.CurrentX = diagnostics ? std::min(2000.0, page.panels.front().box.left + 1000) : at;
    surface.CurrentY = top + below;
    surface.Print(line.text, false);
  }
  surface.ForeColour = colours::Black;
}

/// What the numbers are, within the key at its lower right: at its left and over it there may be inputs.
void PaintWordsOfKey(DrawingSurface& surface, const ColourKey& key, const GraphBox& box) {
  constexpr double air = 60;
  const double width = surface.TextWidth(key.words);
  const double part = std::max(0.0, 1 - (air + 0.5 * width) / box.Width());
  const auto under = static_cast<std::size_t>(part * static_cast<double>(key.cells.size() - 1));
  const Colour ground = key.cells[under];
  constexpr int light = 382;  // half of the sum of three full channels
  surface.ForeColour = ground.Red() + ground.Green() + ground.Blue() > light ? colours::Black : colours::White;
  surface.CurrentX = box.right - air - width;
  surface.CurrentY = box.bottom - surface.TextHeight(key.words) - 10;
  surface.Print(key.words, false);
  surface.ForeColour = colours::Black;
}

void PaintColourKey(DrawingSurface& surface, const Page& page) {
  const ColourKey& key = *page.map->key;
  const GraphBox box = KeyBox(LeePanelBox(page.geometry, page.style, 2));
  surface.Image({box.left, box.top, box.right, box.bottom, static_cast<int>(key.cells.size()), 1}, key.cells);
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
  PrepareSurface(surface, page.style);
  surface.FontBold = false;
  surface.FontSize = 6;
  PaintWordsOfKey(surface, key, box);
  TickLabels labels(surface);
  const double height = surface.TextHeight("X");
  // The titles of slides reach up to the key.
  const double y = page.style.special ? box.top - height - 5 : box.bottom + 3;
  for (const ColourKey::Number& number : key.numbers) {
    const double x = box.left + number.part * box.Width(), width = surface.TextWidth(number.text);
    labels.Print(number.text, std::min(x - 0.5 * width, surface.ScaleWidth() - width - 30), y);
  }
}

}  // namespace

GraphBox KeyBox(const GraphBox& thirdPanel) {
  return {thirdPanel.left, thirdPanel.right, thirdPanel.top - 700, thirdPanel.top - 400};
}

std::optional<CellBlock> CellsIn(const Page& page, const PagePanel& panel) {
  const PageMap& map = *page.map;
  const GraphBox& box = panel.box;
  const AxisLimits& limits = panel.limits;
  const auto across = CellsBetween(map.across.samples, limits.xmin, limits.xmax, box.left, box.right);
  const auto up = CellsBetween(map.up.samples, limits.ymin, limits.ymax, box.bottom, box.top);
  if (!across || !up) return std::nullopt;
  const int rows = map.up.samples.count;
  CellBlock block{across->from, up->to, across->to, up->from, map.across.samples.count, rows};
  block.part = CellPart{across->first, rows - up->last, across->last, rows - up->first};
  return block;
}

void PaintLee(DrawingSurface& surface, const Page& page) {
  const PageMap& map = *page.map;
  for (std::size_t i = 0; i < page.panels.size(); ++i) {
    const PagePanel& panel = page.panels[i];
    FramePaint paint(page, panel, surface);
    PaintGround(surface, panel.box, page.style.ground);
    if (const auto block = CellsIn(page, panel)) surface.Image(*block, *map.pictures[i].cells);
    std::vector<GraphBox> texts;
    for (const MapMarks& marks : map.marks) PaintMarks(surface, marks, paint, texts);
    LeeFrame(paint);
    PaintLeeTitles(paint, i);
  }
  if (page.panels.empty()) return;
  LogoLee(surface, page);
  PaintLines(surface, page);
  if (map.key) PaintColourKey(surface, page);
}

}  // namespace lumivex
