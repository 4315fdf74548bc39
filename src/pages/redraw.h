#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws the graph on the screen anew, on the session's surface and with the present geometry and menus: frame, every
/// curve since the frame was drawn, legend. Calculates nothing, keeps limits and curves as they are. Without a graph it
/// clears the surface.
void RedrawGraph(Session& session);

}  // namespace lumivex
