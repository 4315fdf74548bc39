#pragma once

#include "pages/zoom.h"
#include "record/session.h"

namespace lumivex {

/// What the main window shows: the preview of the present inputs, where there is one, in place of its page.
const Page& ShownPage(const Session& session);

/// Paints what the main window shows anew, at the present size of its surface. Calculates nothing and changes no field
/// of the record and no control.
void DrawPage(Session& session);

/// Shows a page in the main window, with what the session compares laid over it. Limits, extremes and what the scales
/// remember go to the record (Ymin, Ymax, YAutoMin, YAutoMax, StoredTop ...), what its bars show too (BarScale,
/// SimColourTable ...), of a map LeeOverallMaximum and LeeCurrentMaximum, place and colour of the logo to its label.
void ShowPage(Session& session, Page page);

/// Shows the page in the colours, with the grid lines and the readings that the menus ask for now; its curves and
/// limits stay.
void RenewLook(Session& session);

/// Draws the bars or the cells of the page anew, with the brightness, the saturation, the gamma and the scale that are
/// set now; a page without either stays as it is.
void RecolourPage(Session& session);

/// Keeps the reference of the bars on show, and its unit, for later ones (BarReference); without bars none.
void TakeBarReference(Session& session);

/// Makes the map on show what a series of maps is held against (MapReference ...); without a map the next one will be.
void TakeMapReference(Session& session);
/// Ends a series of maps.
void EndMapSeries(MainFormState& s);

/// Makes a part of the axes the one on the screen, of the page and of a preview on the same axes. The inputs stay as
/// they are.
void ShowView(Session& session, const PageView& view);

}  // namespace lumivex
