#include "pages/curves/curve_limits.h"

#include <algorithm>
#include <cmath>

#include "axes/scale_rules.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/scale.h"

namespace lumivex {

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
  if (top > 0) ChooseLimitsFor(page, index, {bottom, top}, look);
}

void ChooseLimitsFor(Page& page, std::size_t index, XRange values, const Look& look) {
  PagePanel& panel = page.panels[index];
  const auto [bottom, top] = values;
  ScaleLook scale = look.scale;
  scale.logY = page.kind.logY;
  scale.polar = page.kind.polar;
  page.autoTop = top;
  page.autoBottom = bottom;
  panel.limits.ymax = GridYmax(scale, top, page.scale);
  panel.limits.ymin = GridYmin(scale, bottom, panel.limits.ymax, page.scale);
  FitFlatAlbedo(page.kind, scale, bottom, top, panel.limits);
  panel.limits = RepairedLimits(panel.limits, page.kind.logX, panel.logY);
}

void FitOverplot(Page& page, const Look& look) {
  const bool typed = look.scale.ymin || look.scale.ymax;
  const Quantity quantity = page.kind.graph.quantity;
  const bool fits = quantity == Quantity::Albedo || quantity == Quantity::BowAngle;
  if (!fits || typed || page.kind.polar || page.zoomedY) return;
  if (page.panels.empty()) return;
  const AxisLimits& limits = page.panels.front().limits;
  const auto leaves = [&](const PageCurve& curve) {
    return std::ranges::any_of(curve.y, [&](double y) { return y < limits.ymin || y > limits.ymax; });
  };
  if (std::ranges::none_of(page.curves, leaves)) return;
  ChooseLimitsInView(page, 0, look);
  if (limits.xmin == page.home.xmin && limits.xmax == page.home.xmax) page.homeY = {limits.ymin, limits.ymax};
}

}  // namespace lumivex
