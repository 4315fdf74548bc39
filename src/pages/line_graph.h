#pragma once

#include <span>

#include "axes/panel_map.h"
#include "record/session.h"

namespace lumivex {

/// The curves of one graph: perpendicular, parallel, unpolarised; first index 1. A value that is not a number was not
/// computed: it does not count for the limits and lifts the pen.
struct CurveSet {
  std::span<const double> perpendicular, parallel, unpolarised;
};

/// Draws a graph against angle, size, wavelength or index. With PlotMode 1 the limits are read or chosen, a fresh frame
/// is drawn and PlotMode becomes 2; with PlotMode 2, or with a curve read from a file, the curves are drawn over the
/// frame on the screen and on its limits (a frame of another graph is replaced). With PlotMode 0 "Automatic" means
/// YAutoMin and YAutoMax as they stand; with PlotMode 4 nothing is drawn.
///
/// The curves that cboPol asks for are drawn in the order parallel, unpolarised, perpendicular.
void Display(Session& session, std::span<const double> y1, std::span<const double> y2, std::span<const double> y3);

/// The same in a part of the page.
void DisplayInBox(Session& session, const GraphBox& box, const CurveSet& curves);

/// Draws the frame for those curves, unless they go over the one on the screen.
void FrameInBox(Session& session, const GraphBox& box, const CurveSet& curves);

/// Whether the next Display draws over the graph on the screen.
bool DrawsOver(const Session& session);

/// Draws one result array in the colour of the surface and keeps it with the graph. CurveKind names the curve; the rows
/// of the last run give x. Yields first; a stop requested then leaves the curve out.
/// @param y      first index 1.
/// @param panel  index of the panel of the graph on the screen.
void Plot(Session& session, std::span<const double> y, std::size_t panel = 0);

/// What Plot draws of a result array: values folded with the disc of the sun where it shines, x by the rows of the last
/// run, the pen of the menus, the colour of the surface.
KeptCurve CapturedCurve(Session& session, std::span<const double> y, std::size_t panel);

/// Draws a curve whose x, y and look are given, and keeps it.
void PlotCurve(Session& session, KeptCurve curve);

/// x of each row of the stored arrays (first index 1), in the unit of the axis; not a number for rows outside the last
/// run.
std::vector<double> RowPositions(Session& session, std::size_t size);

/// Chooses Ymin and Ymax for curves in the rows from xmin to xmax, with YAutoMin and YAutoMax.
void ChooseYLimits(Session& session, const CurveSet& curves, XRange range);

}  // namespace lumivex
