#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "sky/bitmap.h"
#include "sky/direction.h"

namespace lumivex {

/// How a lens maps the angle theta from its axis to the distance r from the middle of the picture, in focal lengths.
enum class Mapping {
  Rectilinear,    ///< r = tan theta
  Equidistant,    ///< r = theta
  Stereographic,  ///< r = 2 tan(theta/2)
  EqualArea,      ///< r = 2 sin(theta/2)
  Orthographic    ///< r = sin theta
};

/// A camera whose optical axis goes through the middle of its picture.
struct Camera {
  int width = 1, height = 1;  ///< pixels
  double focal = 1;           ///< focal length in pixels
  Mapping mapping = Mapping::Rectilinear;

  PicturePoint Middle() const { return {0.5 * width, 0.5 * height}; }
};

/// cos theta, and sin theta over r, by the square of r: what makes a direction of a point of the picture without
/// trigonometry. Beyond the largest r of a mapping theta stays at its limit.
struct LensAngle {
  double cosine = 1, sineOverR = 1;
};
inline LensAngle LensAngleOf(Mapping mapping, double rSquared) {
  switch (mapping) {
    case Mapping::Rectilinear: {
      const double c = 1 / std::sqrt(1 + rSquared);
      return {c, c};
    }
    case Mapping::Equidistant: {
      const double r = std::sqrt(rSquared), theta = std::min(r, std::numbers::pi);
      return {std::cos(theta), r > 0 ? std::sin(theta) / r : 1};
    }
    case Mapping::Stereographic: {
      const double q = rSquared / 4, s = 1 / (1 + q);
      return {(1 - q) * s, s};
    }
    case Mapping::EqualArea:
      return rSquared < 4 ? LensAngle{1 - rSquared / 2, std::sqrt(1 - rSquared / 4)} : LensAngle{-1, 0};
    case Mapping::Orthographic:
      return rSquared < 1 ? LensAngle{std::sqrt(1 - rSquared), 1} : LensAngle{0, 1 / std::sqrt(rSquared)};
  }
  return {};
}

/// The direction that a point of the picture shows.
Direction DirectionOf(const Camera& camera, const PicturePoint& point);

/// Where a direction is in the picture, or would be beside it; nothing for what the mapping shows nowhere (rectilinear:
/// from 90 degrees off the axis; orthographic: beyond it).
std::optional<PicturePoint> PointOf(const Camera& camera, const Direction& seen);

/// A focal length in pixels.
struct FocalScale {
  double pixels = 0;
  bool doubtful = false;  ///< the shape of the picture is that of no film: its longer side was taken for 36 mm
};

/// @param f        focal length of a camera with film of 36 x 24 mm (mm).
/// @param halfWidth, halfHeight  of the picture (pixels). 3:2 and 4:3, upright too, go by the diagonal.
FocalScale FocalInPixels(double f, double halfWidth, double halfHeight);

}  // namespace lumivex
