#pragma once

#include "pages/look.h"
#include "record/drawing_surface.h"
#include "runs/results.h"

namespace lumivex {

/// A fresh page of results: frame and curves, or what the graph has in their place, title, readings and histogram. All
/// that it says comes from what the run was asked and from the look.
/// @param memory  what the scales remember of the frame before; the page holds what they remember afterwards.
Page BuildPage(const Results& results, const Look& look, const PageGeometry& geometry, const ScaleMemory& memory);

/// The page with the curves of further results over its own, on its limits. Where its graph, quantity or units are
/// others, a fresh page of the results.
Page DrawOver(const Page& page, const Results& results, const Look& look);

/// Whether curves of one kind may be drawn on the axes of the other.
bool SharesAxes(const PageKind& page, const PageKind& run);

/// The page on a surface of another size.
Page PlacePage(Page page, const PageGeometry& geometry);

/// The page in other colours, those of its bars included, with other grid lines, logo and readings; its curves and
/// limits stay.
Page WithLook(Page page, const Look& look);

/// Paints a page on a surface, which is cleared first. The page is the same afterwards, whatever the surface.
void Paint(const Page& page, DrawingSurface& surface);

}  // namespace lumivex
