#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "solvers/layers/layered_sphere.h"

namespace lumivex {

/// How the refractive index of a sphere goes with the distance from its centre.
enum class ProfileShape {
  Linear,            ///< two parts, joined by a straight line: r1, n1, r2, n2
  Cosine,            ///< two parts, joined by half a cosine: r1, n1, r2, n2
  ThreeLayer,        ///< three parts, joined by half cosines: r1, n1, r2, n2, r3, n3, r4, n4
  ModifiedLuneburg,  ///< sqrt(1 + F - F r^2): F
  Luneburg,          ///< sqrt(2 J - K r^2): J, K
  Exponential,       ///< J + K r^L, at most nMax: J, K, L, nMax
  Polynomial,        ///< J + K r + L r^2 + M r^3: J, K, L, M
  Sinusoidal,        ///< J + K sin(2 pi L r + M), M in degrees: J, K, L, M
};

/// The number of parameters of a shape.
int ParameterCount(ProfileShape shape);

struct IndexProfile {
  ProfileShape shape = ProfileShape::Linear;
  std::array<double, 8> parameters{};  ///< in the order of ProfileShape; the rest is 0
  bool operator==(const IndexProfile&) const = default;
};

/// The index at r, 0 in the centre and 1 at the surface; not a number where a root has no real value.
///
/// A transition whose ends are not in rising order is not entered. The exponential is nMax in the centre.
double IndexAt(const IndexProfile& profile, double r);

/// Where a profile of `layers` layers of equal depth, each with the index of its middle, has none that a sphere can be
/// made of (not a number, not above 0, infinite): the middle of the innermost such layer. Empty where all are good.
std::optional<double> FirstBadRadius(const IndexProfile& profile, int layers);

/// The layers of a sphere of that profile, each of equal depth and with the index of its middle.
///
/// @param y       size parameter of the surface in the medium.
/// @param medium  refractive index of the medium.
std::vector<SphereLayer> LayersOf(const IndexProfile& profile, int layers, double y, double medium);

}  // namespace lumivex
