#pragma once

#include "pages/look.h"

namespace lumivex {

/// Whether a page has an x axis to zoom: not a polar plot, not an empty page.
bool HasXAxis(const Page& page);

/// The range with its ends rounded to what its size resolves, so that they can be typed.
XRange RoundedRange(XRange range);

/// The page with another range of x: the limits of every panel, and y limits as the look has them for what is now in
/// view of all the curves.
Page SetXRange(Page page, XRange range, const Look& look);

/// Whether some curve has data over all of a range; where none has, a calculation would show the rest.
bool HasDataOver(const Page& page, XRange range);

}  // namespace lumivex
