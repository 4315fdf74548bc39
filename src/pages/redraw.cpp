#include "pages/redraw.h"

#include "pages/curve_legend.h"
#include "pages/curve_path.h"
#include "pages/frame.h"
#include "pages/phasor_diagram.h"
#include "pages/two_angle_chart.h"
#include "pages/two_panels.h"

namespace lumivex {

namespace {

GraphBox BoxOf(const AxisState& axis, const KeptPanel& panel) {
  switch (panel.place) {
    case PanelPlace::Whole:
      return WholeBox(axis);
    case PanelPlace::Upper:
      return UpperPanel(axis);
    case PanelPlace::Lower:
      return LowerPanel(axis);
    case PanelPlace::Fixed:
      break;
  }
  return panel.box;
}

}  // namespace

void RedrawGraph(Session& session) {
  if (ShowsDebyeAnalysis(session.state)) return DrawDebyeAnalysis(session);
  auto& s = session.state;
  auto& surface = *session.surface;
  surface.BackColour = session.form1.mnuWhite.Checked ? colours::White : colours::ButtonFace;
  surface.Cls();
  KeptGraph& graph = s.Drawn;
  for (std::size_t i = 0; i < graph.panels.size(); ++i) {
    KeptPanel& panel = graph.panels[i];
    panel.box = BoxOf(s, panel);
    PaintFrame(session, graph.kind, panel);
    for (const auto& curve : graph.curves)
      if (curve.panel == i) DrawCurve(session, panel, curve);
    if (!graph.kind.polar) PaintBoxSides(surface, graph.kind, panel.box);
    if (panel.second && graph.kind.intPol) PaintMiddleLine(surface, panel.box);
  }
  PaintTwoAngleNotes(session);
  PaintPanelLegend(session);
  PaintLegend(session);
  surface.ForeColour = colours::Black;
}

}  // namespace lumivex
