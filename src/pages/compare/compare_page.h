#pragma once

#include <string>
#include <vector>

#include "pages/compare/scale_fit.h"
#include "pages/look.h"
#include "record/comparison.h"

namespace lumivex {

/// A comparison laid over a page: curves that were kept come to it, measured data as points, a panel below the graph
/// with differences or ratios, marks; curves are named, coloured and left out as they are wanted. Key, read-out,
/// tables and pictures follow, as they do from any page. A page that compares already is first made plain, so that it
/// does not matter how often this is done.
///
/// The vertical axis grows round kept curves and data that would leave it, unless its ends are typed or zoomed. Pages
/// without curves over an axis (maps, phasors, charts of two angles) stay as they are; polar plots and transforms take
/// names, colours and kept curves, but neither data nor a panel.
Page WithComparison(Page page, const Comparison& comparison, const Look& look);

/// The page as its runs gave it, in the view that it has now.
Page PlainPage(Page page);

/// Whether curves of the page can be compared at all.
bool TakesComparison(const Page& page);

/// Whether measured data and a panel below have a place on it.
bool TakesData(const Page& page);

/// A curve or measured data as lists show it, hidden ones too.
struct ListedCurve {
  CurveId id;
  std::string name;
  Colour colour;
  bool shown = true;
  bool kept = false;
  /// Of measured data how they fit, with which factor, and the curve that they are held against; empty for a curve.
  std::string words;
  double factor = 1;
  CurveId against = {};
};
/// All curves of the page and all measured data that lie along its axis, in the order of their numbers in scripts.
std::vector<ListedCurve> ListCurves(const Page& page, const Comparison& comparison);

/// What the user has changed of a curve; a fresh one where that is nothing.
CurveChange& ChangeOf(Comparison& comparison, const CurveId& id);

/// What New plot leaves of a comparison on a page of another run: kept curves and measured data, and of names, colours
/// and pairs what belongs to these or has a stand-in on the page.
Comparison AfterNewPlot(const Comparison& comparison, const Page& page);

}  // namespace lumivex
