#include "pages/curves/curve_key.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "pages/bars/bar_place.h"
#include "pages/compare/paint_points.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_rows.h"
#include "pages/frame/colours.h"
#include "pages/items/readings.h"

namespace lumivex {

namespace {

struct Entry {
  std::string name;
  Colour colour;
  int drawStyle = 0, drawWidth = 1;
  int line = 0;  ///< of its polarisation
  int data = 0;  ///< number of the measured data that it is
  bool operator==(const Entry&) const = default;
};

/// A piece of the curve on the colour of the plot, as long and as far from the name (surface units).
constexpr double sampleWidth = 420, afterSample = 100, betweenNames = 300;

/// Air at the right and the lower edge of the surface.
constexpr double margin = 60;

constexpr double largestFont = 8, smallestFont = 5, fontStep = 0.5;

/// The second panel of phases has the pens and kinds of the first, and a title. The title of the degree of polarisation
/// tells its curve as long as there is one.
bool StandsInKey(const Page& page, const PageCurve& curve) {
  // The panel below the graph says itself what it compares.
  if (curve.panel >= page.panels.size() || page.panels[curve.panel].below != BelowGraph::Nothing) return false;
  if (!curve.givenName.empty()) return true;
  if (!page.panels[curve.panel].second || page.kind.second == SecondPanel::Ratios) return true;
  return page.kind.second == SecondPanel::Polarisation &&
         std::ranges::any_of(page.curves, [&](const PageCurve& other) { return other.run != curve.run; });
}

/// The line of a curve in the key: its kind. Ratios come below the curve above them, the degree of polarisation below
/// all kinds, measured data last.
int LineOf(const Page& page, const PageCurve& curve) {
  constexpr int belowKinds = 4, belowAll = 5;
  if (curve.data != 0) return belowAll;
  if (!page.panels[curve.panel].second) return curve.kind;
  return page.kind.second == SecondPanel::Polarisation ? belowKinds : curve.kind + 1;
}

/// Curves of one wavelength have its colour, whatever their polarisation: one entry names the wavelength for all.
void MergeWavelengths(std::vector<Entry>& entries) {
  constexpr std::string_view behind = ": ";
  const auto wavelength = [&](const Entry& entry) { return entry.name.substr(0, entry.name.find(behind)); };
  std::map<std::string, int> curves;
  for (const Entry& entry : entries)
    if (entry.name.find(behind) != std::string::npos) ++curves[wavelength(entry)];
  std::vector<Entry> merged;
  for (Entry& entry : entries) {
    // Sums are of no wavelength; of one that is named already the other polarisations are passed over.
    if (const auto found = curves.find(wavelength(entry)); found != curves.end()) {
      if (found->second == 0) continue;
      if (std::exchange(found->second, found->second > 1 ? 0 : 1) > 1) {
        entry.name = found->first;
        entry.line = 1;
      }
    }
    merged.push_back(std::move(entry));
  }
  entries = std::move(merged);
}

/// All that the key says, each pen and name once.
std::vector<Entry> EntriesOf(const Page& page) {
  std::vector<Entry> entries;
  const CurveNames names(page);
  for (const PageCurve& curve : page.curves) {
    if (!StandsInKey(page, curve)) continue;
    const Entry entry{names.InKey(curve), curve.colour,        curve.drawStyle,
                      curve.drawWidth,    LineOf(page, curve), curve.data};
    if (std::ranges::find(entries, entry) == entries.end()) entries.push_back(entry);
  }
  if (page.kind.wavelengths > 1) MergeWavelengths(entries);
  std::ranges::stable_sort(entries, {}, &Entry::line);
  return entries;
}

bool HasKey(const Page& page) {
  // Where lines carry their names themselves, as those of a chart of two angles, there is none.
  if (page.panels.empty() || page.kind.IsTwoAngle() || page.style.legends) return false;
  std::size_t count = 0;
  for (const PageCurve& curve : page.curves) {
    if (!StandsInKey(page, curve)) continue;
    ++count;
    if (count > 1 || !curve.keyName.empty() || !curve.givenName.empty()) return true;
  }
  return page.runsLeftOut > 0;
}

/// Room for the key.
struct Room {
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// Below the title of the horizontal axis and the bars, in a polar plot below the scale's text.
Room RoomOf(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels) {
  const double right = surface.ScaleWidth() - margin,
               bottom = std::min(TopOfFoot(surface, page), surface.ScaleHeight() - margin);
  const double line = surface.TextHeight("X");
  if (page.kind.polar) {
    constexpr double linesOfKey = 3;
    const PolarMap at = PolarMapOf(page);
    double below = at.centreY + at.radius;
    for (const GraphBox& text : polarLabels.Taken()) below = std::max(below, text.bottom);
    below += 150;
    if (below + linesOfKey * line <= bottom) return {std::max(100.0, at.centreX - at.radius), below, right, bottom};
    // A very large circle leaves room only at its side, below the scale's text where that stands there.
    const double side = at.centreX + 1.25 * at.radius;
    double top = at.centreY;
    for (const GraphBox& text : polarLabels.Taken())
      if (text.left >= side) top = std::max(top, text.bottom);
    return {side, std::min(top + line, bottom - linesOfKey * line), right, bottom};
  }
  const double title = BottomOfXTitle(surface, page);
  const double below = std::max(title, BottomOfBars(surface, page).value_or(title)) + 0.25 * line;
  return {page.panels.back().box.left, below, right, bottom};
}

double WidthOf(const DrawingSurface& surface, const Entry& entry) {
  return sampleWidth + afterSample + surface.TextWidth(entry.name);
}

/// Where each entry stands, by index; empty where they do not all find room.
using Places = std::vector<SurfacePoint>;

/// One line a polarisation.
Places PlaceByLine(const DrawingSurface& surface, const std::vector<Entry>& entries, const Room& room) {
  double width = 0;
  for (const Entry& entry : entries) width = std::max(width, WidthOf(surface, entry) + betweenNames);
  const double height = surface.TextHeight("X");
  Places places;
  double x = room.left, y = room.top;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (i > 0 && entries[i].line != entries[i - 1].line) x = room.left, y += height;
    if (x + width - betweenNames > room.right || y + height > room.bottom) return {};
    places.push_back({x, y});
    x += width;
  }
  return places;
}

/// Column after column, each as wide as it must be.
Places PlaceInColumns(const DrawingSurface& surface, const std::vector<Entry>& entries, const Room& room) {
  const double height = surface.TextHeight("X");
  const auto rows = static_cast<std::size_t>(std::max(1.0, std::floor((room.bottom - room.top) / height)));
  Places places;
  double x = room.left, width = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::size_t row = i % rows;
    if (row == 0 && i > 0) x += width + betweenNames, width = 0;
    width = std::max(width, WidthOf(surface, entries[i]));
    if (x + width > room.right) return {};
    places.push_back({x, room.top + height * static_cast<double>(row)});
  }
  return places;
}

/// Sets the size of the letters and leaves out what has no room at the smallest.
Places PlaceAll(DrawingSurface& surface, std::vector<Entry>& entries, const Room& room) {
  for (double size = largestFont; size >= smallestFont; size -= fontStep) {
    surface.FontSize = size;
    if (Places places = PlaceByLine(surface, entries, room); !places.empty()) return places;
    if (Places places = PlaceInColumns(surface, entries, room); !places.empty()) return places;
  }
  std::size_t more = 0;
  while (entries.size() > 1) {
    ++more;
    entries.pop_back();
    entries.back() = {"and " + std::to_string(more + 1) + " more", colours::Black};
    if (Places places = PlaceInColumns(surface, entries, room); !places.empty()) return places;
  }
  return Places(entries.size(), {room.left, room.top});
}

/// One entry at a place: sample and name.
void PrintEntry(DrawingSurface& surface, const Entry& entry, Colour ground, SurfacePoint at) {
  const auto [x, y] = at;
  const double height = surface.TextHeight("X");
  if (entry.line > 0) {
    surface.ForeColour = ground;
    surface.Line(x, y + 0.1 * height, x + sampleWidth, y + 0.9 * height, LineKind::FilledBox);
    surface.ForeColour = entry.colour;
    surface.DrawStyle = entry.drawStyle;
    surface.DrawWidth = entry.drawWidth;
    const double middle = y + 0.5 * height;
    if (entry.data != 0)
      PaintPoint(surface, entry.data, {x + 0.5 * sampleWidth, middle}, entry.colour);
    else
      surface.Line(x, middle, x + sampleWidth, middle);
    surface.DrawStyle = 0;
    surface.DrawWidth = 1;
  }
  surface.ForeColour = OnPaper(entry.colour);
  surface.CurrentX = x + sampleWidth + afterSample;
  surface.CurrentY = y;
  surface.Print(entry.name, false);
}

/// The plot that a moved key stands in: all panels, of a polar plot the room around the circle.
GraphBox PlotOf(const Page& page) {
  if (page.kind.polar) return page.geometry.box;
  return {page.panels.front().box.left, page.panels.front().box.right, page.panels.front().box.top,
          page.panels.back().box.bottom};
}

/// What the key says, and where.
struct KeyLayout {
  std::vector<Entry> entries;
  Places places;

