#include "pages/maps/map_colours.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "axes/curve_smoothing.h"
#include "pages/colours/cell_colours.h"
#include "pages/map_fixture.h"
#include "session/inputs/look/colour_test.h"

namespace lumivex {
namespace {

class MapColours : public ::testing::Test, protected MapSession {
 protected:
  MapColours() {
    form.cboBright.Text = "1";
    form.cboLee.Text = "Absolute";
  }
  /// Values that rise with the column and fall with the angle, 10 times as bright in the parallel picture.
  void StoreFalling() {
    StoreLee([](int p, int column, double angle) {
      const double value = (p == 0 ? 10 : 100) * (column + 1) * (145 - angle) / 8;
      return Channels{value, value / 2, value / 4};
    });
  }
  ColourRules Rules() { return ReadLook(session).colours.rules; }
};

TEST_F(MapColours, AreNormalisedByColumnOrHaveOneScale) {
  StoreFalling();
  Draw();
  EXPECT_NEAR(page.map->scaleMaximum, 500, 1e-3);
  EXPECT_EQ(CellOn(1, 4, 0), CellColours(Rules(), 500).Of(500, 250, 125));
  EXPECT_EQ(CellOn(0, 4, 0), CellColours(Rules(), 500).Of(50, 25, 12.5)) << "one scale for all pictures";
  EXPECT_EQ(CellOn(2, 1, 80), CellColours(Rules(), 500).Of(55, 27.5, 13.75)) << "the mean of both";
  form.cboLee.Text = "Normalised";
  Draw();
  for (const std::size_t picture : {0U, 1U, 2U})
    for (const int column : {0, 2, 4})
      EXPECT_EQ(CellOn(picture, column, 80), CellColours(Rules(), 1).Of(0.5, 0.25, 0.125)) << picture << " " << column;
}

TEST_F(MapColours, TakeBrightnessSaturationAndTransfer) {
  StoreFalling();
  form.cboBright.Text = "3";
  for (const GammaRule gamma : {GammaRule::None, GammaRule::IndividualRGB, GammaRule::GroupRGB})
    for (const bool saturated : {false, true}) {
      form.mnuGammaNone.Checked = gamma == GammaRule::None;
      form.mnuGammaA.Checked = gamma == GammaRule::IndividualRGB;
      form.mnuGammaB.Checked = gamma == GammaRule::GroupRGB;
      form.mnuSaturated.Checked = saturated;
      Draw();
      const ColourRules rules = Rules();
      EXPECT_EQ(rules.gamma, gamma);
      EXPECT_EQ(CellOn(1, 3, 80), CellColours(rules, 500).Of(200, 100, 50));
      EXPECT_EQ(CellOn(1, 3, 160), colours::Black) << "no light at 145 degrees, saturated or not";
    }
}

TEST_F(MapColours, OfOneWavelengthAreItsOwn) {
  const auto values = [](int p, int column, double) { return (p + 1.0) * (column + 1); };
  StoreValues({24, 1}, {Swept::Radius, 5, 20, 4}, values);
  results.asked.light.lambda = 0.54;
  form.mnuGammaA.Checked = false;
  form.mnuGammaNone.Checked = true;
  Draw();
  EXPECT_EQ(CellOn(1, 4, 7), RGB(109, 255, 0));
  EXPECT_EQ(CellOn(0, 1, 7), RGB(22, 51, 0));
  StoreValues({25, 1}, {Swept::Wavelength, 440, 650, 2}, values);
  Draw();
  EXPECT_EQ(CellOn(1, 0, 7).Blue(), 85) << "each column in the colour of its wavelength";
  EXPECT_EQ(CellOn(1, 2, 7), RGB(255, 0, 0));
}

TEST_F(MapColours, FalseOnesGoOverDecadesTimesBrightness) {
  StoreFalling();
  form.mnuFalseColours.Checked = true;
  Draw();
  EXPECT_EQ(CellOn(1, 4, 0), colours::White) << "the brightest";
  EXPECT_EQ(CellOn(1, 4, 160), colours::Black) << "nothing";
  EXPECT_EQ(CellOn(0, 4, 0), ColourScale(-1, FalseColours::Rainbow)) << "a decade below";
  form.cboBright.Text = "2.5";
  Draw();
  EXPECT_EQ(CellOn(0, 4, 0), ColourScale(-0.4, FalseColours::Rainbow));
  EXPECT_EQ(page.map->key->words, "decades");
  EXPECT_EQ(page.map->key->numbers[2].text, "-5") << "decades times brightness";
  form.mnuGrey.Checked = true;
  Draw();
  EXPECT_EQ(CellOn(0, 4, 152), ColourScale(std::log10(0.1 * 0.05) / 2.5, FalseColours::RainbowPale));
  form.cboBright.Text = "0";
  Draw();
  EXPECT_EQ(CellOn(0, 4, 0), RGB(25.5, 25.5, 25.5)) << "greys of the value itself";
}

TEST_F(MapColours, FalseOnesOfEfficienciesAreRatios) {
  StoreEfficiencies([](int p, double, double x) { return p == 2 ? 0 : x / 11 * (p == 0 ? 4 : 2); });
  form.mnuFalseColours.Checked = true;
  Draw();
  ASSERT_EQ(page.panels.size(), 3U);
  EXPECT_EQ(CellOn(0, 2, 20), colours::White);
  EXPECT_EQ(CellOn(1, 2, 20), ColourScale(2, FalseColours::Ratio)) << "half of the greatest";
  EXPECT_EQ(CellOn(2, 2, 20), ColourScale(0, FalseColours::Ratio));
  form.cboBright.Text = "2";
  Draw();
  EXPECT_EQ(CellOn(0, 2, 20), ColourScale(2, FalseColours::Ratio));
  EXPECT_EQ(page.map->key->numbers.back().text, "2");
  form.cboBright.Text = "-4";
  Draw();
  EXPECT_EQ(CellOn(1, 2, 20), RGB(127.5, 127.5, 127.5)) << "greys of the ratio";
  EXPECT_EQ(page.map->key->numbers.back().text, "1");
}

TEST_F(MapColours, HaveAKeyWhereTheColourTestDrawsIt) {
  StoreFalling();
  form.mnuFalseColours.Checked = true;
  state.GraphType = 20;
  Draw();
  const DrawnOperation key = Images().back();
  cmdColourTest_Click(session);
  const auto boxes = DrawingReader(surface).All(DrawnOperation::Kind::Box);
  ASSERT_FALSE(boxes.empty());
  for (const int corner : {0, 1}) {
    EXPECT_NEAR(key.points[static_cast<std::size_t>(corner)].x, boxes.back().points[static_cast<std::size_t>(corner)].x,
                1e-6);
    EXPECT_NEAR(key.points[static_cast<std::size_t>(corner)].y, boxes.back().points[static_cast<std::size_t>(corner)].y,
                1e-6);
  }
  EXPECT_EQ(key.cells[150], FalseColourOf(session, -1.505));
}

TEST_F(MapColours, LeaveTheGroundWhereNothingWasCalculated) {
  StoreFalling();
  Map().done = 2;
  Draw();
  EXPECT_EQ(CellOn(0, 2, 10), page.style.ground);
  EXPECT_NE(CellOn(0, 1, 10), page.style.ground);
  EXPECT_NEAR(page.map->scaleMaximum, 200, 1e-3) << "of what is there";
}

/// Every column is folded as a curve is, without the cells of other rows, and at 180 degrees it reflects.
TEST_F(MapColours, AreFoldedWithTheDiscOfTheSun) {
  const auto f = [](int p, int column, double angle) {
    const double v = 1 + std::sin(20 * angle) + p + column;
    return Channels{v, 2 * v, 3 * v};
  };
  StoreLee(f);
  form.optSun.Checked = true;
  Draw();
  std::vector<double> curve(3602, std::nan(""));
  for (int row = 2736; row <= 2906; ++row) curve[static_cast<std::size_t>(row)] = f(1, 3, (row - 1) * 0.05)[1];
  const auto folded = FoldedWithDisc(curve, SunDiscWeights(0.05, false), 3601);
  const MapFound& values = *page.map->values;
  ASSERT_EQ(values.rows, 161);
  for (const int row : {0, 1, 80, 160})
    EXPECT_NEAR(values.panels[1].green[values.At(3, row)], folded[static_cast<std::size_t>(2741 + row)], 1e-5) << row;

  const MapFound whole{
      .rows = 3, .columns = 1, .firstRow = 7, .panels = {{{1, 2, 4}, {}, {}, {}}}, .strongest = {}, .done = 1};
  const DiscWeights disc{{1, 1, 0}, 1, 3};
  const MapFound seen = SeenUnderDisc(whole, {0, 3}, disc, 9);
  EXPECT_TRUE(std::isnan(seen.panels[0].value[0])) << "a neighbour that was not calculated";
  EXPECT_FLOAT_EQ(seen.panels[0].value[1], 7.0F / 3);
  EXPECT_FLOAT_EQ(seen.panels[0].value[2], 8.0F / 3) << "4 + 2 + 2";
}

TEST_F(MapColours, TellTheirMaximaBelow) {
  using Place = MapLine::Place;
  StoreFalling();
  Draw();
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 500");
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "");
  EXPECT_EQ(LineAt(Place::Diagnostics), "f3maxmax = 500   f3maxmaxOLD = 0");
  EXPECT_EQ(LineAt(Place::Diagnostics3), "f3maxmax3 = 275   f3maxmax3OLD = 0");
  const auto* line = DrawingReader(surface).Text("Scale maximum = 500");
  ASSERT_TRUE(line);
  EXPECT_NEAR(line->points[0].x + line->width, 15000, 1e-6);
  StoreValues({24, 1}, {Swept::Radius, 5, 20, 4}, [](int, int, double) { return 0.00123; });
  Draw();
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 1.23E-03");
}

/// The map on show when the series begins is the scale of all that follow.
TEST_F(MapColours, AreHeldAgainstTheFirstMapOfASeries) {
  using Place = MapLine::Place;
  const auto store = [&](double top) {
    StoreValues({24, 1}, {Swept::Radius, 5, 20, 4}, [top](int, int, double) { return top; });
    Draw();
  };
  store(50);
  Click("mnuMapNormalise_Click");
  EXPECT_TRUE(form.mnuMapNormalise.Checked);
  store(20);
  EXPECT_EQ(state.LeeOverallMaximum, 50);
  EXPECT_EQ(state.LeeCurrentMaximum, 20);
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 50");
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "Current maximum = 20");
  const int dim = CellOn(0, 0, 0).Red();
  store(50);
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "") << "nothing to tell";
  EXPECT_LT(dim, CellOn(0, 0, 0).Red());
  store(80);
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "WARNING: Current maximum = 80");
  const auto* warning = DrawingReader(surface).Text("WARNING: Current maximum = 80");
  ASSERT_TRUE(warning);
  EXPECT_EQ(warning->colour, RGB(255, 0, 0));
  EXPECT_NEAR(warning->points[0].x, 11000, 1e-6);
  store(50);
  Click("mnuMapNormalise_Click");
  store(30);
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 30") << "the series has ended";

  session.page = {};
  Click("mnuMapNormalise_Click");
  store(70);
  store(10);
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 70") << "without a map on show the first is the scale";
}

