#include "graphs/two_panels.h"

#include "graphs/colours.h"
#include "graphs/frame.h"
#include "graphs/line_graph.h"

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

void DisplayTwoPanels(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  const CurveSet curves{s.Iperp, s.Ipar, s.Iunpol};
  if (form.mnuPolarPlot.Checked || (!form.mnuAmpPhase.Checked && !form.mnuIntPol.Checked)) {
    DisplayInBox(session, WholeBox(s), curves);
    return;
  }
  if (s.PlotMode == 4) return;
  const bool paired = s.Drawn.panels.size() == 2;
  const bool fresh = !DrawsOver(session) || !paired;
  if (fresh) {
    s.Drawn = KeptGraph{};
    session.surface->BackColour = form.mnuWhite.Checked ? colours::White : colours::ButtonFace;
    session.surface->Cls();
  }
  DisplayInBox(session, UpperPanel(s), curves);
  if (s.PlotMode == 4 || s.Drawn.panels.empty()) return;

  s.SavedYmax = s.Ymax;
  s.SavedYautomax = s.YAutoMax;
  s.SecondPanel = 1;
  if (fresh) DrawLowerFrame(session, form.mnuAmpPhase.Checked);
  if (form.mnuAmpPhase.Checked)
    DrawPhases(session);
  else
    DrawPolarisation(session);
  s.SecondPanel = 0;
  s.Ymax = s.SavedYmax;
  s.YAutoMax = s.SavedYautomax;
}

}  // namespace lumivex
