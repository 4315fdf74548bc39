#include "pages/items/phasor_diagram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

#include "pages/frame/colours.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double centreX = 18500, centreY = 7000;
constexpr double largestRadius = 5000, smallestRadius = 1000;
constexpr double boxLeft = 1000, boxTop = 4000, widestBox = 13000, narrowestBox = 9000, lowestBox = 12000, gap = 300;
constexpr int mostRings = 20;
constexpr double halfDot = 10;
constexpr int firstFarTerm = 50;  // terms from here on are drawn in blue
constexpr Colour farTerms{0xFF0000};
constexpr Colour rings{0x00FFFF};

/// Distance from the centre; negative for what lies below the scale.
double Distance(const PagePhasors& dots, double value) {
  const double radius = dots.place.radius;
  if (!dots.logarithmic) return radius * (value - dots.ymin) / (dots.ymax - dots.ymin);
  return value > 0 ? radius * std::log(value / dots.ymin) / std::log(dots.ymax / dots.ymin) : -1;
}

bool HasLabel(const DotLabels& labels, int j, double part) {
  switch (labels.rule) {
    case DotLabels::Rule::UpToTerm:
      return j - 1 <= labels.number;
    case DotLabels::Rule::AboveSize:
      return part >= std::pow(10.0, -labels.number);
    case DotLabels::Rule::All:
      break;
  }
  return true;
}

/// The limits asked for, or decades around all terms (0 on a linear scale).
XRange LimitsOf(const DebyeAnalysisFound& found, const ScaleLook& look) {
  constexpr double mostDecades = 16;
  double low = 1e300, high = 0;
  for (const auto* terms : {&found.dots1, &found.dots2})
    for (int j = 1; j <= std::min(found.done, terms->Rows()); ++j) {
      const double size = std::hypot(terms->Re(j), terms->Im(j));
      if (!(size > 0)) continue;
      low = std::min(low, size);
      high = std::max(high, size);
    }
  if (!(high > 0)) low = high = 1;
  double top = std::pow(10.0, std::ceil(std::log10(high))), bottom = 0;
  if (look.logY) bottom = std::max(std::pow(10.0, std::floor(std::log10(low))), top * std::pow(10.0, -mostDecades));
  return {look.ymin.value_or(bottom), look.ymax.value_or(top)};
}

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

void PaintDisc(DrawingSurface& surface, const PagePhasors& dots, Colour ground) {
  const PhasorPlace& disc = dots.place;
  surface.FillStyle = 0;
  surface.FillColour = ground;
  surface.Circle(disc.x, disc.y, disc.radius, colours::Black);
  surface.FillStyle = 1;
  surface.ForeColour = colours::Black;
  surface.Line(boxLeft, boxTop, disc.tableRight, disc.tableBottom, LineKind::Box);
  for (int k = 1; k <= mostRings; ++k) {
    const double value = std::pow(10.0, -k);
    if (value > dots.ymin && value < dots.ymax) surface.Circle(disc.x, disc.y, Distance(dots, value), rings);
  }
  // On a narrow surface the circle stands below the readings, which reach this far.
  constexpr double readingsRight = 13900;
  PrintAt(surface, std::max(disc.x - 300, readingsRight), 1500, "X = " + Format(dots.sizeParameter, "#,##0.####"));
}

void PaintDots(DrawingSurface& surface, const PagePhasors& dots, const AmplitudeTable& terms, Colour colour) {
  for (int j = 1; j <= std::min(dots.count, terms.Rows()); ++j) {
    const auto p = DotPlace(dots, terms, j);
    if (!p) continue;
    if (HasLabel(dots.labels, j, std::hypot(terms.Re(j), terms.Im(j)) / dots.ymax)) {
      surface.ForeColour = colours::Black;
      PrintAt(surface, p->x + 30, p->y - 80, j == 1 ? " Mie" : std::to_string(j - 1));
    }
    surface.ForeColour = j < firstFarTerm ? colour : farTerms;
    surface.Line(p->x - halfDot, p->y - halfDot, p->x + halfDot, p->y + halfDot, LineKind::FilledBox);
  }
}