/// Efficiencies of a few were held against intensities of thousands, and the third picture against the first.
TEST_F(MapColours, OfAnotherKindAreASeriesOfTheirOwn) {
  using Place = MapLine::Place;
  const auto store = [&](double top) {
    StoreEfficiencies([top](int p, double, double) { return top / (p + 1); });
    Draw();
  };
  StoreFalling();
  Draw();
  Click("mnuMapNormalise_Click");
  Draw();
  EXPECT_EQ(LineAt(Place::Diagnostics3), "f3maxmax3 = 275   f3maxmax3OLD = 275");
  store(3);
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 3");
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "");
  EXPECT_EQ(LineAt(Place::Diagnostics), "f3maxmax = 3   f3maxmaxOLD = 0");
  store(6);
  EXPECT_EQ(LineAt(Place::ScaleMaximum), "Scale maximum = 3");
  EXPECT_EQ(LineAt(Place::CurrentMaximum), "WARNING: Current maximum = 6");
  EXPECT_EQ(LineAt(Place::Diagnostics), "f3maxmax = 6   f3maxmaxOLD = 3");
  EXPECT_EQ(LineAt(Place::Diagnostics3), "f3maxmax3 = 2   f3maxmax3OLD = 1");
  StoreValues({24, 1}, {Swept::Radius, 5, 20, 4}, [](int, int, double) { return 1.2345678e17; });
  Draw();
  EXPECT_EQ(LineAt(Place::Diagnostics), "f3maxmax = 1.23456782E+17   f3maxmaxOLD = 0") << "digits that a cell has";
}

/// A replot shares the cells of the results that the session keeps.
TEST_F(MapColours, AreMadeWithoutACopyOfTheValues) {
  StoreFalling();
  const auto held = std::make_shared<const Results>(results);
  const Page made = BuildPage(*held, ReadLook(session), GeometryOf(session), state);
  EXPECT_EQ(made.map->values.get(), held->Find<MapFound>());
}

}  // namespace
}  // namespace lumivex
