#include "axes/curve_smoothing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumivex {

namespace {
constexpr double halfWidthOfSun = 0.25;  // degrees
constexpr int mostDiscRows = 100000;     // a step so small is a slip of the pen
}  // namespace

double RunningMean(std::span<const double> y, std::size_t i, double w, std::size_t first, std::size_t last) {
  if (!(w > 0) || !std::isfinite(y[i])) return y[i];
  const double middle = static_cast<double>(i);
  const double low = std::max(std::floor(middle - w / 2), static_cast<double>(first));
  const double high = std::min(std::floor(middle + w / 2), static_cast<double>(last));
  double sum = 0;
  int count = 0;
  for (auto j = static_cast<std::size_t>(low); j <= static_cast<std::size_t>(high); ++j) {
    if (!std::isfinite(y[j])) continue;
    sum += y[j];
    ++count;
  }
  return count > 0 ? sum / count : y[i];
}

DiscWeights SunDiscWeights(double step, bool rectangular) {
  DiscWeights disc;
  const double rows = step > 0 ? std::floor(halfWidthOfSun / step) : 0;
  disc.rows = static_cast<int>(std::clamp(rows, 0.0, static_cast<double>(mostDiscRows)));
  disc.weight.assign(static_cast<std::size_t>(disc.rows) + 2, 0.0);
  disc.weight[0] = 1;
  for (int i = 1; i <= disc.rows; ++i) {
    const double offset = i * step / halfWidthOfSun;
    const double weight = rectangular ? 1 : std::sqrt(std::max(0.0, 1 - offset * offset));
    disc.weight[static_cast<std::size_t>(i)] = weight;
    disc.total += 2 * weight;
  }
  return disc;
}

std::vector<double> FoldedWithDisc(std::span<const double> y, const DiscWeights& disc, std::size_t mirror) {
  std::vector<double> folded(y.begin(), y.end());
  const auto size = static_cast<long>(y.size());
  const auto reflected = [&](long row) {
    if (mirror > 0 && row > static_cast<long>(mirror)) row = 2 * static_cast<long>(mirror) - row;
    if (row < 1) row = 2 - row;
    return row;
  };
  for (long i = 1; i < size; ++i) {
    double sum = disc.weight[0] * y[static_cast<std::size_t>(i)];
    for (long j = 1; j <= disc.rows; ++j) {
      const long up = reflected(i + j), down = reflected(i - j);
      const bool there = up >= 1 && up < size && down >= 1 && down < size;
      sum += there ? disc.weight[static_cast<std::size_t>(j)] *
                         (y[static_cast<std::size_t>(up)] + y[static_cast<std::size_t>(down)])
                   : std::numeric_limits<double>::quiet_NaN();
    }
    folded[static_cast<std::size_t>(i)] = sum / disc.total;
  }
  return folded;
}

double CubicThrough(std::span<const double, 4> values, double t) {
  return -values[0] * t * (t - 1) * (t - 2) / 6 + values[1] * (t + 1) * (t - 1) * (t - 2) / 2 -
         values[2] * (t + 1) * t * (t - 2) / 2 + values[3] * (t + 1) * t * (t - 1) / 6;
}

}  // namespace lumivex
