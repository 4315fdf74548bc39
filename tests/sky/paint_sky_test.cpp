/// Painted pixels against the light of their scattering angle.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "sky/paint_sky.h"
#include "sky/sky_lines.h"

namespace lumivex {
namespace {

constexpr double degree = std::numbers::pi / 180;

/// A narrow bow of 138 degrees: rows of half a degree, one of them lit.
std::shared_ptr<LightTable> NarrowBow() {
  auto table = std::make_shared<LightTable>(LightTable{130, 0.5, {}});
  for (int i = 0; i <= 40; ++i) {
    const double light = i == 16 ? 255 : 0;
    table->rows.push_back({{light, light / 2, 20}, {light / 4, 0, 0}});
  }
  return table;
}

SkyPainting PaintingOf(Mapping mapping, int width = 900, int height = 600) {
  SkyPainting painting;
  painting.sight.camera = {width, height, FocalInPixels(28, 0.5 * width, 0.5 * height).pixels, mapping};
  painting.sight.source = {DirectionOf(painting.sight.camera, {0.5 * width, 0.95 * height}), true};
  painting.light = NarrowBow();
  return painting;
}

Bitmap Painted(const SkyPainting& painting, const Bitmap& ground) {
  Bitmap picture = ground;
  SilentWatch watch;
  TaskPool pool(watch);
  EXPECT_EQ(PaintSky(SkyPainter(painting), {}, ground, picture, pool), ground.height);
  EXPECT_FALSE(pool.Overflowed());
  return picture;
}

/// The colour that a bar has of the light.
std::uint32_t BarColour(ColourTriple light, SaturationRule saturation = SaturationRule::Photo,
                        GammaRule gamma = GammaRule::IndividualRGB) {
  const ColourTriple shown = GammaCorrect(Saturation(light, saturation), gamma);
  const auto whole = [](double c) { return static_cast<std::uint32_t>(std::nearbyint(c)); };
  return OpaquePixel(whole(shown.r), whole(shown.g), whole(shown.b));
}

TEST(PaintSky, ABowStandsWhereItsConeMeetsThePicture) {
  for (int mapping = 0; mapping < 5; ++mapping) {
    const SkyPainting painting = PaintingOf(static_cast<Mapping>(mapping));
    const Camera& camera = painting.sight.camera;
    const Bitmap picture = Painted(painting, Bitmap(900, 600));
    int looked = 0;
    for (const auto& line : CircleLines(camera, painting.sight.source.direction, 42 * degree))
      for (const PicturePoint& p : line) {
        if (p.x < 2 || p.y < 2 || p.x > 897 || p.y > 597) continue;
        // The brightest pixel near the line is on it.
        double brightest = -1, missed = 9;
        for (int dy = -2; dy <= 2; ++dy)
          for (int dx = -2; dx <= 2; ++dx) {
            const int x = int(std::lround(p.x)) + dx, y = int(std::lround(p.y)) + dy;
            const double light = ChannelOf(picture.Row(y)[x], 0);
            const double angle =
                AngleBetween(DirectionOf(camera, {double(x), double(y)}), painting.sight.source.direction);
            if (light > brightest) brightest = light, missed = std::abs(angle / degree - 42) * degree * camera.focal;
          }
        ++looked;
        EXPECT_LT(missed, 1) << mapping << " at " << p.x << ", " << p.y;
        EXPECT_GT(brightest, 100);
      }
    EXPECT_GT(looked, 100) << mapping;
  }
}

TEST(PaintSky, OnARowOfTheTableAPixelHasTheColourOfTheBar) {
  // The middle of the picture is 138 degrees: 42 below it is the antisolar point.
  for (const auto gamma : {GammaRule::IndividualRGB, GammaRule::GroupRGB, GammaRule::None})
    for (const auto saturation : {SaturationRule::Photo, SaturationRule::Freeze, SaturationRule::PeakWhite}) {
      SkyPainting painting = PaintingOf(Mapping::Equidistant);
      painting.sight.source.direction = DirectionAt(-42 * degree, 0);
      auto table = std::make_shared<LightTable>(*painting.light);
      table->rows[16] = {{300, 120, 40}, {500, 20, 0}};
      painting.light = table;
      painting.gamma = gamma;
      painting.saturation = saturation;
      const auto pixel = [&](SkyPolarisation polarisation) {
        painting.polarisation = polarisation;
        return Painted(painting, Bitmap(900, 600)).Row(300)[450];
      };
      EXPECT_EQ(pixel(SkyPolarisation::Perpendicular), BarColour({300, 120, 40}, saturation, gamma));
      EXPECT_EQ(pixel(SkyPolarisation::Parallel), BarColour({500, 20, 0}, saturation, gamma));
      EXPECT_EQ(pixel(SkyPolarisation::Unpolarised), BarColour({400, 70, 20}, saturation, gamma));
    }
}

TEST(LightTable, LiesOnStraightLinesBetweenItsRowsAndEndsAtThem) {
  const LightTable table{10, 2, {{{0, 0, 0}, {8, 0, 0}}, {{100, 40, 0}, {16, 0, 0}}, {{50, 0, 0}, {0, 0, 0}}}};
  EXPECT_DOUBLE_EQ(SimPlot2(table, 10, 1, 0).r, 0);
  EXPECT_DOUBLE_EQ(SimPlot2(table, 10.5, 1, 0).r, 25);
  EXPECT_DOUBLE_EQ(SimPlot2(table, 13, 1, 0).r, 75);
  EXPECT_DOUBLE_EQ(SimPlot2(table, 14, 1, 0).r, 50) << "the last row";
  EXPECT_DOUBLE_EQ(SimPlot2(table, 11, 0, 1).r, 12);
  EXPECT_TRUE(table.Holds(14));
  EXPECT_FALSE(table.Holds(14.001));
  EXPECT_FALSE(table.Holds(9.999));
}

// Between two sectors a bow stands between its places in both, as bright as in them.
TEST(LightTable, BowsMoveEvenlyFromSectorToSector) {
  constexpr int sectors = 24;
  LightTable table{0, 0.5, std::vector<PolarisedLight>(361)};
  const auto primary = [](double sector) { return 138 + 0.5 * sector; };
  const auto secondary = [](double sector) { return 130 - 0.25 * sector; };
  for (int k = 0; k < sectors; ++k) {
    std::vector<PolarisedLight> rows(361);
    const auto row = [](double angle) { return static_cast<std::size_t>(std::lround(2 * angle)); };
    const ColourTriple red{100, 0, 0}, green{0, 100, 0};
    for (std::size_t i = row(primary(k)); i < rows.size(); ++i) rows[i] = {red, red};
    for (std::size_t i = 0; i <= row(secondary(k)); ++i) rows[i] = {green, green};
    table.sectors.push_back(std::move(rows));
    table.bows.push_back({secondary(k), primary(k)});
  }
  const auto light = [&](double place, double angle) {
    return LightOfSectors(table, (place + 0.5) / sectors * std::numbers::pi, angle, 0.5, 0.5);
  };
  // A step of brightness that goes along with the bow, wherever between the sectors it is looked at.
  for (double place = 4; place <= 18; place += 0.3) {
    EXPECT_LT(light(place, primary(place) - 0.8).r, 2) << place;
    EXPECT_GT(light(place, primary(place) + 0.4).r, 98) << place;
    EXPECT_LT(light(place, secondary(place) + 0.8).g, 2) << place;
    EXPECT_GT(light(place, secondary(place) - 0.4).g, 98) << place;
    EXPECT_NEAR(light(place, 150).r, light(-place - 1, 150).r, 1e-9) << "the other side";
  }
  // One that has ended is where it was; nothing is added or lost.
  for (std::size_t k = 12; k < sectors; ++k) table.bows[k][0] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_NEAR(light(20, 10).g, 100, 1e-9);
  EXPECT_NEAR(light(0, 179).r, 100, 1e-9);
}

// The top of the bow, its sides and its foot are those of the sky, however the camera stands.
TEST(PaintSky, FlattenedDropsHaveTheirLightAlongTheClock) {
  auto table = std::make_shared<LightTable>(LightTable{0, 180, {{}, {}}});
  constexpr int sectors = 36;
  for (int sector = 0; sector < sectors; ++sector) {
    const ColourTriple light{sector * 5.0, 0, 0};
    table->sectors.push_back({{light, light}, {light, light}});
  }
  for (const double altitude : {0.0, 0.4}) {
    SkyPainting painting = PaintingOf(Mapping::Equidistant, 600, 600);
    painting.sight.pose.altitude = altitude;
    const Direction antisolar = DirectionAt(-0.35, 0.1);
    painting.sight.source = {InCamera(antisolar, painting.sight.pose), true};
    painting.light = table;
    const Bitmap picture = Painted(painting, Bitmap(600, 600));
    const Direction side = Normalised(Cross({0, 1, 0}, antisolar)), top = Cross(antisolar, side);
    for (const double clock : {0.3, 1.0, 1.7, 2.5}) {
      for (const double sign : {-1.0, 1.0}) {
        constexpr double off = 0.2;
        const double up = std::sin(off) * std::cos(clock), across = sign * std::sin(off) * std::sin(clock);
        const auto mix = [&](double a, double t, double s) { return std::cos(off) * a + up * t + across * s; };
        const Direction u{mix(antisolar.right, top.right, side.right), mix(antisolar.up, top.up, side.up),
                          mix(antisolar.forward, top.forward, side.forward)};
        const auto point = PointOf(painting.sight.camera, InCamera(u, painting.sight.pose));
        ASSERT_TRUE(point.has_value());
        if (point->x < 1 || point->y < 1 || point->x > 598 || point->y > 598) continue;
        const double expected = 5 * (clock / std::numbers::pi * sectors - 0.5);
        const auto pixel =
            picture.Row(static_cast<int>(std::nearbyint(point->y)))[static_cast<int>(std::nearbyint(point->x))];
        const auto channel = static_cast<double>(ChannelOf(pixel, 0));
        EXPECT_NEAR(channel, ChannelOf(BarColour({expected, 0, 0}), 0), 4) << clock << " " << sign << " " << altitude;
      }
    }
  }
}

TEST(PaintSky, APolariserPassesItsShare) {
  struct Case {
    Mapping mapping;
    double share;
  };
  for (const Case& c :
       {Case{Mapping::Rectilinear, 0.32888}, Case{Mapping::Equidistant, 0.34632}, Case{Mapping::Stereographic, 0.34125},
        Case{Mapping::EqualArea, 0.34913}, Case{Mapping::Orthographic, 0.35952}}) {
    const Camera camera{3000, 2000, 7000.0 / 3, c.mapping};
    const Direction s = DirectionOf(camera, {1500, 1900}), u = DirectionOf(camera, {400, 300});
    EXPECT_NEAR(PerpendicularShare(s, u), c.share, 1e-5) << int(c.mapping);
    EXPECT_NEAR(PerpendicularShare(Opposite(s), u), c.share, 1e-5);
    EXPECT_DOUBLE_EQ(PerpendicularShare(s, s), 0.5);
  }
  // The sum of what two crossed polarisers pass is all the light.
  SkyPainting painting = PaintingOf(Mapping::Rectilinear);
  painting.light =
      std::make_shared<LightTable>(LightTable{0, 180, {{{90, 0, 0}, {30, 0, 0}}, {{90, 0, 0}, {30, 0, 0}}}});
  painting.gamma = GammaRule::None;
  painting.view = SkyView::PolarisedV;
  const Bitmap v = Painted(painting, Bitmap(900, 600));
  painting.view = SkyView::PolarisedH;
  const Bitmap h = Painted(painting, Bitmap(900, 600));
  for (const int y : {0, 100, 599})
    for (const int x : {0, 450, 899})
      EXPECT_NEAR(double(ChannelOf(v.Row(y)[x], 0) + ChannelOf(h.Row(y)[x], 0)), 120, 1) << x << ", " << y;
}

TEST(PaintSky, LightLiesOverTheBackgroundLikeASecondSlide) {
  SkyPainting painting = PaintingOf(Mapping::Rectilinear);
  painting.gamma = GammaRule::None;
  painting.background = {100, 0, 255};
  painting.light =
      std::make_shared<LightTable>(LightTable{0, 180, {{{200, 50, 7}, {200, 50, 7}}, {{200, 50, 7}, {200, 50, 7}}}});
  EXPECT_EQ(Painted(painting, Bitmap(900, 600)).Row(5)[5], OpaquePixel(222, 50, 255));
  painting.light = std::make_shared<LightTable>(LightTable{10, 1, {{}, {}}});
  EXPECT_EQ(Painted(painting, Bitmap(900, 600)).Row(5)[5], OpaquePixel(100, 0, 255)) << "outside the table";
}

TEST(PaintSky, OverThePhotographNoLightChangesNothing) {
  Bitmap ground(256, 2);
  for (int x = 0; x < 256; ++x) {
    const auto c = static_cast<std::uint32_t>(x);
    ground.Row(0)[x] = OpaquePixel(c, 255 - c, c / 2);
    ground.Row(1)[x] = OpaquePixel(c, c, c);
  }
  SkyPainting painting = PaintingOf(Mapping::Rectilinear, 256, 2);
  painting.compositing = Compositing::Over;
  painting.light = std::make_shared<LightTable>(LightTable{0, 180, {{}, {}}});
  EXPECT_EQ(Painted(painting, ground).pixels, ground.pixels);
  // Half as strong is half the light, before the curve.
  painting.light =
      std::make_shared<LightTable>(LightTable{0, 180, {{{100, 0, 0}, {100, 0, 0}}, {{100, 0, 0}, {100, 0, 0}}}});
  painting.strength = 0.5;
  EXPECT_EQ(ChannelOf(Painted(painting, ground).Row(1)[0], 0), std::uint32_t(std::nearbyint(TransferCurve(50))));
}

TEST(PaintSky, QuadrantsAreChosenOneByOne) {
  Bitmap ground(901, 601, OpaquePixel(1, 2, 3));
  for (const Quadrants q : {Quadrants{true, false, false, true}, Quadrants{false, true, true, false},
                            Quadrants{false, false, true, false}, Quadrants{true, true, true, true}}) {
    SkyPainting painting = PaintingOf(Mapping::Rectilinear, 901, 601);
    painting.background = {9, 9, 9};
    painting.light = std::make_shared<LightTable>(LightTable{0, 1, {{}}});
    painting.quadrants = q;
    const Bitmap picture = Painted(painting, ground);
    const auto painted = [&](int x, int y) { return picture.Row(y)[x] == OpaquePixel(9, 9, 9); };
    for (const auto& [x, y, wanted] : {std::tuple{0, 0, q.NW},
                                       {450, 300, q.NW},
                                       {451, 300, q.NE},
                                       {900, 0, q.NE},
                                       {0, 600, q.SW},
                                       {450, 301, q.SW},
                                       {451, 301, q.SE},
                                       {900, 600, q.SE}})
      EXPECT_EQ(painted(x, y), wanted) << x << ", " << y;
  }
}

/// What a preview shows is the picture, pixel for pixel, and a coarser raster the same sky.
TEST(PaintSky, ARasterShowsTheSamePixels) {
  const SkyPainting painting = PaintingOf(Mapping::Stereographic);
  const SkyPainter painter(painting);
  const Bitmap whole = Painted(painting, Bitmap(900, 600));
  std::vector<std::uint32_t> row(300, 0);
  painter.PaintRow({400, 20, 1}, 30, 300, row.data(), row.data());
  for (int i = 0; i < 300; ++i) EXPECT_EQ(row[static_cast<std::size_t>(i)], whole.Row(50)[400 + i]);
  // Cells beside the picture stay.
  std::vector<std::uint32_t> wide(40, 5);
  painter.PaintRow({-300, 0, 50}, 2, 40, wide.data(), wide.data());
  EXPECT_EQ(wide[5], 5U);
  EXPECT_NE(wide[6], 5U);
  EXPECT_NE(wide[23], 5U);
  EXPECT_EQ(wide[24], 5U);
}

class StopAtOnce final : public RunWatch {
 public:
  bool Look(const RunProgress&) override { return false; }
};

TEST(PaintSky, AStopLeavesTheRowsBelowAsTheyWere) {
  const Bitmap ground(900, 600, OpaquePixel(50, 60, 70));
  Bitmap picture = ground;
  StopAtOnce watch;
  TaskPool pool(watch, 1);
  const int rows = PaintSky(SkyPainter(PaintingOf(Mapping::Rectilinear)), {}, ground, picture, pool);
  EXPECT_LT(rows, 600);
  EXPECT_TRUE(pool.Stopped());
  EXPECT_EQ(picture.Row(599)[0], ground.Row(599)[0]);
}

TEST(Bitmap, InvertedAndSaturatedPixels) {
  Bitmap picture(3, 1);
  picture.pixels = {OpaquePixel(0, 100, 255), OpaquePixel(50, 100, 25), OpaquePixel(0, 0, 0)};
  Bitmap inverse = picture;
  Invert(inverse);
  EXPECT_EQ(inverse.pixels[0], OpaquePixel(255, 155, 0));
  SaturateColours(picture);
  EXPECT_EQ(picture.pixels[1], OpaquePixel(128, 255, 64));
  EXPECT_EQ(picture.pixels[2], OpaquePixel(0, 0, 0));
}

TEST(Bitmap, ASmallerRasterHasTheMeansOfItsPixels) {
  Bitmap picture(4, 2, OpaquePixel(10, 0, 0));
  picture.Row(0)[0] = OpaquePixel(50, 0, 0);
  const Bitmap half = Resampled(picture, {0, 0, 2}, 3, 1, OpaquePixel(7, 7, 7));
  EXPECT_EQ(half.Row(0)[0], OpaquePixel(20, 0, 0));
  EXPECT_EQ(half.Row(0)[1], OpaquePixel(10, 0, 0));
  EXPECT_EQ(half.Row(0)[2], OpaquePixel(7, 7, 7));
  const Bitmap large = Resampled(picture, {0, 0, 0.5}, 4, 2, 0);
  EXPECT_EQ(large.Row(1)[1], OpaquePixel(50, 0, 0));
  EXPECT_EQ(large.Row(1)[2], OpaquePixel(10, 0, 0));
}

}  // namespace
}  // namespace lumivex
