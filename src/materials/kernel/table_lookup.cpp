#include "materials/kernel/table_lookup.h"

namespace lumivex {

std::optional<double> LookUpLinear(std::span<const float> lambda, std::span<const float> values, double wanted) {
  for (std::size_t i = 0; i + 1 < lambda.size(); ++i) {
    const double low = lambda[i], high = lambda[i + 1];
    if (!(low <= wanted && high >= wanted)) continue;
    const double t = (wanted - low) / (high - low);
    if (t >= 1 && i + 2 == lambda.size()) return values[i + 1];
    return values[i] + t * (static_cast<double>(values[i + 1]) - values[i]);
  }
  return std::nullopt;
}

}  // namespace lumivex
