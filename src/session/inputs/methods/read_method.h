#pragma once

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// Whether a difference of two fields can be drawn. The terms of one series, added or taken away one by one, have none:
/// the menus of differences do not count for such a graph.
bool TakesDifferences(const Graph& graph);

/// How one sphere is to be calculated: the method in use with its menus and dialogs. Only what the method knows is set:
/// p where it selects p, differences and partial waves of the Debye series, diffraction beside rays, rays or strips
/// that it counts (at least 1, at most 100000 and 10000), the beam where it can be lit by one.
MethodOptions ChosenMethod(const Session& session);

}  // namespace lumivex
