#include <algorithm>
#include <cmath>

#include "pages/frame/frame_paint.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// More ticks than any graph has: a loop that counts past it has gone wrong.
constexpr int mostTicks = 2000;

/// From this value up an axis prints powers of ten.
constexpr double scientificFrom = 100000;

constexpr double minorTick = 75, majorTick = 120;
constexpr double labelBelowBox = 150, logLabelBelowBox = 100;

/// Calls visit(value) for the multiples of a step from just above xmin to just above xmax.
template <class Visit>
void ForEachTick(double step, int decimals, AxisLimits limits, Visit&& visit) {
  const double first = RoundTo(step * (std::floor(limits.xmin / step) + 1), decimals);
  const double last = RoundTo(step * (std::floor(limits.xmax / step) + 1), decimals);
  for (int i = 0; i < mostTicks; ++i) {
    const double value = RoundTo(first + i * step, decimals);
    if (!(value <= last + 0.5 * step)) return;
    visit(value);
  }
}

std::string EndText(double value, double range) {
  if (value >= scientificFrom) return Format(value, "Scientific");
  // Like the numbers between them, which have no commas.
  if (value == 0 || std::fabs(value) > 10) return std::string(Trim(Str(value)));
  double shown = value;
  if (value > 0.05 && range >= 1e-5) shown = RoundTo(value, range < 0.001 ? 6 : 5);
  return Format(shown, range < 1e-5 ? "###,##0.#########" : "###,##0.#######");
}

struct LinearTicks {
  double step, labelStep;
  int decimals;
};

LinearTicks ChooseTicks(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  double step = 0, range = 0, labelStep = 0;
  GridxStep(paint.panel.oddTest, limits.xmin, limits.xmax, step, range, labelStep);
  labelStep = 2 * step;
  if (paint.style.size == GraphSize::Small) {
    if (limits.xmax == 180)
      labelStep = 60;
    else if (range / labelStep > 6)
      labelStep *= 2;
  } else if (range == 180 || range == 360) {
    step = 10;
    labelStep = 30;
  }
  if (range == 10 && IsOdd(limits.xmin)) {
    step = 1;
    labelStep = 5;
  }
  if (paint.kind.graph.axis == AxisVariable::Number && step < 1) step = labelStep = 1;
  return {step, labelStep, TickDecimals(range, limits.xmax, step)};
}

/// Top of the numbers: clear of the lowest number of the vertical axis, which reaches below the box by half a line.
double TopOfNumbers(const FramePaint& paint, double belowBox) {
  return paint.Box().bottom + std::max(belowBox, 0.5 * paint.surface.TextHeight("X") + 4);
}

void PaintLinear(FramePaint& paint) {
  const auto& box = paint.Box();
  const auto& limits = paint.map.limits;
  const double range = limits.xmax - limits.xmin;
  paint.TickBelow(box.left, 50);
  paint.TickBelow(box.right, 100);
  const LinearTicks ticks = ChooseTicks(paint);
  const bool gridLines = paint.style.gridLines.majorX;

  ForEachTick(ticks.step, ticks.decimals, limits, [&](double value) {
    const double x = paint.map.X(value);
    if (x < box.left || x > box.right) return;
    if (gridLines) paint.VerticalLine(x, paint.style.gridColour);
    paint.TickBelow(x, minorTick);
  });

  const double labelY = TopOfNumbers(paint, labelBelowBox);
  for (const double end : {limits.xmin, limits.xmax}) {
    paint.TickBelow(paint.map.X(end), majorTick);
    paint.LabelBelow(EndText(end, range), paint.map.X(end), labelY);
  }
  ForEachTick(ticks.labelStep, ticks.decimals, limits, [&](double value) {
    if (value > limits.xmin + 0.98 * range || value < limits.xmin + 0.02 * range) return;
    const double x = paint.map.X(value);
    if (gridLines) paint.VerticalLine(x, paint.style.gridColour);
    paint.TickBelow(x, majorTick);
    paint.LabelBelow(TickText(value), x, labelY);
  });
}

