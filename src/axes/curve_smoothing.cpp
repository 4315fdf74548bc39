#include "axes/curve_smoothing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumivex {

namespace {
constexpr double halfWidthOfSun = 0.25;  // degrees
constexpr int mostDiscRows = 100000;     // a step so small is a slip of the pen
}  // namespace

namespace {

/// Sum and number of the finite values of a stretch.
struct Stretch {
  double sum = 0;
  std::size_t count = 0;

  Stretch With(double value) const { return std::isfinite(value) ? Stretch{sum + value, count + 1} : *this; }
  Stretch operator+(const Stretch& other) const { return {sum + other.sum, count + other.count}; }
};

/// Sums over windows no longer than a block, of values cut into such blocks: a window that reaches over the border of
/// two blocks is the end of one and the start of the other.
class BlockSums {
 public:
  BlockSums(std::span<const double> values, std::size_t block)
      : block_(block), fromStart_(values.size()), toEnd_(values.size()) {
    for (std::size_t i = 0; i < values.size(); ++i)
      fromStart_[i] = (i % block == 0 ? Stretch{} : fromStart_[i - 1]).With(values[i]);
    for (std::size_t i = values.size(); i-- > 0;) {
      const bool last = i + 1 == values.size() || (i + 1) % block == 0;
      toEnd_[i] = (last ? Stretch{} : toEnd_[i + 1]).With(values[i]);
    }
  }

  /// Of low to high, one of which is an end of a block, or of all values, where both lie in one.
  Stretch Over(std::size_t low, std::size_t high) const {
    if (low / block_ != high / block_) return toEnd_[low] + fromStart_[high];
    return low % block_ == 0 ? fromStart_[high] : toEnd_[low];
  }

 private:
  std::size_t block_;
  std::vector<Stretch> fromStart_, toEnd_;
};

}  // namespace

std::vector<double> RunningMeans(std::span<const double> y, double w, std::size_t first, std::size_t last) {
  std::vector<double> means(y.begin(), y.end());
  last = std::min(last, y.size() - std::min<std::size_t>(y.size(), 1));
  if (!(w > 0) || first > last) return means;
  const std::size_t count = last - first + 1;
  const double all = static_cast<double>(count);
  // Rows before and after the middle: together with it they are one row more than w, whatever its fraction.
  const auto before = static_cast<std::size_t>(std::min(std::ceil(w / 2), all));
  const auto after = static_cast<std::size_t>(std::min(std::floor(w / 2), all));
  const BlockSums sums(y.subspan(first, count), std::min(before + after + 1, count));
  for (std::size_t i = 0; i < count; ++i) {
    if (!std::isfinite(y[first + i])) continue;
    const Stretch window = sums.Over(i - std::min(before, i), std::min(i + after, count - 1));
    means[first + i] = window.sum / static_cast<double>(window.count);
  }
  return means;
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

std::vector<double> FoldedWithDisc(std::span<const double> y, const DiscWeights& disc, std::size_t mirror,
                                   bool firstMirrors) {
  std::vector<double> folded(y.begin(), y.end());
  if (y.size() < 2) return folded;
  const auto size = static_cast<long>(y.size()), reach = static_cast<long>(disc.rows);
  const auto reflected = [&](long row) {
    if (mirror > 0 && row > static_cast<long>(mirror)) row = 2 * static_cast<long>(mirror) - row;
    if (row < 1 && firstMirrors) row = 2 - row;
    return row;
  };
  // The rows with those that their ends reflect: element j is row j + 1 - reach.
  std::vector<double> seen(static_cast<std::size_t>(size - 1 + 2 * reach), std::numeric_limits<double>::quiet_NaN());
  for (long j = 0; j < static_cast<long>(seen.size()); ++j)
    if (const long row = reflected(j + 1 - reach); row >= 1 && row < size)
      seen[static_cast<std::size_t>(j)] = y[static_cast<std::size_t>(row)];
  // A block of rows at a time, which stays in the cache, and offset by offset, so that neighbours are added at once.
  constexpr std::size_t block = 2048;
  for (std::size_t start = 1; start < y.size(); start += block) {
    const std::size_t count = std::min(block, y.size() - start);
    double* sum = &folded[start];
    const double* middle = &seen[start - 1 + static_cast<std::size_t>(reach)];
    for (std::size_t i = 0; i < count; ++i) sum[i] = disc.weight[0] * middle[i];
    for (long j = 1; j <= reach; ++j) {
      const double weight = disc.weight[static_cast<std::size_t>(j)];
      for (std::size_t i = 0; i < count; ++i)
        sum[i] += weight * (middle[i + static_cast<std::size_t>(j)] + (middle - j)[i]);
    }
    for (std::size_t i = 0; i < count; ++i) sum[i] /= disc.total;
  }
  return folded;
}

double CubicThrough(std::span<const double, 4> values, double t) {
  return -values[0] * t * (t - 1) * (t - 2) / 6 + values[1] * (t + 1) * (t - 1) * (t - 2) / 2 -
         values[2] * (t + 1) * t * (t - 2) / 2 + values[3] * (t + 1) * t * (t - 1) / 6;
}

}  // namespace lumivex
