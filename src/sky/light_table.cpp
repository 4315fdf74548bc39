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

/// The sector of a place along the clock, which goes on beyond its ends on the other side of the vertical.
std::size_t Mirrored(std::ptrdiff_t sector, std::ptrdiff_t count) {
  const std::ptrdiff_t inside = sector < 0 ? -sector - 1 : sector >= count ? 2 * count - 1 - sector : sector;
  return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(inside, 0, count - 1));
}

/// A mean of the sectors about a place, each with its bows where those of the place are. A bow stands in its table by
/// whole rows: several sectors have it to both sides of where it is, one alone would leave a corner at each.
ColourTriple LightAboutBows(const LightTable& table, double place, double angle, double perpendicular,
                            double parallel) {
  constexpr double reach = 3;  // sectors
  const auto count = std::ssize(table.sectors);
  const auto below = static_cast<std::ptrdiff_t>(std::floor(place));
  const double beyond = place - static_cast<double>(below);
  const auto& here = table.bows[Mirrored(below, count)];
  const auto& next = table.bows[Mirrored(below + 1, count)];
  ColourTriple light;
  double weights = 0;
  for (std::ptrdiff_t k = below - 2; k <= below + 3; ++k) {
    const double weight = 1 - std::fabs(place - static_cast<double>(k)) / reach;
    if (!(weight > 0)) continue;
    const std::size_t sector = Mirrored(k, count);
    Shift shift;
    for (std::size_t bow = 0; bow < here.size(); ++bow)
      shift.Add((1 - beyond) * here[bow] + beyond * next[bow], table.bows[sector][bow]);
    light = Sum(light, 1, LightOfRows(table, table.sectors[sector], shift.Of(angle), perpendicular, parallel), weight);
    weights += weight;
  }
  return Sum(light, 1 / weights, {}, 0);
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
  const double place = std::fabs(clock) / std::numbers::pi * static_cast<double>(count) - 0.5;
  if (table.bows.size() == count) return LightAboutBows(table, place, angle, perpendicular, parallel);
  const double at = std::clamp(place, 0.0, most);
  const auto sector = static_cast<std::size_t>(at);
  const double weight = at - static_cast<double>(sector);
  const auto lightOf = [&](std::size_t k) {
    return LightOfRows(table, table.sectors[k], angle, perpendicular, parallel);
  };
  return weight > 0 ? Sum(lightOf(sector), 1 - weight, lightOf(sector + 1), weight) : lightOf(sector);
}

}  // namespace lumivex
