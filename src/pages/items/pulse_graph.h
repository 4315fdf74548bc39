#pragma once

#include "record/drawing_surface.h"
#include "record/page.h"
#include "timedomain/pulse.h"

namespace lumivex {

/// A pulse over four of its lengths, and its spectrum about the carrier, for a drawing side by side.
/// @param decibels  of the spectrum: magnitudes in decibels under the highest, down to -60.
PagePulse PulseGraph(const Pulse& pulse, bool decibels);

/// Paints both on a surface of 9300 by 4800 units, smaller or larger as the surface is. The band lies on a pale ground.
void PaintPulse(DrawingSurface& surface, const PagePulse& pulse);

}  // namespace lumivex
