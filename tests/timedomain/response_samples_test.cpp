#include "timedomain/response_samples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "timedomain/impulse_response.h"

namespace lumivex {
namespace {

struct RandomBand {
  explicit RandomBand(const Pulse& pulse) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> spread(-1, 1);
    for (std::int32_t k = pulse.low; k <= pulse.high; ++k) {
      singleRe.push_back(static_cast<float>(spread(random)));
      singleIm.push_back(static_cast<float>(spread(random)));
      re.push_back(double{singleRe.back()});
      im.push_back(double{singleIm.back()});
    }
  }
  std::vector<float> singleRe, singleIm;
  std::vector<double> re, im;
};

PulseRequest Asked(std::int32_t length, double cutOff, std::int32_t sampling = 1) {
  PulseRequest asked;
  asked.length = length;
  asked.cutOff = cutOff;
  asked.sampling = sampling;
  return asked;
}

TEST(ResponseSamples, PaddedBandsGiveTheSamplesOfTheWholeTransform) {
  struct Case {
    PulseRequest asked;
    std::int32_t length;
    std::int32_t step;
    std::size_t transforms;
  };
  for (const Case& row :
       {Case{Asked(2048, -20), 512, 1, 4}, Case{Asked(2048, -20), 512, 8, 1}, Case{Asked(2048, -20), 512, 6, 2},
        Case{Asked(2048, -60), 1024, 1, 2}, Case{Asked(1024, -20, 4), 64, 1, 16}, Case{Asked(128, -20), 32, 3, 4}}) {
    const Pulse pulse = BuildPulse(row.asked);
    ASSERT_TRUE(pulse.valid);
    const RandomBand band(pulse);
    std::vector<std::int32_t> samples;
    for (std::int32_t j = 0; j < row.asked.length; j += row.step) samples.push_back(j);
    std::reverse(samples.begin(), samples.end());
    const ResponseSamples some(pulse, samples);
    EXPECT_EQ(some.Length(), row.length);
    EXPECT_EQ(some.Transforms(), row.transforms) << row.asked.length << " " << row.step;
    std::vector<double> intensities(samples.size());
    ResponseSamples::Scratch scratch;
    some.Intensities(band.singleRe, band.singleIm, intensities, scratch);
    const auto n = static_cast<std::size_t>(row.asked.length);
    std::vector<double> re(n), im(n);
    ImpulseResponse::Scratch all;
    ImpulseResponse(pulse).Respond(band.re, band.im, re, im, all);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const auto j = static_cast<std::size_t>(samples[i]);
      EXPECT_NEAR(intensities[i], re[j] * re[j] + im[j] * im[j], 1e-13) << row.asked.length << " " << j;
    }
  }
}

/// The sum over lags that the factors of the band stand for.
TEST(Pulse, CorrelationOfABandIsTheSumOverLags) {
  const Pulse pulse = BuildPulse(Asked(512, -30));
  ASSERT_TRUE(pulse.valid);
  const RandomBand band(pulse);
  const std::vector<double> factors = CorrelationOf(pulse);
  ASSERT_EQ(factors.size(), band.re.size());
  std::vector<double> times = band.re, timesIm = band.im;
  for (std::size_t i = 0; i < factors.size(); ++i) times[i] *= factors[i], timesIm[i] *= factors[i];
  std::vector<double> re(512), im(512), correlated(512), correlatedIm(512);
  ImpulseResponse response(pulse);
  ImpulseResponse::Scratch scratch;
  response.Respond(band.re, band.im, re, im, scratch);
  response.Respond(times, timesIm, correlated, correlatedIm, scratch);
  const int lags = static_cast<int>(pulse.asked.duration / pulse.step);
  EXPECT_EQ(lags, 9);
  for (int j = 0; j < 512; j += 37) {
    double sum = 0, sumIm = 0;
    for (int m = -lags; m <= lags; ++m) {
      const auto at = static_cast<std::size_t>((j + m + 512) % 512), p = static_cast<std::size_t>(256 + m);
      sum += re[at] * pulse.real[p];
      sumIm += im[at] * pulse.real[p];
    }
    EXPECT_NEAR(correlated[static_cast<std::size_t>(j)], sum, 1e-12);
    EXPECT_NEAR(correlatedIm[static_cast<std::size_t>(j)], sumIm, 1e-12);
  }
}

}  // namespace
}  // namespace lumivex
