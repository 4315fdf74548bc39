#include "ui/painter_surface.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace lumivex {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

class PainterSurfaceTest : public testing::Test {
 protected:
  PainterSurfaceTest() : surface(200, 100, 0.1, 1) {
    surface.BackColour = colours::White;
    surface.Cls();
  }
  QColor At(int x, int y) const { return surface.Picture().pixelColor(x, y); }
  int DotsOf(QRgb colour) const {
    int count = 0;
    for (int y = 0; y < surface.Picture().height(); ++y)
      for (int x = 0; x < surface.Picture().width(); ++x) count += surface.Picture().pixel(x, y) == colour;
    return count;
  }
  ImageSurface surface;
};

TEST_F(PainterSurfaceTest, NeighbouringBoxesMeetWithoutGapOrOverlap) {
  // Widths that are no whole number of dots: each dot must belong to exactly one of the boxes.
  constexpr int boxes = 37;
  constexpr double left = 103, right = 1897;
  for (int i = 0; i < boxes; ++i) {
    surface.ForeColour = i % 2 == 0 ? RGB(255, 0, 0) : RGB(0, 0, 255);
    surface.Line(left + (right - left) * i / boxes, 200, left + (right - left) * (i + 1) / boxes, 800,
                 LineKind::FilledBox);
  }
  for (int x = 11; x < 189; ++x) EXPECT_NE(At(x, 50), QColor(Qt::white)) << "dot " << x;
  EXPECT_EQ(At(50, 19), QColor(Qt::white));
  EXPECT_EQ(At(50, 80), QColor(Qt::white));
}

TEST_F(PainterSurfaceTest, WhatIsNotFiniteDrawsNothingAndLiftsThePen) {
  const std::vector<SurfacePoint> curve = {{100, 500}, {600, 500}, {nan, 500}, {1200, 500}, {1800, 500}};
  surface.Polyline(curve);
  EXPECT_NE(At(30, 50), QColor(Qt::white));
  EXPECT_EQ(At(90, 50), QColor(Qt::white)) << "joined across the gap";
  EXPECT_NE(At(150, 50), QColor(Qt::white));

  surface.Cls();
  surface.Line(nan, 0, 100, 100, LineKind::Plain);
  surface.Line(0, infinity, 100, 100, LineKind::FilledBox);
  surface.Circle(100, 100, nan, colours::Black);
  surface.PSet(infinity, 3, colours::Black);
  surface.CurrentX = nan;
  surface.Print("text", false);
  EXPECT_EQ(DotsOf(qRgb(255, 255, 255)), 200 * 100);
}

TEST_F(PainterSurfaceTest, ALineAlongAnAxisIsSharpAndOneDotWide) {
  for (const double y : {403.0, 407.9, 411.2}) {
    surface.Cls();
    surface.Line(200, y, 1000, y, LineKind::Plain);
    EXPECT_EQ(DotsOf(qRgb(0, 0, 0)), 81) << "y = " << y;
  }
}

TEST_F(PainterSurfaceTest, DashesRunOnAlongACurveOfManyPoints) {
  // Points closer than a dash: dashes that began anew at each of them would join into one solid line.
  surface.DrawStyle = 1;
  std::vector<SurfacePoint> curve;
  for (int i = 0; i <= 1600; ++i) curve.push_back({200.0 + i, 505});
  surface.Polyline(curve);
  int changes = 0;
  for (int x = 21; x < 180; ++x) changes += (At(x, 50).lightness() < 128) != (At(x - 1, 50).lightness() < 128);
  EXPECT_GE(changes, 25);
  EXPECT_LE(changes, 40);
}

TEST_F(PainterSurfaceTest, TextGrowsWithTheUnitAndNotWithTheDotsOfTheScreen) {
  const double width = surface.TextWidth("Scattering angle"), height = surface.TextHeight("X");
  EXPECT_NEAR(height, 8 * 20 * 1.17, 8 * 20 * 0.35) << "a point is 20 units";
  surface.Resize(200, 100, 0.1, 3);
  EXPECT_NEAR(surface.TextWidth("Scattering angle"), width, 0.06 * width) << "on a screen of three dots a pixel";
  surface.Resize(400, 200, 0.2, 1);
  EXPECT_NEAR(surface.TextWidth("Scattering angle"), width, 0.06 * width) << "with a unit twice as large";
  EXPECT_DOUBLE_EQ(surface.ScaleWidth(), 2000);
}

TEST_F(PainterSurfaceTest, ABlockOfCellsFillsItsBoxInReadingOrder) {
  const std::array<Colour, 6> cells = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255),
                                       RGB(1, 2, 3),   RGB(4, 5, 6),   RGB(7, 8, 9)};
  surface.Image({100, 100, 1900, 900, 3, 2}, cells);
  EXPECT_EQ(At(12, 12), QColor(255, 0, 0));
  EXPECT_EQ(At(188, 12), QColor(0, 0, 255));
  EXPECT_EQ(At(12, 88), QColor(1, 2, 3));
  EXPECT_EQ(At(188, 88), QColor(7, 8, 9));
  EXPECT_EQ(DotsOf(qRgb(255, 255, 255)), 200 * 100 - 180 * 80);
}

TEST_F(PainterSurfaceTest, SamplesOnTheEndsOfAnAxisHaveHalfACell) {
  const std::array<Colour, 3> cells = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};
  surface.Image({0, 0, 2000, 1000, 3, 1, CellPart{0.5, 0, 2.5, 1}}, cells);
  EXPECT_EQ(At(48, 50), QColor(255, 0, 0)) << "a quarter of the width";
  EXPECT_EQ(At(52, 50), QColor(0, 255, 0));
  EXPECT_EQ(At(148, 50), QColor(0, 255, 0));
  EXPECT_EQ(At(152, 50), QColor(0, 0, 255));
}

}  // namespace
}  // namespace lumivex
