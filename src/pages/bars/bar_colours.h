#pragma once

#include "pages/look.h"

namespace lumivex {

/// Colours the bars of a page, if it has any, for the angles that it shows, from the sums that it holds: this is all
/// that a zoom and another brightness, saturation or gamma ask for.
///
/// A column is in view where a part of it is. Its colour goes by the rules of the look, the sums of full brightness
/// being the reference P.
void ColourBars(Page& page, const ColourLook& look);

/// Degrees of row 1: 0, but in a beam.
double AngleOfFirstRow(const PageBars& bars);

/// Bars on their own scale: P is the greatest channel of the perpendicular and parallel sums in view, which the
/// unpolarised ones, being means, never pass.
void PlotBow(PageBars& bars, const ColourRules& rules);

/// Bars on another scale: P is the one set before, where the look has one in the unit of the page; and where it wants
/// that, the unpolarised bar is held against its own greatest channel.
/// @param unit  the unit of the sums; its reference counts for nothing.
void PlotBow2(PageBars& bars, const ColourLook& look, const BarScale& unit);

}  // namespace lumivex