  GraphBox Box(const DrawingSurface& surface) const {
    GraphBox box{places.front().x, places.front().x, places.front().y, places.front().y};
    for (std::size_t i = 0; i < places.size(); ++i) {
      box.left = std::min(box.left, places[i].x);
      box.top = std::min(box.top, places[i].y);
      box.right = std::max(box.right, places[i].x + WidthOf(surface, entries[i]));
      box.bottom = std::max(box.bottom, places[i].y + surface.TextHeight("X"));
    }
    return box;
  }
};

/// Air around the entries of a key within the plot.
constexpr double keyAir = 60;

/// Entries below each other at the place in the plot; where that is too near to an edge, so far from it that all of the
/// key is within.
void MoveIntoPlot(const DrawingSurface& surface, const Page& page, KeyLayout& layout) {
  const GraphBox plot = PlotOf(page), block = layout.Box(surface);
  const auto within = [](double wanted, double from, double to) { return std::max(from, std::min(wanted, to)); };
  const double x = within(plot.left + page.keyAt->x * plot.Width(), plot.left + keyAir,
                          plot.right - keyAir - block.Width()),
               y = within(plot.top + page.keyAt->y * plot.Height(), plot.top + keyAir,
                          plot.bottom - keyAir - block.Height());
  for (SurfacePoint& place : layout.places) place = {place.x + x - block.left, place.y + y - block.top};
}

/// Lays the key out with the letters that the surface has afterwards.
KeyLayout LayOut(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels) {
  surface.FontName = "MS Sans Serif";
  surface.FontSize = largestFont;
  surface.FontBold = false;
  KeyLayout layout;
  layout.entries = EntriesOf(page);
  if (page.runsLeftOut > 0)
    layout.entries.insert(
        layout.entries.begin(),
        Entry{"Oldest runs left out, for want of memory: " + std::to_string(page.runsLeftOut), colours::Black});
  if (page.keyAt) {
    const GraphBox plot = PlotOf(page);
    const Room room{plot.left + keyAir, plot.top + keyAir, plot.right - keyAir, plot.bottom - keyAir};
    for (; surface.FontSize > smallestFont && layout.places.empty(); surface.FontSize -= fontStep)
      if (layout.places = PlaceInColumns(surface, layout.entries, room); !layout.places.empty()) break;
  }
  if (layout.places.empty()) {
    layout.places = PlaceAll(surface, layout.entries, RoomOf(surface, page, polarLabels));
  } else {
    MoveIntoPlot(surface, page, layout);
  }
  return layout;
}

/// Paper behind a key that stands in the plot.
void PaintGroundOfKey(DrawingSurface& surface, const Page& page, const GraphBox& box) {
  surface.ForeColour = page.style.paper;
  surface.Line(box.left - keyAir, box.top - keyAir, box.right + keyAir, box.bottom + keyAir, LineKind::FilledBox);
  surface.ForeColour = RGB(128, 128, 128);
  surface.Line(box.left - keyAir, box.top - keyAir, box.right + keyAir, box.bottom + keyAir, LineKind::Box);
}

}  // namespace

