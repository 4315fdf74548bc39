#include <algorithm>

#include "pages/compare/below_panel.h"
#include "pages/frame/frame_paint.h"
#include "record/catalogue/graph_texts.h"

namespace lumivex {

namespace {

/// Air between the title of the vertical axis and its highest number.
constexpr double aboveNumbers = 15;

constexpr double smallestFont = 6;

void Restore(DrawingSurface& surface) {
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
}

void PrintAt(DrawingSurface& surface, double x, double y, std::string_view text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

/// Title of the vertical axis at x 50, its line above the highest number; the title of the run stands to the right.
/// @param y  where it starts if there is room.
/// @param widest  a text of which every line of the title takes the size.
void PrintAbove(FramePaint& paint, double y, std::string_view title, std::string_view widest) {
  if (title.empty()) return;
  auto& surface = paint.surface;
  const double fontSize = surface.FontSize;
  const double margin = paint.Box().left - 70;
  while (50 + surface.TextWidth(widest) > margin && surface.FontSize > smallestFont) surface.FontSize -= 0.5;
  const double highest = paint.labels.HighestTop(0, paint.Box().left, paint.Box().top);
  const double height = surface.TextHeight(title);
  const double top = std::min(y, highest - aboveNumbers - height);
  PrintAt(surface, 50, top, title);
  paint.labels.Take(50, top, surface.TextWidth(title), height);
  surface.FontSize = fontSize;
}

void PrintAbove(FramePaint& paint, double y, std::string_view title) {
  PrintAbove(paint, y, title, title);
}

/// Top of the title of the horizontal axis, in the letters that the surface has now.
double TopOfXTitle(const DrawingSurface& surface, const PageStyle& style, const GraphBox& box) {
  // Larger numbers reach further down.
  const double height = surface.TextHeight("X");
  const double belowNumbers = std::max(150.0, 0.5 * height + 4) + height;
  return box.bottom + std::max(style.special ? 450.0 : 350.0, belowNumbers);
}

void PaintXTitle(FramePaint& paint) {
  auto& surface = paint.surface;
  const auto& box = paint.Box();
  const PageKind& kind = paint.kind;
  const std::string_view title = kind.IsTwoAngle() || !kind.xTitle.empty()
                                     ? kind.xTitle
                                     : XTitleOf(kind.graph, {kind.fourier, kind.invWavelength});
  PrintAt(surface, 0.5 * (box.left + box.right) - 0.5 * surface.TextWidth(title),
          TopOfXTitle(surface, paint.style, box), title);
}

void PaintBackscatterTitle(FramePaint& paint, std::string_view title) {
  auto& surface = paint.surface;
  surface.FontBold = true;
  const double y = 0.5 * (paint.Box().top + paint.Box().bottom);
  const double width = surface.TextWidth(title), height = surface.TextHeight(title);
  // A number may stand at half height: the title keeps above it.
  for (const double shift : {0.0, -1.5 * height, 1.5 * height, -3 * height, 3 * height}) {
    if (!paint.labels.HasRoom(30, y + shift, width, height)) continue;
    PrintAt(surface, 30, y + shift, title);
    return;
  }
}

void PaintWattsTitle(FramePaint& paint) {
  auto& surface = paint.surface;
  const double highest = paint.labels.HighestTop(0, paint.Box().left, paint.Box().top);
  const double y = std::min(paint.Box().top - 480, highest - aboveNumbers - surface.TextHeight("X"));
  PrintAt(surface, 140, y, "Watts/m");
  surface.FontName = "Small Fonts";
  surface.FontSize = 7;
  PrintAt(surface, std::max(770.0, surface.CurrentX + 10), y - 50, "2");
}

/// A chart of two signals has the unit on a line of its own: the margin is narrow.
void PaintTwoAngleTitle(FramePaint& paint, double top, double line) {
  const std::string_view title = paint.kind.yTitle;
  const auto unit = std::min(title.find('('), title.size());
  const std::string_view range = title.substr(0, unit), inUnit = title.substr(unit);
  const std::string_view widest = paint.surface.TextWidth(range) > paint.surface.TextWidth(inUnit) ? range : inUnit;
  PrintAbove(paint, top - 600 + line, inUnit, widest);
  PrintAbove(paint, top - 600, range, widest);
}

/// Where the panel of the inputs ends, which covers what is above.
constexpr double endOfPanel = 2800;

/// Two lines above the axis, the lower one in its place.
void PaintTwoLines(FramePaint& paint, double y, std::string_view upper, std::string_view lower) {
  auto& surface = paint.surface;
  const std::string_view widest = surface.TextWidth(upper) > surface.TextWidth(lower) ? upper : lower;
  // Between the panel and the large numbers of slides there is less room.
  const double highest = paint.labels.HighestTop(0, paint.Box().left, paint.Box().top);
  const double room = highest - aboveNumbers - endOfPanel;
  while (2 * surface.TextHeight("X") > room && surface.FontSize > smallestFont) surface.FontSize -= 0.5;
  PrintAbove(paint, y, lower, widest);
  PrintAbove(paint, y - paint.surface.TextHeight("X"), upper, widest);
}

void PaintSecondTitle(FramePaint& paint) {
  if (paint.kind.IsMatrix()) return;
  const double top = paint.Box().top;
  const double line = paint.surface.TextHeight("X");
  const double y = std::min(top - 350, top - 0.5 * line - line);
  PrintAt(paint.surface, 50, y, SecondTitleOf(paint.kind.second == SecondPanel::Phases));
}

void PaintYTitle(FramePaint& paint) {
  const PageKind& kind = paint.kind;
  const double top = paint.Box().top;
  const double line = paint.surface.TextHeight("X");
  const std::string_view title = YTitleOf(kind.graph, kind.amplitude);
  const std::string_view second = YTitleSecondLineOf(kind.graph, {kind.amplitude, kind.invWavelength, kind.perVolume});
  // A second line stands one line lower, where the title of an intensity has its only one.
  const double y = top - 600 + line;
  if (kind.fourier) return PrintAbove(paint, y, "Magnitude");
  switch (kind.graph.quantity) {
    case Quantity::Irradiance:
      return PaintWattsTitle(paint);
    case Quantity::RangeCrossSections:
      return PaintTwoAngleTitle(paint, top, line);
    case Quantity::Qback:
    case Quantity::Qradar:
      return PaintBackscatterTitle(paint, title);
    case Quantity::Asymmetry:
      PrintAbove(paint, top - 400, "Parameter");
      return PrintAbove(paint, top - 600, title);
    case Quantity::CrossSections:
      if (!second.empty()) return PaintTwoLines(paint, y, title, second);
      return PrintAbove(paint, top - 500, title);
    case Quantity::Albedo:
    case Quantity::Power:
      return PrintAbove(paint, top - 600, title);
    default:
      // One blank line stands in the place of a second one.
      return second.empty() ? PrintAbove(paint, y, title) : PaintTwoLines(paint, y, title, second);
  }
}

/// Sums over a spectrum, and the curves of its wavelengths, are weighed by the light source.
void PaintSpectrumTitle(FramePaint& paint) {
  const double y = paint.Box().top - 600 + paint.surface.TextHeight("X");
  PaintTwoLines(paint, y, "Weighted", paint.kind.amplitude ? "amplitude" : "intensity");
}

}  // namespace

void PaintAxisTitles(FramePaint& paint) {
  // Panels above each other share the title of the horizontal axis.
  const bool overAnother =
      paint.page.panels.back().below != BelowGraph::Nothing && paint.panel.below == BelowGraph::Nothing;
  if (paint.panel.place != PanelPlace::Upper && !overAnother) PaintXTitle(paint);
  Restore(paint.surface);
  if (paint.panel.below != BelowGraph::Nothing) {
    PaintBelowTitle(paint);
  } else if (paint.panel.second) {
    if (paint.kind.wavelengths <= 1) PaintSecondTitle(paint);
  } else if (paint.kind.wavelengths <= 1) {
    PaintYTitle(paint);
  } else {
    PaintSpectrumTitle(paint);
  }
  Restore(paint.surface);
}

double BottomOfXTitle(DrawingSurface& surface, const Page& page) {
  const SurfacePen pen = surface;
  PrepareSurface(surface, page.style);
  const double bottom = TopOfXTitle(surface, page.style, page.panels.back().box) + surface.TextHeight("X");
  static_cast<SurfacePen&>(surface) = pen;
  return bottom;
}

}  // namespace lumivex
