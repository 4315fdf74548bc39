#pragma once

#include <string>

#include "pages/compare/scale_fit.h"
#include "pages/frame/frame_paint.h"

namespace lumivex {

/// The panel below a graph, which shares its horizontal axis: differences or ratios of curves, and measured data less,
/// or over, the curve that they are held against. It is made anew for every view: its scale goes by what is seen.
class BelowPanel {
 public:
  /// @param page  to which the panel is added by Finish; its curves stay where they are until then.
  BelowPanel(Page& page, BelowGraph how) : page_(page), how_(how) {}

  void AddPair(const PageCurve& first, const PageCurve& second);
  /// @param note  how they fit.
  void AddData(const PageCurve& points, const PageCurve& reference, const ScaleFit& fit, const std::string& note);
  /// Adds the panel, where there is something to show in it.
  void Finish();

 private:
  void Add(PageCurve curve, const std::string& note);

  Page& page_;
  BelowGraph how_;
  std::vector<PageCurve> curves_;
  std::vector<PageNote> notes_;
};

/// Numbers and grid lines of its vertical axis, on a linear scale.
void PaintBelowScale(FramePaint& paint);

/// The line of curves that agree: 0 of a difference, 1 of a ratio.
void PaintBelowMiddle(FramePaint& paint);

/// "Difference" or "Ratio" over its vertical axis.
void PaintBelowTitle(FramePaint& paint);

/// Between the graph and its panel: the numbers of the graph's axis, and a line for what each curve compares.
double RoomForNotes(const Page& page);

/// What it compares in words over it, in the colours of its curves.
void PaintBelowNotes(DrawingSurface& surface, const Page& page, const PagePanel& panel);

}  // namespace lumivex
