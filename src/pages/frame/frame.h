#pragma once

#include "pages/frame/frame_paint.h"

namespace lumivex {

/// The plot box of a page's geometry with all of its panels. On a surface too low for it the box ends higher, so that
/// the axis, its title, the bars and the key are on the surface.
GraphBox PlotBox(const Page& page);

/// The place of a panel in it: all of it, or one of its halves, between which there is room for the numbers of the
/// upper one and the title of the lower one. A panel below the graph (Page::panels has it last) takes its room from the
/// others.
GraphBox BoxOf(const Page& page, PanelPlace place);

/// Adds a frame to a page. Limits that cannot be drawn are repaired; a small xmin on a linear axis becomes 0.
/// @param second  phases, polarisation or ratios: a scale of their own, which is never logarithmic.
PagePanel& Grid(Page& page, PanelPlace place, AxisLimits limits, bool second = false);

/// Where the logo of a panel stands.
struct LogoPlacement {
  double left = 0, top = 0, fontSize = 8;
  bool visible = false;
};
LogoPlacement LogoOf(const Page& page, const PagePanel& panel);

/// Paints a frame: background, grid lines, ticks, numbers, titles and the logo; of a polar plot circle and spokes.
/// @param polarLabels  takes the numbers of a polar plot, which those of its curves keep clear of.
void PaintFrame(DrawingSurface& surface, const Page& page, const PagePanel& panel, TickLabels& polarLabels);

/// The four sides of the box in black, as they are painted again over the curves; the right one is left out of an
/// albedo graph.
void PaintBoxSides(DrawingSurface& surface, const PageKind& kind, const GraphBox& box);

}  // namespace lumivex
