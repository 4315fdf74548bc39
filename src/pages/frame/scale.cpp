#include "pages/frame/scale.h"

#include <cmath>

#include "record/number_text.h"

namespace lumivex {

namespace {

/// Below this part of the top a bottom says nothing: ten decades do.
constexpr double smallestPartOfTop = 1e-20;
constexpr double decadesShown = 1e-10;

double LogTop(double value) {
  return std::pow(10.0, std::floor(RuleLog10(value)) + 1);
}

}  // namespace

std::string RoundedText(double x, int decimals) {
  std::string text;
  const auto rounded = [&](double positive) { return Str(RoundTo(positive, decimals)); };
  if (x > 0.0001) {
    text = rounded(x);
  } else if (x == 0) {
    text = "0";
  } else if (x < 0) {
    text = (x >= -1 ? "-0" : "-") + Str(-RoundTo(-x, decimals));
  } else {
    text = Format(x, "Scientific");
  }
  text = Trim(text);
  return text.starts_with('.') ? "0" + text : text;
}

std::string TickText(double value) {
  return Format(value, "#0.##########");
}

void GridxStep(double oddTest, double xmin, double xmax, double& step, double& range, double& labelStep) {
  range = xmax - xmin;
  step = LadderStep(range);
  labelStep = 2 * step;
  if (range == 10 && IsOdd(oddTest)) {
    step = 1;
    labelStep = 5;
  }
}

double GridYmax(const ScaleLook& look, double value, ScaleMemory& memory) {
  double result = memory.StoredTop;
  if (look.ymax) {
    result = *look.ymax;
  } else if (value > 0 && std::isfinite(value)) {
    if (look.logY)
      result = look.polar ? value : LogTop(value);
    else
      // A value of 10^p takes the unit of the call before, so that it is kept from call to call.
      result = RoundedTop(value, memory.GridUnit);
  }
  memory.StoredTop = result;
  return result;
}

double GridYmin(const ScaleLook& look, double value, double ymax, ScaleMemory& memory) {
  double result = 0;
  if (look.ymin) {
    result = *look.ymin;
  } else if (look.logY) {
    double bottom = value;
    if (!(bottom > 0) || bottom / ymax < smallestPartOfTop) bottom = ymax * decadesShown;
    result = look.polar ? ymax / std::pow(10.0, std::floor(Log10Guarded(ymax / bottom)) + 1)
                        : std::pow(10.0, std::floor(RuleLog10(bottom)));
  }
  memory.StoredBottom = result;
  return result;
}

void FitFlatAlbedo(const PageKind& kind, const ScaleLook& look, double bottom, double top, AxisLimits& limits) {
  constexpr double flat = 0.8, level = 1e-7, levelRange = 0.2, steps = 5, rounding = 1e-9;
  const bool bows = kind.graph.quantity == Quantity::BowAngle && !kind.logY;
  if ((kind.graph.quantity != Quantity::Albedo && !bows) || look.ymin || look.ymax || kind.polar) return;
  if (!(bows || bottom > flat * top) || !std::isfinite(top)) return;
  const bool isLevel = !(top - bottom > level * top);
  const double step = RoundStepAbove((isLevel ? levelRange * top : top - bottom) / steps);
  limits.ymax = step * (std::ceil(top / step - rounding) + (isLevel ? 1 : 0));
  limits.ymin = step * (std::floor(bottom / step + rounding) - (isLevel ? 1 : 0));
}

}  // namespace lumivex
