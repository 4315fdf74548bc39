#include "pages/items/readings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "colour/wavelength_colour.h"
#include "pages/curves/curve_rows.h"
#include "pages/curves/spectrum_graph.h"
#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/settings.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

namespace {

// The strip of readings (surface units).
constexpr double left = 12000, firstLine = 600, lineHeight = 200;
constexpr double pi = 3.14159265358979324;
constexpr int digitsShown = 6;

using Lines = std::vector<PageLine>;

/// Air at the right and the lower edge of the surface, and between readings that stand in a row.
constexpr double edge = 60, betweenReadings = 350;

constexpr double sizeBeside = 8, sizeAtFoot = 7;

void SetFont(SurfacePen& pen, double size) {
  pen.FontName = "MS Sans Serif";
  pen.FontSize = size;
  pen.FontBold = false;
}

/// Left end of the rows at the foot: that of the graph; beside a circle, which may reach down to them.
double LeftOfFoot(const Page& page) {
  if (!page.kind.polar) return page.geometry.box.left;
  const PolarMap circle = PolarMapOf(page);
  return circle.centreX + 1.25 * circle.radius;
}

bool StandBesideInputs(DrawingSurface& surface, const Lines& readings) {
  SetFont(surface, sizeBeside);
  return std::ranges::all_of(readings, [&](const PageLine& line) {
    return left + surface.TextWidth(line.text) <= surface.ScaleWidth() - edge;
  });
}

/// The readings in rows under the graph, each row as full as it gets.
std::vector<Lines> FootRows(DrawingSurface& surface, const Page& page) {
  SetFont(surface, sizeAtFoot);
  std::vector<Lines> rows;
  double x = 0;
  for (const PageLine& line : page.readings) {
    const PageLine reading{std::string(Trim(line.text)), line.colour};
    const double width = surface.TextWidth(reading.text);
    if (rows.empty() || x + width > surface.ScaleWidth() - edge) {
      rows.emplace_back();
      x = LeftOfFoot(page);
    }
    rows.back().push_back(reading);
    x += width + betweenReadings;
  }
  return rows;
}

/// A wavelength's colour as text on the page: light ones are darkened.
Colour TextColour(Colour c) {
  constexpr double lightest = 130;
  const double lightness = 0.3 * c.Red() + 0.59 * c.Green() + 0.11 * c.Blue();
  const double factor = lightness > lightest ? lightest / lightness : 1;
  return RGB(factor * c.Red(), factor * c.Green(), factor * c.Blue());
}

void Add(Lines& lines, std::string text, Colour colour = colours::Black) {
  lines.push_back({std::move(text), colour});
}

/// A reading; a number that there is none of is not told.
void AddNumber(Lines& lines, const std::string& name, double value, const std::string& unit = "") {
  if (std::isfinite(value)) Add(lines, name + Significant(value, digitsShown) + unit);
}

void AddEfficiencies(const Efficiencies& e, Lines& lines) {
  const std::initializer_list<std::pair<const char*, double>> readings = {{"Qsca = ", e.Qsca},
                                                                          {"Qext = ", e.Qext},
                                                                          {"Qabs = ", e.Qext - e.Qsca},
                                                                          {"Qback = ", e.Qback},
                                                                          {"Qradar = ", pi / 4 * e.Qback},
                                                                          {"g = ", e.g}};
  for (const auto& [name, value] : readings) AddNumber(lines, name, value);
}

/// Wavelengths of a sum over a spectrum: the efficiencies belong to one wavelength and say nothing about it.
void AddSpectrum(const Results& results, int done, Lines& lines) {
  const RunRequest& asked = results.asked;
  const SpectrumOfLight& light = *asked.light.spectrum;
  const int count = light.Count();
  std::string words = std::to_string(count) + " wavelengths";
  if (done < count) words = std::to_string(done) + " of " + words;
  if (const int sizes = SamplesOf(asked.sizes, RadiusOfSizes(asked.particle)).Count(); sizes > 1)
    words += ", " + std::to_string(sizes) + " sizes";
  Add(lines, words);
  Add(lines, asked.words.light);
  constexpr int mostNamed = 7;
  if (count <= mostNamed) {
    // The key of the curves, which have these colours.
    for (int i = 1; i <= done; ++i) {
      const ColourTriple c = colRGB2(double{light.wavelength[static_cast<std::size_t>(i)]});
      Add(lines, WavelengthWords(light, i), TextColour(RGB(c.r, c.g, c.b)));
    }
    return;
  }
  const bool falling = light.wavelength[1] > light.wavelength.back();
  Add(lines, WavelengthWords(light, falling ? count : 1) + " to " + WavelengthWords(light, falling ? 1 : count));
}

/// Mean of |S1|^2 and |S2|^2.
double MeanIntensity(const ComplexD& S1, const ComplexD& S2) {
  return (S1.re * S1.re + S1.im * S1.im + S2.re * S2.re + S2.im * S2.im) / 2;
}

/// What is told of the intensities straight forward and straight back.
struct EndIntensities {
  std::optional<double> forward, backward;
};

/// Those of a series.
EndIntensities EndsOf(const Results& results, const PartialWaves& waves) {
  if (waves.Terms() < 1) return {};
  const bool divided = results.asked.method.divideBySize;
  const double scale = divided ? results.last.sizeParameter * results.last.sizeParameter : 1;
  const ComplexD forward = ForwardAmplitude(waves), backward = BackwardAmplitude(waves);
  return {MeanIntensity(forward, forward) / scale, MeanIntensity(backward, backward) / scale};
}

/// Those of the rows on show. Rows that the graph leaves out are the series' own, unless another field was taken away.
EndIntensities EndsOf(const Results& results, const AngleFound& found) {
  EndIntensities ends;
  if (results.asked.method.difference == Difference::None) ends = EndsOf(results, found.waves);
  const auto shown = [&](int row) { return MeanIntensity(found.S1.Value(row), found.S2.Value(row)); };
  const int last = 2 * RowsOf(results.asked.run)->NANG - 1;
  if (found.rows.Contains(1)) ends.forward = shown(1);
  if (found.rows.Contains(last)) ends.backward = shown(last);
  return ends;
}

void AddEndIntensities(const Results& results, const EndIntensities& ends, Lines& lines) {
  if (ends.forward) Add(lines, "  0 deg: " + Format(*ends.forward, "scientific"));
  if (ends.backward) Add(lines, "  180 deg: " + Format(*ends.backward, "scientific"));
  Add(lines, "X = " + Format(results.last.sizeParameter, "#,##0.######"));
}

/// What a beam was calculated with, for whoever wants to know.
void AddBeam(const RunWords& words, const BeamNumbers& beam, Lines& lines) {
  if (!words.diagnostics) return;
  constexpr int decimals = 6;
  const auto rounded = [](double value) { return Shortest(RoundDecimals(value, decimals)); };
  Add(lines, "s = " + rounded(beam.s));
  Add(lines, "Length = " + rounded(beam.length));
  Add(lines, "Q = " + rounded(beam.Q.re) + " + i" + rounded(beam.Q.im));
  // Bessel functions are sums without an end: 0.
  Add(lines, "jMax = " + std::to_string(beam.Jmax));
  constexpr int digits = 3;
  const std::initializer_list<std::pair<const char*, double>> times = {{"Modified Bessel functions: ", beam.functions},
                                                                       {"Beam shape coefficients: ", beam.shape},
                                                                       {"Riccati-Bessel functions: ", beam.waves},
                                                                       {"Scattering calculations: ", beam.angles}};
  for (const auto& [name, seconds] : times)
    if (seconds > 0) Add(lines, name + Significant(seconds, digits) + " s");
}

struct PlacedReading {
  PageLine line;
  GraphBox box;
};

/// Sets the font that they stand in.
std::vector<PlacedReading> PlacedReadings(DrawingSurface& surface, const Page& page) {
  std::vector<PlacedReading> placed;
  const auto place = [&](const PageLine& line, double x, double y) {
    placed.push_back({line, {x, x + surface.TextWidth(line.text), y, y + surface.TextHeight("X")}});
  };
  if (StandBesideInputs(surface, page.readings)) {
    double y = firstLine;
    for (const PageLine& line : page.readings) {
      place(line, left, y);
      y += lineHeight;
    }
    return placed;
  }
  double y = TopOfFoot(surface, page);
  for (const Lines& row : FootRows(surface, page)) {
    double x = LeftOfFoot(page);
    for (const PageLine& line : row) {
      place(line, x, y);
      x += surface.TextWidth(line.text) + betweenReadings;
    }
    y += surface.TextHeight("X");
  }
  return placed;
}

struct Meaning {
  std::string_view start;  ///< of the reading
  std::string_view words;
};
constexpr std::array meanings = {
    Meaning{"Qsca", "Scattering efficiency: the power that is scattered, over that which falls on \u03C0 a\u00B2"},
    Meaning{"Qext",
            "Extinction efficiency: the power that is lost to the light, over that which falls on \u03C0 a\u00B2"},
    Meaning{"Qabs", "Absorption efficiency: Qext - Qsca"},
    Meaning{"Qback", "Light straight back: |S1(180\u00B0)|\u00B2 / (\u03C0 x\u00B2)"},
    Meaning{"Qradar", "(\u03C0/4) Qback"},
    Meaning{"g =", "Asymmetry: the mean cosine of the scattering angle, from -1 (all back) to 1 (all forward)"},
    Meaning{"0 deg", "Unpolarised intensity straight forward: (|S1|\u00B2 + |S2|\u00B2)/2"},
    Meaning{"180 deg", "Unpolarised intensity straight back: (|S1|\u00B2 + |S2|\u00B2)/2"},
    Meaning{"X =", "Size parameter: 2\u03C0 a n/\u03BB, with the index n of the medium"},
    Meaning{"Scattered power", "Power that the sphere scatters into all directions, in watts"},
    Meaning{"Backscattered power", "Power that the sphere scatters beyond 90\u00B0, in watts"},
    Meaning{"s =", "Confinement of the beam: 1/(k w0)"},
    Meaning{"Length =", "Length over which the beam spreads: w0/s, in \u00B5m"},
};

std::string MeaningOf(std::string_view reading) {
  for (const auto& [start, words] : meanings)
    if (reading.starts_with(start)) return std::string(words);
  return "";
}

bool HasEfficiencies(const MethodOptions& method) {
  const bool told =
      method.method == Method::Mie || method.method == Method::Debye || method.method == Method::CoatedSphere;
  return told && method.beam.Plane();
}

}  // namespace

