#include "sky/camera.h"

namespace lumivex {

namespace {

/// Distance from the middle, in focal lengths, of what is seen theta off the axis.
double RadiusOf(Mapping mapping, double theta) {
  switch (mapping) {
    case Mapping::Rectilinear:
      return std::tan(theta);
    case Mapping::Equidistant:
      return theta;
    case Mapping::Stereographic:
      return 2 * std::tan(theta / 2);
    case Mapping::EqualArea:
      return 2 * std::sin(theta / 2);
    case Mapping::Orthographic:
      return std::sin(theta);
  }
  return 0;
}

}  // namespace

Direction DirectionOf(const Camera& camera, const PicturePoint& point) {
  const double dx = (point.x - 0.5 * camera.width) / camera.focal, dy = (0.5 * camera.height - point.y) / camera.focal;
  const LensAngle angle = LensAngleOf(camera.mapping, dx * dx + dy * dy);
  return {dx * angle.sineOverR, dy * angle.sineOverR, angle.cosine};
}

std::optional<PicturePoint> PointOf(const Camera& camera, const Direction& seen) {
  const double h = std::hypot(seen.right, seen.up), theta = std::atan2(h, seen.forward);
  constexpr double quarter = std::numbers::pi / 2;
  const bool hidden = (camera.mapping == Mapping::Rectilinear && theta >= quarter) ||
                      (camera.mapping == Mapping::Orthographic && theta > quarter);
  if (hidden) return std::nullopt;
  const PicturePoint middle = camera.Middle();
  if (!(h > 0)) return theta > quarter ? std::nullopt : std::optional(middle);
  const double r = camera.focal * RadiusOf(camera.mapping, theta);
  return PicturePoint{middle.x + r * seen.right / h, middle.y - r * seen.up / h};
}

FocalScale FocalInPixels(double f, double halfWidth, double halfHeight) {
  const double shape = halfWidth / halfHeight;
  const auto within = [shape](double low, double high) { return shape > low && shape < high; };
  // 468 mm2 is the square of half the diagonal of 36 x 24 mm.
  if (within(1.31, 1.35) || within(0.73, 0.77) || within(1.48, 1.52) || within(0.65, 0.69))
    return {std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight) * f / std::sqrt(468.0), false};
  return {std::max(halfWidth, halfHeight) * f / 18, true};
}

}  // namespace lumivex
