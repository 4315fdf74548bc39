#include "pages/bars/bar_place.h"

#include <algorithm>
#include <cmath>

#include "axes/panel_map.h"
#include "pages/bars/bar_colours.h"
#include "pages/bars/bar_light.h"
#include "pages/curves/curve_key.h"
#include "pages/frame/frame.h"
#include "pages/items/readings.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// A bar is a part of the height of the plot, within limits.
constexpr double shareOfPlot = 1.0 / 22, leastWanted = 170, greatestHeight = 400;

/// Lower than this a bar is a line.
constexpr double leastHeight = 90;

constexpr double betweenBars = 40;

/// From the plot to the bars: numbers and title of the axis. The letters of slides take more.
constexpr double titleRoom = 640, titleRoomSlide = 1040;

/// Of the room below a graph without bars, so much is for its numbers, its title and a line of the key; what the bars
/// put between the title and themselves comes to it.
constexpr double airOfBars = 100;

/// For the key below the bars, more for many names in letters that can be read, as far as the graph can spare it.
constexpr double oneLineOfKey = 270, twoLinesOfKey = 470, mostForKey = 1100;
constexpr double namesInLine = 4, readableLine = 170;

double RoomForKey(const Page& page) {
  // So many curves fill the key whatever they are called.
  constexpr std::size_t surelyMost = 100;
  if (page.keyAt) return oneLineOfKey;
  if (page.curves.size() > surelyMost) return mostForKey;
  const double lines = std::ceil(static_cast<double>(EntriesInKey(page)) / namesInLine);
  return std::clamp(readableLine * lines, twoLinesOfKey, mostForKey);
}

double WantedHeight(const Page& page) {
  return std::clamp(page.geometry.box.Height() * shareOfPlot, leastWanted, greatestHeight);
}

PanelMap AxisOf(const Page& page, const GraphBox& box) {
  return {box, page.panels.front().limits, page.kind.logX, false};
}

/// What a reader cannot see of the scale; empty where it is the bars' own.
std::string NoteOf(const PageBars& bars) {
  std::string note;
  if (bars.referenceIsSet)
    note = "Set normalisation: full brightness at " + std::string(Trim(Significant(bars.reference, 6)));
  if (bars.otherUnit) note = "Set normalisation is of intensities in another unit: own scale";
  if (bars.ownUnpolarised) note += std::string(note.empty() ? "" : "; ") + "unpolarised bar normalised by itself";
  return note;
}

constexpr double noteFont = 7;

/// Left edge of the titles, and from their ends to the bars.
constexpr double titleLeft = 30, beforeBar = 60;

/// Letters in which all titles find room beside the bars, one size for the three.
void SetTitleFont(DrawingSurface& surface, const GraphBox& box) {
  constexpr double largest = 7, smallest = 4, step = 0.5;
  surface.FontName = "Small Fonts";
  surface.FontSize = largest;
  surface.FontBold = false;
  const double width = box.left - titleLeft - beforeBar, height = box.Height() + betweenBars;
  const auto fits = [&](std::size_t bar) {
    return surface.TextWidth(BarTitle(bar)) <= width && surface.TextHeight("X") <= height;
  };
  while (surface.FontSize > smallest && !(fits(0) && fits(1) && fits(2))) surface.FontSize -= step;
}

void PrintTitle(DrawingSurface& surface, const GraphBox& box, std::string_view title) {
  surface.CurrentX = std::max(titleLeft, box.left - beforeBar - surface.TextWidth(title));
  surface.CurrentY = 0.5 * (box.top + box.bottom - surface.TextHeight(title));
  surface.Print(title, false);
}

/// Slanting lines where nothing was calculated: no light looks like them, while blank paper would be white light.
void Hatch(DrawingSurface& surface, const GraphBox& part) {
  constexpr double between = 180;
  const double height = part.Height();
  const Colour before = surface.ForeColour;
  surface.ForeColour = RGB(150, 150, 150);
  for (double x = between * std::ceil((part.left - height) / between); x < part.right; x += between) {
    const double from = std::max(x, part.left), to = std::min(x + height, part.right);
    if (from < to) surface.Line(from, part.bottom - (from - x), to, part.bottom - (to - x));
  }
  surface.ForeColour = before;
}

void PaintBar(DrawingSurface& surface, const Page& page, const GraphBox& box, std::size_t bar) {
  const PageBars& bars = *page.bars;
  const auto& columns = bars.columns[bar];
  if (columns.empty()) {
    Hatch(surface, box);
  } else {
    const PanelMap axis = AxisOf(page, box);
    const double left = axis.X(bars.covered.xmin), right = axis.X(bars.covered.xmax);
    Hatch(surface, {box.left, left, box.top, box.bottom});
    Hatch(surface, {right, box.right, box.top, box.bottom});
    const CellBlock block{left, box.top, right, box.bottom, static_cast<int>(columns.size()), 1, bars.part};
    surface.Image(block, columns);
  }
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
}

}  // namespace

