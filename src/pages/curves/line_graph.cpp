#include "pages/curves/line_graph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "axes/polar_coordinates.h"
#include "pages/curves/curve_path.h"
#include "pages/curves/fourier_graph.h"
#include "pages/frame/colours.h"
#include "pages/frame/frame.h"
#include "pages/frame/scale.h"
#include "pages/items/two_angle_chart.h"
#include "record/catalogue/graph_texts.h"

namespace lumivex {

namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t upperPanel = 0, lowerPanel = 1;
constexpr int perpendicularKind = 1, parallelKind = 2, unpolarisedKind = 3;

/// The wavelength whose colour is the true one: along an axis of wavelengths the last.
double TrueWavelength(const Results& results) {
  return results.asked.graph.WavelengthAxis() ? results.last.lambda : results.asked.light.lambda;
}

LinePair PenColours(const RunToDraw& run) {
  return LineColour(run.look.pen, TrueWavelength(run.results));
}

bool LookAlike(Colour a, Colour b) {
  constexpr int apart = 200;
  return std::abs(a.Red() - b.Red()) + std::abs(a.Green() - b.Green()) + std::abs(a.Blue() - b.Blue()) < apart;
}

/// Three colours that can be told apart on every background, and from a line colour.
std::array<Colour, 3> ColoursBeside(Colour line) {
  static constexpr std::array others = {Colour{0xE06020}, Colour{0x009000}, Colour{0x0000E0}, Colour{0xA000A0}};
  std::array<Colour, 3> chosen;
  chosen.fill(line);
  std::size_t next = 0;
  for (const Colour other : others)
    if (next < chosen.size() && !LookAlike(other, line)) chosen[next++] = other;
  return chosen;
}

/// Graphs of which one curve tells all: quantities without polarisation, and all of a sphere without absorption.
bool HasOneCurve(const Results& results) {
  const Graph& graph = results.asked.graph;
  const bool ofThree = graph.quantity == Quantity::Efficiencies || graph.quantity == Quantity::CrossSections;
  return graph.OfEfficiencies() && (!ofThree || results.last.relativeIm == 0);
}

/// What the one curve of a sphere without absorption says of all three; empty for other quantities.
std::string WithoutAbsorption(Quantity quantity) {
  if (quantity == Quantity::Efficiencies) return "Qext = Qsca   Qabs = 0";
  return quantity == Quantity::CrossSections ? "Cext = Csca   Cabs = 0" : "";
}

/// x of a curve: a run's curves, and those of runs over the same rows, hold it once.
SharedValues SharedOnPage(const Page& page, std::span<const double> x) {
  const auto same = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
  const SharedValues* before = nullptr;
  for (const PageCurve& curve : page.curves) {
    const SharedValues& held = curve.angle.empty() ? curve.x : curve.angle;
    if (before != nullptr && held.SharesWith(*before)) continue;
    before = &held;
    if (std::ranges::equal(held, x, same)) return held;
  }
  return std::vector<double>(x.begin(), x.end());
}

/// Amplitudes of the complex plane: the phase is the polar angle, the modulus the radius.
void TakeComplexAmplitude(const AngleFound& found, PageCurve& curve) {
  curve.angle = curve.x;
  std::vector<double> x = curve.x, y = curve.y;
  const int rows = std::min(found.S1.Rows(), found.S2.Rows());
  for (std::size_t i = 1; i < y.size(); ++i) {
    const int row = static_cast<int>(i);
    const bool computed = std::isfinite(y[i]) && std::isfinite(x[i]);
    y[i] = notComputed;
    if (row > rows || !computed) continue;
    const ComplexD a = found.S1.Value(row), b = found.S2.Value(row);
    const ComplexD S = curve.kind == unpolarisedKind ? ComplexD{(a.re + b.re) / 2, (a.im + b.im) / 2}
                       : curve.kind == parallelKind  ? b
                                                     : a;
    double modulus = 0, phase = 0;
    RectangularPolar(S.re, S.im, modulus, phase);
    y[i] = modulus;
    x[i] = phase * 180 / 3.14159265358979;
  }
  curve.x = std::move(x);
  curve.y = std::move(y);
}

/// Whether such a curve without interference is there already: places of spheres do not matter to it.
bool IsDrawn(const Page& page, const PageCurve& alone) {
  const auto same = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
  return std::ranges::any_of(page.curves, [&](const PageCurve& curve) {
    return curve.alone && curve.kind == alone.kind && std::ranges::equal(curve.x, alone.x, same) &&
           std::ranges::equal(curve.y, alone.y, same);
  });
}

/// What the spheres of a volume would send without interference: the pens of their curves in another style.
void DrawAlone(Page& page, const RunToDraw& run, const Curves& curves) {
  const std::size_t own = page.runs.empty() ? 0 : page.runs.size() - 1;
  const std::size_t count = page.curves.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (page.curves[i].run != own) continue;
    const int kind = page.curves[i].kind;
    const std::vector<double>& y = kind == parallelKind      ? curves.aloneParallel
                                   : kind == unpolarisedKind ? curves.aloneUnpolarised
                                                             : curves.alonePerpendicular;
    PageCurve alone = Plot(page, run, curves.x, y, {upperPanel, kind}, page.curves[i].colour);
    alone.name += page.kind.amplitude ? ": root of N|S|\u00B2" : ": N|S|\u00B2";
    constexpr int solid = 0, dashed = 1;
    alone.drawStyle = alone.drawStyle == dashed ? solid : dashed;
    alone.markers = false;
    alone.alone = true;
    if (!IsDrawn(page, alone)) page.curves.push_back(std::move(alone));
  }
}

