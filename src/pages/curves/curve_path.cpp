#include "pages/curves/curve_path.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <span>
#include <utility>

#include "axes/curve_smoothing.h"
#include "pages/compare/paint_points.h"

namespace lumivex {

namespace {

constexpr double notThere = std::numeric_limits<double>::quiet_NaN();

/// Half the size of a mark (surface units).
constexpr double markSize = 70;

/// Parts of the way from one point to the next with cubic interpolation.
constexpr int piecesPerPoint = 10;

using Runs = std::vector<std::vector<SurfacePoint>>;

bool IsFinite(const SurfacePoint& p) {
  return std::isfinite(p.x) && std::isfinite(p.y);
}

/// The part of a segment inside the box, as parameters from 0 to 1; false where there is none.
bool ClipSegment(const GraphBox& box, SurfacePoint a, SurfacePoint b, double& from, double& to) {
  from = 0;
  to = 1;
  const auto cut = [&](double delta, double room) {
    // delta t <= room
    if (delta == 0) return room >= 0;
    const double t = room / delta;
    if (delta > 0)
      to = std::min(to, t);
    else
      from = std::max(from, t);
    return from <= to;
  };
  const double dx = b.x - a.x, dy = b.y - a.y;
  return cut(-dx, a.x - box.left) && cut(dx, box.right - a.x) && cut(-dy, a.y - box.top) && cut(dy, box.bottom - a.y);
}

/// Box edges count as inside to within rounding.
GraphBox WithRounding(GraphBox box) {
  constexpr double rounding = 1e-6;
  return {box.left - rounding, box.right + rounding, box.top - rounding, box.bottom + rounding};
}

Runs ClippedRuns(const std::vector<SurfacePoint>& points, const GraphBox& edges) {
  const GraphBox box = WithRounding(edges);
  Runs runs;
  bool open = false;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!IsFinite(points[i])) {
      open = false;
      continue;
    }
    const bool joined = i > 0 && IsFinite(points[i - 1]);
    if (!joined) {
      open = box.Holds(points[i].x, points[i].y);
      if (open) runs.push_back({points[i]});
      continue;
    }
    const SurfacePoint a = points[i - 1], b = points[i];
    double from = 0, to = 1;
    if (!ClipSegment(box, a, b, from, to)) {
      open = false;
      continue;
    }
    const auto at = [&](double t) { return SurfacePoint{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}; };
    if (!open || from > 0) runs.push_back({at(from)});
    runs.back().push_back(to < 1 ? at(to) : b);
    open = to >= 1;
  }
  return runs;
}

/// Without the pieces along the lower edge. On a logarithmic axis what is nothing lies there, under the line of the
/// box, and would only show beside it, as far as the numbers of a falling curve reach.
Runs WithoutFloor(const Runs& runs, const GraphBox& box) {
  Runs kept;
  for (const auto& run : runs) {
    bool open = false;
    for (std::size_t i = 1; i < run.size(); ++i) {
      const bool onFloor = run[i - 1].y >= box.bottom && run[i].y >= box.bottom;
      if (!onFloor && !open) kept.push_back({run[i - 1]});
      if (!onFloor) kept.back().push_back(run[i]);
      open = !onFloor;
    }
    if (run.size() == 1) kept.push_back(run);
  }
  return kept;
}

Runs UnclippedRuns(const std::vector<SurfacePoint>& points) {
  Runs runs;
  bool open = false;
  for (const auto& p : points) {
    if (!IsFinite(p)) {
      open = false;
      continue;
    }
    if (!open) runs.emplace_back();
    runs.back().push_back(p);
    open = true;
  }
  return runs;
}

/// A cubic through every four neighbours; between the middle pair only, but for the two ends of the run.
std::vector<SurfacePoint> Interpolated(const std::vector<SurfacePoint>& run) {
  if (run.size() < 4) return run;
  std::vector<SurfacePoint> smooth{run.front()};
  smooth.reserve(run.size() * piecesPerPoint);
  for (std::size_t i = 0; i + 1 < run.size(); ++i) {
    const std::size_t window = std::clamp<std::size_t>(i, 1, run.size() - 3) - 1;
    const std::array<double, 4> y = {run[window].y, run[window + 1].y, run[window + 2].y, run[window + 3].y};
    const double start = static_cast<double>(i) - static_cast<double>(window) - 1;
    for (int piece = 1; piece <= piecesPerPoint; ++piece) {
      const double part = static_cast<double>(piece) / piecesPerPoint;
      smooth.push_back({run[i].x + part * (run[i + 1].x - run[i].x), CubicThrough(y, start + part)});
    }
  }
  return smooth;
}

std::vector<SurfacePoint> InterpolatedPoints(const std::vector<SurfacePoint>& points) {
  std::vector<SurfacePoint> all;
  for (const auto& run : UnclippedRuns(points)) {
    const auto smooth = Interpolated(run);
    all.insert(all.end(), smooth.begin(), smooth.end());
    all.push_back({notThere, notThere});
  }
  return all;
}

