#pragma once

namespace lumivex {

/// From rectangular to polar coordinates: r = sqrt(x^2 + y^2), theta in radians from -pi (exclusive) to pi.
/// On the axis x = 0 theta is pi/2 for y >= 0 (the origin too), -pi/2 below.
void RectangularPolar(double x, double y, double& r, double& theta);

/// From polar to rectangular coordinates: x = r cos(theta), y = r sin(theta), theta in radians.
void PolarRectangular(double r, double theta, double& x, double& y);

}  // namespace lumivex
