#include "timedomain/fourier_transform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>
#include <vector>

namespace lumivex {
namespace {

/// Numbers without any order, the same in each run.
std::vector<double> Samples(std::int32_t n, double seed) {
  std::vector<double> values(static_cast<std::size_t>(n));
  for (auto& value : values) {
    seed = std::fmod(seed * 997.13 + 0.371, 1.0);
    value = 2 * seed - 1;
  }
  return values;
}

TEST(FourierTransform, TurnsIndicesRound) {
  EXPECT_FALSE(IsPowerOfTwo(0));
  EXPECT_FALSE(IsPowerOfTwo(1));
  EXPECT_TRUE(IsPowerOfTwo(2));
  EXPECT_FALSE(IsPowerOfTwo(96));
  EXPECT_FALSE(IsPowerOfTwo(-8));
  EXPECT_TRUE(IsPowerOfTwo(1 << 30));
  EXPECT_EQ(NumberOfBitsNeeded(131072), 17);
  EXPECT_EQ(NumberOfBitsNeeded(12), 2);
  EXPECT_EQ(ReverseBits(0b0011, 4), 0b1100);
  EXPECT_EQ(ReverseBits(1, 17), 1 << 16);
  EXPECT_EQ(FrequencyOfIndex(8, 5), -0.375);
  EXPECT_EQ(FrequencyOfIndex(8, 4), 0.5);
  EXPECT_EQ(FrequencyOfIndex(8, 8), 0);
}

TEST(FourierTransform, IsTheSumOfItsDefinition) {
  for (const std::int32_t n : {2, 4, 8, 64, 512, 4096}) {
    const auto re = Samples(n, 0.3), im = Samples(n, 0.7);
    const auto size = static_cast<std::size_t>(n);
    std::vector<double> outRe(size), outIm(size);
    ASSERT_TRUE(FourierTransform(n, re, im, outRe, outIm, false));
    double largest = 0, worst = 0;
    for (std::int32_t k = 0; k<n; k += n> 512 ? 7 : 1) {
      std::complex<double> sum;
      for (std::int64_t j = 0; j < n; ++j)
        sum += std::complex(re[static_cast<std::size_t>(j)], im[static_cast<std::size_t>(j)]) *
               std::polar(1.0, 2 * std::numbers::pi * static_cast<double>(j * k % n) / n);
      const auto i = static_cast<std::size_t>(k);
      largest = std::max(largest, std::abs(sum));
      worst = std::max(worst, std::abs(sum - std::complex(outRe[i], outIm[i])));
    }
    EXPECT_LT(worst, 2e-14 * largest) << n;
  }
}

TEST(FourierTransform, ComesBack) {
  for (const std::int32_t n : {2, 128, 131072}) {
    const auto re = Samples(n, 0.2), im = Samples(n, 0.9);
    const auto size = static_cast<std::size_t>(n);
    std::vector<double> outRe(size), outIm(size), backRe(size), backIm(size);
    FourierTransform(n, re, im, outRe, outIm, false);
    FourierTransform(n, outRe, outIm, backRe, backIm, true);
    for (std::size_t i = 0; i < size; ++i) {
      ASSERT_NEAR(backRe[i], re[i], 1e-14) << i;
      ASSERT_NEAR(backIm[i], im[i], 1e-14) << i;
    }
  }
}

TEST(FourierTransform, LengthsThatAreNoPowerOfTwoLeaveTheOutputsAlone) {
  for (const std::int32_t n : {0, 1, 3, 100, -4}) {
    std::vector<double> in(100, 1.0), re(100, 5.0), im(100, 6.0);
    EXPECT_FALSE(FourierTransform(n, in, in, re, im, false)) << n;
    EXPECT_EQ(re, std::vector<double>(100, 5.0));
    EXPECT_EQ(im, std::vector<double>(100, 6.0));
  }
}

}  // namespace
}  // namespace lumivex
