#pragma once

#include "pages/frame/frame_paint.h"

namespace lumivex {

/// The circle with its rings, spokes, angles and the values at rim and centre.
void PaintPolarFrame(FramePaint& paint);

/// Ticks across a polar curve at every tenth row, longer ones with the scattering angle at every hundredth, and a small
/// circle at its start.
/// @param labels  numbers that stand already; those that are printed join them.
void PaintPolarTicks(DrawingSurface& surface, const Page& page, const PageCurve& curve, TickLabels& labels);

}  // namespace lumivex
