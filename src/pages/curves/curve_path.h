#pragma once

#include <vector>

#include "pages/curves/curve_rows.h"
#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Uninterrupted runs of a curve, clipped to the panel's box (not in a polar plot), interpolated where it is wanted. Of
/// many rows those of ThinnedRows.
std::vector<std::vector<SurfacePoint>> CurveRuns(const Page& page, const PagePanel& panel, const PageCurve& curve);

/// Paints a curve with its own pen, which is put back to solid and thin; the colour of the surface changes.
void PaintCurve(DrawingSurface& surface, const Page& page, const PageCurve& curve);

}  // namespace lumivex
