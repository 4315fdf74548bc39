#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws the distribution that the inputs ask for in the side strip of the main window, until the page is painted
/// again. A distribution that cannot be used draws nothing, and is told where `aloud`. Without "Disperse" nothing
/// happens; no field of the record changes.
void DistDisplay(Session& session, bool aloud = true);

/// Asks for the axis of the strip (a click on it while "Disperse" is on and no size file is in use).
void AskDistDisplay(Session& session);

}  // namespace lumivex