/// What is left after each term, in the box beside the circle: moduli and phases of both polarisations.
void PrintTerms(DrawingSurface& surface, const PagePhasors& dots) {
  surface.ForeColour = colours::Black;
  const double right = dots.place.tableRight;
  constexpr std::array columns = {0.025, 0.21, 0.45, 0.62, 0.86};  // of the box
  constexpr double firstLine = 4200, lineHeight = 300;
  constexpr int digits = 6;
  const auto line = [&](int number, std::initializer_list<std::string> texts) {
    const auto* column = columns.begin();
    for (const auto& text : texts)
      PrintAt(surface, boxLeft + *column++ * (right - boxLeft), firstLine + lineHeight * number, text);
  };
  const auto degrees = [](double re, double im) { return Format(PhasorPhase(re, im) * 180 / pi, "0.00") + "\u00B0"; };
  line(0, {"Terms", "Perpendicular", "phase", "Parallel", "phase"});
  const auto room = static_cast<int>((dots.place.tableBottom - firstLine) / lineHeight) - 2;
  const int count = std::min(dots.count, room);
  for (int j = 1; j <= count; ++j) {
    const ComplexD a = dots.first.Value(j), b = dots.second.Value(j);
    line(j, {TermWords(j), Significant(std::hypot(a.re, a.im), digits), degrees(a.re, a.im),
             Significant(std::hypot(b.re, b.im), digits), degrees(b.re, b.im)});
  }
  if (count < dots.count) line(count + 1, {"..."});
}

/// The values at the centre and at the rim, below the circle.
void PrintScale(DrawingSurface& surface, const PagePhasors& dots) {
  const std::string text =
      "|S| from " + Significant(dots.ymin, 3) + " at the centre to " + Significant(dots.ymax, 3) + " at the rim";
  const PhasorPlace& disc = dots.place;
  // Below a small circle the line is wider than the circle, and keeps clear of the page's edge.
  const double width = surface.TextWidth(text);
  const double left = std::min(disc.x - width / 2, surface.ScaleWidth() - width - 0.5 * gap);
  PrintAt(surface, left, disc.y + std::floor(disc.radius) + 200, text);
}

/// A modulus and a phase as the status line has them.
std::string PhasorWords(double modulus, double phase, int digits) {
  return std::string(Trim(Significant(modulus, digits))) + "   " + std::string(Trim(Significant(phase, 4))) + " deg";
}

}  // namespace

PhasorPlace PlacePhasors(const PageGeometry& geometry) {
  PhasorPlace place{centreX, centreY, largestRadius, widestBox, lowestBox};
  place.tableBottom = std::clamp(geometry.surfaceHeight - gap, boxTop + gap, lowestBox);
  const double right = geometry.surfaceWidth - gap;
  // Below the circle a line tells its scale.
  double most = std::clamp(geometry.surfaceHeight - centreY - 2 * gap, smallestRadius, largestRadius);
  if (most < largestRadius) {
    // A low page has more room for the circle around the middle of what is left below the title.
    const double high = geometry.surfaceHeight - 2 * gap - boxTop;
    most = std::clamp(0.5 * high, most, largestRadius);
    place.y = geometry.surfaceHeight - 2 * gap - most;
  }
  place.radius = most;
  if (right >= centreX + most) return place;
  place.tableRight = std::clamp(right - 2 * most - gap, narrowestBox, widestBox);
  place.radius = std::clamp((right - place.tableRight - gap) / 2, smallestRadius, most);
  place.x = right - place.radius;
  return place;
}

double PhasorPhase(double re, double im) {
  double phase = re == 0 ? (im >= 0 ? pi / 2 : -pi / 2) : std::atan(im / re);
  if (re < 0) phase += pi;
  return phase < 0 ? phase + 2 * pi : phase;
}

