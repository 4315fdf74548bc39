#include "pages/curves/curve_legends.h"

#include <algorithm>
#include <optional>
#include <string>

#include "pages/curves/curve_names.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/frame_paint.h"

namespace lumivex {

namespace {

constexpr double fontSize = 8, fromStart = 90;

/// Where a curve comes into its panel.
std::optional<SurfacePoint> StartOf(const Page& page, const PageCurve& curve) {
  const auto runs = CurveRuns(page, page.panels[curve.panel], curve);
  const auto first = std::ranges::find_if(runs, [](const auto& run) { return !run.empty(); });
  if (first == runs.end()) return std::nullopt;
  return first->front();
}

/// Top of a name beside a start: just above it, further up where that place is taken, otherwise below.
double TopOf(const TickLabels& labels, const GraphBox& box, SurfacePoint start, double width, double height) {
  const double highest = box.top, lowest = box.bottom - height;
  const double wanted = std::clamp(start.y - 1.2 * height, highest, lowest);
  const double step = height / 2;
  for (double top = wanted; top >= highest; top -= step)
    if (labels.HasRoom(start.x + fromStart, top, width, height)) return top;
  for (double top = wanted; top <= lowest; top += step)
    if (labels.HasRoom(start.x + fromStart, top, width, height)) return top;
  return wanted;
}

}  // namespace

void PaintLegends(DrawingSurface& surface, const Page& page) {
  if (!page.style.legends) return;
  const SurfacePen pen = surface;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = fontSize;
  surface.FontBold = false;
  const double height = surface.TextHeight("X");
  const CurveNames names(page);
  TickLabels labels(surface);
  for (const PageCurve& curve : page.curves) {
    if (curve.panel >= page.panels.size()) continue;
    const auto start = StartOf(page, curve);
    if (!start) continue;
    const std::string name = names.InKey(curve);
    const double width = surface.TextWidth(name);
    const double top = TopOf(labels, page.panels[curve.panel].box, *start, width, height);
    labels.Take(start->x + fromStart, top, width, height);
    surface.ForeColour = curve.colour;
    surface.CurrentX = start->x + fromStart;
    surface.CurrentY = top;
    surface.Print(name, false);
  }
  static_cast<SurfacePen&>(surface) = pen;
}

}  // namespace lumivex
