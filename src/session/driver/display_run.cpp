#include "session/driver/display_run.h"

#include <utility>

#include "pages/build_page.h"
#include "pages/frame/colours.h"
#include "session/inputs/look/read_look.h"
#include "session/page.h"

namespace lumivex {

namespace {

/// A zoom lasts until the graph has another axis or range: a line colour or another radius is no reason to leave it.
Page InView(Page page, const Page& before, const Look& look) {
  const auto view = KeptView(before, page);
  return view ? WithView(std::move(page), *view, look) : page;
}

}  // namespace

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
    ShowPage(session, InView(BuildPage(*s.LastResults, look, geometry, s), session.page, look));
  s.PlotMode = over;
}

}  // namespace lumivex
