#include "solvers/layers/index_profile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace lumivex {

namespace {

/// From n1 to n2 between r1 and r2, along half a cosine.
double HalfCosine(double r, double r1, double n1, double r2, double n2) {
  return (n1 + n2) / 2 + (n1 - n2) / 2 * std::cos(std::numbers::pi * (r - r1) / (r2 - r1));
}

double MiddleOf(int layer, int layers) {
  return (layer - 0.5) / layers;
}

}  // namespace

int ParameterCount(ProfileShape shape) {
  switch (shape) {
    case ProfileShape::ThreeLayer:
      return 8;
    case ProfileShape::ModifiedLuneburg:
      return 1;
    case ProfileShape::Luneburg:
      return 2;
    default:
      return 4;
  }
}

double IndexAt(const IndexProfile& profile, double r) {
  const auto& v = profile.parameters;
  switch (profile.shape) {
    case ProfileShape::Linear:
      if (r < v[0]) return v[1];
      return r < v[2] ? v[1] + (r - v[0]) * (v[3] - v[1]) / (v[2] - v[0]) : v[3];
    case ProfileShape::Cosine:
      if (r < v[0]) return v[1];
      return r < v[2] ? HalfCosine(r, v[0], v[1], v[2], v[3]) : v[3];
    case ProfileShape::ThreeLayer:
      if (r < v[0]) return v[1];
      for (std::size_t i = 0; i < 6; i += 2) {
        if (r < v[i + 2]) return HalfCosine(r, v[i], v[i + 1], v[i + 2], v[i + 3]);
      }
      return v[7];
    case ProfileShape::ModifiedLuneburg:
      return std::sqrt(1 + v[0] - v[0] * r * r);
    case ProfileShape::Luneburg:
      return std::sqrt(2 * v[0] - v[1] * r * r);
    case ProfileShape::Exponential:
      if (r == 0) return v[3];
      return std::min(v[1] != 0 ? v[0] + v[1] * std::pow(r, v[2]) : v[0], v[3]);
    case ProfileShape::Polynomial:
      return v[0] + r * (v[1] + r * (v[2] + r * v[3]));
    case ProfileShape::Sinusoidal:
      return v[0] + v[1] * std::sin(2 * std::numbers::pi * v[2] * r + v[3] * std::numbers::pi / 180);
  }
  return 1;
}

std::optional<double> FirstBadRadius(const IndexProfile& profile, int layers) {
  for (int layer = 1; layer <= layers; ++layer) {
    const double index = IndexAt(profile, MiddleOf(layer, layers));
    if (!(index > 0) || !std::isfinite(index)) return MiddleOf(layer, layers);
  }
  return std::nullopt;
}

std::vector<SphereLayer> LayersOf(const IndexProfile& profile, int layers, double y, double medium) {
  std::vector<SphereLayer> list;
  list.reserve(static_cast<std::size_t>(std::max(layers, 0)));
  for (int layer = 1; layer <= layers; ++layer)
    list.push_back({y * layer / layers, {IndexAt(profile, MiddleOf(layer, layers)) / medium, 0}});
  return list;
}

}  // namespace lumivex