void DrawMarks(DrawingSurface& surface, const Page& page, const PagePanel& panel, const PageCurve& curve) {
  const bool polar = page.kind.polar, matrix = page.kind.IsMatrix();
  const GraphBox box = WithRounding(panel.box);
  for (const auto& [row, p, value] : PlacedRows(page, panel, curve)) {
    if (!IsFinite(p) || (!polar && !box.Holds(p.x, p.y))) continue;
    surface.ForeColour = row < curve.colours.size() ? curve.colours[row] : curve.colour;
    if (curve.kind == 1) surface.Circle(p.x, p.y, markSize, surface.ForeColour);
    if (curve.kind == 2) {
      surface.Line(p.x - markSize, p.y - markSize, p.x + markSize, p.y + markSize);
      surface.Line(p.x - markSize, p.y + markSize, p.x + markSize, p.y - markSize);
    }
    // The mean of the other two has no mark; the third ratio of the matrix is a curve of its own.
    if (curve.kind == 3 && matrix) {
      surface.Line(p.x - markSize, p.y, p.x + markSize, p.y);
      surface.Line(p.x, p.y - markSize, p.x, p.y + markSize);
    }
  }
}

void DrawRun(DrawingSurface& surface, std::span<const SurfacePoint> run) {
  if (run.size() > 1)
    surface.Polyline(run);
  else
    surface.PSet(run.front().x, run.front().y, surface.ForeColour);
}

/// Runs of a curve that changes its colour from row to row: pieces of one colour, which meet.
void DrawColoured(DrawingSurface& surface, const Page& page, const PagePanel& panel, const PageCurve& curve) {
  auto rows = PlacedRows(page, panel, curve);
  std::erase_if(rows, [](const PlacedRow& placed) { return !std::isfinite(placed.point.x); });
  // Half-way between two rows the first has it, whatever the rounding of a size of the picture.
  constexpr double hair = 0.001;
  const auto colourAt = [&](double x) {
    const auto after = std::ranges::lower_bound(rows, x, {}, [](const PlacedRow& placed) { return placed.point.x; });
    const auto nearest =
        after == rows.end() || (after != rows.begin() && x - std::prev(after)->point.x < after->point.x - x + hair)
            ? std::prev(after)
            : after;
    return nearest->row < curve.colours.size() ? curve.colours[nearest->row] : curve.colour;
  };
  for (const auto& run : CurveRuns(page, panel, curve)) {
    std::size_t first = 0;
    surface.ForeColour = colourAt(run.front().x);
    for (std::size_t i = 1; i < run.size(); ++i) {
      const Colour colour = colourAt(0.5 * (run[i - 1].x + run[i].x));
      if (colour == surface.ForeColour) continue;
      if (i > first + 1) DrawRun(surface, std::span(run).subspan(first, i - first));
      first = i - 1;
      surface.ForeColour = colour;
    }
    DrawRun(surface, std::span(run).subspan(first));
  }
}

}  // namespace

std::vector<std::vector<SurfacePoint>> CurveRuns(const Page& page, const PagePanel& panel, const PageCurve& curve) {
  const auto rows = ThinnedRows(page, panel, curve);
  std::vector<SurfacePoint> points;
  points.reserve(rows.size());
  std::size_t before = 0;
  for (const auto& placed : rows) {
    // From 360 degrees back to 0 there is no line.
    if (curve.wraps && before > 0 && std::abs(curve.y[placed.row] - curve.y[before]) > 180)
      points.push_back({notThere, notThere});
    points.push_back(placed.point);
    before = placed.row;
  }
  if (page.kind.polar) return UnclippedRuns(points);
  // Between points that are closer than dots there is nothing to interpolate.
  const bool interpolated = curve.interpolate && !IsDense(rows.size(), panel.box);
  Runs runs = ClippedRuns(interpolated ? InterpolatedPoints(points) : points, panel.box);
  return panel.logY ? WithoutFloor(runs, panel.box) : runs;
}

void PaintCurve(DrawingSurface& surface, const Page& page, const PageCurve& curve) {
  if (curve.data != 0) return PaintPoints(surface, page, curve);
  const PagePanel& panel = page.panels[curve.panel];
  surface.ForeColour = curve.colour;
  surface.DrawStyle = curve.drawStyle;
  surface.DrawWidth = curve.drawWidth;
  surface.FillStyle = 1;
  if (curve.markers) {
    DrawMarks(surface, page, panel, curve);
  } else if (!curve.colours.empty() && !page.kind.polar) {
    DrawColoured(surface, page, panel, curve);
  } else {
    for (const auto& run : CurveRuns(page, panel, curve)) DrawRun(surface, run);
  }
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
}

}  // namespace lumivex
