#include "pages/free_room.h"

#include <algorithm>
#include <limits>

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

/// More points than are looked at while the note follows the window.
constexpr std::size_t mostPoints = 100000;

/// Pieces of curves that touch a box.
std::size_t PiecesIn(const Page& page, const GraphBox& box) {
  std::size_t pieces = 0;
  for (const PageCurve& curve : page.curves) {
    if (curve.panel >= page.panels.size() || curve.y.size() > mostPoints) continue;
    for (const auto& run : CurveRuns(page, page.panels[curve.panel], curve))
      for (std::size_t i = 1; i < run.size(); ++i) {
        const auto [low, high] = std::minmax(run[i - 1].x, run[i].x);
        const auto [above, below] = std::minmax(run[i - 1].y, run[i].y);
        if (low <= box.right && high >= box.left && above <= box.bottom && below >= box.top) ++pieces;
      }
  }
  return pieces;
}

}  // namespace

SurfacePoint FreeRoom(const Page& page, double width, double height, double left, double right) {
  const double mostLeft = right - edge - width;
  const double taken = page.histogram ? HistogramRight : ReadingsRight;
  if (mostLeft >= taken && edge + height <= stripEnd) return {std::min(std::max(left, taken), mostLeft), edge};

  const GraphBox box = BoxOf(page, PanelPlace::Whole);
  if (mostLeft >= box.right + edge) return {mostLeft, box.top};

  // The rightmost corners come first: a scattering pattern begins with its peak.
  const double inner = std::max(0.0, std::min(box.right, right) - edge - width), outer = box.left + edge;
  const double upper = box.top + edge, lower = std::max(upper, box.bottom - edge - height);
  SurfacePoint best{inner, upper};
  std::size_t fewest = std::numeric_limits<std::size_t>::max();
  for (const SurfacePoint corner : {SurfacePoint{inner, upper}, SurfacePoint{inner, lower}, SurfacePoint{outer, lower},
                                    SurfacePoint{outer, upper}}) {
    const std::size_t pieces = PiecesIn(page, {corner.x, corner.x + width, corner.y, corner.y + height});
    if (pieces >= fewest) continue;
    fewest = pieces;
    best = corner;
  }
  return best;
}

}  // namespace lumivex
