#pragma once

#include "record/session.h"

namespace lumivex {

/// Whether the graph on the screen has an x axis to zoom: not a polar plot, not an empty page.
bool HasXAxis(const Session& session);

/// The range with its ends rounded to what its size resolves, so that they can be typed.
XRange RoundedRange(XRange range);

/// Makes a range the one on the screen: the limits of every panel, Xmin and Xmax, and automatic y limits for what is
/// now in view of all the curves kept. Draws nothing, calculates nothing.
/// @return whether some curve has data over all of it; where none has, a calculation would show the rest.
bool SetXRange(Session& session, XRange range);

}  // namespace lumivex
