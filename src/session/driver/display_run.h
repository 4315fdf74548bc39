#pragma once

#include "record/session.h"

namespace lumivex {

/// Shows the last results: with PlotMode 1 on a fresh page, with PlotMode 2, or for a curve read from a file, over the
/// one on the screen. Yields first; where that brings a Stop, the old page stays.
void DisplayRun(Session& session);

}  // namespace lumivex
