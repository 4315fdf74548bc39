#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "pages/compare/below_panel.h"
#include "pages/frame/frame_paint.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int mostTicks = 2000;

/// A number of so many characters is printed as a power of ten.
constexpr std::size_t longText = 5;

/// Decades from label to label up to which each has its tick.
constexpr int mostDecadesApart = 5;

constexpr double minorTick = 70, majorTick = 100, labelTick = 50;

std::string AxisNumber(std::string text, double value) {
  if (text.size() >= longText && text != " 0") return Format(value, "Scientific");
  return std::string(Trim(text));
}

// Linear axis.

void PaintEnds(FramePaint& paint) {
  for (const double end : {paint.map.limits.ymax, paint.map.limits.ymin}) {
    const double y = paint.map.Y(end);
    paint.TickLeft(y, majorTick);
    paint.LabelLeft(AxisNumber(Str(end), end), y);
  }
}

/// The scale of the second panel, in round values of its quantity.
void PaintSecondScale(FramePaint& paint) {
  static constexpr std::array phases = {90.0, 180.0, 270.0};
  static constexpr std::array degrees = {-0.8, -0.4, 0.0, 0.4, 0.8};
  const std::span<const double> values =
      paint.kind.second == SecondPanel::Phases ? std::span<const double>(phases) : std::span<const double>(degrees);
  for (const double value : values) {
    const double y = paint.map.Y(value);
    paint.Rule(paint.Box().left + 20, y, paint.Box().right, y, paint.style.gridColour);
    paint.TickLeft(y, minorTick);
    paint.LabelLeft(AxisNumber(Str(std::abs(value) < 0.001 ? 0 : value), value), y);
  }
}

std::string LinearText(double value, double first, double ymax) {
  if (first > -1 && ymax <= 1) return RoundedText(value, 6);
  if (first > -1 && ymax < 5) return RoundedText(value, 4);
  return Str(value);
}

void PaintLinear(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  PaintEnds(paint);
  if (paint.panel.second) {
    PaintSecondScale(paint);
    return;
  }
  // Angles of bows are some degrees about a hundred, which the decade of the top says nothing of.
  constexpr double ticksOfBows = 10;
  const bool bows = paint.kind.graph.quantity == Quantity::BowAngle;
  const double step =
      bows ? RoundStepAbove((limits.ymax - limits.ymin) / ticksOfBows) : YTickStep(limits.ymin, limits.ymax);
  const double first = step * (std::floor(limits.ymin / step) + 1);
  const double last = limits.ymax - 0.1 * step;
  const bool gridLines = paint.style.gridLines.majorY;
  for (int i = 0; i < mostTicks && first + i * step <= last; ++i) {
    const double value = first + i * step;
    if (!(value > limits.ymin)) continue;
    const double y = paint.map.Y(value);
    if (gridLines) paint.Rule(paint.Box().left + 20, y, paint.Box().right, y, paint.style.gridColour);
    paint.TickLeft(y, minorTick);
  }
  // Labels count from 0: a negative side has ticks without numbers. Far from 0 they start below the axis.
  const double labelStep = 2 * step;
  const double start = std::max(0.0, std::floor(limits.ymin / labelStep)) * labelStep;
  for (int i = 0; i < mostTicks && start + i * labelStep <= last; ++i) {
    const double value = start + i * labelStep;
    if (!(value > limits.ymin)) continue;
    const double y = paint.map.Y(value);
    paint.TickLeft(y, majorTick);
    paint.LabelLeft(AxisNumber(LinearText(value, first, limits.ymax), value), y);
  }
}

// Logarithmic axis.

/// Fonts and places of a power of ten.
struct PowerLook {
  double ten, exponentSize, exponentRaise;
  bool exponentBold;
};

PowerLook LookOfPowers(const FramePaint& paint) {
  if (paint.style.special) return {paint.Box().left - 300 - paint.surface.TextWidth("10"), 11, 300, true};
  return {550, 7, 200, false};
}

