#pragma once

#include "record/session.h"

namespace lumivex {

/// Prepares the samples of the distribution and draws it in the side strip of the main window: a bar a sample (a box a
/// class of a size file), 2000 units high at the peak, over an axis of the radius, logarithmic or linear as
/// dlogDistDisplay says, with a caption. A distribution that cannot be used draws nothing, and is told where `aloud`.
/// Without "Disperse" nothing happens.
void DistDisplay(Session& session, bool aloud = true);

/// Asks for the axis of the strip (a click on it while "Disperse" is on and no size file is in use).
void AskDistDisplay(Session& session);

}  // namespace lumivex
