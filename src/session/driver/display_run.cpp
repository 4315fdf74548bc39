#include "session/driver/display_run.h"

#include "pages/build_page.h"
#include "pages/frame/colours.h"
#include "session/inputs/look/read_look.h"
#include "session/page.h"

namespace lumivex {

void DisplayRun(Session& session, Onto onto) {
  constexpr int over = 2, stopRequested = 4;
  auto& s = session.state;
  session.platform.Yield();
  if (!s.LastResults || s.PlotMode == stopRequested) return;
  const Look look = ReadLook(session);
  const PageGeometry geometry = GeometryOf(session);
  s.SecondLineColour = LineColour(look.pen, s.LastResults->asked.light.lambda).second;
  if (onto == Onto::PageOnScreen || s.OverplotFromFile == 1)
    ShowPage(session, DrawOver(PlacePage(session.page, geometry), *s.LastResults, look));
  else
    ShowPage(session, BuildPage(*s.LastResults, look, geometry, s));
  s.PlotMode = over;
}

}  // namespace lumivex
