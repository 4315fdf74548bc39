#include "pages/curves/curve_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "axes/curve_smoothing.h"
#include "axes/polar_coordinates.h"
#include "axes/scale_rules.h"

namespace lumivex {

namespace {

constexpr double degree = 3.14159265358979 / 180;
constexpr double notThere = std::numeric_limits<double>::quiet_NaN();

/// Values at or below it count as nothing on a logarithmic axis.
constexpr double logFloor = 1e-300;

PanelMap MapOf(const Page& page, const PagePanel& panel) {
  return {panel.box, panel.limits, page.kind.logX, panel.logY};
}

SurfacePoint Placed(const PanelMap& map, double x, double value) {
  if (map.logY && std::isfinite(value)) value = value <= logFloor ? map.limits.ymin : std::min(value, map.limits.ymax);
  return {map.X(x), map.Y(value)};
}

/// Rows in one unit of the surface, as they come along a curve: of each unit the first, the lowest, the highest and the
/// last are kept.
class UnitOfRows {
 public:
  explicit UnitOfRows(std::vector<std::size_t>& kept) : kept_(kept) {}

  void Add(std::size_t row, double unit, double value) {
    if (!std::isfinite(value) || unit != unit_) Close();
    if (!std::isfinite(value)) return kept_.push_back(row);
    if (!open_ || value > highestValue_) highest_ = row, highestValue_ = value;
    if (!open_ || value < lowestValue_) lowest_ = row, lowestValue_ = value;
    if (!open_) first_ = row;
    last_ = row;
    unit_ = unit;
    open_ = true;
  }
  void Close() {
    if (!open_) return;
    open_ = false;
    std::size_t before = 0;
    for (const std::size_t row : {first_, std::min(highest_, lowest_), std::max(highest_, lowest_), last_})
      if (row != before) kept_.push_back(before = row);
  }

 private:
  std::vector<std::size_t>& kept_;
  std::size_t first_ = 0, last_ = 0, highest_ = 0, lowest_ = 0;
  double unit_ = 0, highestValue_ = 0, lowestValue_ = 0;
  bool open_ = false;
};

/// The rows from first to last that are drawn; all of them but where they are dense.
std::vector<std::size_t> DrawnRows(const PanelMap& map, const PageCurve& curve, const SharedValues& values,
                                   RowSpan rows) {
  std::vector<std::size_t> kept;
  const bool dense = IsDense(rows.last - rows.first + 1, map.box);
  UnitOfRows unit(kept);
  for (std::size_t i = rows.first; i <= rows.last; ++i) {
    if (dense)
      unit.Add(i, std::floor(map.X(curve.x[i])), values[i]);
    else
      kept.push_back(i);
  }
  unit.Close();
  return kept;
}

/// The rows of a curve that its panel shows, one row beyond each end with them, so that a zoomed curve runs on to the
/// edge of the box.
struct RowsInView {
  const PageCurve& curve;
  PanelMap map;
  RowSpan rows;
  SharedValues values;

  RowsInView(const Page& page, const PagePanel& panel, const PageCurve& of) : curve(of), map(MapOf(page, panel)) {
    const RowSpan shown = RowsWithin(of.x, {panel.limits.xmin, panel.limits.xmax});
    const std::size_t size = std::min(of.x.size(), of.y.size());
    if (shown.Empty() || size < 2) return;
    rows = {std::max<std::size_t>(1, shown.first - 1), std::min(size - 1, shown.last + 1)};
    values = DrawnValues(of, shown);
  }
  PlacedRow At(std::size_t row) const { return {row, Placed(map, curve.x[row], values[row]), values[row]}; }
};

/// @param thinned  whether rows that would fall on others may be left out.
std::vector<PlacedRow> Place(const Page& page, const PagePanel& panel, const PageCurve& curve, bool thinned) {
  std::vector<PlacedRow> placed;
  if (page.kind.polar) {
    const std::size_t size = std::min(curve.x.size(), curve.y.size());
    const PolarMap map = PolarMapOf(page);
    const SharedValues values = DrawnValues(curve, {1, size > 0 ? size - 1 : 0});
    for (std::size_t i = 1; i < size; ++i) placed.push_back({i, map.Point(curve.x[i], values[i]), values[i]});
    return placed;
  }
  const RowsInView view(page, panel, curve);
  if (view.rows.Empty()) return placed;
  if (thinned) {
    for (const std::size_t i : DrawnRows(view.map, curve, view.values, view.rows)) placed.push_back(view.At(i));
  } else {
    placed.reserve(view.rows.last - view.rows.first + 1);
    for (std::size_t i = view.rows.first; i <= view.rows.last; ++i) placed.push_back(view.At(i));
  }
  return placed;
}

/// The nearest of the rows met so far.
class Nearest {
 public:
  explicit Nearest(SurfacePoint to) : to_(to) {}

  void Meet(const PlacedRow& placed) {
    const double distance = std::hypot(placed.point.x - to_.x, placed.point.y - to_.y);
    const bool nearer = distance < distance_ || (found_ && distance == distance_ && placed.row < found_->row);
    if (!nearer) return;
    distance_ = distance;
    found_ = placed;
  }
  double Distance() const { return distance_; }
  const std::optional<PlacedRow>& Found() const { return found_; }

