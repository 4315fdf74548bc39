#pragma once

#include <span>

#include "axes/curve_smoothing.h"
#include "pages/look.h"
#include "runs/curves.h"

namespace lumivex {

/// A run on its way onto a page.
struct RunToDraw {
  const Results& results;
  const Look& look;

  CurveLook Curves() const { return {look.amplitude, look.invWavelength}; }
};

/// What a page of those results shows.
PageKind KindOf(const RunToDraw& run);

/// Puts a graph against angle, size, wavelength or index on a page. A page without panels gets a frame first, with the
/// limits of the look or such as suit the curves; otherwise the curves join those on it, on its limits.
///
/// The curves that are wanted come in the order parallel, unpolarised, perpendicular. A second panel stands below: the
/// phases of both amplitudes from 0 to 360 degrees, or the degree of linear polarisation from -1 to 1. Of the
/// scattering matrix, S11 stands above and S12, S33 and S34 over S11 below, each in a colour of its own. A polar plot
/// has one panel.
void Display(Page& page, const RunToDraw& run, const Curves& curves);

/// Which curve of a run.
struct CurvePlace {
  std::size_t panel = 0;
  int kind = 1;  ///< 1 perpendicular, 2 parallel, 3 unpolarised
};

/// A curve for the page: values folded with the disc of the sun where it shines, with the pen of the look.
/// @param x, y  first index 1.
PageCurve Plot(const Page& page, const RunToDraw& run, std::span<const double> x, std::span<const double> y,
               CurvePlace place, Colour colour);

/// The frame of a fresh page, with limits for the two curves that its scale is chosen for.
void DrawFrame(Page& page, const RunToDraw& run, PanelPlace place, std::span<const double> x,
               std::span<const double> first, std::span<const double> second);

/// The curves that the look wants, in the order in which they are drawn.
std::vector<int> KindsWanted(const Look& look);

/// Name of a curve as the legend, the read-out and the tables have it.
std::string CurveName(const PageKind& kind, int curveKind, bool secondPanel);

/// The disc of the sun for the angular steps of a run.
DiscWeights SunCorrection(const RunToDraw& run);

/// A curve as a source of the sun's width shows it; as it is for a point.
std::vector<double> SeenUnderSun(const RunToDraw& run, std::span<const double> y);

}  // namespace lumivex
