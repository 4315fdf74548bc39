#include "pages/two_panels.h"

#include <array>
#include <cstdlib>
#include <vector>

#include "pages/colours.h"
#include "pages/curve_legend.h"
#include "pages/frame.h"
#include "pages/line_graph.h"

namespace lumivex {

namespace {

constexpr std::size_t upperPanel = 0, lowerPanel = 1;

void DrawPhases(Session& session) {
  auto& s = session.state;
  const std::string_view pol = session.form1.cboPol.Text;
  const bool both = pol == "Both" || pol == "All 3";
  if (both || pol.starts_with("Parallel")) {
    s.CurveKind = 2;
    LineColour(session);
    if (both) session.surface->ForeColour = s.SecondLineColour;
    Plot(session, s.Extra3, lowerPanel);
  }
  if (both || pol.starts_with("Perpendicular")) {
    s.CurveKind = 1;
    LineColour(session);
    Plot(session, s.Extra2, lowerPanel);
  }
}

void DrawPolarisation(Session& session) {
  session.state.CurveKind = 1;
  LineColour(session);
  Plot(session, session.state.Extra1, lowerPanel);
  PaintMiddleLine(*session.surface, session.state.Drawn.panels[lowerPanel].box);
}

bool LookAlike(Colour a, Colour b) {
  constexpr int apart = 200;
  return std::abs(a.Red() - b.Red()) + std::abs(a.Green() - b.Green()) + std::abs(a.Blue() - b.Blue()) < apart;
}

/// Three colours that can be told apart on every background: the line colour, and two that differ from it.
std::array<Colour, 3> RatioColours(Session& session) {
  static constexpr std::array others = {Colour{0xE06020}, Colour{0x009000}, Colour{0x0000E0}};
  LineColour(session);
  std::array<Colour, 3> chosen;
  chosen.fill(session.surface->ForeColour);
  std::size_t next = 1;
  for (const Colour other : others)
    if (next < chosen.size() && !LookAlike(other, chosen[0])) chosen[next++] = other;
  return chosen;
}

void DrawRatios(Session& session) {
  auto& s = session.state;
  const std::array<Colour, 3> colours = RatioColours(session);
  const std::array ratios = {&s.Extra1, &s.Extra2, &s.Extra3};
  for (const int kind : {3, 2, 1}) {
    const auto i = static_cast<std::size_t>(kind - 1);
    s.CurveKind = kind;
    session.surface->ForeColour = colours[i];
    Plot(session, *ratios[i], lowerPanel);
  }
  PaintPanelLegend(session);
}

void DrawUpperPanel(Session& session, bool matrix) {
  auto& s = session.state;
  const CurveSet curves{s.Iperp, s.Ipar, s.Iunpol};
  if (!matrix) {
    DisplayInBox(session, UpperPanel(s), curves);
    return;
  }
  FrameInBox(session, UpperPanel(s), curves);
  s.CurveKind = 1;
  LineColour(session);
  Plot(session, s.Iperp, upperPanel);
}

void DrawLowerFrame(Session& session, bool phases) {
  const auto& s = session.state;
  const GraphBox box = LowerPanel(s);
  const AxisLimits& upper = s.Drawn.panels[upperPanel].limits;
  double xmin = upper.xmin, xmax = upper.xmax;
  Grid(session, box.left, box.right, box.top, box.bottom, xmin, xmax, phases ? 0 : -1, phases ? 360 : 1);
}

}  // namespace

void PaintMiddleLine(DrawingSurface& surface, const GraphBox& box) {
  const double middle = 0.5 * (box.top + box.bottom);
  const Colour before = surface.ForeColour;
  surface.ForeColour = colours::Black;
  surface.Line(box.left, middle, box.right, middle);
  surface.ForeColour = before;
}

void PaintPanelLegend(Session& session) {
  const KeptGraph& graph = session.state.Drawn;
  if (!graph.kind.IsMatrix() || graph.panels.size() <= lowerPanel) return;
  auto& surface = *session.surface;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  const GraphBox& box = graph.panels[lowerPanel].box;
  surface.CurrentX = box.left;
  surface.CurrentY = box.top - 1.3 * surface.TextHeight("S");
  for (const int kind : {1, 2, 3}) {
    for (const auto& curve : graph.curves) {
      if (curve.panel != lowerPanel || curve.kind != kind) continue;
      surface.ForeColour = curve.colour;
      surface.Print(std::string(MatrixRatio(kind)) + "   ", false);
      break;  // curves drawn over have the same three colours
    }
  }
  static_cast<SurfacePen&>(surface) = pen;
}

void DisplayTwoPanels(Session& session) {
  auto& s = session.state;
  const GraphKind kind = KindNow(session);
  const bool matrix = kind.IsMatrix();
  if (kind.polar || !(matrix || kind.ampPhase || kind.intPol)) {
    DisplayInBox(session, WholeBox(s), {s.Iperp, s.Ipar, s.Iunpol});
    return;
  }
  if (s.PlotMode == 4) return;
  const bool fresh = !DrawsOver(session) || s.Drawn.panels.size() != 2;
  if (fresh) s.Drawn = KeptGraph{};
  DrawUpperPanel(session, matrix);
  if (s.PlotMode == 4 || s.Drawn.panels.empty()) return;

  s.SavedYmax = s.Ymax;
  s.SavedYautomax = s.YAutoMax;
  s.SecondPanel = 1;
  if (fresh) DrawLowerFrame(session, kind.ampPhase);
  if (matrix)
    DrawRatios(session);
  else if (kind.ampPhase)
    DrawPhases(session);
  else
    DrawPolarisation(session);
  s.SecondPanel = 0;
  s.Ymax = s.SavedYmax;
  s.YAutoMax = s.SavedYautomax;
}

}  // namespace lumivex
