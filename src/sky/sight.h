#pragma once

#include <optional>
#include <vector>

#include "sky/camera.h"

namespace lumivex {

/// Light of a lamp in place of the sun's.
struct Lamp {
  double D1 = 100;  ///< from the observer to a plane sheet of drops
  double D2 = 100;  ///< of the lamp: behind the observer, or beyond the sheet where it is looked at; in the unit of D1
};

/// Where the light of a picture comes from, or goes to.
struct LightSource {
  Direction direction;    ///< of the sun, or of the antisolar point, as the camera sees it
  bool antisolar = true;  ///< which of the two
  std::optional<Lamp> lamp = std::nullopt;
};

/// A picture with the sky in it: what each pixel looks at, and from where it gets its light.
struct Sight {
  Camera camera;
  CameraPose pose;
  LightSource source;
};

/// The scattering angle of what is seen d off the direction of the source (both radians), by formulas that are exact
/// for a plane sheet of drops: pi - (d - atan(tan d D1/(D1 + D2))) about the antisolar point of a lamp, d +
/// atan(tan d D1/D2) about the lamp itself; without a lamp pi - d and d. Nothing where no line of sight meets the sheet
/// (d >= pi/2 with a lamp).
std::optional<double> ScatteringAngle(const LightSource& source, double d);

/// What a point of the picture shows, in degrees.
struct SightReading {
  double altitude = 0, azimuth = 0;  ///< of the world
  std::optional<double> scattering;
};
SightReading ReadSight(const Sight& sight, const PicturePoint& point);

/// Scattering angles (degrees) by the cosine of the angle from the source: a table, so that a picture of many pixels
/// needs no inverse functions. Exact to 1e-6 degrees, of a lamp to 1e-5, near 0 and 180 too; below 0 where there
/// is none.
class AngleOfCosine {
 public:
  explicit AngleOfCosine(const LightSource& source);
  double operator()(double cosine) const;

 private:
  std::vector<double> front_, back_;  ///< by sin(d/2) up to 90 degrees, by cos(d/2) beyond
};

}  // namespace lumivex
