#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "axes/panel_map.h"
#include "catalogue/graph.h"
#include "record/colour.h"
#include "record/drawing_surface.h"
#include "record/page_map.h"
#include "record/page_photograph.h"
#include "solvers/angles/amplitude_table.h"
#include "solvers/rays/huygens_wave.h"

namespace lumivex {

struct DropSky;

/// What the scales remember from frame to frame.
struct ScaleMemory {
  double StoredTop = 100000;  ///< top and bottom of the last scaling: what a curve without positive values is drawn on
  double StoredBottom = 0.1;
  double GridUnit = 1;     ///< unit of the last top chosen, which the next value of the form 10^p takes over
  double GridOddTest = 0;  ///< number last tested for being odd: a range of 10 looks at that of the frame before
  bool operator==(const ScaleMemory&) const = default;
};

/// Where a graph stands on its surface (surface units).
struct PageGeometry {
  GraphBox box{1000, 15000, 3400, 9800};  ///< of the plot
  double polarX = 5200, polarY = 6600;    ///< centre of the polar plot
  double polarRadius = 3200;              ///< its radius
  double panelWidth = 5000;               ///< of a map: from one panel to the next
  double surfaceWidth = 19200, surfaceHeight = 15360;
  bool operator==(const PageGeometry&) const = default;
};

enum class GraphSize { Small, Medium, Large, VeryLarge };
enum class LogoPlace { TopRight, TopLeft, BottomRight, BottomLeft };

/// Which grid lines are drawn.
struct GridLines {
  bool majorX = true, minorX = false, majorY = true, minorY = false;
};

/// Colours and sizes that a frame is painted in.
struct PageStyle {
  Colour paper = colours::ButtonFace;  ///< around the plot
  Colour ground = colours::White;      ///< of the plot
  Colour gridColour;
  Colour minorXColour;  ///< of the minor grid lines of the horizontal axis
  GridLines gridLines;
  GraphSize size = GraphSize::Large;
  bool special = false;  ///< large bold text for slides
  std::string logo;      ///< empty where it is hidden
  LogoPlace logoPlace = LogoPlace::BottomLeft;
  Colour logoColour;
  bool narrowScreen = false;  ///< on which logos at the right of a map begin a little further right
  bool readingsVisible = true;
  bool legends = false;  ///< the names of curves stand beside their starts, and no key below
};

/// A second panel below the first; in a polar plot phases turn the curve itself.
enum class SecondPanel { None, Phases, Polarisation, Ratios };

/// What the page shows. A later click on an option changes the next page, not the titles and scales of this one.
struct PageKind {
  Graph graph;
  int wavelengths = 1;
  bool logX = false;   ///< logarithmic horizontal axis
  bool logY = true;    ///< logarithmic vertical axis of the main panel
  bool polar = false;  ///< the scattering angle is the polar angle
  SecondPanel second = SecondPanel::None;
  bool amplitude = false;      ///< moduli instead of intensities
  bool invWavelength = false;  ///< intensities freed of the square of the wave number
  bool perVolume = false;      ///< efficiencies per volume of the spheres
  bool fourier = false;        ///< frequencies instead of the quantity of the axis
  std::string xTitle, yTitle;  ///< of a two-angle chart, which name its ranges, and of a beam's sums; empty otherwise

  /// Scattering matrix: S11 above, the ratios of the other elements to it below.
  bool IsMatrix() const { return graph.drawing == Drawing::MatrixPanels; }
  /// Cross-sections into two ranges of angle, one against the other.
  bool IsTwoAngle() const { return graph.drawing == Drawing::TwoAngleChart; }
  /// The polar curve of the complex amplitude.
  bool IsComplexPolar() const { return polar && second == SecondPanel::Phases; }
};

/// What a panel below the graph shows of two curves, or of measured data and a curve.
enum class BelowGraph { Nothing, Difference, Ratio };

/// Where a panel stands, so that it finds its place again when the graph changes its size. The panel below the graph
/// takes its room from the others.
enum class PanelPlace { Whole, Upper, Lower, Left, Middle, Right, Below };

/// One frame with its axes.
struct PagePanel {
  PanelPlace place = PanelPlace::Whole;
  GraphBox box;  ///< surface units
  AxisLimits limits;
  bool logY = true;
  bool second = false;                     ///< phases, polarisation or ratios, or a comparison, on a scale of their own
  BelowGraph below = BelowGraph::Nothing;  ///< what the panel below the graph compares
  double oddTest = 0;                      ///< GridOddTest as the frame before left it
};

/// Numbers that do not change once they are made. Copies share them: a page of long curves is copied at every zoom, and
/// all curves of a run have the same x.
class SharedValues {
 public:
  SharedValues() : SharedValues(std::vector<double>()) {}
  SharedValues(std::vector<double> values)
      : values_(std::make_shared<const std::vector<double>>(std::move(values))), rises_(RisesFromFirst(*values_)) {}

