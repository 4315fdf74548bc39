#include "graphs/redraw.h"

#include <algorithm>
#include <cmath>

#include "graphs/curve_legend.h"
#include "graphs/curve_path.h"
#include "graphs/frame.h"
#include "graphs/scale.h"
#include "graphs/two_panels.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

GraphBox BoxOf(const AxisState& axis, const KeptPanel& panel) {
  switch (panel.place) {
    case PanelPlace::Whole:
      return WholeBox(axis);
    case PanelPlace::Upper:
      return UpperPanel(axis);
    case PanelPlace::Lower:
      return LowerPanel(axis);
    case PanelPlace::Fixed:
      break;
  }
  return panel.box;
}

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

bool HasData(const KeptGraph& graph, XRange range) {
  const double slack = 1e-3 * (range.xmax - range.xmin);
  for (const auto& curve : graph.curves) {
    double first = std::nan(""), last = std::nan("");
    for (std::size_t i = 1; i < std::min(curve.x.size(), curve.y.size()); ++i) {
      if (!std::isfinite(curve.x[i]) || !std::isfinite(curve.y[i])) continue;
      if (std::isnan(first)) first = curve.x[i];
      last = curve.x[i];
    }
    if (first <= range.xmin + slack && last >= range.xmax - slack) return true;
  }
  return false;
}

}  // namespace

void RedrawGraph(Session& session) {
  auto& s = session.state;
  auto& surface = *session.surface;
  surface.BackColour = session.form1.mnuWhite.Checked ? colours::White : colours::ButtonFace;
  surface.Cls();
  KeptGraph& graph = s.Drawn;
  for (std::size_t i = 0; i < graph.panels.size(); ++i) {
    KeptPanel& panel = graph.panels[i];
    panel.box = BoxOf(s, panel);
    PaintFrame(session, graph.kind, panel);
    for (const auto& curve : graph.curves)
      if (curve.panel == i) DrawCurve(session, panel, curve);
    if (!graph.kind.polar) PaintBoxSides(surface, graph.kind, panel.box);
    if (panel.second && graph.kind.intPol) PaintMiddleLine(surface, panel.box);
  }
  PaintLegend(session);
  surface.ForeColour = colours::Black;
}

XRange RoundedRange(XRange range) {
  const double width = range.xmax - range.xmin;
  if (!(width > 0) || !std::isfinite(width)) return range;
  const int decimals = std::clamp(digitsOfRange - 1 - static_cast<int>(std::floor(std::log10(width))), 0, 12);
  return {RoundTo(range.xmin, decimals), RoundTo(range.xmax, decimals)};
}

bool ShowXRange(Session& session, XRange range) {
  auto& s = session.state;
  if (s.Drawn.panels.empty() || s.Drawn.kind.polar) return true;
  const XRange shown = RoundedRange(range);
  session.form1.txtXmin.Text = Shortest(shown.xmin);
  session.form1.txtXmax.Text = Shortest(shown.xmax);
  s.Xmin = shown.xmin;
  s.Xmax = shown.xmax;
  for (std::size_t i = 0; i < s.Drawn.panels.size(); ++i) {
    KeptPanel& panel = s.Drawn.panels[i];
    panel.limits.xmin = shown.xmin;
    panel.limits.xmax = shown.xmax;
    panel.limits = RepairedLimits(panel.limits, s.Drawn.kind.logX, panel.logY);
    if (!panel.second) ChooseLimitsInView(session, panel, i);
  }
  RedrawGraph(session);
  return HasData(s.Drawn, shown);
}

}  // namespace lumivex