/// Speckle of the same light at other places looks like the first: where no pen is picked, each run of it gets a colour
/// of its own.
LinePair PenOfRun(const Page& page, const RunToDraw& run) {
  const LinePair pen = PenColours(run);
  const bool first = page.runs.size() < 2;
  if (first || !run.look.pen.trueColour || run.results.asked.graph.family != Family::Volume) return pen;
  const auto others = ColoursBeside(pen.first);
  const std::size_t place = (page.runs.size() - 1) % (others.size() + 1);
  if (place == 0) return pen;
  return {others[place - 1], HalfOf(others[place - 1])};
}

const std::vector<double>& CurveOf(const Curves& curves, int kind) {
  return kind == parallelKind ? curves.parallel : kind == unpolarisedKind ? curves.unpolarised : curves.perpendicular;
}

bool HasNone(const std::vector<double>& curve) {
  return std::none_of(curve.begin() + 1, curve.end(), [](double value) { return std::isfinite(value); });
}

void DrawCurves(Page& page, const RunToDraw& run, const Curves& curves) {
  const LinePair colours = PenOfRun(page, run);
  const bool shaded = run.look.WantsSeveral();
  // Black cannot be seen on black.
  const Colour third = page.style.ground == colours::Black ? colours::White : colours::Black;
  const auto add = [&](int kind, const std::vector<double>& y, Colour colour) {
    page.curves.push_back(Plot(page, run, curves.x, y, {upperPanel, kind}, colour));
  };
  if (HasOneCurve(run.results)) {
    if (run.look.polarisations == Polarisations::None) return;
    add(perpendicularKind, curves.perpendicular, colours.first);
    page.curves.back().keyName = WithoutAbsorption(page.kind.graph.quantity);
    return;
  }
  const bool bows = page.kind.graph.quantity == Quantity::BowAngle;
  const std::array<Colour, 3> others = ColoursBeside(colours.first);
  for (const int kind : KindsWanted(run.look)) {
    if (bows && HasNone(CurveOf(curves, kind))) continue;
    if (bows && kind != perpendicularKind) {
      add(kind, CurveOf(curves, kind), shaded ? others[kind == parallelKind ? 0 : 1] : colours.first);
      continue;
    }
    if (kind == parallelKind) add(kind, curves.parallel, shaded ? colours.second : colours.first);
    if (kind == unpolarisedKind) add(kind, curves.unpolarised, shaded ? third : colours.first);
    if (kind == perpendicularKind) add(kind, curves.perpendicular, colours.first);
  }
  if (!curves.alonePerpendicular.empty()) DrawAlone(page, run, curves);
}

