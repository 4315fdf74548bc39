#include "pages/maps/plot_lee.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "axes/curve_smoothing.h"
#include "axes/scale_rules.h"
#include "pages/frame/frame.h"
#include "pages/maps/map_colours.h"
#include "pages/maps/map_sides.h"
#include "pages/maps/time_marks.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

using Titles = std::array<std::string_view, 3>;
constexpr Titles slideTitles = {"Perpendicular polarization", "Parallel polarization", "Unpolarized"};
constexpr std::array places = {PanelPlace::Left, PanelPlace::Middle, PanelPlace::Right};
constexpr Colour warningRed{255};

/// The range of angles on show: that of the look, where it is one.
XRange AnglesShown(const MapToDraw& map, const AngleRows& rows) {
  const XRange& asked = map.look.scale.x;
  return asked.xmin < asked.xmax ? asked : XRange{rows.xmin, rows.xmax};
}

/// The stored rows of which something is within the range.
ShownRows RowsWithin(const MapFound& found, const AngleRows& rows, XRange range) {
  constexpr double rounding = 1e-6;
  // A row reaches half a step to both sides, also where it is the only one.
  const auto placeOf = [&](double angle) { return (angle - rows.Origin()) / rows.step - (found.firstRow - 1); };
  const double lowest = placeOf(range.xmin), highest = placeOf(range.xmax);
  if (found.rows < 1 || highest < -0.5 || lowest > found.rows - 0.5) return {0, 0};
  const auto clamped = [&](double row) { return std::clamp(static_cast<int>(row), 0, found.rows - 1); };
  const int first = clamped(std::floor(lowest + 0.5 + rounding));
  const int last = clamped(std::ceil(highest - 0.5 - rounding));
  return {first, std::max(last - first + 1, 0)};
}

/// Of one wavelength its colour; along an axis of wavelengths that of each column.
std::vector<ColourTriple> LightOf(const MapToDraw& map) {
  std::vector<ColourTriple> light;
  if (map.asked.light.spectrum) return light;
  for (int column = 0; column < map.found->columns; ++column) {
    const bool swept = map.columns.quantity == Swept::Wavelength;
    const ColourTriple c = colRGB2(swept ? map.columns.At(column) / 1000 : map.asked.light.lambda);
    light.push_back({c.r / 255, c.g / 255, c.b / 255});
  }
  return light;
}

std::vector<double> WavelengthsOf(const MapToDraw& map) {
  std::vector<double> wavelengths;
  if (!map.asked.light.spectrum) return wavelengths;
  const auto& all = map.asked.light.spectrum->wavelength;
  for (std::size_t i = 1; i < all.size(); ++i) wavelengths.push_back(1000 * double{all[i]});
  return wavelengths;
}

MapValues ValuesOf(const RunRequest& asked) {
  if (asked.graph.quantity == Quantity::Efficiencies) return MapValues::Efficiency;
  const auto* angles = std::get_if<AngleMapRun>(&asked.run);
  const bool perWaveNumber = angles != nullptr && angles->invWavelength;
  if (asked.light.spectrum) return perWaveNumber ? MapValues::SumPerWaveNumber : MapValues::Sum;
  return perWaveNumber ? MapValues::IntensityPerWaveNumber : MapValues::Intensity;
}

// Lines below.

std::string MaximumText(double value) {
  constexpr int digitsOfSingle = 9;  // with which numbers of single precision can be told apart
  return value >= 1 || value == 0 ? Significant(RoundTo(value, 2), digitsOfSingle) : Format(value, "scientific");
}

void AddLines(PageMap& map, const std::optional<MapSeries>& series) {
  using Place = MapLine::Place;
  const double scale = map.scaleMaximum, current = map.currentMaximum;
  map.lines.push_back({Place::ScaleMaximum, "Scale maximum = " + MaximumText(scale), colours::Black});
  if (series && scale != current) {
    const bool exceeded = current > scale;
    map.lines.push_back({Place::CurrentMaximum,
                         (exceeded ? "WARNING: Current maximum = " : "Current maximum = ") + MaximumText(current),
                         exceeded ? warningRed : colours::Black});
  }
  const bool held = series && series->Holds(map.kind);
  const auto diagnostics = [&](Place place, const std::string& name, double value, double old) {
    map.lines.push_back(
        {place, name + " = " + MaximumText(value) + "   " + name + "OLD = " + MaximumText(old), colours::Black});
  };
  diagnostics(Place::Diagnostics, "f3maxmax", current, held ? series->scaleMaximum : 0);
  diagnostics(Place::Diagnostics3, "f3maxmax3", map.thirdMaximum, held ? series->thirdMaximum : 0);
}

// Pictures.

std::size_t PicturesOf(const MapToDraw& map) {
  const bool polarised = map.asked.graph.quantity == Quantity::Intensity && map.found->panels.size() == 2;
  return polarised ? 3 : std::min<std::size_t>(map.found->panels.size(), 3);
}

double GreatestOfAll(const MapFound& found, std::size_t picture, ShownRows rows) {
  const PictureCells cells(found, picture);
  double greatest = 0;
  for (int column = 0; column < found.done; ++column)
    greatest = std::max(greatest, GreatestOf(found, cells, column, rows));
  return greatest;
}

