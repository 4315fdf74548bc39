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
    const double weight = std::min(at - static_cast<double>(k), 1.0);
    light = Sum(lightOf(k), 1 - weight, lightOf(k + 1), weight);
  }
  return {std::max(0.0, light.r), std::max(0.0, light.g), std::max(0.0, light.b)};
}

/// Angles of one sector for those of another: its ends and its bows take the others' places, and what lies between
/// them lies there evenly.
class Shift {
 public:
  void Add(double from, double to) {
    constexpr double least = 1e-3;  // degrees, between two of them
    if (!(from > from_[count_ - 1] + least && to > to_[count_ - 1] + least)) return;
    if (!(from < last - least && to < last - least)) return;
    from_[count_] = from;
    to_[count_++] = to;
  }
  double Of(double angle) const {
    std::size_t k = 1;
    while (k < count_ && angle > from_[k]) ++k;
    const double high = k < count_ ? from_[k] : last, highTo = k < count_ ? to_[k] : last;
    return to_[k - 1] + (angle - from_[k - 1]) * (highTo - to_[k - 1]) / (high - from_[k - 1]);
  }

 private:
  static constexpr double last = 180;
  std::array<double, 3> from_{}, to_{};
  std::size_t count_ = 1;  // the first is that of 0 degrees
};

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
  const bool shifted = weight > 0 && table.bows.size() == count;
  const auto lightOf = [&](std::size_t k) {
    Shift shift;
    for (std::size_t bow = 0; shifted && bow < 2; ++bow) {
      const double here = table.bows[sector][bow], next = table.bows[sector + 1][bow];
      shift.Add((1 - weight) * here + weight * next, table.bows[k][bow]);
    }
    return LightOfRows(table, table.sectors[k], shift.Of(angle), perpendicular, parallel);
  };
  return weight > 0 ? Sum(lightOf(sector), 1 - weight, lightOf(sector + 1), weight) : lightOf(sector);
}

}  // namespace lumivex
