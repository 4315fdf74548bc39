#pragma once

#include <string>
#include <vector>

#include "axes/panel_map.h"
#include "record/colour.h"

namespace lumivex {

/// What the graph on the screen shows, fixed when its frame was drawn: a later click on an option changes the next
/// graph, not the titles and scales of the one that is drawn anew.
struct GraphKind {
  int graphType = 1;
  int graphSubType = 1;
  int numberWavelengths = 1;
  bool logX = false;       ///< logarithmic horizontal axis
  bool logY = true;        ///< logarithmic vertical axis of the main panel
  bool polar = false;      ///< the scattering angle is the polar angle
  bool ampPhase = false;   ///< with phases in a second panel; in polar form the complex amplitude
  bool intPol = false;     ///< with the degree of polarisation in a second panel
  bool amplitude = false;  ///< moduli instead of intensities
  bool fourier = false;    ///< frequencies instead of the quantity of the axis
  std::string xTitle;      ///< titles of the axes of a two-angle chart, which name its ranges; empty for other graphs
  std::string yTitle;

  /// Scattering matrix: S11 above, the ratios of the other elements to it below.
  bool IsMatrix() const { return (graphType == 1 && graphSubType == 6) || (graphType == 10 && graphSubType == 2); }
  /// Whether one may be drawn over the other, on its axes.
  bool SharesAxesWith(const GraphKind& other) const {
    return graphType == other.graphType && IsMatrix() == other.IsMatrix() && xTitle == other.xTitle &&
           yTitle == other.yTitle;
  }
  /// Cross-sections into two ranges of angle, one against the other.
  bool IsTwoAngle() const { return !xTitle.empty(); }
};

/// Where a panel stands, so that it finds its place again when the graph changes its size.
enum class PanelPlace { Whole, Upper, Lower, Fixed };

/// One frame with its axes.
struct KeptPanel {
  PanelPlace place = PanelPlace::Whole;
  GraphBox box;  ///< as last drawn (surface units)
  AxisLimits limits;
  bool logY = true;
  bool second = false;  ///< phases or polarisation, on a scale of their own
};

/// One curve as it was drawn. Arrays have first index 1; element 0 is unused. Values that are not numbers were not
/// computed: they lift the pen.
struct KeptCurve {
  std::size_t panel = 0;      ///< index of its panel
  int kind = 1;               ///< 1 perpendicular, 2 parallel, 3 unpolarised; a ratio of the matrix in this order
  std::string name;           ///< as the legend prints it
  std::vector<double> x;      ///< in the unit of the x axis; in a polar plot the polar angle (degrees)
  std::vector<double> y;      ///< after the fold with the solar disc
  std::vector<double> angle;  ///< what runs along the curve where x does not: the scattering angle (degrees) where x
                              ///< is a phase, the radius (um) of a two-angle chart; otherwise empty
  int group = 0;              ///< of a two-angle chart: curves of one run, whose rows are of the same radius
  double averageRows = 0;     ///< rows of the running mean; 0 without
  bool interpolate = false;   ///< cubic interpolation between the points
  bool wraps = false;         ///< an angle: it goes on at 0 after 360
  bool markers = false;       ///< marks instead of lines
  Colour colour;
  std::vector<Colour> colours;  ///< of each row, where the curve shows the colour of its light; otherwise empty
  int drawStyle = 0;            ///< 0 solid, 1 dash, 2 dot
  int drawWidth = 1;            ///< 1 or 2
};

/// The graph on the screen: its frame and every curve drawn since, overplots too, so that a resize, a zoom, the
/// read-out and an export show them all. The result arrays hold the last run alone.
struct KeptGraph {
  GraphKind kind;
  std::vector<KeptPanel> panels;
  std::vector<KeptCurve> curves;
  std::vector<GraphBox> labelPlaces;  ///< where a polar plot has numbers: those of the next curve keep clear of them
  XRange home;                        ///< x range of the frame before any zoom
  bool legend = false;                ///< whether the legend was printed
  std::string legendNote;             ///< what the legend prints in place of the curves' names, or empty
};

}  // namespace lumivex
