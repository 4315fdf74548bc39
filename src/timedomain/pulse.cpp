#include "timedomain/pulse.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "timedomain/fourier_transform.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;

/// The value of the amplitude-modulated signal at sample i of its own clock.
double Modulated(const PulseRequest& asked, double u) {
  const double f0 = asked.carrier, fm = asked.modulation;
  return 0.5 * std::cos(2 * pi * f0 * u) + 0.25 * std::cos(2 * pi * (f0 + fm) * u) +
         0.25 * std::cos(2 * pi * (f0 - fm) * u);
}

void FillSamples(Pulse& pulse) {
  const PulseRequest& asked = pulse.asked;
  const auto n = static_cast<std::size_t>(asked.length);
  pulse.real.assign(n, 0.0);
  pulse.imag.assign(n, 0.0);
  if (asked.form == PulseForm::FM) {
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / asked.sampleRate;
      const double phase =
          2 * pi * asked.carrier * u + asked.deviation / asked.modulation * std::cos(2 * pi * asked.modulation * u);
      pulse.real[i] = std::cos(phase);
      pulse.imag[i] = std::sin(phase);
    }
    return;
  }
  for (std::size_t i = 0; i <= n / 2; ++i) {
    const double t = static_cast<double>(i) * pulse.step;
    const double value = asked.form == PulseForm::AM
                             ? Modulated(asked, static_cast<double>(i) / asked.sampleRate)
                             : PulseEnvelope(asked.form, t, asked.duration) * std::cos(2 * pi * t / pulse.period);
    if (i < n / 2) pulse.real[n / 2 + i] = value;
    pulse.real[n / 2 - i] = value;
  }
}

void FindBand(Pulse& pulse) {
  const std::int32_t n = pulse.asked.length;
  for (std::int32_t k = 0; k <= n / 2; ++k) {
    const double magnitude = pulse.Magnitude(k);
    if (magnitude > pulse.peak) {
      pulse.peak = magnitude;
      pulse.peakIndex = k;
    }
  }
  pulse.centre = n / 4 / pulse.asked.sampling;
  const double limit = std::pow(10.0, pulse.asked.cutOff / 20) * pulse.peak;
  std::int32_t low = 0;
  while (low <= n / 4 && !(pulse.Magnitude(low) > limit)) ++low;
  // A band that begins at 0 has no longest wavelength, and one of less than four steps no form.
  if (low < 1 || low > pulse.centre || pulse.centre < 4) return;
  pulse.low = low;
  pulse.high = 2 * pulse.centre - low;
  pulse.valid = true;
}

}  // namespace

double Pulse::Magnitude(std::int32_t k) const {
  const auto i = static_cast<std::size_t>(k);
  return std::hypot(outReal[i], outImag[i]);
}

double PulseEnvelope(PulseForm form, double t, double duration) {
  const double share = t / duration;
  switch (form) {
    case PulseForm::Rectangular:
      return share < 0.5 ? 1.0 : 0.0;
    case PulseForm::RaisedCosine:
      return share < 1 ? 0.5 * (std::cos(pi * share) + 1) : 0.0;
    case PulseForm::Hamming:
      return share < 1 ? 0.46 * std::cos(pi * share) + 0.54 : 0.0;
    case PulseForm::Gaussian:
      return std::exp(4 * std::log(0.5) * share * share);
    case PulseForm::AM:
    case PulseForm::FM:
      break;
  }
  return 1.0;
}

double SampleStep(const PulseRequest& request) {
  return request.wavelength / lightSpeed / 4 / request.sampling;
}

std::vector<double> CorrelationOf(const Pulse& pulse) {
  const std::int32_t n = pulse.asked.length, middle = n / 2;
  const auto lags = static_cast<std::int32_t>(std::min(pulse.asked.duration / pulse.step, middle - 1.0));
  std::vector<double> factors;
  for (std::int32_t k = pulse.low; k <= pulse.high && pulse.valid; ++k) {
    double sum = pulse.real[static_cast<std::size_t>(middle)];
    for (std::int32_t m = 1; m <= lags; ++m) {
      const auto turns = static_cast<double>(std::int64_t{m} * k % n) / n;
      sum += 2 * pulse.real[static_cast<std::size_t>(middle + m)] * std::cos(2 * pi * turns);
    }
    factors.push_back(sum);
  }
  return factors;
}

Pulse BuildPulse(const PulseRequest& request) {
  Pulse pulse;
  pulse.asked = request;
  pulse.period = request.wavelength / lightSpeed;
  pulse.step = SampleStep(request);
  pulse.window = pulse.step * request.length;
  FillSamples(pulse);
  pulse.outReal.resize(pulse.real.size());
  pulse.outImag.resize(pulse.real.size());
  FourierPlan(request.length).Transform(pulse.real, pulse.imag, pulse.outReal, pulse.outImag);
  FindBand(pulse);
  return pulse;
}

}  // namespace lumivex
