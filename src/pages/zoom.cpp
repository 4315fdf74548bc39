#include "pages/zoom.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "pages/curves/curve_path.h"
#include "pages/frame/scale.h"

namespace lumivex {

namespace {

/// A zoom is resolved to a thousandth of what is shown.
constexpr int digitsOfRange = 4;

/// Limits for the part of the curves in view.
void ChooseLimitsInView(Page& page, std::size_t index, const Look& look) {
  PagePanel& panel = page.panels[index];
  double top = 0, bottom = 1e30;
  for (const auto& curve : page.curves) {
    if (curve.panel != index) continue;
    const RowSpan rows = RowsWithin(curve.x, {panel.limits.xmin, panel.limits.xmax});
    for (std::size_t i = rows.first; i <= rows.last; ++i) {
      if (!std::isfinite(curve.y[i])) continue;
      top = AMAX(top, curve.y[i]);
      bottom = AMIN(bottom, curve.y[i]);
    }
  }
  if (!(top > 0)) return;
  ScaleLook scale = look.scale;
  scale.logY = page.kind.logY;
  scale.polar = page.kind.polar;
  page.autoTop = top;
  page.autoBottom = bottom;
  panel.limits.ymax = GridYmax(scale, top, page.scale);
  panel.limits.ymin = GridYmin(scale, bottom, panel.limits.ymax, page.scale);
  panel.limits = RepairedLimits(panel.limits, page.kind.logX, panel.logY);
}

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

}  // namespace

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

Page SetXRange(Page page, XRange range, const Look& look) {
  if (!HasXAxis(page)) return page;
  for (std::size_t i = 0; i < page.panels.size(); ++i) {
    PagePanel& panel = page.panels[i];
    panel.limits.xmin = range.xmin;
    panel.limits.xmax = range.xmax;
    panel.limits = RepairedLimits(panel.limits, page.kind.logX, panel.logY);
    if (!panel.second) ChooseLimitsInView(page, i, look);
  }
  return page;
}

bool HasDataOver(const Page& page, XRange range) {
  for (const auto& curve : page.curves) {
    const auto extent = ExtentOf(curve);
    if (!extent) continue;
    // The last step of an axis may end short of it.
    const double slack = std::max(1e-3 * (range.xmax - range.xmin), extent->spacing);
    if (extent->first <= range.xmin + slack && extent->last >= range.xmax - slack) return true;
  }
  return false;
}

}  // namespace lumivex