std::vector<PageLine> VisibleData(const Results& results) {
  const RunRequest& asked = results.asked;
  Lines lines;
  if (const auto* spectrum = results.Find<SpectrumFound>(); spectrum != nullptr && asked.light.spectrum) {
    AddSpectrum(results, spectrum->done, lines);
    return lines;
  }
  // What is told of one sphere would be that of the last column.
  if (asked.graph.InColour()) {
    if (asked.light.spectrum) AddSpectrum(results, asked.light.spectrum->Count(), lines);
    return lines;
  }
  if (results.last.beam) AddBeam(asked.words, *results.last.beam, lines);
  if (!HasEfficiencies(asked.method)) return lines;
  AddEfficiencies(results.last.efficiencies, lines);
  if (asked.graph.quantity == Quantity::Irradiance) {
    const Curves curves = CurvesOf(results, {});
    AddNumber(lines, "Scattered power = ", curves.scatteredPower, " W");
    AddNumber(lines, "Backscattered power = ", curves.backscatteredPower, " W");
  }
  // A cloud has no size parameter, and its distribution stands below the efficiencies.
  if (const auto* found = results.Find<AngleFound>(); found != nullptr && !asked.Cloud())
    AddEndIntensities(results, EndsOf(results, *found), lines);
  if (const auto* found = results.Find<TwoAngleFound>())
    AddEndIntensities(results, EndsOf(results, found->waves), lines);
  return lines;
}