/// The axis across the pictures: from the first to the last sample; of times, which stand where samples do, between
/// whole femtoseconds.
XRange AcrossOf(const Page& page) {
  const SampleAxis& samples = page.map->across.samples;
  if (page.kind.graph.family != Family::Impulse || samples.count < 2) return {samples.first, samples.last};
  constexpr double slack = 1e-6;
  return {std::floor(samples.first + slack), std::ceil(samples.last - slack)};
}

void AddPanels(Page& page) {
  const PageMap& map = *page.map;
  const XRange across = AcrossOf(page);
  for (std::size_t i = 0; i < map.pictures.size(); ++i) {
    PagePanel panel;
    panel.place = places[i];
    panel.box = BoxOf(page, panel.place);
    panel.logY = map.up.samples.logarithmic;
    panel.limits =
        RepairedLimits({across.xmin, across.xmax, page.homeY.xmin, page.homeY.xmax}, page.kind.logX, panel.logY);
    page.panels.push_back(panel);
  }
  if (page.panels.empty()) return;
  const AxisLimits& limits = page.panels.front().limits;
  page.home = {limits.xmin, limits.xmax};
  page.homeY = {limits.ymin, limits.ymax};
}

DiscWeights DiscOf(const MapToDraw& map, const AngleRows& rows) {
  return SunDiscWeights(rows.step, map.look.sun.rectangular);
}

/// Takes the values of a map over angle, as the look has them, and its side of angles.
ShownRows TakeAngles(Page& page, PageMap& drawn, const MapToDraw& map, const AngleRows& rows) {
  const XRange range = AnglesShown(map, rows);
  ShownRows shown = RowsWithin(*map.found, rows, range);
  if (map.look.sun.disc) {
    // Of a beam, and of drops on a surface, angles of both signs differ.
    const MethodOptions& method = map.asked.method;
    const bool mirrored = method.method != Method::Heiligenschein && method.beam.Plane();
    drawn.values = std::make_shared<const MapFound>(
        SeenUnderDisc(*map.found, shown, DiscOf(map, rows), mirrored ? 2 * rows.NANG - 1 : 0));
    shown.lowest = 0;
  }
  drawn.up = SideOf(rows, drawn.values->firstRow + shown.lowest, shown.count);
  page.homeY = range;
  return shown;
}

void PlotTitled(Page& page, const MapToDraw& map, const Titles& titles) {
  const ColourLook& look = map.look.colours;
  PageMap drawn;
  drawn.values = map.found;
  drawn.across = SideOf(map.columns);
  ShownRows shown{0, map.found->rows};
  if (const auto* rows = std::get_if<AngleRows>(&map.rows)) {
    shown = TakeAngles(page, drawn, map, *rows);
  } else {
    drawn.up = SideOf(std::get<Sweep>(map.rows));
    page.homeY = {drawn.up.samples.first, drawn.up.samples.last};
  }
  drawn.lowest = shown.lowest;
  drawn.wavelengths = WavelengthsOf(map);

  const MapFound& values = *drawn.values;
  const std::size_t pictures = PicturesOf(map);
  for (std::size_t i = 0; i < pictures; ++i) {
    drawn.thirdMaximum = GreatestOfAll(values, i, shown);
    drawn.currentMaximum = std::max(drawn.currentMaximum, drawn.thirdMaximum);
  }
  drawn.kind = ValuesOf(map.asked);
  const bool held = look.series && look.series->Holds(drawn.kind);
  drawn.scaleMaximum = held ? look.series->scaleMaximum : drawn.currentMaximum;

  const MapInk ink{&look, FalseColoursFor(look, map.asked.graph), LightOf(map), drawn.scaleMaximum, page.style.ground};
  for (std::size_t i = 0; i < pictures; ++i)
    drawn.pictures.push_back({std::string(titles[i]),
                              std::string(CurveNameOf(map.asked.graph, static_cast<CurveKind>(i + 1))),
                              std::make_shared<const std::vector<Colour>>(ColoursOf(values, i, shown, ink))});
  drawn.marks = TimeMarksOf(map.asked, map.look.timePlot);
  AddLines(drawn, look.series);
  if (look.falseColours) drawn.key = KeyOf(ink.falseColours);

  page.kind.logX = drawn.across.samples.logarithmic;
  page.kind.logY = drawn.up.samples.logarithmic;
  page.map = std::move(drawn);
  AddPanels(page);
}

Titles NamesOf(const Graph& graph) {
  return {CurveNameOf(graph, CurveKind::Perpendicular), CurveNameOf(graph, CurveKind::Parallel),
          CurveNameOf(graph, CurveKind::Unpolarised)};
}

}  // namespace

void PlotLee(Page& page, const MapToDraw& map) {
  PlotTitled(page, map, NamesOf(map.asked.graph));
}

void PlotLeeSpecial(Page& page, const MapToDraw& map) {
  PlotTitled(page, map, map.asked.graph.quantity == Quantity::Intensity ? slideTitles : NamesOf(map.asked.graph));
}

}  // namespace lumivex
