#include "particles/size_distribution.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace lumivex {

namespace {

CloudSamples Failed(SizeFailure failure) {
  CloudSamples samples;
  samples.failure = failure;
  return samples;
}

/// Every sample stands for the same share.
CloudSamples Sample(const NormalSizes& sizes, double mean) {
  if (sizes.z.size() < 2) return Failed(SizeFailure::NegativeRadius);
  CloudSamples samples;
  const std::size_t rows = sizes.z.size();
  samples.radius.assign(rows, 0);
  samples.weight.assign(rows, 1.0 / static_cast<double>(rows - 1));
  samples.weight[0] = 0;
  for (std::size_t i = 1; i < rows; ++i) {
    const double z = sizes.z[i];
    samples.radius[i] =
        sizes.logarithmic ? mean * std::pow(1 + sizes.relativeSD, z) : mean * (1 + z * sizes.relativeSD);
  }
  const auto [low, high] = std::minmax_element(samples.radius.begin() + 1, samples.radius.end());
  samples.lowest = static_cast<float>(*low);
  samples.highest = static_cast<float>(*high);
  if (!(*low > 0 && std::isfinite(*high))) samples.failure = SizeFailure::NegativeRadius;
  return samples;
}

CloudSamples Sample(const FileSizes& sizes) {
  if (!sizes.loaded) return Failed(SizeFailure::NoFile);
  CloudSamples samples;
  samples.radius = sizes.radius;
  samples.weight = sizes.number;
  samples.lowest = sizes.lowest;
  samples.highest = sizes.highest;
  return samples;
}

CloudSamples Sample(const ModelSizes& sizes, double radius) {
  SizeModel model;
  if (const auto* gamma = std::get_if<GammaShape>(&sizes.model)) {
    const auto found = GammaOfShape(gamma->shape, radius);
    if (!found) return Failed(SizeFailure::BadGamma);
    model = *found;
  } else {
    model = std::get<SizeModel>(sizes.model);
    if (const auto* modes = std::get_if<std::vector<SizeMode>>(&model); modes && !AreUsable(*modes))
      return Failed(SizeFailure::BadModes);
  }
  SizeSamples found = SampleModel(model, sizes.samples, sizes.steps);
  CloudSamples samples;
  samples.radius = std::move(found.radius);
  samples.weight = std::move(found.weight);
  samples.outside = found.outside;
  samples.lowest = found.lowest;
  samples.highest = found.highest;
  samples.ratio = found.ratio;
  return samples;
}

}  // namespace

CloudSamples SamplesOf(const SizeDistribution& sizes, double radius) {
  if (const auto* normal = std::get_if<NormalSizes>(&sizes)) return Sample(*normal, radius);
  if (const auto* file = std::get_if<FileSizes>(&sizes)) return Sample(*file);
  if (const auto* model = std::get_if<ModelSizes>(&sizes)) return Sample(*model, radius);
  CloudSamples one;
  one.radius = {0, radius};
  one.weight = {0, 1};
  one.lowest = one.highest = static_cast<float>(radius);
  return one;
}

const char* WordsFor(SizeFailure failure) {
  switch (failure) {
    case SizeFailure::NegativeRadius:
      return "Reduce standard deviation to avoid negative values of radius";
    case SizeFailure::NoFile:
      return "Size distribution: read a file first";
    case SizeFailure::BadGamma:
      return "Gamma distribution: shape and radius must be positive";
    case SizeFailure::BadModes:
      return "Multimodal distribution: median radii must be positive, spreads above 1, fractions not negative";
    case SizeFailure::None:
      break;
  }
  return "";
}

}  // namespace lumivex
