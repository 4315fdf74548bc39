#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws the stored curves of the graph in use, with a fresh frame where PlotMode is 1, and the title and readings.
void DisplayRun(Session& session);

}  // namespace lumivex