  const std::vector<double>& All() const { return *values_; }
  operator const std::vector<double>&() const { return *values_; }
  std::size_t size() const { return values_->size(); }
  bool empty() const { return values_->empty(); }
  double operator[](std::size_t i) const { return (*values_)[i]; }
  const double* data() const { return values_->data(); }
  const double* begin() const { return values_->data(); }
  const double* end() const { return values_->data() + values_->size(); }
  /// Whether each number from index 1 on is above the one before, so that places are found by halves.
  bool Rise() const { return rises_; }
  bool SharesWith(const SharedValues& other) const { return values_ == other.values_; }

 private:
  static bool RisesFromFirst(const std::vector<double>& values) {
    for (std::size_t i = 2; i < values.size(); ++i)
      if (!(values[i] > values[i - 1])) return false;
    return true;
  }

  std::shared_ptr<const std::vector<double>> values_;
  bool rises_;
};

/// Where in a spectrum of frequencies rays are expected.
struct PageFrequencies {
  struct Ray {
    double frequency = 0;
    std::string name;  ///< "p = 1", or "p = 0 and p = 2"
  };
  std::vector<Ray> rays;
  double bin = 0;  ///< from one frequency to the next
};

/// One curve. Arrays have first index 1; element 0 is unused. Values that are not numbers were not computed: they lift
/// the pen.
struct PageCurve {
  std::size_t panel = 0;     ///< index of its panel
  std::size_t run = 0;       ///< index of the run that it comes from
  int kind = 1;              ///< 1 perpendicular, 2 parallel, 3 unpolarised; a ratio of the matrix in this order
  std::string name;          ///< polarisation, efficiency or ratio that it is
  std::string keyName;       ///< what key and tables say in place of the name, where it is more; otherwise empty
  std::string givenName;     ///< what is said everywhere in place of run and name; empty where nobody has given one
  SharedValues x;            ///< in the unit of the x axis; in a polar plot the polar angle (degrees)
  SharedValues y;            ///< after the fold with the solar disc
  SharedValues angle;        ///< what runs along the curve where x does not: the scattering angle (degrees) where x
                             ///< is a phase, the radius (um) of a two-angle chart; otherwise empty
  double averageRows = 0;    ///< rows of the running mean; 0 without
  bool interpolate = false;  ///< cubic interpolation between the points
  bool alone = false;        ///< of the spheres of a volume each for itself, wherever they stand
  bool wraps = false;        ///< an angle: it goes on at 0 after 360
  bool markers = false;      ///< marks instead of lines
  Colour colour;
  std::vector<Colour> colours;  ///< of each row, where the curve shows the colour of its light; otherwise empty
  int drawStyle = 0;            ///< 0 solid, 1 dash, 2 dot
  int drawWidth = 1;            ///< 1 or 2
  int data = 0;                 ///< number of the measured data that its points are; 0 for what was calculated
  SharedValues error;           ///< of such points, to both sides of y; empty without
};

/// A run that a page shows, in words.
struct PageRun {
  int number = 0;  ///< that its session has given it; 0 outside one
  std::string title, methodLabel;
  std::vector<std::string> parameters;
  /// What may tell it from other runs: method, size, sphere, medium, wavelength, angle, what was made of its curves.
  /// The same place means the same thing in every run; empty where it does not apply.
  std::vector<std::string> marks;
  /// The same for what tells runs apart that agree in all marks: indices, steps.
  std::vector<std::string> finerMarks;
  /// The same for where the spheres of a volume stand.
  std::vector<std::string> placeMarks;
};

/// Which terms of a phasor diagram have their number beside the dot.
struct DotLabels {
  enum class Rule {
    All,       ///< every term
    UpToTerm,  ///< terms up to the number
    AboveSize  ///< terms of at least 10^-number times the top of the scale
  };
  Rule rule = Rule::All;
  int number = 0;
};

/// The circle of a phasor diagram, and the right and bottom edges of the table beside it (surface units).
struct PhasorPlace {
  double x = 0, y = 0, radius = 0;
  double tableRight = 0, tableBottom = 0;
};

/// The terms of a series at one point as dots in the complex plane, and as a table.
struct PagePhasors {
  AmplitudeTable first, second;  ///< perpendicular and parallel, rows 1 to count
  int count = 0;
  bool showsFirst = true, showsSecond = true;
  double ymin = 0, ymax = 1;  ///< moduli at the centre and at the rim
  bool logarithmic = true;
  DotLabels labels;
  Colour firstColour, secondColour;
  double sizeParameter = 0;
  PhasorPlace place;
};

/// A bar of a size distribution; a line where its ends are one.
struct HistogramBar {
  double low = 0, high = 0;  ///< radius (um)
  double height = 0;         ///< 0 to 1
};

/// The size distribution in the strip over the graph.
struct PageHistogram {
  std::vector<HistogramBar> bars;
  double low = 0, high = 1;  ///< ends of the axis (um)
  bool logarithmic = true;
  bool overIndex = false;  ///< of a Lee diagram of the refractive index, which its axis names
  std::string caption;
};

/// A refractive index against the distance from the centre of a sphere, 1 at its surface.
struct PageProfile {
  std::vector<double> r, n;        ///< points of the curve; not a number where there is no index: it breaks there
  std::vector<double> layers;      ///< index of each of the layers of equal depth; empty where they are too many to see
  double lowest = 1, highest = 2;  ///< ends of the vertical axis
};

/// A flattened drop and its bows, as their dialog shows them. Lengths in radii of the sphere of equal volume.
struct PageDrop {
  struct Point {
    double x = 0, z = 0;
  };
  /// The way of a bow's ray in the vertical plane of the sun, from the sun to the observer.
  struct Ray {
    int p = 2;
    std::vector<Point> points;
  };
  /// A bow along the clock: its scattering angle (degrees) at each clock angle; not a number where it has ended.
  struct Bow {
    int p = 2;
    std::vector<double> angle;
  };
  std::vector<Point> outline;
  std::vector<Ray> rays;
  std::vector<double> clock;  ///< degrees
  std::vector<Bow> bows;
  double clockFrom = 0, clockTo = 180;  ///< that are counted (degrees)
};

/// A light pulse beside its spectrum.
struct PagePulse {
  std::vector<double> time, amplitude;       ///< samples about its centre (fs); the amplitude from -1 to 1
  double span = 10;                          ///< the axis reaches so far to both sides (fs)
  std::vector<double> frequency, magnitude;  ///< THz; the highest magnitude is 1
  double lowest = 0, highest = 1;            ///< ends of the axis of frequencies
  bool decibels = false;                     ///< magnitudes in decibels from -60 to 0
  double bandLow = 0, bandHigh = 0;          ///< the band that is calculated (THz); both 0 where there is none
  std::string limits;                        ///< the band in words
};

/// A line of readings.
struct PageLine {
  std::string text;
  Colour colour;
};

/// Light of one polarisation along the angle, by row (first index 1); not a number where nothing was calculated.
struct BarLight {
  std::array<SharedValues, 3> channels;  ///< red, green, blue, as SpectrumSums has them, seen with the sun's disc
  SharedValues strongest;                ///< wavelength (nm) that gives most; empty for a run of one
};

/// The bars below a graph of intensity against angle, in the order perpendicular, parallel, unpolarised: the light that
/// they are coloured from, and their colours for the angles in view. A column is a sample, and reaches half a step to
/// both sides of it.
struct PageBars {
  std::size_t run = 0;              ///< index of the run that they are of
  SharedValues angle;               ///< degrees, by row; not a number outside what was calculated
  double step = 1;                  ///< degrees from row to row; row j stands at (j - 1) steps
  std::size_t first = 1, last = 0;  ///< rows that were calculated
  std::array<BarLight, 3> light;
  /// Of one wavelength: the greatest channel that an intensity of 1 has. Violet short of 392 nm has more than 1.
  double channelOfUnit = 1;
  std::shared_ptr<const DropSky> sky;  ///< of flattened drops the light by angle and clock angle; may be null

