#include "timedomain/impulse_response.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/mie_coefficients.h"
#include "timedomain/ray_times.h"

namespace lumivex {
namespace {

PulseRequest Asked(PulseForm form, double duration, double cutOff, std::int32_t length = 2048,
                   std::int32_t sampling = 1) {
  PulseRequest asked;
  asked.form = form;
  asked.duration = duration;
  asked.cutOff = cutOff;
  asked.length = length;
  asked.sampling = sampling;
  return asked;
}

TEST(Pulse, BandsOfTheForms) {
  const struct {
    PulseForm form;
    double duration, cutOff;
    std::int32_t low, high;
    double peak;
  } known[] = {
      {PulseForm::Gaussian, 5, -20, 334, 690, 4.912925},       {PulseForm::Gaussian, 5, -40, 260, 764, 4.912925},
      {PulseForm::Gaussian, 5, -60, 203, 821, 4.912925},       {PulseForm::Gaussian, 2, -20, 26, 998, 0},
      {PulseForm::RaisedCosine, 20, -20, 467, 557, 18.461492}, {PulseForm::Hamming, 20, -20, 470, 554, 19.944573},
      {PulseForm::Rectangular, 20, -20, 367, 657, 19}};
  for (const auto& row : known) {
    const Pulse pulse = BuildPulse(Asked(row.form, row.duration, row.cutOff));
    EXPECT_TRUE(pulse.valid);
    EXPECT_EQ(pulse.low, row.low);
    EXPECT_EQ(pulse.high, row.high);
    if (row.peak > 0) {
      EXPECT_NEAR(pulse.peak, row.peak, 1e-6);
    }
  }
  const Pulse pulse = BuildPulse(Asked(PulseForm::Gaussian, 5, -40));
  EXPECT_NEAR(1000 * pulse.Wavelength(pulse.high), 435.60, 5e-3);
  EXPECT_NEAR(1000 * pulse.Wavelength(pulse.low), 1280.00, 5e-3);
  EXPECT_NEAR(pulse.real[1026], -0.877957021, 1e-9);
  EXPECT_NEAR(pulse.real[1028], 0.594145792, 1e-9);
  EXPECT_NEAR(pulse.Magnitude(400), 1.983269, 1e-6);
  EXPECT_NEAR(pulse.Magnitude(300), 0.190468, 1e-6);
  const Pulse fine = BuildPulse(Asked(PulseForm::Gaussian, 5, -20, 2048, 4));
  EXPECT_EQ(fine.low, 84);
  EXPECT_EQ(fine.high, 172);
  EXPECT_NEAR(fine.window, 277.333, 1e-3);
}

TEST(Pulse, CutOffsThatAreTooLow) {
  EXPECT_FALSE(BuildPulse(Asked(PulseForm::Gaussian, 2, -30)).valid);
  EXPECT_FALSE(BuildPulse(Asked(PulseForm::Rectangular, 20, -30)).valid);
  EXPECT_FALSE(BuildPulse(Asked(PulseForm::Rectangular, 2, -20)).valid);  // one sample: white
  EXPECT_FALSE(BuildPulse(Asked(PulseForm::Gaussian, 50, -20, 128, 16)).valid);
  const Pulse modulated = BuildPulse(Asked(PulseForm::AM, 5, -20));
  EXPECT_FALSE(modulated.valid);
  EXPECT_EQ(modulated.peakIndex, 1024);
  EXPECT_GT(modulated.Magnitude(992), 0.4 * modulated.peak);
  EXPECT_FALSE(BuildPulse(Asked(PulseForm::FM, 5, -20)).valid);
}

TEST(ImpulseResponse, AnAmplitudeOfOneGivesBackThePulse) {
  const Pulse pulse = BuildPulse(Asked(PulseForm::Gaussian, 5, -40));
  const ImpulseResponse response(pulse);
  const auto bands = static_cast<std::size_t>(response.Bands());
  std::vector<double> one(bands, 1.0), zero(bands, 0.0), re(2048), im(2048);
  ImpulseResponse::Scratch scratch;
  response.Respond(one, zero, re, im, scratch);
  EXPECT_NEAR(re[1024] * re[1024] + im[1024] * im[1024], 0.9952, 5e-5);
  double sum = 0, spectrum = 0;
  for (std::size_t j = 0; j < 2048; ++j) sum += re[j] * re[j] + im[j] * im[j];
  for (std::int32_t k = pulse.low; k <= pulse.high; ++k) spectrum += std::pow(pulse.Magnitude(k), 2);
  EXPECT_NEAR(sum, 4.0 / 2048 * spectrum, 1e-12 * sum);
}

/// Amplitudes of a 10 um drop of index 1.333 over the band of a pulse, at one angle.
struct Band {
  std::vector<double> re1, im1, re2, im2;
};

Band AmplitudesOf(const Pulse& pulse, double degreesAngle) {
  Band band;
  SilentMonitor monitor;
  const double angle = degreesAngle * std::numbers::pi / 180;
  for (std::int32_t k = pulse.low; k <= pulse.high; ++k) {
    const double x = 2 * std::numbers::pi * 10.0 / pulse.Wavelength(k);
    const PartialWaves waves = MieCoefficients(x, 1.333, 0.0, ComputeMieTruncation(x, 1.333, 0.0, false, false));
    AmplitudeTable S1(1), S2(1);
    SumAngularSeries(waves, std::span(&angle, 1), S1, S2, monitor);
    band.re1.push_back(S1.Re(1));
    band.im1.push_back(S1.Im(1));
    band.re2.push_back(S2.Re(1));
    band.im2.push_back(S2.Im(1));
  }
  return band;
}

TEST(ImpulseResponse, ADropAnswersAlongItsRays) {
  const Pulse pulse = BuildPulse(Asked(PulseForm::Gaussian, 5, -40, 4096));
  ASSERT_EQ(pulse.low, 520);
  ASSERT_EQ(pulse.high, 1528);
  const ImpulseResponse response(pulse);
  ImpulseResponse::Scratch scratch;
  const struct {
    double angle;
    std::int32_t j;
    double perpendicular, parallel;
  } known[] = {{10, 2037, 7010.85, 5220.45},  {10, 2091, 29714.70, 30180.30}, {60, 1986, 267.108, 10.2125},
               {60, 2132, 818.420, 1420.05},  {90, 1961, 123.187, 6.52112},   {120, 1941, 71.9098, 27.3516},
               {180, 2253, 182.268, 182.268}, {180, 2281, 1224.405, 1224.405}};
  double last = -1;
  std::vector<double> r1(4096), i1(4096), r2(4096), i2(4096);
  for (const auto& row : known) {
    if (row.angle != last) {
      const Band band = AmplitudesOf(pulse, row.angle);
      response.Respond(band.re1, band.im1, r1, i1, scratch);
      response.Respond(band.re2, band.im2, r2, i2, scratch);
      last = row.angle;
    }
    const auto j = static_cast<std::size_t>(row.j);
    EXPECT_NEAR(r1[j] * r1[j] + i1[j] * i1[j], row.perpendicular, 2e-5 * row.perpendicular) << row.angle;
    EXPECT_NEAR(r2[j] * r2[j] + i2[j] * i2[j], row.parallel, 2e-5 * row.parallel) << row.angle;
  }
  EXPECT_NEAR(r1[2281], -23.2809, 1e-3);
  EXPECT_NEAR(i1[2281], 26.1228, 1e-3);
}

TEST(ResponseClock, CountsFromTheFrontOfTheSphere) {
  ResponseClock clock{13.0 / 24, 4096, 66.6667, false};
  EXPECT_NEAR(clock.TimeOf(2281), 192.87, 1e-2);
  EXPECT_EQ(clock.SampleAt(clock.TimeOf(2281)), 2281);
  for (const std::int32_t j : {0, 1, 1924, 1925, 1926, 2048, 4095}) EXPECT_EQ(clock.SampleAt(clock.TimeOf(j)), j);
  EXPECT_GE(clock.TimeOf(0), 0);
  clock.fromCentre = true;
  EXPECT_EQ(clock.TimeOf(2048), 0);
  EXPECT_EQ(clock.SampleAt(-13.0 / 24), 2047);
}

}  // namespace
}  // namespace lumivex
