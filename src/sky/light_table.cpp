#include "sky/light_table.h"

#include <algorithm>

namespace lumivex {

namespace {

ColourTriple Sum(const ColourTriple& a, double weightA, const ColourTriple& b, double weightB) {
  return {weightA * a.r + weightB * b.r, weightA * a.g + weightB * b.g, weightA * a.b + weightB * b.b};
}

}  // namespace

ColourTriple SimPlot2(const LightTable& table, double angle, double perpendicular, double parallel) {
  const auto& rows = table.rows;
  if (rows.empty()) return {};
  const auto lightOf = [&](std::size_t row) {
    return Sum(rows[row].perpendicular, perpendicular, rows[row].parallel, parallel);
  };
  ColourTriple light = lightOf(0);
  if (rows.size() > 1) {
    const double at = std::max(0.0, (angle - table.first) / table.step);
    const std::size_t k = std::min(static_cast<std::size_t>(at), rows.size() - 2);
    const double weight = at - static_cast<double>(k);
    light = Sum(lightOf(k), 1 - weight, lightOf(k + 1), weight);
  }
  return {std::max(0.0, light.r), std::max(0.0, light.g), std::max(0.0, light.b)};
}

}  // namespace lumivex
