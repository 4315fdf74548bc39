#pragma once

#include <span>

#include "record/session.h"
#include "session/inputs/layers/layer_event.h"

namespace lumivex {

/// Shows the dialog of the surface behind the dew.
/// @return true for OK.
bool AskHeiligenschein(Session& session);

/// Whether the surface is not within the sphere and the sun is before it; otherwise the field is marked and the reason
/// told.
bool DewHolds(Session& session);

/// Whether the rows of a graph go on beyond 180 degrees, to the other side of the antisolar point: intensities of dew.
bool GoesRound(const Session& session, const Graph& graph);

/// Angles about the antisolar point in place of those of the start, and back when the method is left.
void DewStartValues(Session& session, bool wasDew);

/// Angles to 180 degrees for a graph of dew that does not go round, where those of another reached beyond.
void DewAnglesOfGraph(Session& session);

/// Events of the dialog and its menu entry.
std::span<const LayerEvent> DewEvents();

}  // namespace lumivex
