#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws a graph in two stacked panels: intensities (or amplitudes) above; below, on fixed scales, the phases of both
/// amplitudes from 0 to 360 degrees (mnuAmpPhase) or the degree of linear polarisation from -1 to 1 (mnuIntPol) with a
/// line at its middle. Of the scattering matrix, S11 above and S12, S33 and S34 over S11 below, each in a colour of its
/// own and named beside the panel. Overplots go over both panels. A polar plot has one panel.
void DisplayTwoPanels(Session& session);

/// The line in the middle of the panel of the degree of polarisation.
void PaintMiddleLine(DrawingSurface& surface, const GraphBox& box);

/// The names of the ratios of the scattering matrix above their panel, in the colours of their curves; nothing for
/// other graphs.
void PaintPanelLegend(Session& session);

}  // namespace lumivex
