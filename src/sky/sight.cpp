#include "sky/sight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi, degree = pi / 180;

/// Steps of the half chord, 0 to sqrt(1/2): the angle of one in between is out by 1e-7 degrees at most.
constexpr std::size_t chordSteps = 4096;
constexpr double chordScale = static_cast<double>(chordSteps) * std::numbers::sqrt2;

constexpr double noAngle = -1000;

}  // namespace

std::optional<double> ScatteringAngle(const LightSource& source, double d) {
  if (!source.lamp) return source.antisolar ? pi - d : d;
  if (!(d < pi / 2)) return std::nullopt;
  const Lamp& lamp = *source.lamp;
  // The tangent of the angle at the lamp.
  const double k = source.antisolar ? lamp.D1 / (lamp.D1 + lamp.D2) : lamp.D1 / lamp.D2;
  const double atLamp = std::atan2(std::sin(d) * k, std::cos(d));
  return source.antisolar ? pi - (d - atLamp) : d + atLamp;
}

SightReading ReadSight(const Sight& sight, const PicturePoint& point) {
  const Direction seen = DirectionOf(sight.camera, point), world = InWorld(seen, sight.pose);
  SightReading reading{AltitudeOf(world) / degree, AzimuthOf(world) / degree, std::nullopt};
  if (const auto angle = ScatteringAngle(sight.source, AngleBetween(seen, sight.source.direction)))
    reading.scattering = *angle / degree;
  return reading;
}

AngleOfCosine::AngleOfCosine(const LightSource& source) : front_(chordSteps + 2), back_(chordSteps + 2) {
  const auto degrees = [&](double d) {
    const auto angle = ScatteringAngle(source, d);
    return angle ? *angle / degree : noAngle;
  };
  for (std::size_t i = 0; i < front_.size(); ++i) {
    const double half = std::asin(std::min(static_cast<double>(i) / chordScale, std::numbers::sqrt2 / 2));
    // The limit at 90 degrees from below, so that the last step does not run into what lies beyond.
    front_[i] = degrees(std::min(2 * half, std::nextafter(pi / 2, 0.0)));
    back_[i] = degrees(std::max(pi - 2 * half, pi / 2));
  }
}

double AngleOfCosine::operator()(double cosine) const {
  const std::vector<double>& table = cosine > 0 ? front_ : back_;
  const double at = std::sqrt(std::max(0.0, 0.5 * (1 - std::abs(cosine)))) * chordScale;
  const auto step = static_cast<std::size_t>(at);
  return table[step] + (at - static_cast<double>(step)) * (table[step + 1] - table[step]);
}

}  // namespace lumivex
