#pragma once

#include <vector>

#include "record/drawing_surface.h"
#include "solvers/rays/huygens_wave.h"

namespace lumivex {

/// Paints wavefronts in the strip of readings over the graph, where their method has none: the sphere, light from the
/// left, some of the rays, and for each p the front that leaves. Nothing where there are none.
void PaintHuygens(DrawingSurface& surface, const std::vector<HuygensWave>& waves);

}  // namespace lumivex
