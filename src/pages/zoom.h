#pragma once

#include <optional>

#include "pages/look.h"

namespace lumivex {

/// A zoom is a matter of the page alone: it changes what is shown of the axes, not the inputs.

/// What of its axes a page shows.
struct PageView {
  XRange x;
  std::optional<XRange> y = {};  ///< of the main panel; nothing: chosen for the curves in view
  bool operator==(const PageView&) const = default;
};

/// Whether a page has an x axis to zoom: not a polar plot, not an empty page.
bool HasXAxis(const Page& page);

PageView ViewOf(const Page& page);

/// The view of the page before any zoom.
PageView HomeOf(const Page& page);

bool IsZoomed(const Page& page);

/// The page with another view: x limits of every panel, and y limits of the main one as the view has them or as the
/// look has them for what is now in view of all the curves. A second panel keeps its scale; bars have the columns in
/// view, on the scale of these.
Page WithView(Page page, const PageView& view, const Look& look);

/// The view of one page for the next page of the window: nothing where that one has another axis or range, and the y
/// range only where it would begin with the same one.
std::optional<PageView> KeptView(const Page& before, const Page& after);

/// The range with its ends rounded to what its size resolves, so that they can be typed.
XRange RoundedRange(XRange range);

/// The y range of the main panel after a zoom at a place of the surface: `factor` below 1 shows less, the value under
/// the place stays there. It keeps within the range of the frame, and so wide that the numbers at the axis differ.
XRange ZoomYAt(const Page& page, double surfaceY, double factor);

/// That range after a drag by so many surface units downward.
XRange PanYBy(const Page& page, double surfaceUnits);

/// Calculated points of the curve of the main panel that has most of them in view.
int PointsInView(const Page& page);

/// Whether some curve has data over all of a range; where none has, a calculation would show the rest.
bool HasDataOver(const Page& page, XRange range);

}  // namespace lumivex
