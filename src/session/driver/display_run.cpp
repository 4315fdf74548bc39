#include "session/driver/display_run.h"

#include <algorithm>
#include <utility>

#include "pages/build_page.h"
#include "pages/compare/compare_page.h"
#include "pages/frame/colours.h"
#include "session/compare/compare.h"
#include "session/driver/fold_sizes.h"
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
  constexpr int stopRequested = 4;
  session.platform.Yield();
  if (session.state.PlotMode != stopRequested) ShowLastResults(session, onto);
}

void ShowLastResults(Session& session, Onto onto) {
  constexpr int over = 2;
  auto& s = session.state;
  if (!s.LastResults) return;
  // What was asked for takes the place of what was tried.
  session.preview.reset();
  const Look look = ReadLook(session);
  s.SecondLineColour = LineColour(look.pen, s.LastResults->asked.light.lambda).second;
  const auto shown = WithSizesFolded(session);
  if (onto == Onto::PageOnScreen || s.OverplotFromFile == 1)
    ShowPage(session, DrawOver(PlacePage(PlainPage(session.page), GeometryOf(session)), *shown, look));
  else
    DrawResults(session, *shown);
  s.PlotMode = over;
}

void RedrawMap(Session& session) {
  const auto& results = session.state.LastResults;
  // A run of another kind that was stopped leaves the page of the map before.
  const bool shown = results && results->Find<MapFound>() != nullptr && results->asked.graph == session.page.kind.graph;
  if (!shown) return ShowPage(session, WithLook(session.page, ReadLook(session)));
  // Colours fold nothing in: that is Replot's. Mono takes out the sizes that are.
  if (!session.form1.optDisp.Checked) TakeSizesOut(session.state);
  const auto folded = session.state.FoldedResults;
  DrawResults(session, folded ? *folded : *results);
}

void DrawResults(Session& session, const Results& results) {
  session.preview.reset();
  const Look look = ReadLook(session);
  Page page = InView(BuildPage(results, look, GeometryOf(session), session.state), session.page, look);
  // Replot is of a run that is on the page, and what is shown of one on its way has no number yet.
  const auto isOfRun = [&](const PageRun& run) { return run.number == results.number; };
  if (results.number > 0 && std::ranges::none_of(session.page.runs, isOfRun)) BeginNewPlot(session, page);
  ShowPage(session, std::move(page));
}

}  // namespace lumivex