/// Left edge of the "10" of every label: where it has its place, or as far left as the widest exponent needs.
double PlaceOfTens(FramePaint& paint, const PowerLook& look) {
  auto& surface = paint.surface;
  const double ten = surface.TextWidth("10");
  const double fontSize = surface.FontSize;
  surface.FontSize = look.exponentSize;
  double widest = 0;
  bool three = false;
  for (const double end : {paint.map.limits.ymin, paint.map.limits.ymax}) {
    const std::string exponent(Trim(Str(std::floor(Log10Guarded(end)))));
    widest = std::max(widest, surface.TextWidth(exponent));
    three = three || exponent.size() > 2;
  }
  surface.FontSize = fontSize;
  // The widest exponents would stand over the ticks.
  return std::min(look.ten, paint.Box().left - (three ? majorTick + 30 : 60) - widest - ten);
}

/// Number at a place of the axis, with its tick.
void GridYLabel(FramePaint& paint, double value) {
  auto& surface = paint.surface;
  const auto& limits = paint.map.limits;
  const double y = paint.map.Y(value);
  paint.TickLeft(y, labelTick);
  const double e = RoundTo(Log10Guarded(value), 2);
  const double mantissa = RoundTo(std::pow(10.0, e - std::floor(e)), 1);
  if (limits.ymax < 1000 && limits.ymin >= 0.001) {
    // A decade that was calculated may be a hair beside its power; 999 is 999.
    constexpr double hair = 1e-9;
    const double power = std::pow(10.0, std::round(std::log10(value)));
    paint.LabelLeft(Trim(Str(std::abs(value / power - 1) < hair ? power : value)), y);
    return;
  }
  const PowerLook look = LookOfPowers(paint);
  const double tens = PlaceOfTens(paint, look);
  const double height = surface.TextHeight("10");
  const std::string factor = mantissa == 1 ? "" : std::string(Trim(Str(mantissa))) + "x ";
  const double left = tens - surface.TextWidth(factor);
  const double exponentTop = y - look.exponentRaise;
  if (!paint.labels.HasRoom(left, exponentTop, tens - left, y + 0.5 * height - exponentTop)) return;
  paint.labels.Take(left, exponentTop, paint.Box().left - left, y + 0.5 * height - exponentTop);

  surface.CurrentX = left;
  surface.CurrentY = y - 0.5 * height;
  surface.Print(factor + "10", false);
  const SurfacePen pen = surface;
  surface.CurrentY = exponentTop;
  surface.FontName = "Small Fonts";
  surface.FontSize = look.exponentSize;
  surface.FontBold = look.exponentBold;
  surface.Print(Trim(Str(std::floor(e))), false);
  static_cast<SurfacePen&>(surface) = pen;
}

/// Ratio of the ends within which the values between decades are printed.
struct LabelWindow {
  double above, below;
};

LabelWindow WindowBetweenDecades(GraphSize size) {
  if (size == GraphSize::Medium) return {8, 200};
  if (size == GraphSize::Small) return {5, 20};
  return {1, 1001};
}

/// Decades from label to label: more than one where they would crowd.
int DecadeStep(const FramePaint& paint, DecadeRange decades) {
  const int span = decades.last - 1 - decades.first;
  int step = 1;
  if (paint.style.size == GraphSize::Small || paint.style.size == GraphSize::Medium)
    step = span > 15 ? 3 : span > 8 ? 2 : 1;
  else
    step = span >= 20 ? 3 : span > 12 ? 2 : 1;
  const double perDecade =
      paint.Box().Height() / std::max(RuleLog10(paint.map.limits.ymax) - RuleLog10(paint.map.limits.ymin), 1e-9);
  const double needed = 1.6 * paint.surface.TextHeight("10");
  while (step < 100 && step * perDecade < needed) ++step;
  return step;
}

bool IsInside(double value, const AxisLimits& limits) {
  constexpr double rounding = 1e-6;
  return value >= limits.ymin * (1 - rounding) && value <= limits.ymax * (1 + rounding);
}

