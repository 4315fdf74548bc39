#include "record/drawing_surface.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

namespace lumivex {
namespace {

/// A surface that knows lines and boxes alone, so that images and curves fall back on them.
class BoxesOnly final : public DrawingSurface {
 public:
  struct Drawn {
    double left, top, right, bottom;
    Colour colour;
    LineKind kind;
  };
  void Cls() override {}
  void Line(double x1, double y1, double x2, double y2, LineKind kind) override {
    drawn.push_back({x1, y1, x2, y2, ForeColour, kind});
  }
  void PSet(double, double, Colour) override {}
  void Circle(double, double, double, Colour) override {}
  double TextWidth(std::string_view) const override { return 0; }
  double TextHeight(std::string_view) const override { return 0; }
  double ScaleWidth() const override { return 100; }
  double ScaleHeight() const override { return 100; }

  std::vector<Drawn> drawn;

 protected:
  void Text(double, double, std::string_view) override {}
};

constexpr std::array cells = {Colour{1}, Colour{2}, Colour{3}, Colour{4}, Colour{5}, Colour{6}};

void ExpectBox(const BoxesOnly::Drawn& box, std::array<double, 4> sides, std::uint32_t colour) {
  EXPECT_NEAR(box.left, sides[0], 1e-12) << colour;
  EXPECT_NEAR(box.top, sides[1], 1e-12) << colour;
  EXPECT_NEAR(box.right, sides[2], 1e-12) << colour;
  EXPECT_NEAR(box.bottom, sides[3], 1e-12) << colour;
  EXPECT_EQ(box.colour, Colour{colour});
  EXPECT_EQ(box.kind, LineKind::FilledBox);
}

TEST(DrawingSurface, CellsFillTheirBoxRowByRow) {
  BoxesOnly surface;
  surface.ForeColour = Colour{9};
  surface.Image({10, 20, 40, 60, 3, 2}, cells);
  ASSERT_EQ(surface.drawn.size(), 6U);
  ExpectBox(surface.drawn[0], {10, 20, 20, 40}, 1);
  ExpectBox(surface.drawn[2], {30, 20, 40, 40}, 3);
  ExpectBox(surface.drawn[3], {10, 40, 20, 60}, 4);
  ExpectBox(surface.drawn[5], {30, 40, 40, 60}, 6);
  EXPECT_EQ(surface.ForeColour, Colour{9}) << "the pen is as it was";
}

// Samples on the ends of an axis are cut in half; a zoom leaves cells out.
TEST(DrawingSurface, APartOfTheCellsFillsTheBox) {
  BoxesOnly surface;
  surface.Image({10, 20, 50, 60, 3, 2, CellPart{0.5, 0.5, 2.5, 1.5}}, cells);
  ASSERT_EQ(surface.drawn.size(), 6U);
  ExpectBox(surface.drawn[0], {10, 20, 20, 40}, 1);
  ExpectBox(surface.drawn[1], {20, 20, 40, 40}, 2);
  ExpectBox(surface.drawn[2], {40, 20, 50, 40}, 3);
  ExpectBox(surface.drawn[4], {20, 40, 40, 60}, 5);
  surface.drawn.clear();
  surface.Image({10, 20, 50, 60, 3, 2, CellPart{1, 1, 2, 2}}, cells);
  ASSERT_EQ(surface.drawn.size(), 1U) << "cells that the part only touches have no room";
  ExpectBox(surface.drawn[0], {10, 20, 50, 60}, 5);
}

TEST(DrawingSurface, NothingIsDrawnOfNoCells) {
  BoxesOnly surface;
  surface.Image({10, 20, 50, 60, 0, 2}, cells);
  surface.Image({10, 20, 50, 60, 3, 0}, cells);
  surface.Image({10, 20, 50, 60, 3, 2, CellPart{1, 0, 1, 2}}, cells);
  surface.Image({10, 20, 50, 60, 3, 2, CellPart{0, 2, 3, 2}}, cells);
  surface.Image({10, 20, 50, 60, 3, 2, CellPart{3, 0, 4, 2}}, cells);
  EXPECT_TRUE(surface.drawn.empty());
}

TEST(DrawingSurface, ACurveIsItsLines) {
  BoxesOnly surface;
  const std::array<SurfacePoint, 3> points = {SurfacePoint{1, 2}, {3, 4}, {5, 1}};
  surface.Polyline(points);
  ASSERT_EQ(surface.drawn.size(), 2U);
  EXPECT_EQ(surface.drawn[0].left, 1);
  EXPECT_EQ(surface.drawn[0].bottom, 4);
  EXPECT_EQ(surface.drawn[1].left, 3);
  EXPECT_EQ(surface.drawn[1].right, 5);
  surface.drawn.clear();
  surface.Polyline(std::span(points).first(1));
  EXPECT_TRUE(surface.drawn.empty());
}

}  // namespace
}  // namespace lumivex
