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

template <class Number>
Number WholePower(const Number& base, int exponent) {
  Number result(1.0);
  Number square = base;
  for (int n = exponent; n > 0; n /= 2) {
    if (n % 2 != 0) result = result * square;
    square = square * square;
  }
  return result;
}

template <class Number>
Number Through(const Number& r, int p) {
  return (Number(1.0) - r * r) * WholePower(-r, p - 1);
}

/// The root in the first quadrant, of numbers on and above the real axis.
ComplexD Root(const ComplexD& square) {
  return std::sqrt(std::complex<double>(square));
}

ComplexD Kept(const ComplexD& Q) {
  return SquaredModulus(Q) <= LargestCorrection * LargestCorrection ? Q : ComplexD();
}

/// Factors of a real index, which most are.
RayAmplitude RealFactors(const Ray& ray, double m, int p) {
  const double inside = m * ray.cosR, outside = m * ray.cosI;
  const double rs = (ray.cosI - inside) / (ray.cosI + inside);
  const double rp = (outside - ray.cosR) / (outside + ray.cosR);
  if (p == 0) return {{rs, 0.0}, {rp, 0.0}};
  return {{Through(rs, p), 0.0}, {Through(rp, p), 0.0}};
}

RayAmplitude OutsideFactors(const Ray& ray, const ComplexD& m) {
  const ComplexD cosI(ray.cosI, 0.0);
  const ComplexD m2 = m * m;
  const ComplexD inside = Root(m2 - ComplexD(ray.sinI * ray.sinI, 0.0));
  const ComplexD dense = m2 * cosI;
  return {(cosI - inside) / (cosI + inside), (dense - inside) / (dense + inside)};
}

}  // namespace

RayAmplitude ReflectionFactors(const Ray& ray, const ComplexD& m) {
  const ComplexD cosI(ray.cosI, 0.0);
  const ComplexD cosR(ray.cosR, 0.0);
  const ComplexD outside = m * cosI;
  const ComplexD inside = m * cosR;
  return {(cosI - inside) / (cosI + inside), (outside - cosR) / (outside + cosR)};
}

RayAmplitude FresnelFactors(const Ray& ray, const ComplexD& m, int p) {
  const bool total = p == 0 && ray.sinI > m.re;
  if (m.im == 0.0 && !total) return RealFactors(ray, m.re, p);
  if (p == 0) return OutsideFactors(ray, m);
  const RayAmplitude r = ReflectionFactors(ray, m);
  return {Through(r.FresnelPerp, p), Through(r.FresnelPar, p)};
}

double Absorption(double x, double k, int p, const Ray& ray) {
  return std::exp(-2.0 * p * x * k * ray.cosR);
}

double Divergence(double x, double sinTheta, const RayFamily& family, const Ray& ray) {
  const double inside = family.P() == 0 ? 1.0 : family.Index() * ray.cosR;
  const double focus = std::max(std::fabs(family.Focus(ray)), LeastFocus);
  return x * std::sqrt(ray.sinI * ray.cosI * inside / (2.0 * sinTheta * focus));
}

SecondOrder ReflectionCorrection(double x, const ComplexD& m, const Ray& ray) {
  const double s2 = ray.sinI * ray.sinI;
  const double c = ray.cosI;
  const ComplexD one(1.0), two(2.0), S2(s2), m2 = m * m;
  if ((m.im == 0.0 && s2 >= m2.re) || c < 1e-6) return {};
  const ComplexD u = Root(m2 - S2);
  const ComplexD W = c * c * m2 - S2;
  const ComplexD grazing((1.0 - 2.0 * s2) / (c * c * c));
  const double scale = 1.0 / (2.0 * x);
  SecondOrder Q;
  Q.perpendicular = Kept(scale * (two / (c * (S2 + c * u)) - grazing - (2.0 * m2 - S2) / (u * u * u)));
  const ComplexD brewster = c * u - S2;
  constexpr double least = 1e-12;  // of the squares
  if (SquaredModulus(W) < least || SquaredModulus(brewster) < least) return Q;
  const ComplexD u2 = u * u;
  Q.parallel =
      Kept(scale * (-two / (c * brewster) - grazing + m2 / (u * W) * (two + S2 / u2 + 2.0 * s2 * (m2 + one) / W) -
                    2.0 * s2 * m2 * (m2 + one - S2) / (c * u2 * W) - 2.0 * s2 * m2 * m2 / (c * u2 * W * W)));
  return Q;
}

}  // namespace lumivex
