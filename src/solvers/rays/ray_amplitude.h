#pragma once

#include "solvers/functions/complex_pairs.h"
#include "solvers/rays/ray_geometry.h"

namespace lumivex {

/// Amplitudes of a ray for both polarisations.
struct RayAmplitude {
  ComplexD FresnelPerp;
  ComplexD FresnelPar;
};

/// Fresnel's factors of a ray: rs, rp for p = 0, (1 - r^2)(-r)^(p-1) for p >= 1, where
/// rs = (cos i - m cos r)/(cos i + m cos r), rp = (m cos i - cos r)/(m cos i + cos r), m complex and r from its real
/// part (van de Hulst 1957, section 12.21). They are real and signed for real m.
///
/// A ray that is totally reflected (p = 0, sin i > Re m) has m cos r = i sqrt(sin^2 i - m^2): the evanescent wave
/// decays into the sphere.
RayAmplitude FresnelFactors(const Ray& ray, const ComplexD& m, int p);

/// Factor on the amplitude of p chords of length 2 a cos r in an absorbing sphere, exp(-2 p x k cos r).
double Absorption(double x, double k, int p, const Ray& ray);

/// Divergence: V = x sqrt(|sin 2i / G|), G = 2 sin(theta)(2 p tan r/tan i - 2), finite at the axis where theta and i
/// vanish together. At the caustic of a rainbow itself it is cut.
double Divergence(double x, double theta, const RayFamily& family, const Ray& ray);

/// First corrections of order 1/x to the reflected ray (p = 0): the amplitude is to be multiplied by 1 + i Q. Found by
/// expanding reflection from a curved surface and the stationary phase to the next order; checked against the Debye
/// term. 0 where the expansion fails: beside Brewster's angle (where the ray itself vanishes), at grazing incidence,
/// and where reflection is total.
struct SecondOrder {
  double perpendicular = 0.0;
  double parallel = 0.0;
};
SecondOrder ReflectionCorrection(double x, double m, const Ray& ray);

}  // namespace lumivex
