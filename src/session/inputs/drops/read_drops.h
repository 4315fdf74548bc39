#pragma once

#include <vector>

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// The drop of dlogNonSpherical. It may be one that no run takes: DropHolds tells.
DropOptions ReadDrop(const Session& session);
/// Flags by p of the orders that are ticked there.
std::vector<int> RaysOfDrop(const Session& session);

/// The surface behind the dew of dlogHeiligenschein.
DewOptions ReadDew(const Session& session);

/// Poles, path and factor of the surface waves.
SurfaceWaveOptions ReadSurfaceWaves(const Session& session);

}  // namespace lumivex
