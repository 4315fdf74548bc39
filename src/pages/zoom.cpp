#include "pages/zoom.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "pages/curve_path.h"
#include "pages/scale.h"

namespace lumivex {

namespace {

/// A zoom is resolved to a thousandth of what is shown.
constexpr int digitsOfRange = 4;

/// Automatic limits for the part of the curves in view.
void ChooseLimitsInView(Session& session, KeptPanel& panel, std::size_t index) {
  auto& s = session.state;
  double top = 0, bottom = 1e30;
  for (const auto& curve : s.Drawn.curves) {
    if (curve.panel != index) continue;
    const RowSpan rows = RowsWithin(curve.x, {panel.limits.xmin, panel.limits.xmax});
    for (std::size_t i = rows.first; i <= rows.last; ++i) {
      if (!std::isfinite(curve.y[i])) continue;
      top = AMAX(top, curve.y[i]);
      bottom = AMIN(bottom, curve.y[i]);
    }
  }
  if (!(top > 0)) return;
  const int mode = s.PlotMode;
  s.PlotMode = 1;
  s.YAutoMax = top;
  s.YAutoMin = bottom;
  GridYmax(session, top, s.Ymax);
  GridYmin(session, bottom, s.Ymin);
  s.PlotMode = mode;
  AxisLimits limits = panel.limits;
  limits.ymin = s.Ymin;
  limits.ymax = s.Ymax;
  panel.limits = RepairedLimits(limits, s.Drawn.kind.logX, panel.logY);
}

/// Where the computed rows of a curve begin and end, and the distance of the last two.
struct Extent {
  double first, last, spacing;
};
std::optional<Extent> ExtentOf(const KeptCurve& curve) {
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

bool HasData(const KeptGraph& graph, XRange range) {
  for (const auto& curve : graph.curves) {
    const auto extent = ExtentOf(curve);
    if (!extent) continue;
    // The last step of an axis may end short of it.
    const double slack = std::max(1e-3 * (range.xmax - range.xmin), extent->spacing);
    if (extent->first <= range.xmin + slack && extent->last >= range.xmax - slack) return true;
  }
  return false;
}

}  // namespace

bool HasXAxis(const Session& session) {
  const KeptGraph& graph = session.state.Drawn;
  return !graph.panels.empty() && !graph.kind.polar;
}

XRange RoundedRange(XRange range) {
  const double width = range.xmax - range.xmin;
  if (!(width > 0) || !std::isfinite(width)) return range;
  const int decimals = std::clamp(digitsOfRange - 1 - static_cast<int>(std::floor(std::log10(width))), 0, 12);
  const XRange rounded{RoundTo(range.xmin, decimals), RoundTo(range.xmax, decimals)};
  // A decade far below the width would round to 0, where a logarithm has no place.
  return {rounded.xmin == 0 ? range.xmin : rounded.xmin, rounded.xmax};
}

bool SetXRange(Session& session, XRange range) {
  auto& s = session.state;
  if (!HasXAxis(session)) return true;
  s.Xmin = range.xmin;
  s.Xmax = range.xmax;
  for (std::size_t i = 0; i < s.Drawn.panels.size(); ++i) {
    KeptPanel& panel = s.Drawn.panels[i];
    panel.limits.xmin = range.xmin;
    panel.limits.xmax = range.xmax;
    panel.limits = RepairedLimits(panel.limits, s.Drawn.kind.logX, panel.logY);
    if (!panel.second) ChooseLimitsInView(session, panel, i);
  }
  return HasData(s.Drawn, range);
}

}  // namespace lumivex
