#include "axes/polar_coordinates.h"

#include <cmath>
#include <numbers>

namespace lumivex {

void RectangularPolar(double x, double y, double& r, double& theta) {
  constexpr double pi = std::numbers::pi;
  r = std::sqrt(x * x + y * y);
  if (x == 0.0) {
    theta = y >= 0.0 ? pi / 2.0 : -pi / 2.0;
    return;
  }
  theta = std::atan(y / x);
  if (x < 0.0) {
    theta += y >= 0.0 ? pi : -pi;
  }
}

void PolarRectangular(double r, double theta, double& x, double& y) {
  x = r * std::cos(theta);
  y = r * std::sin(theta);
}

}  // namespace lumivex
