#include "axes/scale_rules.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumivex {

namespace {

constexpr double ln10OfTheRules = 2.302585093;

struct Rung {
  double above, step;
};

constexpr std::array ladder = {
    Rung{6000, 1000},     Rung{3000, 500},      Rung{1200, 200},       Rung{600, 100},        Rung{300, 50},
    Rung{120, 20},        Rung{60, 10},         Rung{20, 5},           Rung{12, 2},           Rung{6, 1},
    Rung{3, 0.5},         Rung{1.2, 0.2},       Rung{0.6, 0.1},        Rung{0.3, 0.05},       Rung{0.12, 0.02},
    Rung{0.06, 0.01},     Rung{0.03, 0.005},    Rung{0.012, 0.002},    Rung{0.006, 0.001},    Rung{0.003, 0.0005},
    Rung{0.0012, 0.0002}, Rung{0.0006, 0.0001}, Rung{0.0003, 0.00005}, Rung{0.00012, 0.00002}};

}  // namespace

double AMAX(double a, double b) {
  return a > b ? a : b;
}

double AMIN(double a, double b) {
  return a < b ? a : b;
}

double RoundTo(double x, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::floor(scale * x + 0.5) / scale;
}

double Log10Guarded(double x) {
  if (x > 1) return std::log(x) / std::log(10.0);
  if (x == 1) return 0;
  if (!(x >= 1e-300)) return -300;
  return -std::log(1 / x) / std::log(10.0);
}

double RuleLog10(double x) {
  return std::log(x) / ln10OfTheRules;
}

double LogOfRatio(double a, double b) {
  const double ratio = a / b;
  return std::isnormal(ratio) ? std::log(ratio) : std::log(a) - std::log(b);
}

bool IsOdd(double s) {
  return std::abs(std::floor(s / 2) - s / 2) > 0.1;
}

double LadderStep(double range) {
  if (range > 12000) return range / 10;
  for (const auto& rung : ladder)
    if (range > rung.above) return rung.step;
  return range / 10;
}

int TickDecimals(double range, double xmax, double step) {
  // Never fewer than the step itself has, or neighbouring ticks would fall together.
  const double ofStep = std::ceil(-Log10Guarded(step) - 1e-9);
  const double wanted = range < 0.5 ? (range >= 0.01   ? 3
                                       : range >= 1e-5 ? 5
                                                       : 7)
                                    : std::floor(Log10Guarded(std::abs(xmax / step))) + 1;
  return static_cast<int>(std::clamp(std::max(wanted, ofStep), 0.0, 15.0));
}

int DecadeOf(double value) {
  int p = static_cast<int>(std::floor(std::log10(value)));
  while (std::floor(value / std::pow(10.0, p)) < 1) --p;
  while (std::floor(value / std::pow(10.0, p + 1)) >= 1) ++p;
  return p;
}

double RoundedTop(double value, double& unit) {
  if (!(value > 0) || !std::isfinite(value)) return 1;
  const int p = DecadeOf(value);
  const double decade = std::pow(10.0, p);
  if (value > 1) {
    const double m = value / decade;
    if (m > 7)
      unit = decade;
    else if (m > 3.5)
      unit = 0.5 * decade;
    else if (m > 1.5)
      unit = 0.2 * decade;
    else if (m > 1)
      unit = 0.1 * decade;
    // At m = 1 the unit left by the call before is the one that counts; a unit that cannot count gives way to one.
    if (!(unit > 0) || !std::isfinite(unit)) unit = 0.1 * decade;
    return unit * (std::floor(value / unit) + 1);
  }
  const double top = decade * (std::floor(value / decade) + 1);
  if (top / value <= 1.2) return top;
  return std::pow(10.0, p + 1) * (std::floor(value / std::pow(10.0, p - 1)) + 1) / 100;
}

double YTickStep(double ymin, double ymax) {
  const double range = ymax - ymin;
  if (ymin == 0 && ymax == 360) return 90;
  if (ymin == 0 && ymax == 1) return 0.1;
  if (!(ymax > 0)) return std::pow(10.0, std::floor(Log10Guarded(range) - 0.1));
  const double decade = std::pow(10.0, DecadeOf(ymax));
  double step = 0.5 * decade;
  if (ymax > 1) {
    const double m = ymax / decade;
    step = m > 5 ? decade : m > 2 ? 0.5 * decade : 0.2 * decade;
  } else if (step > range) {
    step = std::pow(10.0, std::floor(Log10Guarded(range) - 0.1));
  }
  return step;
}

DecadeRange DecadesBetween(double ymin, double ymax) {
  if (!(ymin > 0) || !(ymax > ymin)) return {};
  return {static_cast<int>(std::floor(RuleLog10(ymin) + 0.99999)),
          static_cast<int>(std::floor(RuleLog10(ymax) - 0.999)) + 1};
}

double RoundStepAbove(double value) {
  const double unit = std::pow(10.0, std::floor(std::log10(value)));
  constexpr double rounding = 1e-9;
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * unit >= value * (1 - rounding)) return factor * unit;
  return 10 * unit;
}

}  // namespace lumivex
