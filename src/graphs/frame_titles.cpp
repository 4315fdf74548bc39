#include <algorithm>

#include "graphs/frame_paint.h"

namespace lumivex {

namespace {

/// Room that the highest number of the vertical axis takes above the box, its exponent included.
constexpr double roomOfTopLabel = 215;

void Restore(DrawingSurface& surface) {
  surface.FontName = "MS Sans Serif";
  surface.FontSize = 8;
  surface.FontBold = false;
}

/// Where the title of the vertical axis may start: its line ends above the highest number.
double AboveTopLabel(const FramePaint& paint, double wanted) {
  return std::min(wanted, paint.Box().top - roomOfTopLabel - paint.surface.TextHeight("X"));
}

void PrintAt(DrawingSurface& surface, double x, double y, std::string_view text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

void PaintXTitle(FramePaint& paint) {
  auto& surface = paint.surface;
  const auto& box = paint.Box();
  const std::string_view title = XAxisTitle(paint.kind);
  // Larger numbers reach further down.
  const double belowNumbers = 150 + surface.TextHeight("X");
  const double y = box.bottom + std::max(paint.special ? 450.0 : 350.0, belowNumbers);
  PrintAt(surface, 0.5 * (box.left + box.right) - 0.5 * surface.TextWidth(title), y, title);
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
  const double y = AboveTopLabel(paint, paint.Box().top - 480);
  PrintAt(surface, 140, y, "Watts/m");
  surface.FontName = "Small Fonts";
  surface.FontSize = 7;
  PrintAt(surface, std::max(770.0, surface.CurrentX + 10), y - 50, "2");
}

void PaintYTitle(FramePaint& paint) {
  auto& surface = paint.surface;
  const GraphKind& kind = paint.kind;
  const int type = kind.graphType, sub = kind.graphSubType;
  const double top = paint.Box().top;
  const double line = surface.TextHeight("X");
  const bool efficiencies = type == 14 || type == 15;
  const bool intensities = (type == 1 && sub == 1) || (type == 10 && sub == 1) || type == 11 || type == 12;
  if (efficiencies && (sub == 2 || sub == 4)) {
    PrintAt(surface, 50, AboveTopLabel(paint, top - 500), "Area (sq m)");
  } else if (efficiencies && sub >= 7 && sub <= 9) {
    PaintBackscatterTitle(paint, "Qback");
  } else if (efficiencies && sub >= 10 && sub <= 12) {
    PaintBackscatterTitle(paint, "Qradar");
  } else if (type == 16) {
    const double second = AboveTopLabel(paint, top - 400);
    PrintAt(surface, 50, std::min(top - 600, second - line), "Asymmetry");
    PrintAt(surface, 50, second, "Parameter");
  } else if (type == 17) {
    PrintAt(surface, 50, AboveTopLabel(paint, top - 600), "Albedo");
  } else if (type == 18) {
    PrintAt(surface, 50, AboveTopLabel(paint, top - 600), "Power (W)");
  } else if (paint.second) {
    const double y = std::min(top - 350, top - 0.5 * line - line);
    PrintAt(surface, 50, y, kind.ampPhase ? "Phase angle" : "Degree of linear polarisation");
  } else if (intensities) {
    // One blank line below the place of the title.
    PrintAt(surface, 50, AboveTopLabel(paint, top - 600 + line), kind.amplitude ? " Amplitude" : " Intensity");
  } else if (type == 1 && sub == 3) {
    PaintWattsTitle(paint);
  }
}

}  // namespace

void PaintAxisTitles(FramePaint& paint) {
  // The upper of two panels shares the title of the horizontal axis with the lower one.
  if (paint.place != PanelPlace::Upper) PaintXTitle(paint);
  Restore(paint.surface);
  if (paint.kind.numberWavelengths <= 1) PaintYTitle(paint);
  Restore(paint.surface);
}

}  // namespace lumivex
