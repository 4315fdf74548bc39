#include "runs/fold_sizes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace lumivex {

namespace {

/// Where a radius lies between the columns: that far from `column` to the next.
struct Place {
  int column = 0;
  double part = 0;
};

/// Logarithms of the radii of the columns that are done.
class Columns {
 public:
  Columns(const Sweep& radii, int done) {
    for (int column = 0; column < done; ++column) logs_.push_back(std::log(radii.At(column)));
  }

  /// Nothing beyond the columns. Rounding does not push a radius over the edge.
  std::optional<Place> Of(double radius) const {
    constexpr double rounding = 1e-12;
    const double at = std::log(radius);
    if (at < logs_.front() - rounding || at > logs_.back() + rounding) return std::nullopt;
    const auto above = std::ranges::upper_bound(logs_, at);
    const auto next =
        std::clamp<std::ptrdiff_t>(above - logs_.begin(), 1, std::max(std::ssize(logs_) - 1, std::ptrdiff_t{1}));
    const auto column = static_cast<std::size_t>(next - 1);
    if (column + 1 >= logs_.size()) return Place{static_cast<int>(column), 0};
    const double part = (at - logs_[column]) / (logs_[column + 1] - logs_[column]);
    return Place{static_cast<int>(column), std::clamp(part, 0.0, 1.0)};
  }

 private:
  std::vector<double> logs_;
};

/// How much of each column goes into one; nothing where none of its sizes lies between columns.
std::vector<double> WeightsOf(const CloudSamples& samples, const Columns& columns, int count, FoldedMap& folded,
                              double& allParticles) {
  std::vector<double> weights(static_cast<std::size_t>(count), 0.0);
  double sum = 0;
  for (std::size_t i = 1; i < samples.radius.size(); ++i) {
    const double weight = samples.weight[i];
    if (!(weight > 0) || !(samples.radius[i] > 0)) continue;
    allParticles += weight;
    const auto place = columns.Of(samples.radius[i]);
    if (!place) {
      folded.share += weight;
      continue;
    }
    const auto column = static_cast<std::size_t>(place->column);
    weights[column] += weight * (1 - place->part);
    if (column + 1 < weights.size()) weights[column + 1] += weight * place->part;
    sum += weight;
  }
  if (!(sum > 0)) return {};
  for (double& weight : weights) weight /= sum;
  return weights;
}

void FoldColumn(const MapFound& map, std::vector<float> MapPanel::*list, int column, const std::vector<double>& weights,
                MapFound& folded) {
  std::vector<double> sum(static_cast<std::size_t>(map.rows), 0.0);
  for (std::size_t panel = 0; panel < map.panels.size(); ++panel) {
    const std::vector<float>& from = map.panels[panel].*list;
    if (from.empty()) continue;
    std::ranges::fill(sum, weights.empty() ? std::numeric_limits<double>::quiet_NaN() : 0.0);
    for (std::size_t source = 0; source < weights.size(); ++source) {
      if (weights[source] == 0) continue;
      const std::size_t first = map.At(static_cast<int>(source), 0);
      for (std::size_t row = 0; row < sum.size(); ++row) sum[row] += weights[source] * double{from[first + row]};
    }
    auto to = (folded.panels[panel].*list).begin() + static_cast<std::ptrdiff_t>(map.At(column, 0));
    for (const double value : sum) *to++ = static_cast<float>(value);
  }
}

}  // namespace

FoldedMap FoldSizes(const MapFound& map, const Sweep& radii, const SizeDistribution& sizes) {
  FoldedMap folded;
  folded.found = map;
  if (map.done == 0) return folded;
  const Columns columns(radii, map.done);
  double allParticles = 0;
  for (int column = 0; column < map.done; ++column) {
    const CloudSamples samples = SamplesOf(sizes, radii.At(column));
    folded.failure = samples.failure;
    if (samples.failure != SizeFailure::None) return folded;
    const auto weights = WeightsOf(samples, columns, map.done, folded, allParticles);
    for (const auto list : {&MapPanel::value, &MapPanel::red, &MapPanel::green, &MapPanel::blue})
      FoldColumn(map, list, column, weights, folded.found);
  }
  folded.share = allParticles > 0 ? folded.share / allParticles : 0;
  return folded;
}

}  // namespace lumivex
