#include "pages/frame/frame.h"

#include <algorithm>

#include "pages/bars/bar_place.h"
#include "pages/compare/below_panel.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/polar_plot.h"
#include "pages/items/readings.h"
#include "pages/maps/lee_frame.h"

namespace lumivex {

namespace {

/// Between two panels: numbers of the upper one, title of the lower one, and air.
constexpr double gapBetweenPanels = 800;

/// Below the plot, for the numbers and the title of the axis and a line of the key: as much as a window that scrolls
/// has below a graph of fixed size. The large letters of slides take more.
constexpr double roomBelow = 900, roomBelowSlide = 1200;

/// What a panel below the graph leaves to it.
constexpr double shareAbove = 0.68;

/// A plot does not get lower than this, whatever the surface.
constexpr double leastHeight = 1500;

/// Small, medium, large and very large logos.
double LogoFontSize(GraphSize size) {
  switch (size) {
    case GraphSize::Small:
      return 8;
    case GraphSize::Medium:
      return 10;
    case GraphSize::Large:
      return 16;
    case GraphSize::VeryLarge:
      break;
  }
  return 18;
}

void PaintLogo(FramePaint& paint) {
  const PageStyle& style = paint.style;
  const LogoPlacement logo = LogoOf(paint.page, paint.panel);
  if (!logo.visible) return;
  auto& surface = paint.surface;
  const SurfacePen pen = surface;
  surface.FontSize = logo.fontSize;
  surface.FontBold = paint.kind.polar && style.special;
  surface.ForeColour = style.logoColour;
  double left = logo.left;
  const bool covered = paint.kind.polar && !paint.labels.HasRoom(left, logo.top, surface.TextWidth(style.logo),
                                                                 surface.TextHeight(style.logo));
  // Where a number of the rim stands, there is room beside the circle.
  if (covered) left = PolarMapOf(paint.page).centreX + 1.25 * PolarMapOf(paint.page).radius;
  surface.CurrentX = std::max(0.0, std::min(left, surface.ScaleWidth() - surface.TextWidth(style.logo)));
  surface.CurrentY = logo.top;
  surface.Print(style.logo, false);
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace

GraphBox PlotBox(const Page& page) {
  GraphBox box = page.geometry.box;
  const double below = (page.style.special ? roomBelowSlide : roomBelow) + RoomForBars(page) + RoomForFoot(page);
  const double lowest = page.geometry.surfaceHeight - below;
  box.bottom = std::min(box.bottom, std::max(lowest, box.top + leastHeight));
  return box;
}

GraphBox BoxOf(const Page& page, PanelPlace place) {
  if (place >= PanelPlace::Left && place <= PanelPlace::Right)
    return LeePanelBox(page.geometry, page.style, static_cast<int>(place) - static_cast<int>(PanelPlace::Left));
  GraphBox box = PlotBox(page);
  if (!page.panels.empty() && page.panels.back().below != BelowGraph::Nothing) {
    const double gap = RoomForNotes(page), above = shareAbove * (box.Height() - gap);
    if (place == PanelPlace::Below) {
      box.top += above + gap;
      return box;
    }
    box.bottom = box.top + above;
  }
  if (place == PanelPlace::Upper) box.bottom = 0.5 * (box.top + box.bottom - gapBetweenPanels);
  if (place == PanelPlace::Lower) box.top = 0.5 * (box.top + box.bottom + gapBetweenPanels);
  return box;
}

LogoPlacement LogoOf(const Page& page, const PagePanel& panel) {
  const PageStyle& style = page.style;
  const GraphBox& box = panel.box;
  const bool right = style.logoPlace == LogoPlace::TopRight || style.logoPlace == LogoPlace::BottomRight;
  const bool above = style.logoPlace == LogoPlace::TopRight || style.logoPlace == LogoPlace::TopLeft;
  LogoPlacement logo;
  logo.left = right ? box.right - 3000 : 1080;
  logo.top = above ? box.top + 80 : box.bottom - 500;
  logo.fontSize = LogoFontSize(style.size);
  if (page.kind.polar) {
    // The corner above the circle is free, the foot of the page is not.
    logo.top = 3200;
    if (style.special) logo.fontSize = 24;
  }
  logo.visible = !style.logo.empty() && panel.place != PanelPlace::Upper && panel.place != PanelPlace::Below;
  return logo;
}

PagePanel& Grid(Page& page, PanelPlace place, AxisLimits limits, bool second) {
  const PageKind& kind = page.kind;
  const bool fromZero = !kind.logX && kind.graph.quantity != Quantity::Asymmetry && limits.xmin != 0 &&
                        limits.xmax / limits.xmin > 10 && limits.xmin < 0.1;
  if (fromZero) limits.xmin = 0;
  PagePanel panel;
  panel.place = place;
  panel.box = BoxOf(page, place);
  panel.second = second;
  panel.logY = kind.logY && !second;
  panel.limits = RepairedLimits(limits, kind.logX, panel.logY);
  panel.oddTest = page.scale.GridOddTest;
  if (!kind.logX && !kind.polar) page.scale.GridOddTest = panel.limits.xmin;
  if (!second) {
    page.home = {panel.limits.xmin, panel.limits.xmax};
    page.homeY = {panel.limits.ymin, panel.limits.ymax};
  }
  return page.panels.emplace_back(panel);
}

void PaintFrame(DrawingSurface& surface, const Page& page, const PagePanel& panel, TickLabels& polarLabels) {
  PrepareSurface(surface, page.style);
  FramePaint paint(page, panel, surface);
  if (page.kind.polar) {
    PaintPolarFrame(paint);
    PaintLogo(paint);
    polarLabels = paint.labels;
  } else {
    const GraphBox& box = paint.Box();
    surface.ForeColour = page.style.ground;
    surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
    surface.ForeColour = colours::Black;
    PaintXAxis(paint);
    PaintYAxis(paint);
    PaintLogo(paint);
    surface.ForeColour = colours::Black;
    surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
    PaintAxisTitles(paint);
  }
}

void PaintBoxSides(DrawingSurface& surface, const PageKind& kind, const GraphBox& box) {
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.top);
  surface.Line(box.left, box.bottom, box.right, box.bottom);
  surface.Line(box.left, box.top, box.left, box.bottom);
  if (kind.graph.quantity != Quantity::Albedo) surface.Line(box.right, box.top, box.right, box.bottom);
}

}  // namespace lumivex
