#include "solvers/rays/ray_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/functions/inverse_circular.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;

double CosineOf(double sine) {
  return sine < 1.0 ? std::sqrt((1.0 - sine) * (1.0 + sine)) : 0.0;
}

}  // namespace

RayFamily::RayFamily(double m, int p) : m_(m), p_(p), byRefraction_(m < 1.0 && p >= 1), last_(pi / 2) {}

Ray RayFamily::At(double t) const {
  Ray ray;
  double i = t;
  double r = t;
  if (byRefraction_) {
    ray.sinR = std::sin(t);
    ray.cosR = std::max(std::cos(t), 0.0);
    ray.sinI = m_ * ray.sinR;
    ray.cosI = CosineOf(ray.sinI);
    i = ArcSin(ray.sinI);
  } else {
    ray.sinI = std::sin(t);
    ray.cosI = std::max(std::cos(t), 0.0);
    ray.sinR = std::min(ray.sinI / m_, 1.0);
    ray.cosR = CosineOf(ray.sinR);
    if (p_ > 0) r = ArcSin(ray.sinR);
  }
  ray.deviation = p_ == 0 ? 2.0 * i - pi : 2.0 * i - 2.0 * p_ * r + (p_ - 1) * pi;
  return ray;
}

Ray RayFamily::Near(const Ray& ray, double dt) const {
  const double square = dt * dt;
  const double cosine = 1.0 - square / 2, sine = dt * (1.0 - square / 6);
  Ray near;
  if (byRefraction_) {
    near.sinR = ray.sinR * cosine + ray.cosR * sine;
    near.cosR = std::max(ray.cosR * cosine - ray.sinR * sine, 0.0);
    near.sinI = m_ * near.sinR;
    near.cosI = CosineOf(near.sinI);
  } else {
    near.sinI = ray.sinI * cosine + ray.cosI * sine;
    near.cosI = std::max(ray.cosI * cosine - ray.sinI * sine, 0.0);
    near.sinR = std::min(near.sinI / m_, 1.0);
    near.cosR = CosineOf(near.sinR);
  }
  near.deviation = ray.deviation + dt * (Slope(ray) + Slope(near)) / 2;
  return near;
}

double RayFamily::Slope(const Ray& ray) const {
  if (p_ == 0) return 2.0;
  constexpr double leastCosine = 1e-150;
  if (byRefraction_) return 2.0 * Focus(ray) / std::max(ray.cosI, leastCosine);
  return 2.0 * Focus(ray) / std::max(m_ * ray.cosR, leastCosine);
}

double RayFamily::Parameter(double sinI) const {
  return ArcSin(byRefraction_ ? sinI / m_ : sinI);
}

RayFold FoldHalfTurn(int halfTurn) {
  const bool odd = halfTurn % 2 != 0;
  const int T = (odd ? halfTurn - 1 : halfTurn) / 2;
  return odd ? RayFold{halfTurn, +1, -(T + 1)} : RayFold{halfTurn, -1, -T};
}

RayFold FoldDeviation(double deviation) {
  return FoldHalfTurn(static_cast<int>(std::floor(deviation / pi)));
}

double ScatteringAngle(const RayFold& fold, double deviation) {
  return fold.q < 0 ? deviation - fold.halfTurn * pi : (fold.halfTurn + 1) * pi - deviation;
}

double DeviationAt(const RayFold& fold, double theta) {
  return fold.q < 0 ? fold.halfTurn * pi + theta : (fold.halfTurn + 1) * pi - theta;
}

double OpticalPath(double m, int p, const Ray& ray) {
  return 2.0 * (p * m * ray.cosR - ray.cosI);
}

double RayPhase(double x, double m, int p, const Ray& ray, const RayFold& fold, int s) {
  return -x * OpticalPath(m, p, ray) + pi / 2 * (p - 2 * fold.kk + 0.5 * s - 0.5 * fold.q);
}

}  // namespace lumivex