void PaintBetweenDecades(FramePaint& paint, bool lines) {
  const auto& limits = paint.map.limits;
  const LabelWindow window = WindowBetweenDecades(paint.style.size);
  const double ratio = limits.ymax / limits.ymin;  // beyond all numbers it is beyond the window as well
  const bool numbers = ratio > window.above && ratio < window.below;
  double inc = std::pow(10.0, std::floor(Log10Guarded(limits.ymin)));
  double value = inc;
  for (int i = 0; i < 9 * mostTicks && value <= limits.ymax; ++i, value += inc) {
    if (value < limits.ymin) continue;
    if ((value + 0.99 * inc) / inc > 10) inc *= 10;
    const double y = paint.map.Y(value);
    if (lines) {
      paint.HorizontalLine(y, paint.style.gridColour);
      continue;
    }
    const double f = Log10Guarded(value) - std::floor(Log10Guarded(value));
    const bool wanted = f < 0.0001 || f >= 0.9999 || (f > 0.69 && f < 0.71) || (f > 0.3 && f < 0.31);
    if (!numbers || !wanted) continue;
    paint.TickLeft(y, majorTick);
    GridYLabel(paint, value);
  }
}

/// Of an axis that is nearly linear.
void PaintRoundValues(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  constexpr double nearlyLinear = 1.5, steps = 6, rounding = 1e-6;
  if (!(limits.ymax / limits.ymin < nearlyLinear) || limits.ymax >= 1000 || limits.ymin < 0.001) return;
  const double step = RoundStepAbove((limits.ymax - limits.ymin) / steps);
  const double last = limits.ymax / step - rounding;
  for (double k = std::ceil(limits.ymin / step + rounding); k < last; ++k) {
    if (paint.style.gridLines.majorY) paint.HorizontalLine(paint.map.Y(k * step), paint.style.gridColour);
    GridYLabel(paint, k * step);
  }
}

void PaintLogarithmic(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  const DecadeRange decades = DecadesBetween(limits.ymin, limits.ymax);
  const int decadeStep = DecadeStep(paint, decades);
  const bool minor = paint.style.gridLines.minorY;
  if (minor && decadeStep == 1) PaintBetweenDecades(paint, true);
  int printed = 0;
  const auto forEachDecade = [&](auto&& visit) {
    for (int e = decades.first; e <= decades.last; ++e)
      if (IsInside(std::pow(10.0, e), limits)) visit(e, paint.map.Y(std::pow(10.0, e)));
  };
  forEachDecade([&](int e, double y) {
    // So many decades that their ticks would be one black bar have those that are labelled.
    if (decadeStep > mostDecadesApart && e % decadeStep != 0) return;
    if (minor || paint.style.gridLines.majorY) paint.HorizontalLine(y, paint.style.gridColour);
    paint.TickLeft(y, paint.style.gridLines.majorY ? majorTick : minorTick);
  });
  // The outermost decades come first, so that on a crowded axis they are the ones that stay.
  for (const int e : {decades.first, decades.last}) {
    if (decades.last < decades.first || !IsInside(std::pow(10.0, e), limits)) continue;
    GridYLabel(paint, std::pow(10.0, e));
    ++printed;
  }
  forEachDecade([&](int e, double) {
    if (e % decadeStep != 0 || e == decades.first || e == decades.last) return;
    GridYLabel(paint, std::pow(10.0, e));
  });
  if (minor && decadeStep == 1) PaintBetweenDecades(paint, false);
  if (printed > 1 && decades.first != decades.last) return;
  // Within one decade the ends tell the scale, and round values where they lie so near that all are read as numbers.
  for (const double end : {limits.ymin, limits.ymax}) {
    paint.TickLeft(paint.map.Y(end), majorTick);
    GridYLabel(paint, end);
  }
  PaintRoundValues(paint);
}

}  // namespace

void PaintYAxis(FramePaint& paint) {
  const bool below = paint.panel.below != BelowGraph::Nothing;
  if (paint.map.logY && (below || !paint.panel.second))
    PaintLogarithmic(paint);
  else if (below)
    PaintBelowScale(paint);
  else
    PaintLinear(paint);
  if (below) PaintBelowMiddle(paint);
}

}  // namespace lumivex
