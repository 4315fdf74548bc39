#pragma once

#include "session/record/session.h"

namespace lumivex {

/// Draws the angle graph in two stacked panels: intensities (or amplitudes) above; below, on fixed scales, the phases
/// of both amplitudes from 0 to 360 degrees (mnuAmpPhase) or the degree of linear polarisation from -1 to 1 (mnuIntPol)
/// with a line at its middle. Overplots go over both. A polar plot has one panel.
void DisplayTwoPanels(Session& session);

/// The line in the middle of the panel of the degree of polarisation.
void PaintMiddleLine(DrawingSurface& surface, const GraphBox& box);

}  // namespace lumivex
