#pragma once

#include <string>
#include <variant>
#include <vector>

#include "particles/size_models.h"

namespace lumivex {

/// Equally probable sizes about a mean: r (1 + sd z), or with `logarithmic` r (1 + sd)^z.
struct NormalSizes {
  std::vector<float> z;   ///< points of the standard normal distribution, first index 1
  double relativeSD = 0;  ///< standard deviation over the mean radius
  bool logarithmic = true;
  bool operator==(const NormalSizes&) const = default;
};
/// A gamma distribution of the run's radius as effective radius.
struct GammaShape {
  double shape = 2;
  bool operator==(const GammaShape&) const = default;
};
/// A model cut into samples.
struct ModelSizes {
  std::variant<SizeModel, GammaShape> model;
  int samples = 20;
  SizeSteps steps = SizeSteps::Ratio;
  bool operator==(const ModelSizes&) const = default;
};
/// A table from a file.
struct FileSizes {
  std::vector<double> radius;  ///< um, first index 1
  std::vector<double> number;
  float lowest = 0, highest = 0;
  bool loaded = false;
  bool actual = false;  ///< results stand for the numbers in the table, not for one particle
  std::vector<double> upper =
      {};                 ///< upper ends of the classes whose middles are the radii (um); empty without classes
  std::string name = {};  ///< of the file
  bool operator==(const FileSizes&) const = default;
};

/// The sizes of a cloud: one radius, or a distribution.
struct OneSize {
  bool operator==(const OneSize&) const = default;
};
using SizeDistribution = std::variant<OneSize, NormalSizes, ModelSizes, FileSizes>;

/// Why a distribution cannot be used; the part of it that is to blame.
enum class SizeFailure { None, NegativeRadius, NoFile, BadGamma, BadModes };

/// The samples of a distribution; first index 1.
struct CloudSamples {
  std::vector<double> radius;  ///< um
  std::vector<double> weight;  ///< shares or numbers of particles
  double outside = 0;          ///< particles beyond the samples, in the same measure: they count and scatter nothing
  float lowest = 0, highest = 0;
  double ratio = 1;  ///< of neighbouring radii; 1 with equal steps
  SizeFailure failure = SizeFailure::None;

  int Count() const { return radius.empty() ? 0 : static_cast<int>(radius.size()) - 1; }
};

/// Samples about a radius (um), which models and files of their own sizes do not look at.
CloudSamples SamplesOf(const SizeDistribution& sizes, double radius);

/// What is told of a failure.
const char* WordsFor(SizeFailure failure);

/// Whether there is more than one size.
inline bool IsCloud(const SizeDistribution& sizes) {
  return !std::holds_alternative<OneSize>(sizes);
}

}  // namespace lumivex
