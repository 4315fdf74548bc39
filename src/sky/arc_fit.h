#pragma once

#include <array>
#include <optional>

#include "sky/direction.h"

namespace lumivex {

/// The circle on which three directions lie.
struct FittedArc {
  Direction centre;       ///< the antisolar point
  double residual = 0;    ///< of the three directions (radians, root of the mean square)
  double freeRadius = 0;  ///< of the circle through them whatever its radius (radians): a check of the angle typed
};

/// The centre of a circle of known radius on which three marked directions lie best: least squares of the angles to it
/// by Gauss and Newton, from the normal of the plane through the three. A radius that is free too would be hopeless on
/// the short arcs that photographs have.
/// @param radius  angle from the antisolar point to the arc, pi minus its scattering angle (radians).
/// @return nothing where the three lie on a line (a great circle or two of them on one place), of which no circle can
///         be told.
std::optional<FittedArc> FitArc(const std::array<Direction, 3>& marked, double radius);

}  // namespace lumivex
