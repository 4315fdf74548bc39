#include "pages/curves/curve_legend.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lumivex {

namespace {

struct Entry {
  std::string name;
  Colour colour;
  int drawStyle, drawWidth;
  bool operator==(const Entry&) const = default;
};

/// A piece of the curve on the colour of the plot, as long and as far from the name (surface units).
constexpr double sampleWidth = 420, afterSample = 100, betweenNames = 300;

/// Text in the colour of its curve, darker where the curve is too light for the page around the plot.
Colour TextColour(Colour curve) {
  constexpr double lightest = 160;
  const double lightness = 0.3 * curve.Red() + 0.59 * curve.Green() + 0.11 * curve.Blue();
  const double factor = lightness > lightest ? 0.5 : 1;
  return RGB(factor * curve.Red(), factor * curve.Green(), factor * curve.Blue());
}

/// One entry at a place: sample and name.
void PrintEntry(DrawingSurface& surface, const Entry& entry, Colour ground, SurfacePoint at, double height) {
  const auto [x, y] = at;
  surface.ForeColour = ground;
  surface.Line(x, y + 0.1 * height, x + sampleWidth, y + 0.9 * height, LineKind::FilledBox);
  surface.ForeColour = entry.colour;
  surface.DrawStyle = entry.drawStyle;
  surface.DrawWidth = entry.drawWidth;
  surface.Line(x, y + 0.5 * height, x + sampleWidth, y + 0.5 * height);
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  surface.ForeColour = TextColour(entry.colour);
  surface.CurrentX = x + sampleWidth + afterSample;
  surface.CurrentY = y;
  surface.Print(entry.name, false);
}

/// Names by line, the polarisations in their order.
std::array<std::vector<Entry>, 3> EntriesByLine(const Page& graph) {
  std::array<std::vector<Entry>, 3> lines;
  for (const auto& curve : graph.curves) {
    if (curve.panel >= graph.panels.size() || graph.panels[curve.panel].second) continue;
    auto& line = lines[static_cast<std::size_t>(std::clamp(curve.kind, 1, 3) - 1)];
    const Entry entry{graph.legendNote.empty() ? curve.name : graph.legendNote, curve.colour, curve.drawStyle,
                      curve.drawWidth};
    if (std::ranges::find(line, entry) == line.end()) line.push_back(entry);
  }
  return lines;
}

/// Top left corner of the legend: below the title of the horizontal axis, in a polar plot below the scale's text.
SurfacePoint LegendCorner(const DrawingSurface& surface, const Page& page, const TickLabels& polarLabels,
                          double lineHeight) {
  if (page.kind.polar) {
    constexpr double linesOfLegend = 3;
    const PageGeometry& at = page.geometry;
    double below = at.polarY + at.polarRadius;
    for (const GraphBox& text : polarLabels.Taken()) below = std::max(below, text.bottom);
    below += 150;
    if (below + linesOfLegend * lineHeight <= surface.ScaleHeight())
      return {std::max(100.0, at.polarX - at.polarRadius), below};
    // A very large circle leaves room only at its side.
    return {at.polarX + 1.25 * at.polarRadius, at.polarY + at.polarRadius - linesOfLegend * lineHeight};
  }
  const GraphBox& box = page.panels.back().box;
  const double below = box.bottom + 360 + 1.2 * lineHeight;
  // On a low surface there is no room below: the legend starts beside the title.
  const bool fits = below + 3 * lineHeight <= surface.ScaleHeight();
  return {box.left, fits ? below : box.bottom + 350};
}

}  // namespace

void PolarLabel(Page& page, const Results& results) {
  const Quantity quantity = results.asked.graph.quantity;
  page.legend = true;
  page.legendNote.clear();
  if (results.last.relativeIm != 0) return;
  if (quantity == Quantity::Efficiencies) page.legendNote = "Qext = Qsca   Qabs = 0";
  if (quantity == Quantity::CrossSections) page.legendNote = "Cext = Csca   Cabs = 0";
}

void PaintLegend(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels) {
  if (page.panels.empty() || !page.legend) return;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  const double height = surface.TextHeight("X");
  const SurfacePoint corner = LegendCorner(surface, page, polarLabels, height);
  const auto lines = EntriesByLine(page);
  double width = 0;
  for (const auto& line : lines)
    for (const auto& entry : line)
      width = std::max(width, surface.TextWidth(entry.name) + sampleWidth + afterSample + betweenNames);
  double y = corner.y;
  for (const auto& line : lines) {
    if (line.empty()) continue;
    double x = corner.x;
    for (const auto& entry : line) {
      if (x + width > surface.ScaleWidth()) break;
      PrintEntry(surface, entry, page.style.ground, {x, y}, height);
      x += width;
    }
    y += height;
  }
  static_cast<SurfacePen&>(surface) = pen;
}

void PaintPanelLegend(DrawingSurface& surface, const Page& page) {
  constexpr std::size_t lowerPanel = 1;
  if (!page.kind.IsMatrix() || page.panels.size() <= lowerPanel) return;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  const GraphBox& box = page.panels[lowerPanel].box;
  surface.CurrentX = box.left;
  surface.CurrentY = box.top - 1.3 * surface.TextHeight("S");
  for (const int kind : {1, 2, 3}) {
    // Curves drawn over have the same three colours.
    const auto curve =
        std::ranges::find_if(page.curves, [&](const PageCurve& c) { return c.panel == lowerPanel && c.kind == kind; });
    if (curve == page.curves.end()) continue;
    surface.ForeColour = curve->colour;
    surface.Print(curve->name + "   ", false);
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