// Second panels.

void DrawPhases(Page& page, const RunToDraw& run, const Curves& curves) {
  const LinePair colours = PenColours(run);
  for (const int kind : KindsWanted(run.look)) {
    if (kind == unpolarisedKind) continue;
    const bool parallel = kind == parallelKind;
    const Colour colour = parallel && run.look.WantsSeveral() ? colours.second : colours.first;
    page.curves.push_back(
        Plot(page, run, curves.x, parallel ? curves.extra3 : curves.extra2, {lowerPanel, kind}, colour));
  }
}

void DrawRatios(Page& page, const RunToDraw& run, const Curves& curves) {
  // The curve above has the colour of the line.
  const std::array<Colour, 3> colours = ColoursBeside(PenColours(run).first);
  const std::array ratios = {&curves.extra1, &curves.extra2, &curves.extra3};
  for (const int kind : {3, 2, 1}) {
    const auto i = static_cast<std::size_t>(kind - 1);
    page.curves.push_back(Plot(page, run, curves.x, *ratios[i], {lowerPanel, kind}, colours[i]));
  }
}

void DrawLowerPanel(Page& page, const RunToDraw& run, const Curves& curves) {
  const SecondPanel second = page.kind.second;
  if (page.panels.size() <= lowerPanel) {
    const AxisLimits upper = page.panels[upperPanel].limits;
    const bool phases = second == SecondPanel::Phases;
    Grid(page, PanelPlace::Lower, {upper.xmin, upper.xmax, phases ? 0.0 : -1.0, phases ? 360.0 : 1.0}, true);
  }
  if (second == SecondPanel::Ratios) return DrawRatios(page, run, curves);
  if (second == SecondPanel::Phases) return DrawPhases(page, run, curves);
  page.curves.push_back(
      Plot(page, run, curves.x, curves.extra1, {lowerPanel, perpendicularKind}, PenColours(run).first));
}

/// The furthest of three bows at each point, of which each may have ended.
template <class Further>
std::vector<double> OfBows(const Curves& curves, Further further) {
  std::vector<double> all = curves.perpendicular;
  for (const auto* list : {&curves.parallel, &curves.unpolarised})
    for (std::size_t i = 1; i < all.size(); ++i)
      if (std::isfinite((*list)[i]) && (!std::isfinite(all[i]) || further((*list)[i], all[i]))) all[i] = (*list)[i];
  return all;
}

/// A curve for the scale; of the spheres of a volume, which have further ones, the furthest of all at each point.
template <class Further>
std::vector<double> OfAll(const std::vector<double>& curve, const Curves& curves, Further further, bool bows) {
  if (bows) return OfBows(curves, further);
  if (curves.alonePerpendicular.empty()) return curve;
  std::vector<double> all = curve;
  for (const auto* list : {&curves.perpendicular, &curves.parallel, &curves.alonePerpendicular, &curves.aloneParallel})
    for (std::size_t i = 1; i < all.size(); ++i)
      if (further((*list)[i], all[i])) all[i] = (*list)[i];
  return all;
}

bool InvertsX(const PageKind& kind) {
  return kind.invWavelength && kind.graph.WavelengthAxis() && !kind.fourier;
}

/// The limits of the axis, which are typed as wavelengths.
XRange RangeOfX(const PageKind& kind, XRange typed) {
  if (!InvertsX(kind)) return typed;
  return {InverseWavelength(typed.xmax), InverseWavelength(typed.xmin)};
}

