#pragma once

#include <cstddef>
#include <optional>
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

/// The same; found by halves where the rows rise.
RowSpan RowsWithin(const SharedValues& x, XRange range);

/// The values that are drawn: y, or for the rows shown its running mean over them.
SharedValues DrawnValues(const PageCurve& curve, RowSpan shown);

/// The circle of a polar plot, as large as the surface takes it, with the values at its centre and at its rim.
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
  double value = 0;  ///< that is drawn there
};
std::vector<PlacedRow> PlacedRows(const Page& page, const PagePanel& panel, const PageCurve& curve);

/// The same; of far more rows than any picture has dots side by side, those are left out that would fall on others: of
/// each unit of the surface the first, the lowest, the highest and the last stay.
std::vector<PlacedRow> ThinnedRows(const Page& page, const PagePanel& panel, const PageCurve& curve);

/// Whether so many points stand closer than the dots of any picture.
bool IsDense(std::size_t points, const GraphBox& box);

/// The row that is drawn nearest to a place of the panel; of several the first. Nothing where no row is drawn. The work
/// does not grow with the rows that lie farther off to both sides, as long as x rises along the curve.
std::optional<PlacedRow> NearestRow(const Page& page, const PagePanel& panel, const PageCurve& curve, SurfacePoint to);

}  // namespace lumivex
