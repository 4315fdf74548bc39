#include "axes/polar_coordinates.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

TEST(PolarCoordinates, EveryQuadrantAndAxis) {
  for (const double x : {-2.0, 0.0, 3.0}) {
    for (const double y : {-1.0, 0.0, 5.0}) {
      double r = 0.0, theta = 0.0, backX = 0.0, backY = 0.0;
      RectangularPolar(x, y, r, theta);
      PolarRectangular(r, theta, backX, backY);
      EXPECT_NEAR(backX, x, 1e-14);
      EXPECT_NEAR(backY, y, 1e-14);
      if (r > 0.0) {
        EXPECT_NEAR(theta, std::atan2(y, x), 1e-15) << x << " " << y;
      }
    }
  }
}

}  // namespace
}  // namespace lumivex
