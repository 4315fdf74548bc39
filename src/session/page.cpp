#include "session/page.h"

#include <utility>

#include "pages/build_page.h"
#include "pages/compare/compare_page.h"
#include "pages/frame/frame.h"
#include "session/inputs/look/read_look.h"
#include "session/simulation/paint_simulation.h"

namespace lumivex {

namespace {

void KeepLogo(Session& session, const Page& page) {
  if (page.panels.empty()) return;
  const bool below = page.panels.back().below != BelowGraph::Nothing;
  const LogoPlacement placed = LogoOf(page, page.panels[page.panels.size() - (below ? 2 : 1)]);
  auto& logo = session.form1.lblLogo;
  logo.Left = placed.left;
  logo.Top = placed.top;
  logo.FontSize = placed.fontSize;
  logo.Visible = placed.visible && !page.map;
  logo.ForeColour = session.state.LogoColour = page.style.logoColour;
}

void KeepScale(MainFormState& s, const Page& page) {
  static_cast<ScaleMemory&>(s) = page.scale;
  if (page.phasors) {
    s.Ymin = page.phasors->ymin;
    s.Ymax = page.phasors->ymax;
  }
  if (page.map) {
    s.LeeOverallMaximum = page.map->scaleMaximum;
    s.LeeCurrentMaximum = page.map->currentMaximum;
    s.LeePanelWidth = static_cast<float>(page.geometry.panelWidth);
    return;
  }
  if (page.panels.empty()) return;
  s.Ymin = page.panels.front().limits.ymin;
  s.Ymax = page.panels.front().limits.ymax;
  s.YAutoMin = page.autoBottom;
  s.YAutoMax = page.autoTop;
}

/// The first map after a series was begun without one on show, or of another kind, is what those that follow are held
/// against.
void KeepSeries(Session& session) {
  const auto& s = session.state;
  const auto& map = session.page.map;
  if (!map || !session.form1.mnuMapNormalise.Checked) return;
  if (!MapSeries{s.MapReference, s.MapReferenceThird, s.MapReferenceKind}.Holds(map->kind)) TakeMapReference(session);
}

/// What scripts, and the next page, know of the bars. The first bars after a normalisation was set without any on show
/// set it.
void KeepBars(Session& session) {
  auto& s = session.state;
  const auto& bars = session.page.bars;
  s.BarScale = bars ? bars->reference : 0;
  s.BarMaximumPerp = bars ? bars->greatest[0] : 0;
  s.BarMaximumPar = bars ? bars->greatest[1] : 0;
  s.BarMaximumUnpol = bars ? bars->greatest[2] : 0;
  s.SimColourTable.Resize(0, simColourColumns);
  if (!bars) return;
  if (session.form1.mnuSetNormal.Checked && s.BarReference == 0) TakeBarReference(session);
  const std::size_t count = bars->painted[0].size();
  s.SimColourTable.Resize(count + 1, simColourColumns);
  for (std::size_t i = 0; i < count; ++i) {
    s.SimColourTable.At(i + 1, 0) = bars->angle[bars->firstShown + i];
    for (std::size_t k = 0; k < bars->painted.size(); ++k) {
      const Colour cell = bars->painted[k][i];
      s.SimColourTable.At(i + 1, 3 * k + 1) = cell.Red();
      s.SimColourTable.At(i + 1, 3 * k + 2) = cell.Green();
      s.SimColourTable.At(i + 1, 3 * k + 3) = cell.Blue();
    }
  }
}

}  // namespace

void TakeBarReference(Session& session) {
  auto& s = session.state;
  const auto& bars = session.page.bars;
  s.BarReference = bars ? bars->reference : 0;
  s.BarReferencePerWaveNumber = bars && session.page.kind.invWavelength ? 1 : 0;
  s.BarReferenceWeighted = bars && session.page.kind.wavelengths > 1 ? 1 : 0;
}

void TakeMapReference(Session& session) {
  auto& s = session.state;
  const auto& map = session.page.map;
  s.MapReference = map ? map->currentMaximum : 0;
  s.MapReferenceThird = map ? map->thirdMaximum : 0;
  s.MapReferenceKind = map ? map->kind : MapValues::Intensity;
}

void EndMapSeries(MainFormState& s) {
  s.MapReference = s.MapReferenceThird = 0;
  s.MapReferenceKind = MapValues::Intensity;
}

const Page& ShownPage(const Session& session) {
  return session.preview ? session.preview->page : session.page;
}

void DrawPage(Session& session) {
  session.page = PlacePage(std::move(session.page), GeometryOf(session));
  if (session.preview) session.preview->page = PlacePage(std::move(session.preview->page), session.page.geometry);
  Paint(ShownPage(session), *session.surface);
}

void ShowPage(Session& session, Page page) {
  const Look look = ReadLook(session);
  session.page = WithComparison(std::move(page), session.comparison, look);
  if (session.preview)
    session.preview->page = WithComparison(std::move(session.preview->page), session.comparison, look);
  KeepScale(session.state, session.page);
  KeepLogo(session, session.page);
  KeepBars(session);
  OfferSimulation(session);
  KeepSeries(session);
  DrawPage(session);
}

void RenewLook(Session& session) {
  // The colours of cells are made of what they hold.
  if (!session.page.map || session.state.Busy != 0 || !session.events.Raise("Map_Recoloured"))
    ShowPage(session, WithLook(session.page, ReadLook(session)));
  // The light of the simulation window follows the same rules.
  if (session.simulation.picture) session.events.Raise("Form2.Inputs_Changed");
}

void RecolourPage(Session& session) {
  if ((session.page.bars || session.page.map) && session.state.Busy == 0) RenewLook(session);
}

void ShowView(Session& session, const PageView& view) {
  if (!HasXAxis(ShownPage(session))) return;
  const Look look = ReadLook(session);
  bool onPage = true;
  if (session.preview) {
    Page& preview = session.preview->page;
    onPage = preview.kind.graph == session.page.kind.graph && preview.home == session.page.home;
    preview = WithComparison(WithView(PlainPage(std::move(preview)), view, look), session.comparison, look);
  }
  if (onPage)
    ShowPage(session, WithView(PlainPage(session.page), view, look));
  else
    DrawPage(session);
}

}  // namespace lumivex
