#include "pages/frame/colours.h"

#include <gtest/gtest.h>

#include "pages/colours/cell_colours.h"
#include "pages/drawing_reader.h"
#include "pages/graph_fixture.h"
#include "session/inputs/look/colour_test.h"

namespace lumivex {
namespace {

void ExpectColour(ColourTriple c, double r, double g, double b, const std::string& where) {
  EXPECT_NEAR(c.r, r, 0.05) << where;
  EXPECT_NEAR(c.g, g, 0.05) << where;
  EXPECT_NEAR(c.b, b, 0.05) << where;
}

TEST(WavelengthColour, FollowsItsPieces) {
  ExpectColour(colRGB2(0.44), 0, 0, 255, "440 nm");
  ExpectColour(colRGB2(0.465), 0, 127.5, 255, "465 nm");
  ExpectColour(colRGB2(0.51), 0, 255, 0, "510 nm");
  ExpectColour(colRGB2(0.545), 127.5, 255, 0, "545 nm");
  ExpectColour(colRGB2(0.645), 255, 0, 0, "645 nm");
  ExpectColour(colRGB2(1.2), 255, 0, 0, "no fade beyond red");
  EXPECT_NEAR(colRGB2(0.38).r, 318.7, 0.1) << "not clipped before it becomes a colour";
  EXPECT_EQ(ColourSet(colRGB2(0.38)), RGB(255, 0, 255));
  ExpectColour(colrgb3(0.46), 255 * (1 - 80.0 / 90), 255 * 0.2, 255, "the other rule at 460 nm");
  ExpectColour(colrgb3(0.71), 0, 0, 0, "the other rule ends at 700 nm");
}

/// A rule of colours at each of its joints and in the middle of each piece.
TEST(WavelengthColour, OtherRulesFollowTheirPiecesToo) {
  struct Point {
    double at, r, g, b;
  };
  for (const Point& p :
       {Point{0.379, 0, 0, 0}, Point{0.38, 255, 0, 255}, Point{0.415, 155.833, 0, 255}, Point{0.46, 28.333, 51, 255},
        Point{0.48, 0, 153, 255}, Point{0.5, 0, 255, 255}, Point{0.525, 0, 255, 127.5}, Point{0.55, 0, 255, 0},
        Point{0.565, 127.5, 255, 0}, Point{0.58, 255, 255, 0}, Point{0.615, 255, 127.5, 0}, Point{0.65, 255, 0, 0},
        Point{0.7, 255, 0, 0}, Point{0.7001, 0, 0, 0}})
    ExpectColour(colrgb3(p.at), p.r, p.g, p.b, "by the other rule at " + std::to_string(p.at));
  for (const Point& p : {Point{0.48, 0, 204, 255}, Point{0.5, 0, 255, 127.5}, Point{0.5799, 254.635, 255, 0},
                         Point{0.58, 255, 254.989, 0}, Point{0.6, 255, 176.531, 0}, Point{0.63, 255, 58.844, 0}})
    ExpectColour(colRGB2(p.at), p.r, p.g, p.b, "at " + std::to_string(p.at));
  for (const Point& p :
       {Point{0.25, 0, 0, 127.5}, Point{0.5, 0, 0, 255}, Point{0.75, 0, 127.5, 637.5}, Point{1, 0, 255, 765},
        Point{1.5, 127.5, 255, 127.5}, Point{2, 255, 255, 0}, Point{2.5, 255, 127.5, 0}, Point{3, 255, 0, 0},
        Point{3.5, 255, 127.5, 127.5}, Point{4, 255, 255, 255}, Point{9, 255, 255, 255}})
    ExpectColour(RatioColour(p.at), p.r, p.g, p.b, "ratio " + std::to_string(p.at));
  for (const Point& p : {Point{0, 255, 255, 255}, Point{-0.2, 255, 127.5, 127.5}, Point{-0.6, 255, 127.5, 0},
                         Point{-1, 127.5, 255, 0}, Point{-1.3, 0, 255, 85}, Point{-1.5, 0, 85, 255},
                         Point{-1.8, 127.5, 0, 255}, Point{-2.2, 127.5, 0, 127.5}, Point{-2.4, 0, 0, 0}})
    ExpectColour(LogarithmColour(p.at, false), p.r, p.g, p.b, "logarithm " + std::to_string(p.at));
  ExpectColour(LogarithmColour(-2.2, true), 250, 122.5, 250, "half way to the pale end");
}

/// Sums of one rainbow at 137 degrees: scale, transfer curve and rounding in their order.
TEST(CellColours, GoThroughScaleSaturationAndTransferInThisOrder) {
  const ColourTriple sums{25213.72, 32582.90, 27520.17};
  constexpr double P = 378793.366;
  EXPECT_EQ(CellColours(ColourRules{}, P).Of(sums.r, sums.g, sums.b), RGB(57.548, 67.674, 60.874));
  ColourRules plain{1, false, SaturationRule::Photo, GammaRule::None};
  EXPECT_EQ(CellColours(plain, P).Of(sums.r, sums.g, sums.b), RGB(16.9736, 21.9345, 18.5263));
  plain.brightness = -2;
  EXPECT_EQ(CellColours(plain, 100).Of(100, 20, 0), RGB(255, 102, 0)) << "a brightness counts by its magnitude";
  plain.saturation = SaturationRule::Freeze;
  EXPECT_EQ(CellColours(plain, 100).Of(100, 20, 0), RGB(255, 51, 0)) << "the hue is held";
  plain.saturated = true;
  EXPECT_EQ(CellColours(plain, 0).Of(4e-9, 1e-9, 0), RGB(255, 64, 0)) << "saturated colours need no reference";
  EXPECT_EQ(CellColours(plain, 0).Of(0, 0, 0), colours::Black) << "a black cell has no colour to be saturated";
  EXPECT_EQ(CellColours(ColourRules{}, 0).Of(1, 1, 1), colours::Black);
}

TEST(CellColours, RoundTheTransferCurveAsItself) {
  const CellColours colours(ColourRules{}, 255);
  for (int i = 0; i <= 51000; ++i) {
    const double c = i / 200.0, t = TransferCurve(c);
    ASSERT_EQ(colours.Of(c, 0, 255), RGB(t, 0, 255)) << c;
  }
}

TEST(Saturation, TreatsACellThatIsTooBright) {
  const ColourTriple cell{300, 100, 100};
  ExpectColour(Saturation(cell, SaturationRule::Photo), 255, 100, 100, "Photo");
  ExpectColour(Saturation(cell, SaturationRule::Freeze), 255, 85, 85, "Freeze");
  ExpectColour(Saturation(cell, SaturationRule::PeakWhite), 255, 255, 255, "Peak White");
  ExpectColour(Saturation({200, 100, 0}, SaturationRule::PeakWhite), 200, 100, 0, "nothing above 255");
}

TEST(Gamma, JoinsItsBranchesAndKeepsRatiosInGroups) {
  EXPECT_NEAR(TransferCurve(4.59), 20.655, 1e-9);
  EXPECT_NEAR(TransferCurve(4.5901), 20.655, 0.1);
  EXPECT_NEAR(TransferCurve(255), 255, 1e-9);
  const ColourTriple group = GammaCorrect({100, 50, 25}, GammaRule::GroupRGB);
  EXPECT_NEAR(group.r, TransferCurve(100), 1e-9);
  EXPECT_NEAR(group.r / group.g, 2, 1e-12);
  ExpectColour(GammaCorrect({0, 0, 0}, GammaRule::GroupRGB), 0, 0, 0, "black stays black");
}

struct FalseColours : testing::Test, GraphSession {
  Colour At(double value) { return FalseColourOf(session, value); }
  LinePair Line() { return LineColour(ReadLook(session).pen, 0.65); }
};

TEST_F(FalseColours, RunDownTheRainbow) {
  state.GraphType = 22;
  form.cboBright.Text = "1";
  EXPECT_EQ(At(0), RGB(255, 255, 255));
  EXPECT_EQ(At(-0.4), RGB(255, 0, 0));
  EXPECT_EQ(At(-0.8), RGB(255, 255, 0));
  EXPECT_EQ(At(-1.2), RGB(0, 255, 0));
  EXPECT_EQ(At(-1.4), RGB(0, 255, 255));
  EXPECT_EQ(At(-1.6), RGB(0, 0, 255));
  EXPECT_EQ(At(-2), RGB(255, 0, 255));
  EXPECT_EQ(At(-3), RGB(0, 0, 0));
  Click("mnuGrey_Click");
  EXPECT_EQ(At(-3), RGB(245, 245, 245)) << "the pale end reads on grey";
  form.cboBright.Text = "-1";
  EXPECT_EQ(At(0.5), RGB(127.5, 127.5, 127.5)) << "no brightness: greys";
  form.cboBright.Text = "1";
  state.GraphType = 27;
  EXPECT_EQ(At(-5).Red(), 0) << "ratios are positive";
  EXPECT_EQ(At(1), RGB(0, 255, 255));
  EXPECT_EQ(At(3), RGB(255, 0, 0));
  EXPECT_EQ(At(9), RGB(255, 255, 255));
}

TEST_F(FalseColours, TheKeyRunsAwayFromTheThirdPanel) {
  surface.Cls();
  cmdColourTest_Click(session);
  const DrawingReader drawing(surface);
  EXPECT_EQ(drawing.All(DrawnOperation::Kind::Line).size(), 701U);
  const auto box = drawing.All(DrawnOperation::Kind::Box);
  ASSERT_EQ(box.size(), 1U);
  EXPECT_NEAR(box[0].points[0].x, 2 * 5000 + 1000, 1);
  EXPECT_NEAR(box[0].points[1].x, 2 * 5000 + 1000 + 4000, 1);
}

TEST_F(FalseColours, LineColoursComeWithTheirShade) {
  Click("mnuCyanLine_Click");
  EXPECT_EQ(Line().first, RGB(0, 255, 255));
  EXPECT_EQ(Line().second, RGB(0, 128, 128));
  auto& dialog = session.forms.dlogPlotColour;
  platform.dialogAnswer = false;
  Click("mnuMoreColours_Click");
  EXPECT_TRUE(form.mnuCyanLine.Checked) << "a cancelled dialog changes nothing";
  state.RestoringSettings = 1;
  dialog.txtRed.Text = "200";
  dialog.txtGreen.Text = "100";
  dialog.txtBlue.Text = "999";
  Click("mnuMoreColours_Click");
  EXPECT_EQ(Line().first, RGB(200, 100, 255));
  EXPECT_FALSE(form.mnuCyanLine.Checked);
}

}  // namespace
}  // namespace lumivex