std::optional<SurfacePoint> DotPlace(const PagePhasors& dots, const AmplitudeTable& terms, int j) {
  const double distance = Distance(dots, std::hypot(terms.Re(j), terms.Im(j)));
  if (!(distance >= 0)) return std::nullopt;
  const double phase = PhasorPhase(terms.Re(j), terms.Im(j));
  return SurfacePoint{dots.place.x + distance * std::sin(phase), dots.place.y - distance * std::cos(phase)};
}

std::string TermWords(int j) {
  return j == 1 ? "Mie" : j == 2 ? "- p = 0" : "- p = 0 to " + std::to_string(j - 2);
}

std::optional<PagePhasors> PlotDots(const RunToDraw& run, const PageGeometry& geometry) {
  const auto* found = run.results.Find<DebyeAnalysisFound>();
  if (found == nullptr) return std::nullopt;
  const Look& look = run.look;
  PagePhasors dots;
  dots.first = found->dots1;
  dots.second = found->dots2;
  dots.count = found->done;
  dots.showsFirst = look.Wants(Polarisations::Perpendicular);
  dots.showsSecond = look.Wants(Polarisations::Parallel);
  dots.logarithmic = look.scale.logY;
  const XRange range = LimitsOf(*found, look.scale);
  const AxisLimits limits = RepairedLimits({0, 1, range.xmin, range.xmax}, false, dots.logarithmic);
  dots.ymin = limits.ymin;
  dots.ymax = limits.ymax;
  dots.labels = look.dotLabels;
  const LinePair colours = LineColour(look.pen, run.results.asked.light.lambda);
  dots.firstColour = colours.first;
  dots.secondColour = colours.second;
  dots.sizeParameter = run.results.last.sizeParameter;
  dots.place = PlacePhasors(geometry);
  return dots;
}

void PaintPhasors(DrawingSurface& surface, const PagePhasors& dots, Colour ground) {
  PaintDisc(surface, dots, ground);
  if (dots.showsFirst) PaintDots(surface, dots, dots.first, dots.firstColour);
  if (dots.showsSecond) PaintDots(surface, dots, dots.second, dots.secondColour);
  PrintTerms(surface, dots);
  PrintScale(surface, dots);
}

std::optional<GraphReading> ReadPhasors(const PagePhasors& dots, double surfaceX, double surfaceY) {
  const double x = surfaceX - dots.place.x, y = dots.place.y - surfaceY;
  const double part = std::hypot(x, y) / dots.place.radius;
  if (!(part <= 1)) return std::nullopt;
  GraphReading reading;
  reading.x = PhasorPhase(y, x) * 180 / pi;
  reading.y =
      dots.logarithmic ? dots.ymin * std::pow(dots.ymax / dots.ymin, part) : dots.ymin + part * (dots.ymax - dots.ymin);
  reading.text = PhasorWords(reading.y, reading.x, 4);
  double nearest = std::numeric_limits<double>::infinity();
  std::string name;
  const auto look = [&](const AmplitudeTable& terms, CurveKind kind) {
    for (int j = 1; j <= std::min(dots.count, terms.Rows()); ++j) {
      const auto p = DotPlace(dots, terms, j);
      const double distance = p ? std::hypot(p->x - surfaceX, p->y - surfaceY) : nearest;
      if (!(distance < nearest)) continue;
      nearest = distance;
      reading.place = *p;
      reading.curveX = PhasorPhase(terms.Re(j), terms.Im(j)) * 180 / pi;
      reading.curveY = std::hypot(terms.Re(j), terms.Im(j));
      name = std::string(CurveNameOf(Graph{}, kind)) + ", " + TermWords(j);
    }
  };
  if (dots.showsFirst) look(dots.first, CurveKind::Perpendicular);
  if (dots.showsSecond) look(dots.second, CurveKind::Parallel);
  reading.onCurve = std::isfinite(nearest);
  if (reading.onCurve) reading.text += "      " + name + ": " + PhasorWords(reading.curveY, reading.curveX, 6);
  return reading;
}

}  // namespace lumivex
