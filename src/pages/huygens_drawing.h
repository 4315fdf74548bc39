#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws the wavefronts of the last Huygens run (HuygensWaves) in the strip of readings over the graph, where that
/// method has none: the sphere, light from the left, some of the rays, and for each p the front that leaves. Draws
/// nothing where there are none.
void DrawHuygens(Session& session);

}  // namespace lumivex
