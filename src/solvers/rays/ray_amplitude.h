#pragma once

#include "solvers/functions/complex_pairs.h"
#include "solvers/rays/ray_geometry.h"

namespace lumivex {

/// Amplitudes of a ray for both polarisations.
struct RayAmplitude {
  ComplexD FresnelPerp;
  ComplexD FresnelPar;
};

/// Fresnel's factors of a reflection, rs = (cos i - m cos r)/(cos i + m cos r), rp = (m cos i - cos r)/(m cos i + cos
/// r), m complex and r from its real part: where a ray that went in meets the surface (van de Hulst 1957, section
/// 12.21).
RayAmplitude ReflectionFactors(const Ray& ray, const ComplexD& m);

/// Fresnel's factors of a ray: rs, rp for p = 0, (1 - r^2)(-r)^(p-1) for p >= 1. They are real and signed for real m.
///
/// The ray p = 0 never enters, and its refraction is complex as the index is: m cos r = sqrt(m^2 - sin^2 i) with the
/// root whose wave decays into the sphere. That holds for absorption as for total reflection (sin i > Re m).
RayAmplitude FresnelFactors(const Ray& ray, const ComplexD& m, int p);

/// Factor on the amplitude of p chords of length 2 a cos r in an absorbing sphere, exp(-2 p x k cos r).
double Absorption(double x, double k, int p, const Ray& ray);

/// Divergence: V = x sqrt(|sin 2i / G|), G = 2 sin(theta)(2 p tan r/tan i - 2), finite at the axis where theta and i
/// vanish together. At the caustic of a rainbow itself it is cut.
/// @param sinTheta  of the scattering angle, > 0.
double Divergence(double x, double sinTheta, const RayFamily& family, const Ray& ray);

/// First corrections of order 1/x to the reflected ray (p = 0): the amplitude is to be multiplied by 1 + i Q. Found by
/// expanding reflection from a curved surface and the stationary phase to the next order; checked against the Debye
/// term. Q is real for real m, and complex as m is. 0 where the expansion fails: beside Brewster's angle (where the ray
/// itself vanishes), at grazing incidence, and where reflection is total.
struct SecondOrder {
  ComplexD perpendicular;
  ComplexD parallel;
};
SecondOrder ReflectionCorrection(double x, const ComplexD& m, const Ray& ray);

}  // namespace lumivex