double RoomForBars(const Page& page) {
  return HasBars(page.kind) ? 3 * WantedHeight(page) + 2 * betweenBars + airOfBars + RoomForKey(page) - oneLineOfKey
                            : 0;
}

std::optional<std::array<GraphBox, 3>> BarBoxes(const Page& page) {
  if (!page.bars || page.panels.empty()) return std::nullopt;
  const GraphBox plot = PlotBox(page);
  const double top = plot.bottom + (page.style.special ? titleRoomSlide : titleRoom);
  const double room = page.geometry.surfaceHeight - RoomForFoot(page) - oneLineOfKey - top;
  const double height = std::min(WantedHeight(page), (room - 2 * betweenBars) / 3);
  if (height < leastHeight) return std::nullopt;
  std::array<GraphBox, 3> boxes;
  for (std::size_t k = 0; k < boxes.size(); ++k) {
    const double y = top + static_cast<double>(k) * (height + betweenBars);
    boxes[k] = {plot.left, plot.right, y, y + height};
  }
  return boxes;
}

void PaintBars(DrawingSurface& surface, const Page& page) {
  const auto boxes = BarBoxes(page);
  if (!boxes) return;
  const SurfacePen pen = surface;
  surface.ForeColour = colours::Black;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  SetTitleFont(surface, boxes->front());
  for (std::size_t k = 0; k < boxes->size(); ++k) {
    PrintTitle(surface, (*boxes)[k], BarTitle(k));
    PaintBar(surface, page, (*boxes)[k], k);
  }
  surface.FontSize = noteFont;
  surface.CurrentX = boxes->back().left;
  surface.CurrentY = boxes->back().bottom + betweenBars;
  surface.Print(NoteOf(*page.bars), false);
  static_cast<SurfacePen&>(surface) = pen;
}

std::optional<double> BottomOfBars(const DrawingSurface& surface, const Page& page) {
  const auto boxes = BarBoxes(page);
  if (!boxes) return std::nullopt;
  // The note is smaller than the letters of a frame, which the surface has now.
  const double note = NoteOf(*page.bars).empty() ? 0 : betweenBars + surface.TextHeight("X");
  return boxes->back().bottom + note;
}

std::optional<BarColumn> BarColumnAt(const Page& page, double surfaceX, double surfaceY) {
  const auto boxes = BarBoxes(page);
  if (!boxes || page.bars->lastShown < page.bars->firstShown) return std::nullopt;
  const PageBars& bars = *page.bars;
  for (std::size_t k = 0; k < boxes->size(); ++k) {
    if (!(*boxes)[k].Holds(surfaceX, surfaceY)) continue;
    const double angle = AxisOf(page, (*boxes)[k]).XAt(surfaceX);
    if (angle < bars.covered.xmin || angle > bars.covered.xmax) return std::nullopt;
    const double row = std::floor((angle - AngleOfFirstRow(bars)) / bars.step + 0.5) + 1;
    const auto first = static_cast<double>(bars.firstShown), last = static_cast<double>(bars.lastShown);
    return BarColumn{k, static_cast<std::size_t>(std::clamp(row, first, last))};
  }
  return std::nullopt;
}

std::string WordsOf(const PageBars& bars, const BarColumn& column) {
  const BarLight& light = bars.light[column.bar];
  const auto sum = [&](std::size_t c) { return std::string(Trim(Significant(light.channels[c][column.row], 6))); };
  const Colour drawn = bars.painted[column.bar][column.row - bars.firstShown];
  std::string text = std::string(Trim(Significant(bars.angle[column.row], 8))) + " deg      " +
                     std::string(BarTitle(column.bar)) + ": red " + sum(0) + "   green " + sum(1) + "   blue " +
                     sum(2) + "      drawn " + std::to_string(drawn.Red()) + ", " + std::to_string(drawn.Green()) +
                     ", " + std::to_string(drawn.Blue());
  if (!light.strongest.empty() && std::isfinite(light.strongest[column.row]))
    text += "      most at " + Format(light.strongest[column.row], "0.#") + " nm";
  return text;
}

std::string_view BarTitle(std::size_t bar) {
  static constexpr std::array<std::string_view, 3> titles = {"Perpendicular", "Parallel", "Unpolarized"};
  return titles[bar];
}

}  // namespace lumivex
