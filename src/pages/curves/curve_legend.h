#pragma once

#include "pages/frame/frame_paint.h"
#include "runs/results.h"

namespace lumivex {

/// Gives a page its legend: one line a polarisation, each name in its curve's colour; overplots of another colour stand
/// beside it. Without absorption the efficiencies are told in one line.
void PolarLabel(Page& page, const Results& results);

/// Paints the legend below the plot, where the page has one.
/// @param polarLabels  numbers of a polar plot, which it stands below.
void PaintLegend(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels);

/// The names of the ratios of the scattering matrix above their panel, in the colours of their curves; nothing for
/// other graphs.
void PaintPanelLegend(DrawingSurface& surface, const Page& page);

}  // namespace lumivex
