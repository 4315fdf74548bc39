#pragma once

#include "session/record/session.h"

namespace lumivex {

/// Draws the graph on the screen anew, on the session's surface and with the present geometry and menus: frame, every
/// curve since the frame was drawn, legend. Calculates nothing, keeps limits and curves as they are. Without a graph it
/// clears the surface.
void RedrawGraph(Session& session);

/// Shows another range of the x axis: changes the limits of the graph on the screen, txtXmin and txtXmax, chooses
/// automatic y limits for what is now in view, and draws anew with every kept curve.
/// @return whether the whole range has data; where it has not, a new calculation shows the rest.
bool ShowXRange(Session& session, XRange range);

/// The range as ShowXRange would show it: ends rounded to what the size of the range resolves.
XRange RoundedRange(XRange range);

}  // namespace lumivex