double RoomForFoot(const Page& page) {
  constexpr double widestReading = 2700, twoRows = 440;
  const bool narrow = page.geometry.surfaceWidth < left + widestReading;
  return narrow && page.style.readingsVisible && !page.kind.polar ? twoRows : 0;
}

double TopOfFoot(DrawingSurface& surface, const Page& page) {
  const SurfacePen pen = surface;
  double top = surface.ScaleHeight();
  if (page.style.readingsVisible && !StandBesideInputs(surface, page.readings)) {
    const auto rows = static_cast<double>(FootRows(surface, page).size());
    top -= edge + rows * surface.TextHeight("X");
  }
  static_cast<SurfacePen&>(surface) = pen;
  return top;
}

void PaintReadings(DrawingSurface& surface, const Page& page) {
  const SurfacePen pen = surface;
  for (const PlacedReading& reading : PlacedReadings(surface, page)) {
    surface.ForeColour = reading.line.colour;
    surface.CurrentX = reading.box.left;
    surface.CurrentY = reading.box.top;
    surface.Print(reading.line.text);
  }
  static_cast<SurfacePen&>(surface) = pen;
  surface.ForeColour = colours::Black;
}

std::string MeaningOfReadingAt(DrawingSurface& surface, const Page& page, double x, double y) {
  if (!page.style.readingsVisible) return "";
  const SurfacePen pen = surface;
  const auto placed = PlacedReadings(surface, page);
  static_cast<SurfacePen&>(surface) = pen;
  const auto under = std::ranges::find_if(placed, [&](const PlacedReading& r) { return r.box.Holds(x, y); });
  return under == placed.end() ? "" : MeaningOf(Trim(under->line.text));
}

}  // namespace lumivex
