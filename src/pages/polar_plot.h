#pragma once

#include "pages/curve_legend.h"
#include "pages/frame_paint.h"
#include "record/session.h"

namespace lumivex {

/// Turns the polar plot on or off and replots. Turning it on is refused with a message titled "Option not available"
/// for graphs of intensity and polarisation, for an angle range other than 0 to 180 degrees without a plane wave, and
/// for more than one wavelength.
void mnuPolarPlot_Click(Session& session);

/// The row of the angle tables nearest to txtAngle (degrees), from 1 to 2 NANG - 1.
int AngleDelta(const Session& session);

/// The circle with its rings, spokes, angles and the values at rim and centre.
void PaintPolarFrame(FramePaint& paint);

/// Ticks across a polar curve at every tenth row, longer ones with the scattering angle at every hundredth, and a small
/// circle at its start.
void PaintPolarTicks(Session& session, const KeptPanel& panel, const KeptCurve& curve);

}  // namespace lumivex