/// Number at a place of a logarithmic x axis, with its tick.
void GridXLabel(FramePaint& paint, double value) {
  const double x = paint.map.X(value);
  paint.TickBelow(x, 50);
  const auto& limits = paint.map.limits;
  const double rounded = RoundTo(value, limits.xmax - limits.xmin >= 0.1 ? 4 : 6);
  // Rounding to decimals would print the smallest values as 0.
  const bool plain = value < scientificFrom && std::abs(rounded - value) < 0.01 * value;
  paint.LabelBelow(plain ? TickText(rounded) : Format(value, "Scientific"), x, TopOfNumbers(paint, logLabelBelowBox));
}

/// Values 1 to 9 times a power of ten from xmin to xmax, with the fractional part of their logarithm.
template <class Visit>
void ForEachLogTick(AxisLimits limits, Visit&& visit) {
  constexpr double rounding = 1 + 1e-9;
  double inc = std::pow(10.0, std::floor(Log10Guarded(limits.xmin)));
  double value = inc;
  for (int i = 0; i < mostTicks && value * rounding < limits.xmin; ++i) value += inc;
  for (int i = 0; i < 9 * mostTicks && value <= limits.xmax * rounding; ++i, value += inc) {
    if ((value + 0.99 * inc) / inc > 10) inc *= 10;
    const double logarithm = Log10Guarded(value);
    visit(value, logarithm - std::floor(logarithm));
  }
}

bool IsDecade(double fraction) {
  return fraction < 0.001 || fraction > 0.999;
}

bool IsTwoOrFive(double fraction) {
  return (fraction > 0.698 && fraction < 0.7) || (fraction > 0.3 && fraction < 0.302);
}

/// An axis of less than a decade may hold none: between its ends it has the ticks of a linear one.
void PaintWithinDecade(FramePaint& paint, bool gridLines) {
  const auto& limits = paint.map.limits;
  const LinearTicks ticks = ChooseTicks(paint);
  const auto inside = [&](double value) { return value > limits.xmin && value < limits.xmax; };
  ForEachTick(ticks.step, ticks.decimals, limits, [&](double value) {
    if (!inside(value)) return;
    if (gridLines) paint.VerticalLine(paint.map.X(value), paint.style.gridColour);
    paint.TickBelow(paint.map.X(value), 50);
  });
  ForEachTick(ticks.labelStep, ticks.decimals, limits, [&](double value) {
    if (inside(value)) paint.LabelBelow(TickText(value), paint.map.X(value), TopOfNumbers(paint, logLabelBelowBox));
  });
}

void PaintLogarithmic(FramePaint& paint) {
  const auto& limits = paint.map.limits;
  const bool minor = paint.style.gridLines.minorX;
  const bool major = paint.style.gridLines.majorX && !minor;
  ForEachLogTick(limits, [&](double value, double fraction) {
    const double x = paint.map.X(value);
    if (minor) paint.VerticalLine(x, paint.style.minorXColour);
    if (major && IsDecade(fraction)) paint.VerticalLine(x, paint.style.gridColour);
  });
  // Whole decades come first, so that on a crowded axis they are the ones that stay.
  ForEachLogTick(limits, [&](double value, double fraction) {
    if (IsDecade(fraction)) GridXLabel(paint, value);
  });
  for (const double end : {limits.xmin, limits.xmax}) {
    paint.TickBelow(paint.map.X(end), 50);
    const std::string text = end >= scientificFrom ? Format(end, "Scientific") : std::string(Trim(Str(end)));
    paint.LabelBelow(text, paint.map.X(end), TopOfNumbers(paint, logLabelBelowBox));
  }
  if (limits.xmax < 10 * limits.xmin) return PaintWithinDecade(paint, major);
  if (!minor) return;
  ForEachLogTick(limits, [&](double value, double fraction) {
    if (IsTwoOrFive(fraction)) GridXLabel(paint, value);
  });
}

}  // namespace

void PaintXAxis(FramePaint& paint) {
  if (paint.map.logX)
    PaintLogarithmic(paint);
  else
    PaintLinear(paint);
}

}  // namespace lumivex
