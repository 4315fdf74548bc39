#pragma once

#include "pages/look.h"

namespace lumivex {

/// Chooses the vertical limits of a panel for the part of its curves that is in view, by the scale of the look. Where
/// no value in view is positive they stay.
void ChooseLimitsInView(Page& page, std::size_t index, const Look& look);

/// The same for values of this range, of which the upper end is positive.
void ChooseLimitsFor(Page& page, std::size_t index, XRange values, const Look& look);

/// An overplot keeps the limits of the graph, but those of an albedo may be drawn so close round the first curve that
/// no other is to be seen: where one leaves them, and none is typed or zoomed, they are chosen anew for all curves.
void FitOverplot(Page& page, const Look& look);

}  // namespace lumivex
