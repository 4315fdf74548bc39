#include "solvers/rays/ray_amplitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

namespace lumivex {
namespace {

using std::numbers::pi;

// Fresnel's formulas: the energy of reflection and refraction adds to 1, Brewster's angle has no parallel reflection,
// and beyond the critical angle both moduli are 1 with the phases of the textbook, tan(d/2) = sqrt(s^2 - m^2)/c and
// over m^2 for the parallel one (Born and Wolf 1980, section 1.5).
TEST(RayAmplitude, ReflectionAndRefractionConserveEnergy) {
  for (const double m : {0.6, 0.75, 1.1, 1.333, 2.0}) {
    const RayFamily reflected(m, 0);
    for (const double degrees : {0.0, 10.0, 30.0, 36.0, 45.0, 60.0, 75.0, 89.0}) {
      const Ray ray = reflected.At(degrees * pi / 180);
      const RayAmplitude r = FresnelFactors(ray, {m, 0}, 0), through = FresnelFactors(ray, {m, 0}, 1);
      const RayAmplitude inside = FresnelFactors(ray, {m, 0}, 3);
      const double rs = std::hypot(r.FresnelPerp.re, r.FresnelPerp.im),
                   rp = std::hypot(r.FresnelPar.re, r.FresnelPar.im);
      if (ray.sinI > m) {
        EXPECT_NEAR(rs, 1, 1e-12) << m << " " << degrees;
        EXPECT_NEAR(rp, 1, 1e-12) << m << " " << degrees;
        const double root = std::sqrt(ray.sinI * ray.sinI - m * m);
        EXPECT_NEAR(std::arg(std::complex<double>(r.FresnelPerp)), -2 * std::atan(root / ray.cosI), 1e-12) << degrees;
        EXPECT_NEAR(std::arg(std::complex<double>(r.FresnelPar)), -2 * std::atan(root / (m * m * ray.cosI)), 1e-12)
            << degrees;
        continue;
      }
      EXPECT_NEAR(rs * rs + through.FresnelPerp.re, 1, 1e-12) << m << " " << degrees;
      EXPECT_NEAR(rp * rp + through.FresnelPar.re, 1, 1e-12) << m << " " << degrees;
      EXPECT_NEAR(inside.FresnelPerp.re, through.FresnelPerp.re * rs * rs, 1e-12) << m << " " << degrees;
      EXPECT_NEAR(inside.FresnelPar.re, through.FresnelPar.re * rp * rp, 1e-12) << m << " " << degrees;
    }
    EXPECT_NEAR(FresnelFactors(reflected.At(std::atan(m)), {m, 0}, 0).FresnelPar.re, 0, 1e-12) << "Brewster, m " << m;
  }
}

}  // namespace
}  // namespace lumivex