std::size_t EntriesInKey(const Page& page) {
  return HasKey(page) ? EntriesOf(page).size() : 0;
}

std::optional<GraphBox> KeyBox(DrawingSurface& surface, const Page& page) {
  if (!HasKey(page)) return std::nullopt;
  const SurfacePen pen = surface;
  const KeyLayout layout = LayOut(surface, page, TickLabels(surface));
  std::optional<GraphBox> box;
  if (!layout.places.empty()) box = layout.Box(surface);
  static_cast<SurfacePen&>(surface) = pen;
  return box;
}

KeyPlace KeyPlaceAt(const Page& page, double surfaceX, double surfaceY) {
  const GraphBox plot = PlotOf(page);
  const auto part = [](double value) { return std::round(1000 * std::clamp(value, 0.0, 1.0)) / 1000; };
  return {part((surfaceX - plot.left) / plot.Width()), part((surfaceY - plot.top) / plot.Height())};
}

void PaintKey(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels) {
  if (!HasKey(page)) return;
  const SurfacePen pen = surface;
  const KeyLayout layout = LayOut(surface, page, polarLabels);
  if (page.keyAt && !layout.places.empty()) PaintGroundOfKey(surface, page, layout.Box(surface));
  for (std::size_t i = 0; i < layout.places.size(); ++i)
    PrintEntry(surface, layout.entries[i], page.style.ground, layout.places[i]);
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
