#include "axes/curve_smoothing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumivex {
namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

/// A pattern like that of a large drop: ten decades down from the forward peak, with fine structure and a gap.
std::vector<double> Pattern(std::size_t rows) {
  std::vector<double> y(rows + 1, 0);
  for (std::size_t i = 1; i <= rows; ++i) {
    const double part = static_cast<double>(i - 1) / static_cast<double>(rows);
    y[i] = 1e10 * std::exp(-200 * part) + 1.1 + std::sin(300.0 * part);
  }
  for (std::size_t i = rows / 3; i < rows / 3 + 5; ++i) y[i] = notComputed;
  return y;
}

/// The definition, with more digits.
double MeanAt(const std::vector<double>& y, std::size_t i, double w, std::size_t first, std::size_t last) {
  const double middle = static_cast<double>(i);
  long double sum = 0;
  int count = 0;
  for (std::size_t j = first; j <= last; ++j) {
    const double at = static_cast<double>(j);
    if (at < std::floor(middle - w / 2) || at > std::floor(middle + w / 2) || !std::isfinite(y[j])) continue;
    sum += y[j];
    ++count;
  }
  return static_cast<double>(sum / count);
}

TEST(RunningMeans, AreThoseOfTheirWindowsToTheLastDigits) {
  const std::vector<double> y = Pattern(700);
  for (const double w : {1.0, 2.0, 2.5, 3.0, 50.0, 51.3, 699.0, 700.0, 1399.0, 1e9})
    for (const auto& [first, last] : {std::pair<std::size_t, std::size_t>{1, 700}, {37, 613}, {200, 201}}) {
      const auto means = RunningMeans(y, w, first, last);
      ASSERT_EQ(means.size(), y.size());
      for (std::size_t i = 1; i < y.size(); ++i) {
        const bool averaged = i >= first && i <= last && std::isfinite(y[i]);
        if (!std::isfinite(y[i])) {
          EXPECT_TRUE(std::isnan(means[i])) << i;
        } else {
          // Differences of sums from the first row on would keep six digits of the smallest values.
          const double expected = averaged ? MeanAt(y, i, w, first, last) : y[i];
          EXPECT_NEAR(means[i] / expected, 1, 1e-13) << "row " << i << " width " << w << " from " << first;
        }
      }
    }
  EXPECT_EQ(RunningMeans(y, 0, 1, 700)[5], y[5]);
  EXPECT_TRUE(RunningMeans({}, 5, 1, 0).empty());
}

// A sum over each window by itself takes half a minute.
TEST(RunningMeans, TakeNoLongerForWideWindows) {
  const std::vector<double> y = Pattern(180001);
  const auto means = RunningMeans(y, 180000, 1, 180001);
  EXPECT_NEAR(means[1] / MeanAt(y, 1, 180000, 1, 180001), 1, 1e-12);
  EXPECT_NEAR(means[180001] / MeanAt(y, 180001, 180000, 1, 180001), 1, 1e-12);
}

TEST(FoldedWithDisc, ReflectsAtBothEndsAndKeepsGaps) {
  const DiscWeights disc = SunDiscWeights(0.05, false);
  ASSERT_EQ(disc.rows, 5);
  std::vector<double> y = Pattern(5000);
  for (const std::size_t mirror : {std::size_t{5000}, std::size_t{0}}) {
    const auto folded = FoldedWithDisc(y, disc, mirror);
    for (long i = 1; i <= 5000; ++i) {
      long double sum = static_cast<long double>(disc.weight[0]) * y[static_cast<std::size_t>(i)];
      for (long j = 1; j <= disc.rows; ++j)
        for (long row : {i + j, i - j}) {
          if (row < 1) row = 2 - row;
          if (mirror > 0 && row > 5000) row = 10000 - row;
          sum += row > 5000 ? notComputed
                            : static_cast<long double>(disc.weight[static_cast<std::size_t>(j)]) *
                                  y[static_cast<std::size_t>(row)];
        }
      const double expected = static_cast<double>(sum / disc.total);
      if (std::isnan(expected))
        EXPECT_TRUE(std::isnan(folded[static_cast<std::size_t>(i)])) << i;
      else
        EXPECT_NEAR(folded[static_cast<std::size_t>(i)] / expected, 1, 1e-14) << i;
    }
  }
}

}  // namespace
}  // namespace lumivex
