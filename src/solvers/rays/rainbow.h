#pragma once

#include <optional>
#include <span>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/functions/complex_pairs.h"
#include "solvers/rays/ray_geometry.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

/// The rainbow ray of order p, where the deviation is stationary, and Airy's field around it (Airy 1838; van de Hulst
/// 1957, section 13.2; the absolute phase and the scale follow from the cubic expansion of the phase in the impact
/// parameter).
struct Rainbow {
  double m = 1.0;
  int p = 2;
  Ray ray;                                           ///< the rainbow ray: cos i = m cos r / p
  RayFold fold;                                      ///< the half turn it lies on
  double RainbowAngle = 0.0;                         ///< scattering angle, 0..pi (radians)
  double h = 1.0;                                    ///< curvature: D - D_R = h (sin i - sin i_R)^2 near the rainbow
  double epsPerpendicular = 0.0, epsParallel = 0.0;  ///< Fresnel's factors of the ray
  double slopePerpendicular = 0.0, slopeParallel = 0.0;  ///< their derivatives with respect to i

  /// Airy's argument z at a scattering angle: negative on the bright side.
  double AiryArgument(double x, double theta) const;
  /// sin(theta_R) as it counts in the scale of the field: see LeastAxisDistance.
  double AxisDistance(double x) const;
};

/// sin(theta), or 1/x where that is larger. Fields of rings about the axis grow as 1/sqrt(sin theta) only down to the
/// width of the caustic on the axis, which is about 1/x; there the factor is held.
double LeastAxisDistance(double x, double sinTheta);

/// Nothing where there is no rainbow: p < 2, m <= 1 or m >= p.
std::optional<Rainbow> MakeRainbow(double m, int p);

/// What of the term with Ai', which tells how Fresnel's factors change across the rainbow, is added. It matters where
/// the factor is small and steep, as that of the parallel component near Brewster's angle; for the perpendicular one a
/// term of the same order from the asymmetry of the deviation nearly cancels it.
enum class AiryDerivative { None, ParallelOnly, Both };

/// Airy's amplitudes at an angle, added to the pairs: S = -i C (eps Ai(z) + i K Ai'(z)) exp(-i phi),
/// C = x^(7/6) h^(-1/3) sqrt(2 pi sin i_R/sin theta_R), K = (x h)^(-1/3) (d eps/di)/cos i_R, phi the phase of the
/// rainbow ray and x sin i_R q (theta - theta_R). Ai' is the difference over +-0.01.
///
/// The scale is that of the rainbow ray at all angles: with sin theta of the angle itself the axis, where there is no
/// rainbow, would outshine it a hundred times.
///
/// @param theta  radians.
void AddAiry(const Rainbow& rainbow, double x, double theta, double absorption, AiryDerivative derivative, ComplexD& S1,
             ComplexD& S2);

/// Rows of Airy's theory, every selected p added.
struct AiryRequest {
  double x = 0.0;  ///< size parameter, > 0
  double m = 1.0;  ///< real index
  AngleGrid grid;
  RowWindow window;
  std::span<const int> selected;  ///< selected[p] is not 0 for the terms wanted; terms without a rainbow add nothing
  AiryDerivative derivative = AiryDerivative::ParallelOnly;
};

/// @param S1, S2  amplitudes are added to the rows of the window.
/// @param monitor  asked after a bounded number of rows; after a Stop the other rows keep their values.
/// @return the rows done.
RowsDone SolveAiry(const AiryRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor);

/// The rows first..last of a window as they are done when rows go upward.
RowsDone RowsUpTo(const AngleGrid& grid, RowWindow window, int last);

/// Angles nearer than this to 0 and 180 degrees are taken at this distance, where sin theta would vanish (radians).
inline constexpr double LeastRayAngle = 1e-6;
double ClampRayAngle(double theta);

}  // namespace lumivex