/// Curves whose x rises from point to point, as zooms and steps along them expect: of inverse wavelengths the last
/// comes first.
Curves Rising(const PageKind& kind, Curves curves) {
  if (!InvertsX(kind)) return curves;
  for (auto* list : {&curves.x, &curves.perpendicular, &curves.parallel, &curves.unpolarised, &curves.extra1,
                     &curves.extra2, &curves.extra3})
    if (!list->empty()) std::reverse(list->begin() + 1, list->end());
  return curves;
}

}  // namespace

PageKind KindOf(const RunToDraw& run) {
  const RunRequest& asked = run.results.asked;
  const Look& look = run.look;
  PageKind kind;
  kind.graph = asked.graph;
  kind.wavelengths = asked.Wavelengths();
  kind.logX = look.scale.logX;
  kind.logY = look.scale.logY;
  kind.polar = look.scale.polar && asked.graph.drawing == Drawing::Curves;
  if (asked.graph.AgainstAngle()) kind.second = look.second;
  // Neither has the degree of polarisation a polar form nor has a sum over wavelengths phases.
  if (kind.polar && kind.second == SecondPanel::Polarisation) kind.second = SecondPanel::None;
  if (kind.wavelengths > 1 && kind.second == SecondPanel::Phases) kind.second = SecondPanel::None;
  if (kind.IsMatrix()) kind.second = SecondPanel::Ratios;
  kind.amplitude = look.amplitude;
  kind.invWavelength = look.invWavelength;
  kind.fourier = look.fourier.has_value();
  if (const auto* axis = std::get_if<AxisRun>(&asked.run))
    kind.perVolume = asked.graph.TakesVolume() && axis->constantVolume;
  if (const auto* sums = std::get_if<ConvergenceRun>(&asked.run); sums != nullptr && !asked.method.beam.Plane())
    kind.xTitle = sums->over == ConvergenceRun::Over::L ? "L" : "|M|";
  if (const auto* angles = std::get_if<TwoAngleRun>(&asked.run)) {
    kind.xTitle = TwoAngleXTitle(*angles);
    kind.yTitle = TwoAngleYTitle(*angles);
  }
  return kind;
}

void Display(Page& page, const RunToDraw& run, const Curves& found) {
  const Curves curves = Rising(page.kind, found);
  const bool twoPanels = page.kind.second != SecondPanel::None && !page.kind.polar;
  const bool bows = page.kind.graph.quantity == Quantity::BowAngle;
  if (page.panels.empty())
    DrawFrame(page, run, twoPanels ? PanelPlace::Upper : PanelPlace::Whole, curves.x,
              OfAll(curves.perpendicular, curves, std::greater<double>(), bows),
              OfAll(curves.parallel, curves, std::less<double>(), bows));
  if (page.kind.IsMatrix())
    page.curves.push_back(Plot(page, run, curves.x, curves.perpendicular, {}, PenColours(run).first));
  else
    DrawCurves(page, run, curves);
  if (twoPanels) DrawLowerPanel(page, run, curves);
}

PageCurve Plot(const Page& page, const RunToDraw& run, std::span<const double> x, std::span<const double> y,
               CurvePlace place, Colour colour) {
  const Look& look = run.look;
  const bool second = page.panels[place.panel].second;
  const bool phases = second && page.kind.second == SecondPanel::Phases;
  PageCurve curve;
  curve.panel = place.panel;
  curve.run = page.runs.empty() ? 0 : page.runs.size() - 1;
  curve.kind = place.kind;
  curve.name = CurveName(page.kind, place.kind, second);
  curve.x = SharedOnPage(page, x);
  std::vector<double> values(y.begin(), y.end());
  for (std::size_t i = 1; i < values.size() && i < x.size(); ++i)
    if (!std::isfinite(x[i])) values[i] = notComputed;
  curve.y = phases ? std::move(values) : SeenUnderSun(run, values);
  if (const auto* found = run.results.Find<AngleFound>(); found != nullptr && page.kind.IsComplexPolar())
    TakeComplexAmplitude(*found, curve);
  const double step = look.fourier ? FrequencyStep(run.results, *look.fourier) : StepOf(run.results.asked);
  if (look.averageWidth && step > 0) curve.averageRows = *look.averageWidth / step;
  curve.wraps = phases;
  curve.interpolate = look.interpolate;
  curve.markers = look.pen.markers;
  curve.colour = colour;
  curve.drawStyle = look.pen.style;
  curve.drawWidth = look.pen.width;
  return curve;
}

