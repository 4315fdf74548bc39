#include "particles/size_models.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "particles/gamma_function.h"

namespace lumivex {

namespace {

constexpr double leftOut = 1e-4;  ///< share of the sum of r^2 outside the range, half at each end

constexpr std::array maritime = {SizeMode{0.0039, 4.5394, 0.656272}, SizeMode{0.133, 1.6218, 0.328629},
                                 SizeMode{0.29, 2.4889, 0.015099}};
constexpr std::array rural = {SizeMode{0.00739, 1.6788, 0.756800}, SizeMode{0.0269, 3.6058, 0.016729},
                              SizeMode{0.0419, 1.8450, 0.226471}};

double Normal(double z) {
  return std::erfc(-z / std::sqrt(2.0)) / 2;
}

double ModeDensity(const SizeMode& mode, double radius) {
  const double width = std::log(mode.spread);
  const double z = std::log(radius / mode.median) / width;
  return mode.fraction * std::exp(-z * z / 2) / (width * radius);
}

/// Logarithm of a mode's mean of r^2, times its number.
double LogArea(const SizeMode& mode) {
  const double width = std::log(mode.spread);
  return std::log(mode.fraction) + 2 * std::log(mode.median) + 2 * width * width;
}

/// The radius below which a share of the sum of r^2 lies, by halving in ln r.
double Quantile(const SizeModel& model, double share) {
  double low = std::log(1e-9), high = std::log(1e9);
  for (int i = 0; i < 100; ++i) {
    const double middle = (low + high) / 2;
    (AreaBelow(model, std::exp(middle)) < share ? low : high) = middle;
  }
  return std::exp((low + high) / 2);
}

}  // namespace

std::optional<GammaSizes> GammaOfShape(double shape, double effectiveRadius) {
  constexpr double steepest = 1e4;  // narrower than any step of the samples
  if (!(shape > 0 && shape <= steepest && effectiveRadius > 0)) return std::nullopt;
  return GammaSizes{shape - 1, (shape + 2) / effectiveRadius, 1};
}

std::vector<SizeMode> AerosolModes(std::string_view name) {
  if (name == "Aerosol m0") return {maritime.begin(), maritime.end()};
  if (name == "Aerosol m6") return {rural.begin(), rural.end()};
  return {};
}

bool AreUsable(const std::vector<SizeMode>& modes) {
  double number = 0;
  for (const auto& mode : modes) {
    if (!(mode.median > 0 && mode.spread > 1 && mode.fraction >= 0)) return false;
    number += mode.fraction;
  }
  return number > 0 && std::isfinite(number);
}

double NumberDensity(const SizeModel& model, double radius) {
  if (const auto* gamma = std::get_if<GammaSizes>(&model)) {
    // In logarithms, from the largest value: high powers neither overflow nor vanish.
    const double peak = gamma->alpha > 0 ? std::pow(gamma->alpha / (gamma->b * gamma->gamma), 1 / gamma->gamma) : 0;
    const auto logarithm = [gamma](double r) {
      return gamma->alpha * std::log(r) - gamma->b * std::pow(r, gamma->gamma);
    };
    return std::exp(logarithm(radius) - (peak > 0 ? logarithm(peak) : 0));
  }
  double sum = 0;
  for (const auto& mode : std::get<std::vector<SizeMode>>(model)) sum += ModeDensity(mode, radius);
  return sum;
}

double NumberBelow(const SizeModel& model, double radius) {
  if (const auto* gamma = std::get_if<GammaSizes>(&model))
    return GammaDistributionBelow((gamma->alpha + 1) / gamma->gamma, gamma->b * std::pow(radius, gamma->gamma));
  double below = 0, all = 0;
  for (const auto& mode : std::get<std::vector<SizeMode>>(model)) {
    below += mode.fraction * Normal(std::log(radius / mode.median) / std::log(mode.spread));
    all += mode.fraction;
  }
  return below / all;
}

double AreaBelow(const SizeModel& model, double radius) {
  if (const auto* gamma = std::get_if<GammaSizes>(&model))
    return GammaDistributionBelow((gamma->alpha + 3) / gamma->gamma, gamma->b * std::pow(radius, gamma->gamma));
  const auto& modes = std::get<std::vector<SizeMode>>(model);
  // From the largest, so that wide modes do not overflow.
  double largest = -std::numeric_limits<double>::infinity();
  for (const auto& mode : modes)
    if (mode.fraction > 0) largest = std::max(largest, LogArea(mode));
  double below = 0, all = 0;
  for (const auto& mode : modes) {
    if (!(mode.fraction > 0)) continue;
    const double area = std::exp(LogArea(mode) - largest), width = std::log(mode.spread);
    // r^2 times a log-normal mode is one again, about a larger median.
    below += area * Normal(std::log(radius / mode.median) / width - 2 * width);
    all += area;
  }
  return below / all;
}

SizeSamples SampleModel(const SizeModel& model, int count, SizeSteps steps) {
  SizeSamples samples;
  samples.lowest = static_cast<float>(Quantile(model, leftOut / 2));
  samples.highest = static_cast<float>(Quantile(model, 1 - leftOut / 2));
  const double low = samples.lowest, high = samples.highest;
  const double step = (high - low) / count;
  samples.ratio = steps == SizeSteps::Ratio ? std::pow(high / low, 1.0 / count) : 1;
  const double relativeWidth = std::sqrt(samples.ratio) - 1 / std::sqrt(samples.ratio);
  const auto rows = static_cast<std::size_t>(count) + 1;
  samples.radius.assign(rows, 0);
  samples.weight.assign(rows, 0);
  double total = 0;
  for (std::size_t i = 1; i < rows; ++i) {
    const double middle = static_cast<double>(i) - 0.5;
    const bool ratio = steps == SizeSteps::Ratio;
    const double r = ratio ? low * std::pow(samples.ratio, middle) : low + middle * step;
    samples.radius[i] = r;
    samples.weight[i] = NumberDensity(model, r) * (ratio ? r * relativeWidth : step);
    total += samples.weight[i];
  }
  if (!(total > 0)) {
    // A mode so wide that its area lies beyond all radii: the samples stand at the end, for others to refuse.
    std::fill(samples.weight.begin() + 1, samples.weight.end(), 1.0 / count);
    return samples;
  }
  const double inside = NumberBelow(model, high) - NumberBelow(model, low);
  samples.outside = 1 - inside;
  for (double& weight : samples.weight) weight *= inside / total;
  return samples;
}

}  // namespace lumivex
