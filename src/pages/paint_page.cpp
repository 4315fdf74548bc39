#include "pages/build_page.h"
#include "pages/curves/curve_legend.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/frame.h"
#include "pages/frame/polar_plot.h"
#include "pages/items/huygens_drawing.h"
#include "pages/items/phasor_diagram.h"
#include "pages/items/readings.h"
#include "pages/items/size_histogram.h"
#include "pages/items/two_angle_chart.h"

namespace lumivex {

namespace {

/// The line in the middle of the panel of the degree of polarisation.
void PaintMiddleLine(DrawingSurface& surface, const GraphBox& box) {
  const double middle = 0.5 * (box.top + box.bottom);
  surface.ForeColour = colours::Black;
  surface.Line(box.left, middle, box.right, middle);
}

void PaintPanel(DrawingSurface& surface, const Page& page, std::size_t index, TickLabels& polarLabels) {
  const PagePanel& panel = page.panels[index];
  PaintFrame(surface, page, panel, polarLabels);
  for (const PageCurve& curve : page.curves) {
    if (curve.panel != index) continue;
    PaintCurve(surface, page, curve);
    if (page.kind.polar) PaintPolarTicks(surface, page, curve, polarLabels);
  }
  if (!page.kind.polar) PaintBoxSides(surface, page.kind, panel.box);
  if (panel.second && page.kind.second == SecondPanel::Polarisation) PaintMiddleLine(surface, panel.box);
}

/// The title of the last run and the label of its method over the graph.
void PrintTitle(DrawingSurface& surface, const Page& page) {
  if (page.runs.empty()) return;
  constexpr double titleTop = 520, titleSize = 10;  // above the graph box
  const GraphBox& box = page.geometry.box;
  const PageRun& run = page.runs.back();
  const double top = box.top - titleTop;
  surface.ForeColour = colours::Black;
  surface.FontSize = titleSize;
  surface.FontBold = true;
  surface.CurrentX = box.left;
  surface.CurrentY = top + 80;
  surface.Print(run.title, false);
  surface.FontSize = 8;
  surface.FontBold = false;
  surface.ForeColour = RGB(96, 96, 96);
  surface.CurrentX = box.right - surface.TextWidth(run.methodLabel);
  surface.CurrentY = top + 120;
  surface.Print(run.methodLabel);
}

/// On white paper the strip behind the inputs and the readings keeps the colour of the window.
void PaintGroundOfStrip(DrawingSurface& surface, const PageStyle& style) {
  if (style.paper != colours::White) return;
  surface.ForeColour = colours::ButtonFace;
  surface.Line(0, 0, 15750, 2800, LineKind::FilledBox);
}

/// What stands in the strip over the graph.
void PaintStrip(DrawingSurface& surface, const Page& page) {
  const bool readings = page.style.readingsVisible && !page.readings.empty();
  if (readings) PaintReadings(surface, page.readings);
  const bool powers = page.kind.graph.quantity == Quantity::Irradiance;
  if (page.histogram) PaintHistogram(surface, *page.histogram, {readings, powers}, false);
  PaintHuygens(surface, page.wavefronts);
}

}  // namespace

void Paint(const Page& page, DrawingSurface& surface) {
  surface.BackColour = page.style.paper;
  surface.Cls();
  PaintGroundOfStrip(surface, page.style);
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  TickLabels polarLabels(surface);
  for (std::size_t i = 0; i < page.panels.size(); ++i) PaintPanel(surface, page, i, polarLabels);
  if (page.phasors) PaintPhasors(surface, *page.phasors, page.style.ground);
  PaintTwoAngleNotes(surface, page);
  PaintPanelLegend(surface, page);
  PaintLegend(surface, page, polarLabels);
  PrintTitle(surface, page);
  PaintStrip(surface, page);
  surface.ForeColour = colours::Black;
}

}  // namespace lumivex
