#pragma once

#include <vector>

#include "sky/camera.h"

namespace lumivex {

/// A line over a picture.
using SkyLine = std::vector<PicturePoint>;

/// The circle of all directions `radius` (radians) from a direction, as lines over the picture: in pieces where part of
/// it is not to be seen, and without what lies far beside the picture. The first point of a whole circle is its top.
std::vector<SkyLine> CircleLines(const Camera& camera, const Direction& centre, double radius);

/// Circles every `step` degrees up to 180 about a direction.
std::vector<SkyLine> CirclesAbout(const Camera& camera, const Direction& centre, double step);

/// Lines of constant altitude and of constant azimuth of the world every `step` degrees.
std::vector<SkyLine> SkyGrid(const Camera& camera, const CameraPose& pose, double step);

}  // namespace lumivex
