#pragma once

#include "pages/frame_paint.h"
#include "record/session.h"

namespace lumivex {

/// The plot box of the record's geometry, and its halves when two panels are stacked: between them there is room for
/// the numbers of the upper one and the title of the lower one.
GraphBox WholeBox(const AxisState& axis);
GraphBox UpperPanel(const AxisState& axis);
GraphBox LowerPanel(const AxisState& axis);

/// The kind of graph that the record and the menus ask for now.
GraphKind KindNow(const Session& session);

/// Draws a frame: background, grid lines, ticks, numbers, titles and the logo; for a polar plot circle and spokes. The
/// surface is cleared first where the graph asks for it. It becomes the graph on the screen: curves kept before go with
/// the frame they were drawn in. With SecondPanel 1 the frame is added to the one on the screen.
///
/// @param left, right, top, bottom  plot box (surface units).
/// @param xmin, xmax, ymin, ymax    limits of the axes; limits that cannot be drawn are repaired. xmin and xmax come
///                                  back as drawn: a small xmin on a linear axis becomes 0.
void Grid(Session& session, double left, double right, double top, double bottom, double& xmin, double& xmax,
          double ymin, double ymax);

/// Paints one kept frame on the surface of the session; keeps nothing, clears nothing.
void PaintFrame(Session& session, const GraphKind& kind, const KeptPanel& panel);

/// The four sides of the box in black, as they are drawn again over every curve; the right one is left out of an albedo
/// graph.
void PaintBoxSides(DrawingSurface& surface, const GraphKind& kind, const GraphBox& box);

}  // namespace lumivex
