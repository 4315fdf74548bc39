#include "session/page.h"

#include <utility>

#include "pages/build_page.h"
#include "pages/frame/frame.h"
#include "session/inputs/look/read_look.h"

namespace lumivex {

namespace {

void KeepLogo(Session& session, const Page& page) {
  if (page.panels.empty()) return;
  const LogoPlacement placed = LogoOf(page, page.panels.back());
  auto& logo = session.form1.lblLogo;
  logo.Left = placed.left;
  logo.Top = placed.top;
  logo.FontSize = placed.fontSize;
  logo.Visible = placed.visible;
  logo.ForeColour = session.state.LogoColour = page.style.logoColour;
}

void KeepScale(MainFormState& s, const Page& page) {
  static_cast<ScaleMemory&>(s) = page.scale;
  if (page.phasors) {
    s.Ymin = page.phasors->ymin;
    s.Ymax = page.phasors->ymax;
  }
  if (page.panels.empty()) return;
  s.Ymin = page.panels.front().limits.ymin;
  s.Ymax = page.panels.front().limits.ymax;
  s.YAutoMin = page.autoBottom;
  s.YAutoMax = page.autoTop;
}

}  // namespace

void DrawPage(Session& session) {
  session.page = PlacePage(std::move(session.page), GeometryOf(session));
  Paint(session.page, *session.surface);
}

void ShowPage(Session& session, Page page) {
  session.page = std::move(page);
  KeepScale(session.state, session.page);
  KeepLogo(session, session.page);
  DrawPage(session);
}

void RenewLook(Session& session) {
  ShowPage(session, WithLook(session.page, ReadLook(session)));
}

void ShowView(Session& session, const PageView& view) {
  if (HasXAxis(session.page)) ShowPage(session, WithView(session.page, view, ReadLook(session)));
}

}  // namespace lumivex
