#include "sky/light_table.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumivex {

namespace {

ColourTriple Sum(const ColourTriple& a, double weightA, const ColourTriple& b, double weightB) {
  return {weightA * a.r + weightB * b.r, weightA * a.g + weightB * b.g, weightA * a.b + weightB * b.b};
}

ColourTriple LightOfRows(const LightTable& table, const std::vector<PolarisedLight>& rows, double angle,
                         double perpendicular, double parallel) {
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

}  // namespace

ColourTriple SimPlot2(const LightTable& table, double angle, double perpendicular, double parallel) {
  return LightOfRows(table, table.rows, angle, perpendicular, parallel);
}

ColourTriple LightOfSectors(const LightTable& table, double clock, double angle, double perpendicular,
                            double parallel) {
  const std::size_t count = table.sectors.size();
  if (count == 0) return SimPlot2(table, angle, perpendicular, parallel);
  const double most = static_cast<double>(count - 1);
  const double at = std::clamp(std::fabs(clock) / std::numbers::pi * static_cast<double>(count) - 0.5, 0.0, most);
  const auto sector = static_cast<std::size_t>(at);
  const double weight = at - static_cast<double>(sector);
  const auto lightOf = [&](std::size_t k) {
    return LightOfRows(table, table.sectors[k], angle, perpendicular, parallel);
  };
  return weight > 0 ? Sum(lightOf(sector), 1 - weight, lightOf(sector + 1), weight) : lightOf(sector);
}

}  // namespace lumivex
