#pragma once

#include <cstddef>
#include <vector>

#include "solvers/rays/ray_geometry.h"

namespace lumivex {

/// The deviation curve of one p cut into segments: at its extreme (the rainbow) and at every multiple of pi, so that
/// each segment is monotonic and lies on one half turn, and a scattering angle meets a segment at most once.
struct RayTable {
  RayFamily family;
  std::vector<double> RayImpact;     ///< sin i at the ends of the segments, from the centre outward
  std::vector<double> RayDeviation;  ///< D at the same points, not folded (radians)
  std::vector<double> parameter;     ///< t of RayFamily at the same points
  std::vector<RayFold> folds;        ///< half turn of each segment
  int SegmentCount = 0;              ///< points less one
  int SegmentLast = -1;              ///< highest segment that is searched
  std::size_t rainbowPoint = 0;      ///< the point that is the rainbow, or 0
  double RainbowImpact = 1.0;        ///< sin i of the rainbow; 1 without one

  /// Whether a segment ends at the rainbow.
  bool AtRainbow(int segment) const {
    return rainbowPoint > 0 &&
           (static_cast<std::size_t>(segment) + 1 == rainbowPoint || static_cast<std::size_t>(segment) == rainbowPoint);
  }
};

/// sin i of the rainbow of order p, sqrt((p^2 - m^2)/(p^2 - 1)); 1 where there is none (p < 2, m <= 1, m >= p).
double RainbowImpactOf(double m, int p);

/// Builds the table. For m < 1 impacts end at m, beyond which rays are totally reflected. With m = 1 rays go straight
/// on and there is no segment for p = 1.
///
/// @param m  real part of the relative index, > 0.
/// @param p  >= 0.
RayTable MakeRayTable(double m, int p);

/// The parameter t between low and high at which D = target, by Newton's steps that fall back on bisection. D must be
/// monotonic between them and target within its range; otherwise the nearer end comes out.
///
/// The bracket ends below 1e-15 or where the difference is a rounding error. (A tolerance in D would be magnified: an
/// error of 1e-7 is a phase of 0.001 at x = 10000, and near the axis a large part of the impact.)
/// @param guess  where to start, between low and high.
double GOAngleCalc(const RayFamily& family, double target, double low, double high, double guess);

/// The same for a ray whose neighbour is known: from a guess as good as that, one tracing and one of Newton's steps are
/// all it takes.
/// @param rising  whether D grows from low to high.
struct RayRoot {
  double t = 0.0;
  Ray ray;  ///< its deviation is the target to rounding, or to 1e-11 and told as it is
};
RayRoot FindRay(const RayFamily& family, double target, double low, double high, bool rising, double guess);

}  // namespace lumivex
