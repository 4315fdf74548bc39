#include "solvers/rays/ray_amplitude.h"

#include <algorithm>
#include <cmath>
#include <complex>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

/// Corrections beyond this are no corrections.
constexpr double LargestCorrection = 0.5;
constexpr double LeastFocus = 1e-8;

ComplexD WholePower(const ComplexD& base, int exponent) {
  ComplexD result(1.0, 0.0);
  ComplexD square = base;
  for (int n = exponent; n > 0; n /= 2) {
    if (n % 2 != 0) result = result * square;
    square = square * square;
  }
  return result;
}

ComplexD Through(const ComplexD& r, int p) {
  return (ComplexD(1.0, 0.0) - r * r) * WholePower(-r, p - 1);
}

double Kept(double Q) {
  return std::fabs(Q) <= LargestCorrection ? Q : 0.0;
}

}  // namespace

RayAmplitude FresnelFactors(const Ray& ray, const ComplexD& m, int p) {
  const ComplexD cosI(ray.cosI, 0.0);
  ComplexD rs;
  ComplexD rp;
  if (p == 0 && ray.sinI > m.re) {
    const std::complex<double> square = ComplexD(ray.sinI * ray.sinI, 0.0) - m * m;
    const ComplexD refracted = TimesI(std::sqrt(square));
    const ComplexD dense = m * m * cosI;
    rs = (cosI - refracted) / (cosI + refracted);
    rp = (dense - refracted) / (dense + refracted);
  } else {
    const ComplexD cosR(ray.cosR, 0.0);
    const ComplexD outside = m * cosI;
    const ComplexD inside = m * cosR;
    rs = (cosI - inside) / (cosI + inside);
    rp = (outside - cosR) / (outside + cosR);
  }
  if (p == 0) return {rs, rp};
  return {Through(rs, p), Through(rp, p)};
}

double Absorption(double x, double k, int p, const Ray& ray) {
  return std::exp(-2.0 * p * x * k * ray.cosR);
}

double Divergence(double x, double theta, const RayFamily& family, const Ray& ray) {
  const double inside = family.P() == 0 ? 1.0 : family.Index() * ray.cosR;
  const double focus = std::max(std::fabs(family.Focus(ray)), LeastFocus);
  return x * std::sqrt(ray.sinI * ray.cosI * inside / (2.0 * std::sin(theta) * focus));
}

SecondOrder ReflectionCorrection(double x, double m, const Ray& ray) {
  const double s2 = ray.sinI * ray.sinI;
  const double m2 = m * m;
  const double c = ray.cosI;
  if (s2 >= m2 || c < 1e-6) return {};
  const double u = std::sqrt(m2 - s2);
  const double W = m2 * c * c - s2;
  const double grazing = (1.0 - 2.0 * s2) / (c * c * c);
  SecondOrder Q;
  Q.perpendicular = Kept((2.0 / (c * (s2 + c * u)) - grazing - (2.0 * m2 - s2) / (u * u * u)) / (2.0 * x));
  const double brewster = c * u - s2;
  if (std::fabs(W) < 1e-6 || std::fabs(brewster) < 1e-6) return Q;
  Q.parallel = Kept((-2.0 / (c * brewster) - grazing + m2 / (u * W) * (2.0 + s2 / (u * u) + 2.0 * s2 * (m2 + 1.0) / W) -
                     2.0 * s2 * m2 * (m2 + 1.0 - s2) / (c * u * u * W) - 2.0 * m2 * m2 * s2 / (c * u * u * W * W)) /
                    (2.0 * x));
  return Q;
}

}  // namespace lumivex
