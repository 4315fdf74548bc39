#include "pages/zoom.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "pages/bars/bar_colours.h"
#include "pages/curves/curve_limits.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/scale.h"
#include "pages/read_out.h"

namespace lumivex {

namespace {

/// A zoom is resolved to a thousandth of what is shown.
constexpr int digitsOfRange = 4;

/// Where the computed rows of a curve begin and end, and the distance of the last two.
struct Extent {
  double first, last, spacing;
};
std::optional<Extent> ExtentOf(const PageCurve& curve) {
  Extent extent{std::nan(""), std::nan(""), 0};
  for (std::size_t i = 1; i < std::min(curve.x.size(), curve.y.size()); ++i) {
    if (!std::isfinite(curve.x[i]) || !std::isfinite(curve.y[i])) continue;
    if (std::isnan(extent.first))
      extent.first = curve.x[i];
    else
      extent.spacing = curve.x[i] - extent.last;
    extent.last = curve.x[i];
  }
  if (std::isnan(extent.first)) return {};
  return extent;
}

/// The panel whose vertical axis is zoomed: the first, which no page has on a scale of its own.
const PagePanel& MainPanel(const Page& page) {
  return page.panels.front();
}

/// Numbers of a logarithmic axis have two digits, those of a linear one three: ends that are nearer look the same.
constexpr double leastRatio = 2, leastShare = 0.01;
constexpr int digitsOfY = 3;

bool IsWideEnough(const Page& page, XRange y) {
  // Fewer cells of a map show nothing more.
  constexpr double fewestCells = 4;
  if (page.map)
    return std::abs(page.map->up.samples.PlaceOf(y.xmax) - page.map->up.samples.PlaceOf(y.xmin)) > fewestCells;
  if (MainPanel(page).logY) return y.xmin > 0 && y.xmax / y.xmin >= leastRatio;
  return y.xmax - y.xmin >= leastShare * std::max(std::abs(y.xmin), std::abs(y.xmax));
}

double WithDigits(double value, int digits) {
  if (value == 0) return 0;
  const double unit = std::pow(10.0, std::floor(std::log10(std::abs(value))) - (digits - 1));
  return std::round(value / unit) * unit;
}

/// All that the vertical axis may show: the frame, and what it shows now.
XRange BoundsOfY(const Page& page) {
  const AxisLimits& now = MainPanel(page).limits;
  return {std::min(page.homeY.xmin, now.ymin), std::max(page.homeY.xmax, now.ymax)};
}

/// The ends with as many digits as the axis prints; those that have not moved, or cannot go on, stay as they are.
XRange RoundedY(XRange y, const Page& page) {
  const PagePanel& panel = MainPanel(page);
  const XRange bounds = BoundsOfY(page);
  const auto rounded = [&](double value, double before, double bound) {
    for (const double kept : {bound, before})
      if (std::abs(value - kept) <= 1e-9 * std::abs(kept)) return kept;
    if (panel.logY) return std::clamp(WithDigits(value, 2), bounds.xmin, bounds.xmax);
    const double unit = std::pow(10.0, std::floor(std::log10(y.xmax - y.xmin)) - (digitsOfY - 1));
    return std::clamp(std::round(value / unit) * unit, bounds.xmin, bounds.xmax);
  };
  return {rounded(y.xmin, panel.limits.ymin, bounds.xmin), rounded(y.xmax, panel.limits.ymax, bounds.xmax)};
}

}  // namespace

PageView ViewOf(const Page& page) {
  if (page.panels.empty()) return {};
  const AxisLimits& limits = MainPanel(page).limits;
  PageView view{{limits.xmin, limits.xmax}};
  if (page.zoomedY) view.y = {limits.ymin, limits.ymax};
  return view;
}

PageView HomeOf(const Page& page) {
  return {page.home};
}

bool IsZoomed(const Page& page) {
  return HasXAxis(page) && ViewOf(page) != HomeOf(page);
}

std::optional<PageView> KeptView(const Page& before, const Page& after) {
  const PageKind &a = before.kind, &b = after.kind;
  const bool sameAxis = a.graph.axis == b.graph.axis && a.graph.family == b.graph.family && a.fourier == b.fourier;
  if (!IsZoomed(before) || !HasXAxis(after) || !sameAxis || before.home != after.home) return std::nullopt;
  PageView view = ViewOf(before);
  if (before.homeY != after.homeY || a.logY != b.logY) view.y.reset();
  return view;
}

XRange ZoomYAt(const Page& page, double surfaceY, double factor) {
  if (!HasXAxis(page)) return {};
  const PagePanel& panel = MainPanel(page);
  const XRange now{panel.limits.ymin, panel.limits.ymax};
  const PanelMap map{panel.box, panel.limits, page.kind.logX, panel.logY};
  const double at = map.YAt(std::clamp(surfaceY, panel.box.top, panel.box.bottom));
  const XRange zoomed = RoundedY(ZoomedRange(now, factor, at, BoundsOfY(page), panel.logY), page);
  return factor > 1 || IsWideEnough(page, zoomed) ? zoomed : now;
}

XRange PanYBy(const Page& page, double surfaceUnits) {
  if (!HasXAxis(page)) return {};
  const PagePanel& panel = MainPanel(page);
  const XRange now{panel.limits.ymin, panel.limits.ymax};
  return PannedRange(now, surfaceUnits / panel.box.Height(), BoundsOfY(page), panel.logY);
}

int PointsInView(const Page& page) {
  std::size_t most = 0;
  for (const auto& curve : page.curves) {
    if (curve.panel != 0) continue;
    const RowSpan rows = RowsWithin(curve.x, RangeShown(page));
    std::size_t count = 0;
    for (std::size_t i = rows.first; i <= rows.last && i < curve.y.size(); ++i) count += std::isfinite(curve.y[i]);
    most = std::max(most, count);
  }
  return static_cast<int>(most);
}

bool HasXAxis(const Page& page) {
  return !page.panels.empty() && !page.kind.polar;
}

XRange RoundedRange(XRange range) {
  const double width = range.xmax - range.xmin;
  if (!(width > 0) || !std::isfinite(width)) return range;
  const int decimals = std::clamp(digitsOfRange - 1 - static_cast<int>(std::floor(std::log10(width))), 0, 12);
  const XRange rounded{RoundTo(range.xmin, decimals), RoundTo(range.xmax, decimals)};
  // A decade far below the width would round to 0, where a logarithm has no place.
  return {rounded.xmin == 0 ? range.xmin : rounded.xmin, rounded.xmax};
}

Page WithView(Page page, const PageView& view, const Look& look) {
  if (!HasXAxis(page)) return page;
  page.zoomedY = view.y && (view.x != page.home || *view.y != page.homeY);
  for (std::size_t i = 0; i < page.panels.size(); ++i) {
    PagePanel& panel = page.panels[i];
    panel.limits.xmin = view.x.xmin;
    panel.limits.xmax = view.x.xmax;
    if (page.zoomedY && !panel.second) {
      panel.limits.ymin = view.y->xmin;
      panel.limits.ymax = view.y->xmax;
    }
    if (page.map && !page.zoomedY) panel.limits.ymin = page.homeY.xmin, panel.limits.ymax = page.homeY.xmax;
    panel.limits = RepairedLimits(panel.limits, page.kind.logX, panel.logY);
    if (!page.zoomedY && !panel.second) ChooseLimitsInView(page, i, look);
  }
  ColourBars(page, look.colours);
  return page;
}

bool HasDataOver(const Page& page, XRange range) {
  for (const auto& curve : page.curves) {
    if (curve.data != 0) continue;
    const auto extent = ExtentOf(curve);
    if (!extent) continue;
    // The last step of an axis may end short of it.
    const double slack = std::max(1e-3 * (range.xmax - range.xmin), extent->spacing);
    if (extent->first <= range.xmin + slack && extent->last >= range.xmax - slack) return true;
  }
  return false;
}

}  // namespace lumivex
