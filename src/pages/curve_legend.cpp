#include "pages/curve_legend.h"

#include <algorithm>
#include <array>
#include <vector>

#include "pages/curve_path.h"
#include "pages/frame.h"

namespace lumivex {

namespace {

bool IsEfficiencyGraph(const GraphKind& kind) {
  return (kind.graphType == 14 && kind.graphSubType <= 6) ||
         (kind.graphType == 15 && (kind.graphSubType <= 2 || kind.graphSubType == 13));
}

bool IsCrossSection(const GraphKind& kind) {
  return kind.graphSubType == 2 || (kind.graphType == 14 && (kind.graphSubType == 4 || kind.graphSubType == 6));
}

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
void PrintEntry(Session& session, const Entry& entry, double x, double y, double height) {
  auto& surface = *session.surface;
  const auto& s = session.state;
  surface.ForeColour = s.Drawn.kind.numberWavelengths == 1 ? s.PlotBackColourMono : s.PlotBackColourSpectrum;
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
std::array<std::vector<Entry>, 3> EntriesByLine(const KeptGraph& graph) {
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
SurfacePoint LegendCorner(const Session& session, const KeptGraph& graph, double lineHeight) {
  const auto& state = session.state;
  if (graph.kind.polar) {
    constexpr double linesOfLegend = 3;
    double below = state.PolarCentreY + state.PolarRadius;
    for (const GraphBox& text : graph.labelPlaces) below = std::max(below, text.bottom);
    below += 150;
    if (below + linesOfLegend * lineHeight <= session.surface->ScaleHeight())
      return {std::max(100.0, state.PolarCentreX - state.PolarRadius), below};
    // A very large circle leaves room only at its side.
    return {state.PolarCentreX + 1.25 * state.PolarRadius,
            state.PolarCentreY + state.PolarRadius - linesOfLegend * lineHeight};
  }
  const GraphBox& box = graph.panels.back().box;
  const double below = box.bottom + 360 + 1.2 * lineHeight;
  // On a low surface there is no room below: the legend starts beside the title.
  const bool fits = below + 3 * lineHeight <= session.surface->ScaleHeight();
  return {box.left, fits ? below : box.bottom + 350};
}

}  // namespace

std::string CurveName(const GraphKind& kind, int curveKind, bool secondPanel) {
  if (kind.IsMatrix()) return secondPanel ? std::string(MatrixRatio(curveKind)) : "S11";
  if (secondPanel && kind.intPol) return "Degree of linear polarisation";
  if (IsEfficiencyGraph(kind)) {
    const std::string letter = IsCrossSection(kind) ? "C" : "Q";
    return letter + (curveKind == 1 ? "ext" : curveKind == 2 ? "sca" : "abs");
  }
  if (kind.graphType == 14 || kind.graphType == 15) return kind.graphSubType <= 9 ? "Qback" : "Qradar";
  if (kind.graphType == 16) return "Asymmetry parameter g";
  if (kind.graphType == 17) return "Albedo";
  const std::string name = curveKind == 1   ? "Perpendicular polarisation"
                           : curveKind == 2 ? "Parallel polarisation"
                                            : "Unpolarised";
  return secondPanel ? "Phase angle: " + name : name;
}

std::string_view MatrixRatio(int curveKind) {
  static constexpr std::array<std::string_view, 3> names = {"S12/S11", "S33/S11", "S34/S11"};
  return names[static_cast<std::size_t>(std::clamp(curveKind, 1, 3) - 1)];
}

void PolarLabel(Session& session) {
  auto& graph = session.state.Drawn;
  graph.legend = true;
  graph.legendNote.clear();
  if (session.state.RefRelImag == 0 && IsEfficiencyGraph(graph.kind))
    graph.legendNote = IsCrossSection(graph.kind) ? "Cext = Csca   Cabs = 0" : "Qext = Qsca   Qabs = 0";
  PaintLegend(session);
}

void PaintLegend(Session& session) {
  const auto& graph = session.state.Drawn;
  if (graph.panels.empty() || !graph.legend) return;
  auto& surface = *session.surface;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  const double height = surface.TextHeight("X");
  const SurfacePoint corner = LegendCorner(session, graph, height);
  const auto lines = EntriesByLine(graph);
  double width = 0;
  for (const auto& line : lines)
    for (const auto& entry : line)
      width = std::max(width, surface.TextWidth(entry.name) + sampleWidth + afterSample + betweenNames);
  double y = corner.y;
  for (const auto& line : lines) {
    if (line.empty()) continue;
    // A legend printed before an overplot gives way to the one with all curves.
    surface.ForeColour = surface.BackColour;
    surface.Line(corner.x, y, corner.x + width * static_cast<double>(line.size()), y + height, LineKind::FilledBox);
    double x = corner.x;
    for (const auto& entry : line) {
      if (x + width > surface.ScaleWidth()) break;
      PrintEntry(session, entry, x, y, height);
      x += width;
    }
    y += height;
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
