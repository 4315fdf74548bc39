#include "timedomain/ray_times.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "timedomain/pulse.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double degrees = 180 / pi;

double Folded(double deviation) {
  return std::acos(std::cos(deviation)) * degrees;
}

/// cos r of the ray inside.
double InsideCosine(const RaySphere& sphere, double impact) {
  const double s = impact / sphere.m;
  return std::sqrt(std::max(0.0, 1 - s * s));
}

/// Path of a ray in units of 2 a, as its phase counts it: p m cos r - cos i.
double PhasePath(const RaySphere& sphere, const TimedRay& ray) {
  return ray.p * sphere.m * InsideCosine(sphere, ray.impact) - std::sqrt(std::max(0.0, 1 - ray.impact * ray.impact));
}

}  // namespace

int TimedRay::Side() const {
  return std::fmod(std::floor(deviation / pi), 2.0) == 0 ? -1 : 1;
}

std::optional<TimedRay> RayAtImpact(const RaySphere& sphere, int p, double impact, double mGroup) {
  if (p >= 1 && impact > sphere.m) return std::nullopt;
  const double i = std::asin(impact), r = p == 0 ? 0.0 : std::asin(impact / sphere.m);
  const double group = mGroup > 0 ? mGroup : sphere.m;
  TimedRay ray{p, impact, 2 * i - 2 * p * r + (p - 1) * pi, 0, 0};
  ray.angle = Folded(ray.deviation);
  ray.time = 2 * sphere.radius * sphere.n / lightSpeed *
             (1 - std::cos(i) + (p == 0 ? 0.0 : p * group * InsideCosine(sphere, impact)));
  return ray;
}

std::vector<TimedRay> RayTimes(const RaySphere& sphere, int last, double step, double mGroup) {
  std::vector<TimedRay> rays;
  const int steps = static_cast<int>(std::ceil(1 / step - 1e-9));
  for (int p = 0; p <= last; ++p)
    for (int i = 0; i <= steps; ++i)
      if (const auto ray = RayAtImpact(sphere, p, std::min(1.0, i * step), mGroup)) rays.push_back(*ray);
  return rays;
}

std::vector<TimedRay> RaysAtAngle(const RaySphere& sphere, int p, double angle) {
  // The deviation has at most one extreme (p >= 2): between neighbours of a fine net it crosses a value at most once
  // but for a pair closer to the rainbow than the net is wide, which is one ray to every instrument.
  constexpr int net = 2000;
  const double end = p >= 1 ? std::min(1.0, sphere.m) : 1.0;
  std::vector<TimedRay> rays;
  const auto at = [&](double impact) { return *RayAtImpact(sphere, p, std::min(impact, end)); };
  for (int side = 0; side < 2; ++side) {
    // cos D = cos(angle): D - angle or D + angle is a whole number of turns.
    const double target = (side == 0 ? angle : -angle) / degrees;
    if (side == 1 && (angle <= 0 || angle >= 180)) continue;
    const auto turns = [&](double impact) { return (at(impact).deviation - target) / (2 * pi); };
    double before = turns(0);
    for (int i = 1; i <= net; ++i) {
      double low = end * (i - 1) / net, high = end * i / net;
      const double after = turns(high);
      const double whole = std::ceil(std::min(before, after));
      const bool crosses = whole <= std::max(before, after) && (before != whole || i == 1);
      const bool rises = after > before;
      for (int halving = 0; crosses && halving < 50; ++halving) {
        const double middle = (low + high) / 2;
        ((turns(middle) < whole) == rises ? low : high) = middle;
      }
      if (crosses) rays.push_back(at((low + high) / 2));
      before = after;
    }
  }
  std::sort(rays.begin(), rays.end(), [](const TimedRay& a, const TimedRay& b) { return a.impact < b.impact; });
  return rays;
}

std::vector<TimePoint> SurfaceWaveLine(const RaySphere& sphere, int p, double surfaceIndex, int halfTurns,
                                       double mGroup) {
  if (p >= 1 && sphere.m <= 1) return {};
  const double unit = sphere.radius / lightSpeed;
  double turned = p == 0 ? 0.0 : p * (pi - 2 * std::asin(1 / sphere.m));
  const double group = mGroup > 0 ? mGroup : sphere.m;
  double time = 2 * unit * sphere.n * (1 + (p == 0 ? 0.0 : p * group * InsideCosine(sphere, 1)));
  std::vector<TimePoint> line{{Folded(turned), time}};
  for (int passage = 0; passage < halfTurns; ++passage) {
    const double next = (std::floor(turned / pi + 1e-12) + 1) * pi;
    time += (next - turned) * unit * surfaceIndex;
    turned = next;
    line.push_back({Folded(turned), time});
  }
  return line;
}

double FrequencyOverAngle(const RaySphere& sphere, const TimedRay& ray, double wavelength) {
  return ray.Side() * 2 * pi * sphere.radius * sphere.n / wavelength * ray.impact / 360;
}

double FrequencyOverRadius(const RaySphere& sphere, const TimedRay& ray, double wavelength) {
  return -2 * sphere.n / wavelength * PhasePath(sphere, ray);
}

double FrequencyOverWavelength(const RaySphere& sphere, const TimedRay& ray, double wavelength) {
  return 2 * sphere.radius * sphere.n / (wavelength * wavelength) * PhasePath(sphere, ray) / 1000;
}

}  // namespace lumivex