 private:
  SurfacePoint to_;
  double distance_ = std::numeric_limits<double>::infinity();
  std::optional<PlacedRow> found_;
};

}  // namespace

bool IsDense(std::size_t points, const GraphBox& box) {
  constexpr double pointsPerUnit = 3;
  return static_cast<double>(points) > pointsPerUnit * box.Width();
}

RowSpan RowsWithin(std::span<const double> x, XRange range) {
  const double beyond = 1e-6 * (range.xmax - range.xmin);
  const auto within = [&](double value) { return value >= range.xmin - beyond && value <= range.xmax + beyond; };
  RowSpan rows;
  for (std::size_t i = 1; i < x.size(); ++i) {
    if (!within(x[i])) continue;
    if (rows.Empty()) rows.first = i;
    rows.last = i;
  }
  return rows;
}

RowSpan RowsWithin(const SharedValues& x, XRange range) {
  if (!x.Rise() || x.size() < 2) return RowsWithin(std::span<const double>(x.All()), range);
  const double beyond = 1e-6 * (range.xmax - range.xmin);
  const auto first = std::lower_bound(x.begin() + 1, x.end(), range.xmin - beyond);
  const auto after = std::upper_bound(first, x.end(), range.xmax + beyond);
  if (first == after) return {};
  return {static_cast<std::size_t>(first - x.begin()), static_cast<std::size_t>(after - x.begin()) - 1};
}

SharedValues DrawnValues(const PageCurve& curve, RowSpan shown) {
  if (!(curve.averageRows > 0) || shown.Empty()) return curve.y;
  return RunningMeans(curve.y.All(), curve.averageRows, shown.first, shown.last);
}

double PolarMap::Distance(double value) const {
  if (!std::isfinite(value)) return notThere;
  if (!logarithmic) return radius * std::clamp(value / outer, 0.0, 1.0);
  const double shown = value > 0 ? value : inner / 10;
  return radius * std::clamp(LogOfRatio(shown, inner) / LogOfRatio(outer, inner), 0.0, 1.0);
}

SurfacePoint PolarMap::Point(double angleDegrees, double value) const {
  const double r = Distance(value);
  SurfacePoint p;
  PolarRectangular(r, angleDegrees * degree, p.x, p.y);
  return {centreX + p.x, centreY + p.y};
}

PolarMap PolarMapOf(const Page& page) {
  const AxisLimits limits = page.panels.empty() ? AxisLimits{} : page.panels.front().limits;
  const PageGeometry& at = page.geometry;
  // On a low surface the circle keeps its top and its left edge, and the numbers around it their room below.
  constexpr double roomBelow = 450, leastRadius = 1000;
  const double lowest = at.surfaceHeight - roomBelow, top = at.polarY - at.polarRadius;
  const double radius = std::min(at.polarRadius, std::max(leastRadius, 0.5 * (lowest - top)));
  PolarMap map{at.polarX - at.polarRadius + radius, top + radius, radius, limits.ymin, limits.ymax, page.kind.logY};
  // The curve is the modulus of the amplitude, the limits were chosen for its square.
  if (page.kind.IsComplexPolar() && !page.kind.amplitude) {
    map.inner = std::sqrt(std::max(limits.ymin, 0.0));
    map.outer = std::sqrt(std::max(limits.ymax, 0.0));
  }
  if (!(map.outer > 0)) map.outer = 1;
  return map;
}

std::vector<PlacedRow> PlacedRows(const Page& page, const PagePanel& panel, const PageCurve& curve) {
  return Place(page, panel, curve, false);
}

std::vector<PlacedRow> ThinnedRows(const Page& page, const PagePanel& panel, const PageCurve& curve) {
  return Place(page, panel, curve, true);
}

std::optional<PlacedRow> NearestRow(const Page& page, const PagePanel& panel, const PageCurve& curve, SurfacePoint to) {
  Nearest nearest(to);
  if (page.kind.polar || !curve.x.Rise()) {
    for (const PlacedRow& placed : PlacedRows(page, panel, curve)) nearest.Meet(placed);
    return nearest.Found();
  }
  const RowsInView view(page, panel, curve);
  if (view.rows.Empty()) return {};
  // From the place to both sides, as far as a row may still be nearer than the best.
  const double* begin = curve.x.begin();
  const auto middle = static_cast<std::size_t>(
      std::lower_bound(begin + view.rows.first, begin + view.rows.last + 1, view.map.XAt(to.x)) - begin);
  const auto beyond = [&](std::size_t row) { return std::abs(view.map.X(curve.x[row]) - to.x) > nearest.Distance(); };
  for (std::size_t row = middle; row <= view.rows.last && !beyond(row); ++row) nearest.Meet(view.At(row));
  for (std::size_t row = middle; row-- > view.rows.first && !beyond(row);) nearest.Meet(view.At(row));
  return nearest.Found();
}

}  // namespace lumivex
