#pragma once

#include <span>

#include "record/session.h"
#include "session/inputs/layers/layer_event.h"

namespace lumivex {

/// Shows the dialog of flattened drops with the drawing of the drop.
/// @return true for OK.
bool AskNonSpherical(Session& session);

/// Whether the fields of the dialog make a drop in sunlight and rays to be counted; the first that cannot be used is
/// marked and told. What a size makes of the drop, the run says.
bool DropHolds(Session& session);

/// What a dialog with OK goes on to: a run where the graph is one against angle.
void RunDrop(Session& session);

/// Events of the dialog and its menu entries.
std::span<const LayerEvent> DropEvents();

}  // namespace lumivex
