/// Centres of marked arcs.

#include <gtest/gtest.h>

#include <numbers>

#include "sky/arc_fit.h"
#include "sky/camera.h"

namespace lumivex {
namespace {

constexpr double degree = std::numbers::pi / 180;

struct Marked {
  Mapping mapping;
  double f, scattering;
  std::array<PicturePoint, 3> points;
  double altitude, azimuth, rms;  ///< degrees
};

TEST(ArcFit, FindsTheCentreOfAnArcOfKnownRadius) {
  for (const Marked& m :
       {Marked{Mapping::Rectilinear, 28, 139, {PicturePoint{935, 235}, {1500, 155}, {2065, 235}}, -21.0938, 0, 0.0009},
        Marked{Mapping::Stereographic,
               28,
               139,
               {PicturePoint{700, 420}, {1300, 260}, {2100, 330}},
               -22.4383,
               0.2299,
               0.1823},
        Marked{Mapping::EqualArea, 14, 139, {PicturePoint{995, 832}, {1500, 670}, {2005, 832}}, -24.7599, 0, 0.0164},
        Marked{Mapping::Rectilinear,
               28,
               22,
               {PicturePoint{700, 500}, {1500, 20}, {2300, 600}},
               -0.2150,
               179.4018,
               0.5884}}) {
    const Camera camera{3000, 2000, FocalInPixels(m.f, 1500, 1000).pixels, m.mapping};
    std::array<Direction, 3> marks;
    for (std::size_t i = 0; i < marks.size(); ++i) marks[i] = DirectionOf(camera, m.points[i]);
    const auto arc = FitArc(marks, (180 - m.scattering) * degree);
    ASSERT_TRUE(arc) << m.scattering;
    EXPECT_NEAR(AltitudeOf(arc->centre) / degree, m.altitude, 2e-4) << m.scattering;
    EXPECT_NEAR(AzimuthOf(arc->centre) / degree, m.azimuth, 2e-4) << m.scattering;
    EXPECT_NEAR(arc->residual / degree, m.rms, 2e-4) << m.scattering;
  }
}

TEST(ArcFit, RecoversACentreFromEveryMapping) {
  for (int mapping = 0; mapping < 5; ++mapping) {
    const Camera camera{3000, 2000, FocalInPixels(28, 1500, 1000).pixels, static_cast<Mapping>(mapping)};
    const Direction centre = DirectionOf(camera, {1720, 2300});
    const Direction e1 = Normalised(Cross(Cross(centre, {0, 1, 0}), centre)), e2 = Cross(e1, centre);
    std::array<Direction, 3> marks;
    for (std::size_t i = 0; i < marks.size(); ++i) {
      const double phi = (static_cast<double>(i) - 1) * 20 * degree, c = std::cos(42 * degree),
                   s = std::sin(42 * degree);
      const double a = s * std::cos(phi), b = s * std::sin(phi);
      const Direction u{c * centre.right + a * e1.right + b * e2.right, c * centre.up + a * e1.up + b * e2.up,
                        c * centre.forward + a * e1.forward + b * e2.forward};
      // Marked by a click, to a whole pixel.
      const auto point = PointOf(camera, u);
      ASSERT_TRUE(point);
      marks[i] = DirectionOf(camera, {std::round(point->x), std::round(point->y)});
    }
    const auto arc = FitArc(marks, 42 * degree);
    ASSERT_TRUE(arc);
    EXPECT_LT(AngleBetween(arc->centre, centre) / degree, 0.1) << mapping;
    EXPECT_NEAR(arc->freeRadius / degree, 42, 1.5) << mapping;
  }
}

TEST(ArcFit, TellsNothingOfLinesAndSinglePoints) {
  const Camera camera{3000, 2000, 2333, Mapping::Rectilinear};
  const auto fit = [&](PicturePoint a, PicturePoint b, PicturePoint c) {
    return FitArc({DirectionOf(camera, a), DirectionOf(camera, b), DirectionOf(camera, c)}, 42 * degree);
  };
  EXPECT_FALSE(fit({100, 100}, {1000, 400}, {1900, 700})) << "a line of the picture is a great circle";
  EXPECT_FALSE(fit({100, 100}, {100, 100}, {1900, 700}));
  EXPECT_FALSE(fit({100, 100}, {100, 100}, {100, 100}));
}

}  // namespace
}  // namespace lumivex
