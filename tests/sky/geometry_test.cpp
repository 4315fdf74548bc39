/// Directions, scattering angles and lines of the sky against vectors and trigonometry done another way.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>

#include "sky/camera.h"
#include "sky/sight.h"
#include "sky/sky_lines.h"

namespace lumivex {
namespace {

constexpr double pi = std::numbers::pi, degree = pi / 180;
constexpr std::array mappings = {Mapping::Rectilinear, Mapping::Equidistant, Mapping::Stereographic, Mapping::EqualArea,
                                 Mapping::Orthographic};

Camera CameraOf(Mapping mapping, double f = 28, int width = 3000, int height = 2000) {
  return {width, height, FocalInPixels(f, 0.5 * width, 0.5 * height).pixels, mapping};
}

/// The angle from the axis by its definition.
double ThetaOf(Mapping mapping, double r) {
  switch (mapping) {
    case Mapping::Rectilinear:
      return std::atan(r);
    case Mapping::Equidistant:
      return std::min(r, pi);
    case Mapping::Stereographic:
      return 2 * std::atan(r / 2);
    case Mapping::EqualArea:
      return 2 * std::asin(std::min(r / 2, 1.0));
    default:
      return std::asin(std::min(r, 1.0));
  }
}

TEST(FocalLength, FollowsTheDiagonalOfFilmShapesAndTheLongerSideOfOthers) {
  struct Case {
    double f, width, height, pixels;
    bool doubtful;
  };
  for (const Case& c : {Case{28, 3000, 2000, 2333.3333, false}, Case{50, 4000, 3000, 5778.1270, false},
                        Case{50, 3000, 4000, 5778.1270, false}, Case{35, 2000, 3000, 2916.6667, false},
                        Case{35, 1920, 1080, 1866.6667, true}, Case{24, 600, 600, 400, true}}) {
    const FocalScale scale = FocalInPixels(c.f, c.width / 2, c.height / 2);
    EXPECT_NEAR(scale.pixels, c.pixels, 1e-4) << c.width << " x " << c.height;
    EXPECT_EQ(scale.doubtful, c.doubtful) << c.width << " x " << c.height;
  }
}

TEST(Camera, DirectionsAreThoseOfTheMappingAndComeBackToTheirPixel) {
  for (const Mapping mapping : mappings)
    for (const double f : {8.9, 28.0, 200.0}) {
      const Camera camera = CameraOf(mapping, f);
      for (const PicturePoint p : {PicturePoint{1500, 1000}, {0, 0}, {2999, 1999}, {400, 300}, {1500, 10}, {2999, 0}}) {
        const double dx = p.x - 1500, dy = 1000 - p.y, r = std::hypot(dx, dy) / camera.focal;
        const double theta = ThetaOf(mapping, r), azimuth = std::atan2(dx, dy);
        const Direction u = DirectionOf(camera, p);
        EXPECT_NEAR(u.forward, std::cos(theta), 1e-12) << int(mapping) << " f " << f << " at " << p.x << ", " << p.y;
        EXPECT_NEAR(u.right, std::sin(theta) * std::sin(azimuth), 1e-12) << int(mapping) << " f " << f;
        EXPECT_NEAR(u.up, std::sin(theta) * std::cos(azimuth), 1e-12) << int(mapping) << " f " << f;
        // Beyond the largest angle of a mapping pixels have no place of their own.
        if (theta > 0.999 * ThetaOf(mapping, 1e9)) continue;
        const auto back = PointOf(camera, u);
        ASSERT_TRUE(back) << int(mapping) << " f " << f;
        EXPECT_NEAR(back->x, p.x, 1e-6);
        EXPECT_NEAR(back->y, p.y, 1e-6);
      }
    }
}

TEST(Camera, ShowsNothingThatItsMappingCannot) {
  const Direction behind{0.1, 0.1, -0.99}, aside{1, 0, 0};
  EXPECT_FALSE(PointOf(CameraOf(Mapping::Rectilinear), behind));
  EXPECT_FALSE(PointOf(CameraOf(Mapping::Rectilinear), aside));
  EXPECT_FALSE(PointOf(CameraOf(Mapping::Orthographic), behind));
  EXPECT_TRUE(PointOf(CameraOf(Mapping::Equidistant), Normalised(behind)));
  // The straight way back is a whole circle, no point.
  EXPECT_FALSE(PointOf(CameraOf(Mapping::EqualArea), {0, 0, -1}));
}

/// Angles that were computed with 50 digits from the definitions of the mappings.
TEST(Sight, ScatteringAnglesOfAllMappings) {
  struct Case {
    Mapping mapping;
    double altitude, azimuth, first, share, second;
  };
  for (const Case& c : {Case{Mapping::Rectilinear, 15.18205, -25.24053, 43.92702, 0.32888, 30.16060},
                        Case{Mapping::Equidistant, 16.53671, -27.81213, 47.27197, 0.34632, 33.48020},
                        Case{Mapping::Stereographic, 16.15742, -27.08269, 46.34124, 0.34125, 32.51261},
                        Case{Mapping::EqualArea, 16.74142, -28.20904, 47.77196, 0.34913, 34.01853},
                        Case{Mapping::Orthographic, 17.45760, -29.61645, 49.50194, 0.35952, 36.03615}}) {
    Sight sight{CameraOf(c.mapping), {}, {}};
    sight.source.direction = DirectionOf(sight.camera, {1500, 1900});
    const SightReading reading = ReadSight(sight, {400, 300});
    EXPECT_NEAR(reading.altitude, c.altitude, 1e-5) << int(c.mapping);
    EXPECT_NEAR(reading.azimuth, c.azimuth, 1e-5) << int(c.mapping);
    EXPECT_NEAR(*reading.scattering, 180 - c.first, 1e-5) << int(c.mapping);
    sight.source = {DirectionOf(sight.camera, {2100, 500}), false};
    EXPECT_NEAR(*ReadSight(sight, {2800, 1700}).scattering, c.second, 1e-5) << int(c.mapping);
  }
}

TEST(Sight, ViewByAltitudeAndAzimuth) {
  const CameraPose pose{26 * degree, 162 * degree};
  const Direction antisolar = DirectionAt(-15 * degree, pi);
  struct Case {
    Mapping mapping;
    PicturePoint at;
    double scattering;
  };
  for (const Case& c :
       {Case{Mapping::Rectilinear, {1500, 1000}, 135.41570}, Case{Mapping::Rectilinear, {0, 0}, 101.31988},
        Case{Mapping::Rectilinear, {2500, 400}, 127.25553}, Case{Mapping::Rectilinear, {1500, 1999}, 154.79537},
        Case{Mapping::EqualArea, {0, 0}, 94.10048}}) {
    const Camera camera = CameraOf(c.mapping);
    const Sight sight{camera, pose, {InCamera(antisolar, pose), true}};
    EXPECT_NEAR(*ReadSight(sight, c.at).scattering, c.scattering, 1e-5) << c.at.x << ", " << c.at.y;
  }
  const Sight middle{CameraOf(Mapping::Rectilinear), pose, {}};
  EXPECT_NEAR(ReadSight(middle, {1500, 1000}).altitude, 26, 1e-9);
  EXPECT_NEAR(ReadSight(middle, {1500, 1000}).azimuth, 162, 1e-9);
}

TEST(Sight, ElevationPlacesTheHorizon) {
  const Camera camera = CameraOf(Mapping::Rectilinear);
  const Direction antisolar = DirectionOf(camera, {1500, 1900}), sun = DirectionOf(camera, {700, 300});
  EXPECT_NEAR(AxisAltitude(antisolar, -15 * degree) / degree, 6.0923, 1e-4);
  EXPECT_NEAR(AxisAltitude(sun, 10 * degree) / degree, -6.1680, 1e-4);
  EXPECT_NEAR(AltitudeOf(InWorld(sun, {AxisAltitude(sun, 10 * degree), 0.3})) / degree, 10, 1e-9);
}

TEST(Sight, LampsMakeAnglesLarger) {
  struct Case {
    bool antisolar;
    double d, D1, D2, scattering;
  };
  for (const Case& c :
       {Case{true, 10, 100, 100, 180 - 4.96163}, Case{true, 42, 100, 100, 180 - 17.76263},
        Case{true, 60, 1, 1, 180 - 19.10661}, Case{true, 42, 10, 100, 180 - 37.32049},
        Case{true, 42, 100, 10, 180 - 2.69799}, Case{false, 10, 100, 100, 20}, Case{false, 22, 7, 7, 44}}) {
    const LightSource source{{}, c.antisolar, Lamp{c.D1, c.D2}};
    EXPECT_NEAR(*ScatteringAngle(source, c.d * degree) / degree, c.scattering, 1e-5) << c.d << " " << c.D1;
    EXPECT_FALSE(ScatteringAngle(source, pi / 2)) << "no line of sight meets the sheet";
  }
  // A lamp far away is a sun.
  EXPECT_NEAR(*ScatteringAngle({{}, true, Lamp{1, 1e9}}, 42 * degree) / degree, 138, 1e-6);
}

TEST(Sight, TheTableOfAnglesIsExactToTheEndsAndBeyondAQuarterTurn) {
  for (const auto& source : {LightSource{{}, true}, LightSource{{}, false}, LightSource{{}, true, Lamp{100, 500}},
                             LightSource{{}, false, Lamp{100, 100}}}) {
    const AngleOfCosine table(source);
    for (const double d : {0.0, 0.001, 0.1, 5.0, 42.0, 89.0, 89.999, 90.001, 120.0, 179.9, 179.999, 180.0}) {
      const auto exact = ScatteringAngle(source, d * degree);
      const double found = table(std::cos(d * degree));
      if (exact) {
        EXPECT_NEAR(found, *exact / degree, source.lamp ? 1e-5 : 2e-6) << d;
      } else {
        EXPECT_LT(found, 0) << d;
      }
    }
  }
}

TEST(SkyLines, CirclesAreConesOfTheirRadius) {
  struct Case {
    Mapping mapping;
    std::array<PicturePoint, 3> at;  ///< top, right above, right
  };
  for (const Case& c :
       {Case{Mapping::Rectilinear, {PicturePoint{1500, 108.63}, {2778.34, 529.86}, {3751.81, 1900}}},
        Case{Mapping::Stereographic, {PicturePoint{1500, 170.07}, {2683.42, 592.69}, {3347.87, 1763.20}}},
        Case{Mapping::Equidistant, {PicturePoint{1500, 189.58}, {2655.90, 612.06}, {3246.72, 1729.84}}}}) {
    const Camera camera = CameraOf(c.mapping);
    const Direction centre = DirectionOf(camera, {1500, 1900});
    const auto lines = CircleLines(camera, centre, 42 * degree);
    ASSERT_FALSE(lines.empty());
    for (const auto& line : lines)
      for (const PicturePoint& p : line)
        EXPECT_NEAR(AngleBetween(DirectionOf(camera, p), centre) / degree, 42, 1e-9) << int(c.mapping);
    for (const PicturePoint& wanted : c.at) {
      double nearest = 1e9;
      for (const auto& line : lines)
        for (const PicturePoint& p : line) nearest = std::min(nearest, std::hypot(p.x - wanted.x, p.y - wanted.y));
      EXPECT_LT(nearest, 0.02) << int(c.mapping) << " " << wanted.x << ", " << wanted.y;
    }
  }
}

TEST(SkyLines, TheGridHasTheHorizonAtItsPlace) {
  const Camera camera = CameraOf(Mapping::Rectilinear);
  const CameraPose pose{6 * degree, 0};
  double lowest = 0, highest = 1e9;
  for (const auto& line : SkyGrid(camera, pose, 30))
    for (const PicturePoint& p : line) {
      const double altitude = AltitudeOf(InWorld(DirectionOf(camera, p), pose)) / degree;
      if (std::abs(altitude) < 1e-6) lowest = std::max(lowest, p.y), highest = std::min(highest, p.y);
    }
  EXPECT_NEAR(lowest, 1000 + camera.focal * std::tan(6 * degree), 1e-6);
  EXPECT_NEAR(highest, lowest, 1e-6) << "the horizon is straight";
}

}  // namespace
}  // namespace lumivex
