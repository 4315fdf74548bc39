#include "pages/free_room.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "pages/curves/curve_path.h"
#include "pages/frame/frame.h"
#include "pages/items/readings.h"
#include "pages/items/size_histogram.h"

namespace lumivex {

namespace {

/// Air around the note.
constexpr double edge = 150;

/// Titles of the graph begin here.
constexpr double stripEnd = 2900;

/// More points in view than are looked at while the note follows the window.
constexpr std::size_t mostPoints = 100000;

/// Cells of the plot (surface units), and which of them curves go through.
class CoveredCells {
 public:
  static constexpr double cell = 100;

  explicit CoveredCells(const GraphBox& box)
      : box_(box), columns_(CellsIn(box.Width())), rows_(CellsIn(box.Height())), covered_(columns_ * rows_) {}

  void Cover(const Page& page) {
    for (const PageCurve& curve : page.curves) {
      if (curve.panel >= page.panels.size()) continue;
      const PagePanel& panel = page.panels[curve.panel];
      const RowSpan rows = RowsWithin(curve.x, {panel.limits.xmin, panel.limits.xmax});
      if (rows.Empty() || rows.last - rows.first > mostPoints) continue;
      for (const auto& run : CurveRuns(page, panel, curve))
        for (std::size_t i = 1; i < run.size(); ++i) CoverPiece(run[i - 1], run[i]);
    }
  }
  /// Covered cells that a box of the plot touches.
  std::size_t Under(const GraphBox& note) const {
    std::size_t count = 0;
    for (std::size_t row = Row(note.top); row <= Row(note.bottom); ++row)
      for (std::size_t column = Column(note.left); column <= Column(note.right); ++column)
        count += covered_[row * columns_ + column];
    return count;
  }

 private:
  static std::size_t CellsIn(double length) {
    return static_cast<std::size_t>(std::max(1.0, std::ceil(length / cell)));
  }
  std::size_t Column(double x) const {
    return std::min(static_cast<std::size_t>(std::max(0.0, (x - box_.left) / cell)), columns_ - 1);
  }
  std::size_t Row(double y) const {
    return std::min(static_cast<std::size_t>(std::max(0.0, (y - box_.top) / cell)), rows_ - 1);
  }
  void CoverPiece(SurfacePoint from, SurfacePoint to) {
    constexpr double mostSteps = 1000;
    const double steps = std::min(std::ceil(2 * std::hypot(to.x - from.x, to.y - from.y) / cell) + 1, mostSteps);
    for (double k = 0; k <= steps; ++k) {
      const double part = k / steps;
      covered_[Row(from.y + part * (to.y - from.y)) * columns_ + Column(from.x + part * (to.x - from.x))] = true;
    }
  }

  GraphBox box_;
  std::size_t columns_, rows_;
  std::vector<unsigned char> covered_;
};

}  // namespace

SurfacePoint FreeRoom(const Page& page, double width, double height, double left, double right) {
  const double mostLeft = right - edge - width;
  const double taken = page.histogram ? HistogramRight : ReadingsRight;
  if (mostLeft >= taken && edge + height <= stripEnd) return {std::min(std::max(left, taken), mostLeft), edge};

  const GraphBox box = PlotBox(page);
  if (mostLeft >= box.right + edge) return {mostLeft, box.top};

  CoveredCells cells(box);
  cells.Cover(page);
  const double inner = std::max(0.0, std::min(box.right, right) - edge - width), outer = box.left + edge;
  const double upper = box.top + edge, lower = std::max(upper, box.bottom - edge - height);
  SurfacePoint best{inner, upper};
  std::size_t fewest = std::numeric_limits<std::size_t>::max();
  const auto look = [&](SurfacePoint corner) {
    const std::size_t covered = cells.Under({corner.x, corner.x + width, corner.y, corner.y + height});
    if (covered >= fewest) return;
    fewest = covered;
    best = corner;
  };
  // The rightmost corners come first: a scattering pattern begins with its peak.
  for (const SurfacePoint corner :
       {SurfacePoint{inner, upper}, SurfacePoint{inner, lower}, SurfacePoint{outer, lower}, SurfacePoint{outer, upper}})
    look(corner);
  if (fewest == 0) return best;
  constexpr int places = 16;
  for (int row = 0; row <= places; ++row)
    for (int column = 0; column <= places; ++column)
      look({inner + (outer - inner) * column / places, upper + (lower - upper) * row / places});
  return best;
}

}  // namespace lumivex
