#include "runs/pulse_band.h"

#include <algorithm>
#include <cmath>

#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

/// Of times and steps: what a user sees of them has two decimals.
constexpr double roundingOfStep = 0.0051;
/// Of a sample: what sums of steps leave.
constexpr double slack = 1e-6;

void Correlate(Pulse& pulse) {
  const std::vector<double> factors = CorrelationOf(pulse);
  for (std::size_t i = 0; i < factors.size(); ++i) {
    const std::size_t k = static_cast<std::size_t>(pulse.low) + i;
    pulse.outReal[k] *= factors[i];
    pulse.outImag[k] *= factors[i];
  }
}

}  // namespace

std::vector<double> PulseBand::WorkBefore() const {
  // What the coefficients of a term cost, in pairs of angles, does not change from term to term.
  std::vector<double> before = {0};
  for (const Setting& setting : settings) before.push_back(before.back() + NStopEstimate(setting.x));
  const double all = before.back();
  for (double& share : before) share = all > 0 ? share / all : 0;
  return before;
}

PulseBand BandOf(const RunRequest& request, const PulsedLight& light) {
  PulseBand band;
  band.pulse = BuildPulse(light.pulse);
  if (!band.pulse.valid) {
    band.refusal = {"Pulse shape problem", "Select another pulse shape or higher cut-off"};
    return band;
  }
  if (light.correlated) Correlate(band.pulse);
  const auto at = [&](double lambda) {
    SettingResult found = SettingAt(request, lambda);
    if (!found.Good() && band.Good()) band.refusal = std::move(found.refusal);
    return found.setting;
  };
  band.middle = at(light.pulse.wavelength);
  band.settings.reserve(static_cast<std::size_t>(band.pulse.Bands()));
  for (std::int32_t k = band.pulse.low; k <= band.pulse.high && band.Good(); ++k)
    band.settings.push_back(at(band.pulse.Wavelength(k)));
  return band;
}

ResponseClock ClockOf(const PulsedLight& light, double radius, double medium) {
  const PulseRequest& pulse = light.pulse;
  return {SampleStep(pulse), pulse.length, 2 * radius * medium / lightSpeed, light.fromCentre};
}

double WindowWanted(double diameterTime, double m) {
  return diameterTime * (1 + 4 * m);
}

SampleTimes SamplesBetween(const ResponseClock& clock, double low, double high) {
  // Times of samples are a part of a step away from its multiples; the window holds each sample once.
  const double step = clock.step, start = clock.fromCentre ? -clock.Window() / 2 : 0;
  const double part = clock.fromCentre ? 0 : std::fmod(clock.diameterTime, step);
  // Limits that are shown rounded hold the samples that stand at them.
  const double asked = std::ceil((low - roundingOfStep - part) / step);
  const double first = std::max(asked, std::ceil((start - part) / step - slack));
  const double end = std::min(high + roundingOfStep, start + clock.Window() - slack * step);
  const double last = std::floor((end - part) / step);
  if (!(last >= first)) return {};
  const auto most = static_cast<double>(clock.length);
  return {part + first * step, static_cast<int>(std::min(last - first + 1, most))};
}

AxisRun WholeWindow(const RunRequest& request, const PulsedLight& light, double angle) {
  const Setting middle = SettingAt(request, light.pulse.wavelength).setting;
  const ResponseClock clock = ClockOf(light, middle.radius, middle.indices.MediumInUse());
  const SampleTimes samples = SamplesBetween(clock, -clock.Window(), clock.Window());
  AxisRun axis;
  axis.points = samples.count;
  axis.step = clock.step;
  axis.xmin = samples.first;
  axis.xmax = samples.first + (samples.count - 1) * clock.step;
  axis.angle = angle;
  axis.pulse = light;
  return axis;
}

Sweep TimeColumns(const ResponseClock& clock, double low, double high, double step) {
  if (step <= clock.step + roundingOfStep) {
    const SampleTimes samples = SamplesBetween(clock, low, high);
    const int steps = std::max(samples.count - 1, 0);
    return {Swept::Time, samples.first, samples.first + steps * clock.step, steps};
  }
  // Before the window there is nothing but its end.
  const double start = std::max(low, clock.fromCentre ? -clock.Window() / 2 : 0.0);
  const int steps = std::max(static_cast<int>(std::floor((high - start) / step + slack)), 0);
  return {Swept::Time, start, start + steps * step, steps};
}

}  // namespace lumivex
