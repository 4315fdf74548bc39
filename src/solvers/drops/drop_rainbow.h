#pragma once

#include <optional>

#include "solvers/drops/drop_rays.h"

namespace lumivex {

/// The ray of a rainbow.
struct DropBow {
  double angle = 0.0;       ///< scattering angle, radians
  double b = 0.0, X = 0.0;  ///< where the ray meets the wave front
};

/// Where rays of order p >= 2 crowd at a clock angle: along the rays seen there the scattering angle is stationary.
/// Found from the sphere's bow by twenty steps of growing distortion.
///
/// @param clock  radians, 0 at the top of the bow.
/// @return nothing where the bow has ended: its rays are lost or the angle has no extreme.
std::optional<DropBow> FindDropBow(const DropShape& shape, double m, const DropLight& light, int p, double clock);

}  // namespace lumivex
