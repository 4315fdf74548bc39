#include "pages/curves/curve_key.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "pages/bars/bar_place.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_rows.h"
#include "pages/items/readings.h"

namespace lumivex {

namespace {

struct Entry {
  std::string name;
  Colour colour;
  int drawStyle = 0, drawWidth = 1;
  int line = 0;  ///< of its polarisation
  bool operator==(const Entry&) const = default;
};

/// A piece of the curve on the colour of the plot, as long and as far from the name (surface units).
constexpr double sampleWidth = 420, afterSample = 100, betweenNames = 300;

/// Air at the right and the lower edge of the surface.
constexpr double margin = 60;

constexpr double largestFont = 8, smallestFont = 5, fontStep = 0.5;

/// Text in the colour of its curve, darker where the curve is too light for the page around the plot.
Colour TextColour(Colour curve) {
  constexpr double lightest = 160;
  const double lightness = 0.3 * curve.Red() + 0.59 * curve.Green() + 0.11 * curve.Blue();
  const double factor = lightness > lightest ? 0.5 : 1;
  return RGB(factor * curve.Red(), factor * curve.Green(), factor * curve.Blue());
}

/// The second panel of phases has the pens and kinds of the first, and a title. The title of the degree of polarisation
/// tells its curve as long as there is one.
bool StandsInKey(const Page& page, const PageCurve& curve) {
  if (curve.panel >= page.panels.size()) return false;
  if (!page.panels[curve.panel].second || page.kind.second == SecondPanel::Ratios) return true;
  return page.kind.second == SecondPanel::Polarisation &&
         std::ranges::any_of(page.curves, [&](const PageCurve& other) { return other.run != curve.run; });
}

/// The line of a curve in the key: its kind. Ratios come below the curve above them, the degree of polarisation below
/// all kinds.
int LineOf(const Page& page, const PageCurve& curve) {
  constexpr int belowKinds = 4;
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
    const Entry entry{names.InKey(curve), curve.colour, curve.drawStyle, curve.drawWidth, LineOf(page, curve)};
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
    if (count > 1 || !curve.keyName.empty()) return true;
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
    surface.Line(x, y + 0.5 * height, x + sampleWidth, y + 0.5 * height);
    surface.DrawStyle = 0;
    surface.DrawWidth = 1;
  }
  surface.ForeColour = TextColour(entry.colour);
  surface.CurrentX = x + sampleWidth + afterSample;
  surface.CurrentY = y;
  surface.Print(entry.name, false);
}

}  // namespace

std::size_t EntriesInKey(const Page& page) {
  return HasKey(page) ? EntriesOf(page).size() : 0;
}

void PaintKey(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels) {
  if (!HasKey(page)) return;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = largestFont;
  surface.FontBold = false;
  std::vector<Entry> entries = EntriesOf(page);
  if (page.runsLeftOut > 0)
    entries.insert(
        entries.begin(),
        Entry{"Oldest runs left out, for want of memory: " + std::to_string(page.runsLeftOut), colours::Black});
  const Places places = PlaceAll(surface, entries, RoomOf(surface, page, polarLabels));
  for (std::size_t i = 0; i < entries.size(); ++i) PrintEntry(surface, entries[i], page.style.ground, places[i]);
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