  // In view.
  double reference = 0;                        ///< sum that has full brightness
  bool referenceIsSet = false;                 ///< it was set before, and is not that of the rows in view
  bool otherUnit = false;                      ///< one was set before, in another unit: it could not be taken
  bool ownUnpolarised = false;                 ///< the third bar is held against its own greatest sum
  std::array<double, 3> greatest{};            ///< channel of the rows in view
  std::size_t firstShown = 1, lastShown = 0;   ///< rows in view; none when last < first
  XRange covered;                              ///< angles that these columns cover (degrees)
  CellPart part;                               ///< of the columns of the picture, what is in view
  std::array<std::vector<Colour>, 3> painted;  ///< colour of each row in view
  /// Columns of the picture: the rows in view; on a logarithmic axis, where rows have unequal widths, colours at equal
  /// steps of the logarithm.
  std::array<std::vector<Colour>, 3> columns;
};

/// Where the key of a page begins, as parts of the width and height of its plot.
struct KeyPlace {
  double x = 0, y = 0;
  bool operator==(const KeyPlace&) const = default;
};

/// A point of the graph with its number beside it.
struct PageMarker {
  int number = 1;
  std::size_t panel = 0;
  double x = 0, y = 0;  ///< in the units of the axes
};

/// The words in the panel below the graph, in the colour of what they are of.
struct PageNote {
  std::string text;
  Colour colour;
};

/// What a page had before curves were kept, hidden, renamed and compared on it.
struct PlainCurves {
  std::vector<PageCurve> curves;
  std::vector<PageRun> runs;
  std::size_t runOfBars = 0;
  XRange x, y;  ///< of the main panel
  double autoBottom = 0, autoTop = 0;
  ScaleMemory scale;
};

/// A page: everything that is on a drawing, as plain data. Overplots stand beside what was there, so that a resize, a
/// zoom, the read-out and an export show them all.
struct Page {
  PageKind kind;
  PageStyle style;
  PageGeometry geometry;
  ScaleMemory scale;  ///< as this page left it
  std::vector<PagePanel> panels;
  std::vector<PageCurve> curves;
  XRange home, homeY;                  ///< ranges of the main panel before any zoom
  bool zoomedY = false;                ///< the vertical range is the user's, not that of the curves in view
  double autoBottom = 0, autoTop = 0;  ///< smallest and largest value of the curves that the frame was chosen for
  std::optional<PagePhasors> phasors;
  std::optional<PageBars> bars;         ///< of the last run
  PageFrequencies frequencies;          ///< of the last run
  std::vector<HuygensWave> wavefronts;  ///< in the strip over the graph
  std::vector<PageLine> readings;       ///< of the last run
  std::optional<PageHistogram> histogram;
  std::optional<PageProfile> profile;        ///< in place of a graph
  std::optional<PageDrop> drop;              ///< in place of a graph
  std::optional<PagePulse> pulse;            ///< in place of a graph
  std::optional<PageMap> map;                ///< a Lee diagram or a map, a panel a picture
  std::optional<PagePhotograph> photograph;  ///< fills the page of the simulation window, in place of everything else
  std::vector<PageRun> runs;                 ///< in the order drawn
  std::size_t runsLeftOut = 0;               ///< oldest ones that gave way to others
  std::optional<KeyPlace> keyAt;             ///< nothing: the key stands below the graph
  std::vector<PageMarker> markers;
  std::vector<PageNote> notes;               ///< in the panel below the graph
  std::shared_ptr<const PlainCurves> plain;  ///< of a page that compares; null where it is as its runs gave it
  std::vector<std::string> sheet;            ///< lines of text that stand in place of a graph

  /// Whether there is no graph.
  bool Empty() const { return panels.empty() && !phasors; }
};

}  // namespace lumivex
