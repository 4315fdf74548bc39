#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "axes/panel_map.h"
#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// The texts along an axis: a text that would touch one placed before it is left out.
class TickLabels {
 public:
  /// @param taken  places taken already.
  explicit TickLabels(DrawingSurface& surface, std::vector<GraphBox> taken = {})
      : surface_(&surface), taken_(std::move(taken)) {}

  /// Whether a text of that size has room with its top left corner at the place.
  bool HasRoom(double x, double y, double width, double height) const;
  /// Prints the text where there is room, and remembers the place. @return whether there was room.
  bool Print(std::string_view text, double x, double y);
  /// Top of the highest text from left to right, or `otherwise` where there is none.
  double HighestTop(double left, double right, double otherwise) const;
  /// Remembers a place taken by other means.
  void Take(double x, double y, double width, double height);
  const std::vector<GraphBox>& Taken() const { return taken_; }

 private:
  DrawingSurface* surface_;
  std::vector<GraphBox> taken_;
};

/// The surface as every frame starts on it: solid thin pen, the letters of the numbers.
void PrepareSurface(DrawingSurface& surface, const PageStyle& style);

/// Everything that the painters of one frame share.
struct FramePaint {
  FramePaint(const Page& thePage, const PagePanel& thePanel, DrawingSurface& theSurface);

  const Page& page;
  const PageKind& kind;
  const PageStyle& style;
  const PagePanel& panel;
  DrawingSurface& surface;
  PanelMap map;
  TickLabels labels;

  const GraphBox& Box() const { return map.box; }
  /// A line in a colour.
  void Rule(double x1, double y1, double x2, double y2, Colour colour) const;
  /// Full-height and full-width lines; at the ends of the axis they are black.
  void VerticalLine(double x, Colour colour) const;
  void HorizontalLine(double y, Colour colour) const;
  /// Black ticks outward from the bottom and the left side.
  void TickBelow(double x, double length) const;
  void TickLeft(double y, double length) const;
  /// Text centred under the axis at x; the two ends of a wide text stay on the surface.
  bool LabelBelow(std::string_view text, double x, double y);
  /// Text that ends left of the axis, beside y; a text that is too wide for the margin is set smaller.
  bool LabelLeft(std::string_view text, double y);
};

/// Ticks, grid lines and numbers of the horizontal axis.
void PaintXAxis(FramePaint& paint);
/// Ticks, grid lines and numbers of the vertical axis.
void PaintYAxis(FramePaint& paint);
/// Titles of both axes.
void PaintAxisTitles(FramePaint& paint);
/// Lower edge of the title of the horizontal axis, where the page goes on below it.
double BottomOfXTitle(DrawingSurface& surface, const Page& page);

}  // namespace lumivex