void DrawFrame(Page& page, const RunToDraw& run, PanelPlace place, std::span<const double> x,
               std::span<const double> first, std::span<const double> second) {
  const ScaleLook& scale = run.look.scale;
  const XRange range = RangeOfX(page.kind, scale.x);
  const RowSpan rows = RowsWithin(x, range);
  constexpr double noBottom = 1e30;
  double top = 0, bottom1 = noBottom, bottom2 = 10 * noBottom;
  for (std::size_t i = rows.first; i <= rows.last; ++i) {
    const double a = first[i], b = second[i];
    if (!scale.ymax && std::isfinite(a)) top = AMAX(top, a);
    if (!scale.ymax && std::isfinite(b)) top = AMAX(top, b);
    if (!scale.ymin && std::isfinite(a)) bottom1 = AMIN(bottom1, a);
    if (!scale.ymin && std::isfinite(b)) bottom2 = AMIN(bottom2, b);
  }
  AxisLimits limits{range.xmin, range.xmax, 0, 1};
  page.autoTop = top;
  limits.ymax = GridYmax(scale, page.autoTop, page.scale);
  page.autoBottom = AMIN(bottom1, bottom2);
  // Where nothing was computed the last scale serves.
  if (page.autoBottom >= noBottom) page.autoBottom = std::min(page.scale.StoredBottom, limits.ymax / 10);
  limits.ymin = GridYmin(scale, page.autoBottom, limits.ymax, page.scale);
  FitFlatAlbedo(page.kind, scale, page.autoBottom, page.autoTop, limits);
  if (page.kind.logY && page.autoBottom == 0) page.autoBottom = 0.0001;
  Grid(page, place, limits);
}

std::vector<int> KindsWanted(const Look& look) {
  std::vector<int> kinds;
  if (look.Wants(Polarisations::Parallel)) kinds.push_back(parallelKind);
  if (look.Wants(Polarisations::Unpolarised)) kinds.push_back(unpolarisedKind);
  if (look.Wants(Polarisations::Perpendicular)) kinds.push_back(perpendicularKind);
  return kinds;
}

std::string CurveName(const PageKind& kind, int curveKind, bool secondPanel) {
  const auto which = static_cast<CurveKind>(curveKind);
  const std::string name(CurveNameOf(kind.graph, which));
  if (!secondPanel) return name;
  switch (kind.second) {
    case SecondPanel::Ratios:
      return std::string(RatioNameOf(which));
    case SecondPanel::Polarisation:
      return std::string(SecondTitleOf(false));
    default:
      return std::string(SecondTitleOf(true)) + ": " + name;
  }
}

DiscWeights SunCorrection(const RunToDraw& run) {
  return SunDiscWeights(StepOf(run.results.asked), run.look.sun.rectangular);
}

std::vector<double> SeenUnderSun(const RunToDraw& run, std::span<const double> y) {
  const RunRequest& asked = run.results.asked;
  const AngleRows* rows = RowsOf(asked.run);
  if (!run.look.sun.disc || rows == nullptr) return {y.begin(), y.end()};
  // Of a beam, and of drops on a surface, angles of both signs differ.
  const bool mirrored = asked.method.method != Method::Heiligenschein && asked.method.beam.Plane();
  return FoldedWithDisc(y, SunCorrection(run), mirrored ? static_cast<std::size_t>(2 * rows->NANG - 1) : 0,
                        !rows->origin.has_value());
}

}  // namespace lumivex
