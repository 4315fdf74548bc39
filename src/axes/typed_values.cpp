#include "axes/typed_values.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace lumivex {

namespace {

/// Decimals of a number as it was typed; nothing where no typed number gives it.
std::optional<int> DecimalsOf(double value) {
  constexpr int most = 10;
  constexpr double rounding = 1e-14;
  double scaled = std::abs(value);
  for (int decimals = 0; decimals <= most; ++decimals, scaled *= 10)
    if (std::abs(scaled - std::nearbyint(scaled)) <= rounding * scaled) return decimals;
  return std::nullopt;
}

}  // namespace

TypedValues::TypedValues(double start, double step) {
  const auto ofStart = DecimalsOf(start), ofStep = DecimalsOf(step);
  if (ofStart && ofStep) scale_ = std::pow(10.0, std::max(*ofStart, *ofStep));
}

double TypedValues::operator()(double value) const {
  constexpr double largestWhole = 9007199254740992.0;  // beyond it every double is whole
  if (scale_ == 0 || !(std::abs(value) * scale_ < largestWhole)) return value;
  return std::nearbyint(value * scale_) / scale_;
}

}  // namespace lumivex
