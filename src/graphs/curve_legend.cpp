#include "graphs/curve_legend.h"

#include <algorithm>
#include <array>
#include <vector>

#include "graphs/curve_path.h"
#include "graphs/frame.h"

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
  bool operator==(const Entry&) const = default;
};

/// Names by line, the polarisations in their order.
std::array<std::vector<Entry>, 3> EntriesByLine(const KeptGraph& graph) {
  std::array<std::vector<Entry>, 3> lines;
  for (const auto& curve : graph.curves) {
    if (curve.panel >= graph.panels.size() || graph.panels[curve.panel].second) continue;
    auto& line = lines[static_cast<std::size_t>(std::clamp(curve.kind, 1, 3) - 1)];
    const Entry entry{graph.legendNote.empty() ? curve.name : graph.legendNote, curve.colour};
    if (std::ranges::find(line, entry) == line.end()) line.push_back(entry);
  }
  return lines;
}

/// Top left corner of the legend: below the title of the horizontal axis, in a polar plot below the scale's text.
SurfacePoint LegendCorner(const Session& session, const KeptGraph& graph, double lineHeight) {
  const auto& state = session.state;
  if (graph.kind.polar) {
    constexpr double linesOfScale = 6;
    return {std::max(100.0, state.PolarCentreX - state.PolarRadius),
            state.PolarCentreY + state.PolarRadius + linesOfScale * lineHeight + 150};
  }
  const GraphBox& box = graph.panels.back().box;
  const double below = box.bottom + 360 + 1.2 * lineHeight;
  // On a low surface there is no room below: the legend starts beside the title.
  const bool fits = below + 3 * lineHeight <= session.surface->ScaleHeight();
  return {box.left, fits ? below : box.bottom + 350};
}

}  // namespace

std::string CurveName(const GraphKind& kind, int curveKind, bool secondPanel) {
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
    for (const auto& entry : line) width = std::max(width, surface.TextWidth(entry.name) + 250);
  // A legend printed before an overplot gives way to the one with all curves.
  surface.ForeColour = surface.BackColour;
  double y = corner.y;
  for (const auto& line : lines) {
    if (line.empty()) continue;
    surface.ForeColour = surface.BackColour;
    surface.Line(corner.x, y, corner.x + width * static_cast<double>(line.size()), y + height, LineKind::FilledBox);
    double x = corner.x;
    for (const auto& entry : line) {
      if (x + width > surface.ScaleWidth()) break;
      surface.ForeColour = entry.colour;
      surface.CurrentX = x;
      surface.CurrentY = y;
      surface.Print(entry.name, false);
      x += width;
    }
    y += height;
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
