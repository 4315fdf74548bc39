#pragma once

#include <optional>
#include <string>

#include "pages/colours/cell_colours.h"
#include "record/page.h"

namespace lumivex {

/// What is drawn around the plot and behind it.
struct BackgroundLook {
  Colour paper = colours::ButtonFace;
  Colour ground = colours::White;          ///< of a plot of one wavelength
  Colour spectrumGround = colours::Black;  ///< of several
  /// Of grid lines; without one they are light on the pale ground of one wavelength and dark on that of several.
  std::optional<Colour> grid;
  bool pale = true;    ///< on which a logo is light
  bool white = false;  ///< on which minor grid lines are black
};

/// The pen of the next curves.
struct PenLook {
  bool trueColour = true;  ///< that of the light; otherwise these two
  Colour first, second;    ///< of the first curve, and the shade of the second
  int style = 0;           ///< 0 solid, 1 dash, 2 dot
  int width = 1;
  bool markers = false;
};

/// The curves that are wanted.
enum class Polarisations { None, Perpendicular, Parallel, Both, Unpolarised, All };

struct ScaleLook {
  bool logX = false, logY = true, polar = false;
  XRange x{0, 180};
  std::optional<double> ymin, ymax;  ///< nothing: chosen for the curves
};

/// What a series of maps is held against.
struct MapSeries {
  double scaleMaximum = 0;  ///< greatest value of the first map of the series; 0 before it
  double thirdMaximum = 0;  ///< the same of its third picture
  MapValues kind = MapValues::Intensity;
  /// Whether a map belongs to it; one that does not is held against itself, and the next series begins with it.
  bool Holds(MapValues values) const { return scaleMaximum > 0 && kind == values; }
};

/// Full brightness of bars as it was set before, so that several runs can be compared.
struct BarScale {
  double reference = 0;        ///< sum that has full brightness
  bool invWavelength = false;  ///< of intensities freed of the square of the wave number
  bool weighted = false;       ///< of a sum over a spectrum, weighed by the light source
};

/// Colours of bars, Lee diagrams and maps.
struct ColourLook {
  ColourRules rules;
  bool absolute = false;              ///< one reference for the whole picture; otherwise each column has its own
  bool falseColours = false;          ///< a ramp over the values in place of their own colours
  bool greyScale = false;             ///< of the ramp: greys in place of the rainbow
  bool paleEnd = false;               ///< of the ramp: its dark end is pale, for a grey surround
  bool normaliseUnpolarised = false;  ///< of bars: the unpolarised one by its own maximum
  std::optional<BarScale> barScale;   ///< of bars: set before
  std::optional<MapSeries> series;    ///< of maps: all on the scale of the first
};

/// The part of the curves that is transformed, and the frequencies shown.
struct FourierLook {
  int length = 2048;         ///< points, a power of two
  double first = 0;          ///< where they begin, in the unit of the axis
  XRange frequencies{0, 5};  ///< cycles a unit of the axis
  bool complex = false;      ///< of the amplitudes, otherwise of the curves
  bool root = false;         ///< of the square root of the curves
};

/// Rays and surface waves over a map of angle and time.
struct TimePlotLook {
  bool rays = false, waves = false;
  int highestRay = 3;       ///< p of rays from 0 on
  double step = 0.1;        ///< from impact to impact
  bool values = false;      ///< angle and time beside the marks
  bool sides = false;       ///< rays that leave on either side of the axis in two colours
  double surfaceIndex = 1;  ///< index that a surface wave creeps with
  int highestWave = 3;      ///< p of surface waves from 0 on
  int halfTurns = 2;        ///< that they creep
};

struct SunLook {
  bool disc = false;  ///< a source 0.5 degrees wide
  bool rectangular = false;
};

/// How a page is wanted: plain values, read once from the menus and inputs.
struct Look {
  BackgroundLook background;
  PenLook pen;
  GridLines gridLines;
  GraphSize size = GraphSize::Large;
  bool special = false;                ///< large bold text for slides
  std::optional<double> averageWidth;  ///< of the running mean, in the unit of the axis
  bool interpolate = false;
  Polarisations polarisations = Polarisations::Both;
  ScaleLook scale;
  SecondPanel second = SecondPanel::None;
  bool amplitude = false, invWavelength = false;
  std::optional<FourierLook> fourier;  ///< frequencies in place of the curves
  TimePlotLook timePlot;
  SunLook sun;
  ColourLook colours;
  bool components = false;  ///< red, green and blue apart
  std::string logo;         ///< empty where it is hidden
  LogoPlace logoPlace = LogoPlace::BottomLeft;
  bool narrowScreen = false;  ///< fewer than 1025 pixels wide
  bool readingsVisible = true;
  DotLabels dotLabels;
  bool histogramLog = true;  ///< the radius of a size distribution on a logarithmic axis

  bool Wants(Polarisations one) const {
    return polarisations == Polarisations::All || polarisations == one ||
           (polarisations == Polarisations::Both && one != Polarisations::Unpolarised);
  }
  /// Several curves, which differ in their shade.
  bool WantsSeveral() const { return polarisations == Polarisations::All || polarisations == Polarisations::Both; }
};

}  // namespace lumivex
