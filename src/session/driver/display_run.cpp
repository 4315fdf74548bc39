#include "session/driver/display_run.h"

#include "pages/huygens_drawing.h"
#include "pages/line_graph.h"
#include "pages/phasor_diagram.h"
#include "pages/polar_plot.h"
#include "pages/spectrum_graph.h"
#include "pages/two_angle_chart.h"
#include "pages/two_panels.h"
#include "pages/visible_data.h"
#include "session/info.h"

namespace lumivex {

void DisplayRun(Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  const bool matrix = (s.GraphType == 1 && s.GraphSubType == 6) || (s.GraphType == 10 && s.GraphSubType == 2);
  const bool panels = matrix || (s.GraphType == 1 && (form.mnuAmpPhase.Checked || form.mnuIntPol.Checked));
  if (s.GraphType == 10 && s.GraphSubType == 10) {
    DrawDebyeAnalysis(session);
  } else if (IsTwoAngleContour(s)) {
    DisplayTwoAngle(session);
  } else if (s.ResultWavelengths > 1) {
    PlotNColour(session);
  } else if (panels) {
    DisplayTwoPanels(session);
  } else {
    Display(session, s.Iperp, s.Ipar, s.Iunpol);
  }
  if (form.mnuPolarPlot.Checked && !IsTwoAngleContour(s)) PolarLabel(session);
  TakeRunParameters(session.state);
  PrintTitle(session);
  VisibleData(session);
  DrawHuygens(session);
}

}  // namespace lumivex
