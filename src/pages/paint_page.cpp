#include <algorithm>
#include <cmath>

#include "pages/bars/bar_place.h"
#include "pages/build_page.h"
#include "pages/compare/below_panel.h"
#include "pages/compare/paint_points.h"
#include "pages/curves/curve_key.h"
#include "pages/curves/curve_legends.h"
#include "pages/curves/curve_path.h"
#include "pages/frame/frame.h"
#include "pages/frame/polar_plot.h"
#include "pages/items/drop_drawing.h"
#include "pages/items/huygens_drawing.h"
#include "pages/items/phasor_diagram.h"
#include "pages/items/profile_graph.h"
#include "pages/items/pulse_graph.h"
#include "pages/items/readings.h"
#include "pages/items/size_histogram.h"
#include "pages/items/two_angle_chart.h"
#include "pages/maps/paint_lee.h"
#include "pages/photograph/photograph_page.h"

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
  if (panel.below != BelowGraph::Nothing)
    PaintBelowNotes(surface, page, panel);
  else if (panel.second && page.kind.second == SecondPanel::Polarisation)
    PaintMiddleLine(surface, panel.box);
}

/// Lines of text in columns over the room of the graph.
void PaintSheet(DrawingSurface& surface, const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  // Below the panel of the inputs, which covers what is above.
  constexpr double left = 1000, top = 3400, between = 400;
  const double height = 1.1 * surface.TextHeight("X");
  const auto rows = static_cast<std::size_t>(std::max(1.0, std::floor((surface.ScaleHeight() - top) / height)));
  double x = left, width = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0 && i % rows == 0) x += width + between, width = 0;
    width = std::max(width, surface.TextWidth(lines[i]));
    surface.CurrentX = x;
    surface.CurrentY = top + height * static_cast<double>(i % rows);
    surface.Print(lines[i], false);
  }
}

/// The title of the last run and the label of its method over the graph.
void PrintTitle(DrawingSurface& surface, const Page& page) {
  if (page.runs.empty()) return;
  constexpr double titleTop = 520, titleTopOfMap = 660, titleSize = 10, labelSize = 8, smallestSize = 6, between = 200;
  const GraphBox box = page.map ? GraphBox{page.geometry.box.left, BoxOf(page, PanelPlace::Middle).right,
                                           page.geometry.box.top, page.geometry.box.bottom}
                                : page.geometry.box;
  const PageRun& run = page.runs.back();
  const double top = box.top - (page.map ? titleTopOfMap : titleTop);
  surface.ForeColour = colours::Black;
  surface.FontSize = labelSize;
  const double labelWidth = surface.TextWidth(run.methodLabel);
  surface.FontSize = titleSize;
  surface.FontBold = true;
  // Both in one line, over a small graph as far as the surface goes.
  const double end = page.map ? box.right : surface.ScaleWidth();
  const double room = end - box.left - labelWidth - 2 * between;
  while (surface.TextWidth(run.title) > room && surface.FontSize > smallestSize) surface.FontSize -= 0.5;
  surface.CurrentX = box.left;
  surface.CurrentY = top + 80;
  surface.Print(run.title, false);
  const double endOfTitle = box.left + surface.TextWidth(run.title) + between;
  surface.FontSize = labelSize;
  surface.FontBold = false;
  surface.ForeColour = RGB(96, 96, 96);
  surface.CurrentX = std::max(box.right - labelWidth, endOfTitle);
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
  if (readings) PaintReadings(surface, page);
  const bool powers = page.kind.graph.quantity == Quantity::Irradiance;
  if (page.histogram) PaintHistogram(surface, *page.histogram, {readings, powers}, false);
  PaintHuygens(surface, page.wavefronts);
}

}  // namespace

void Paint(const Page& page, DrawingSurface& surface) {
  if (page.photograph) return PaintPhotograph(page, surface);
  surface.BackColour = page.style.paper;
  surface.Cls();
  PaintGroundOfStrip(surface, page.style);
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
  TickLabels polarLabels(surface);
  if (page.map)
    PaintLee(surface, page);
  else
    for (std::size_t i = 0; i < page.panels.size(); ++i) PaintPanel(surface, page, i, polarLabels);
  if (page.profile) PaintProfile(surface, *page.profile);
  if (page.drop) PaintDrop(surface, *page.drop);
  if (page.pulse) PaintPulse(surface, *page.pulse);
  PaintSheet(surface, page.sheet);
  if (page.phasors) PaintPhasors(surface, *page.phasors, page.style.ground);
  PaintTwoAngleNotes(surface, page);
  PaintBars(surface, page);
  PaintLegends(surface, page);
  PaintMarkers(surface, page);
  PaintKey(surface, page, polarLabels);
  PrintTitle(surface, page);
  PaintStrip(surface, page);
  surface.ForeColour = colours::Black;
}

}  // namespace lumivex
