#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// Rows of a curve, first to last; none when last < first.
struct RowSpan {
  std::size_t first = 1, last = 0;
  bool Empty() const { return last < first; }
};

/// The rows whose x lies within the range (a millionth of it beyond the ends counts as within).
RowSpan RowsWithin(std::span<const double> x, XRange range);

/// The values that are drawn: y, or for the rows shown its running mean over them.
SharedValues DrawnValues(const PageCurve& curve, RowSpan shown);

/// The circle of a polar plot with the values at its centre and at its rim.
struct PolarMap {
  double centreX = 0, centreY = 0, radius = 0;
  double inner = 0, outer = 1;
  bool logarithmic = false;

  /// Distance from the centre (surface units), between 0 and the radius. 0 counts as a tenth of the inner value.
  double Distance(double value) const;
  SurfacePoint Point(double angleDegrees, double value) const;
};
PolarMap PolarMapOf(const Page& page);

/// Where each row of a curve lies on the surface; a row that was not computed lies nowhere (not a number).
struct PlacedRow {
  std::size_t row = 0;
  SurfacePoint point;
};
std::vector<PlacedRow> PlacedRows(const Page& page, const PagePanel& panel, const PageCurve& curve);

/// Uninterrupted runs of a curve, clipped to the panel's box (not in a polar plot), interpolated where it is wanted. Of
/// far more points than any picture has dots side by side, those are left out that would fall on others: of each unit
/// of the surface the first, the lowest, the highest and the last stay.
std::vector<std::vector<SurfacePoint>> CurveRuns(const Page& page, const PagePanel& panel, const PageCurve& curve);

/// Paints a curve with its own pen, which is put back to solid and thin; the colour of the surface changes.
void PaintCurve(DrawingSurface& surface, const Page& page, const PageCurve& curve);

}  // namespace lumivex
