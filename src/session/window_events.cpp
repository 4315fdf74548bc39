#include "session/window_events.h"

#include "session/impulse/impulse_events.h"
#include "session/page.h"

namespace lumivex {

namespace {
constexpr int narrowScreenPx = 1024;
}

double InfoLeft(double formWidth) {
  return formWidth < 19850 ? 11760 : 16000;
}

void Form_Resize(Session& session) {
  auto& s = session.state;
  auto& form = session.form1;
  if (s.Busy != 0) return;
  const double width = session.surface->ScaleWidth(), height = session.surface->ScaleHeight();
  if (form.mnuVLarge.Checked && s.ScreenWidthPx > narrowScreenPx) {
    form.Frame6.Left = InfoLeft(width);
    s.GraphRight = static_cast<float>((form.mnuSizeSpecial.Checked ? 0.95 : 0.97) * width);
    s.GraphBottom = static_cast<float>(0.86 * height);
  }
  DrawPage(session);
}

void Form_MouseDown(Session& session, double x, double y) {
  const auto& form = session.form1;
  const auto& s = session.state;
  if (s.Busy != 0) return;
  const bool onStrip = x >= 12000 && x < 15600 && y >= 0 && y < 2700;
  if (onStrip && form.optDisp.Checked && form.cboDistrib.Text != "Special")
    session.events.Raise("dlogDistDisplay.Show");
  if (ChosenGraph(s).family == Family::Impulse) ClickOnPicture(session, x, y);
  if (ChosenGraph(s).family == Family::DebyeAnalysis) session.events.Raise("dlogDebyeSeq.Show");
}

void Form_Unload(Session& session) {
  session.platform.Quit();
}

}  // namespace lumivex
