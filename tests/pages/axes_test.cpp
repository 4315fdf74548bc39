#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/drawing_reader.h"
#include "pages/frame/scale.h"
#include "pages/graph_fixture.h"
#include "record/number_text.h"

namespace lumivex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Curves like those of a drop: eight decades, fine structure.
double Drop(double angle) {
  return 1e7 * std::exp(-angle / 12) + 300 * (1.02 + std::cos(angle * 3)) + 0.5;
}
double OtherDrop(double angle) {
  return 0.8e7 * std::exp(-angle / 11) + 200 * (1.01 + std::sin(angle * 3)) + 0.3;
}

struct Axes : testing::Test, GraphSession {
  Axes() { StoreAngles(0.1, Drop, OtherDrop); }

  DrawingReader Read() const { return DrawingReader(surface); }
  GraphBox Box() const { return GeometryOf(session).box; }
  double XOf(double value) const {
    const auto& panel = page.panels.front();
    return PanelMap{panel.box, panel.limits, page.kind.logX, panel.logY}.X(value);
  }
  std::vector<std::string> XLabels() const {
    const GraphBox box = Box();
    return Read().TextsIn({0, 19200, box.bottom + 90, box.bottom + 200});
  }
  void Range(const char* xmin, const char* xmax) {
    ShowRange(xmin, xmax);
    Draw();
  }
};

TEST_F(Axes, TheWholeCircleHasTicksEveryTenAndNumbersEveryThirtyDegrees) {
  Range("0", "180");
  EXPECT_THAT(XLabels(), ElementsAre("0", "30", "60", "90", "120", "150", "180"));
  const auto ticks = Read().TicksBelow(Box(), 75);
  ASSERT_EQ(ticks.size(), 18U);
  for (std::size_t i = 0; i < ticks.size(); ++i) EXPECT_NEAR(ticks[i], XOf(10.0 * static_cast<double>(i + 1)), 1);
  for (const char* label : {"30", "90", "150"}) {
    const auto* text = Read().Text(label);
    ASSERT_NE(text, nullptr);
    EXPECT_NEAR(text->points[0].x + text->width / 2, XOf(Val(label)), 1) << label << " is centred under its tick";
  }
  Click("mnuSmall_Click");
  Draw();
  EXPECT_THAT(XLabels(), ElementsAre("0", "60", "120", "180"));
}

TEST_F(Axes, TheLadderFollowsTheRange) {
  struct Row {
    const char *xmin, *xmax;
    std::vector<std::string> labels;
  };
  const std::vector<Row> rows = {
      {"137", "145", {"137", "138", "140", "142", "144", "145"}},
      {"137", "147", {"137", "140", "145", "147"}},
      {"140", "150", {"140", "142", "144", "146", "148", "150"}},
      {"170", "180", {"170", "172", "174", "176", "178", "180"}},
      {"10", "10.5", {"10", "10.1", "10.2", "10.3", "10.4", "10.5"}},
      {"1000", "2500", {"1000", "1200", "1600", "2000", "2400", "2500"}},
      {"0.05", "1", {"0", "0.2", "0.4", "0.6", "0.8", "1"}},
  };
  for (const auto& row : rows) {
    state.GridOddTest = 0;
    Range(row.xmin, row.xmax);
    EXPECT_EQ(XLabels(), row.labels) << row.xmin << " to " << row.xmax;
  }
  // The number that the frame before tested is what the ladder looks at; labels go by the frame's own.
  double step = 0, range = 0, labelStep = 0;
  GridxStep(3, 10, 20, step, range, labelStep);
  EXPECT_EQ(labelStep, 5);
  GridxStep(4, 11, 21, step, range, labelStep);
  EXPECT_EQ(labelStep, 2);
}

TEST_F(Axes, NumbersOfALogarithmicAxisStandAtTheDecades) {
  Range("0", "180");
  const GraphBox box = Box();
  auto left = Read().TextsIn({0, box.left, box.top - 400, box.bottom + 90});
  EXPECT_EQ(std::ranges::count(left, "10"), 9) << "from 10^0 to 10^8";
  for (const char* exponent : {"1", "3", "8"}) {
    const auto* text = Read().Text(exponent);
    ASSERT_NE(text, nullptr) << exponent;
    EXPECT_LT(text->fontSize, 8) << "a superscript";
  }
  // Between 0.001 and 1000 the numbers are plain.
  StoreAngles(
      0.1, [](double) { return 5.0; }, [](double) { return 0.02; });
  Draw();
  left = Read().TextsIn({0, box.left, box.top - 150, box.bottom + 90});
  EXPECT_THAT(left, testing::UnorderedElementsAre(".01", ".1", "1", "10"));
}

TEST_F(Axes, EndsWithinADecadeAreWhatTheyAre) {
  form.cboYmin.Text = "500";
  form.cboYmax.Text = "999";
  Range("0", "180");
  EXPECT_NE(Read().Text("999"), nullptr) << "it was 1000";
  EXPECT_NE(Read().Text("500"), nullptr);
}

TEST_F(Axes, ExponentsOfThreeDigitsStandLeftOfTheTicks) {
  for (const auto& [low, high] : {std::pair{"1e-120", "1e-100"}, {"1e100", "1e140"}, {"2e-300", "1e300"}}) {
    SCOPED_TRACE(low);
    form.cboYmin.Text = low;
    form.cboYmax.Text = high;
    Range("0", "180");
    const GraphBox box = Box();
    int exponents = 0;
    for (const auto& text : Read().All(DrawnOperation::Kind::Text)) {
      if (text.fontSize != 7 || text.points[0].x > box.left) continue;
      ++exponents;
      EXPECT_LE(text.points[0].x + text.width, box.left - 100) << text.text;
      EXPECT_GE(text.points[0].x, 0);
    }
    EXPECT_GT(exponents, 3);
    EXPECT_THAT(Read().Overlaps(), IsEmpty());
    const auto curves = Read().Curves();
    // What lies below the bottom is not drawn; what lies above the top runs along it.
    ASSERT_EQ(curves.empty(), Val(low) > 1) << "the quotient of the limits may be beyond all numbers";
    if (curves.empty()) continue;
    for (const auto& p : curves[0].points) EXPECT_TRUE(p.y >= box.top - 1 && p.y <= box.bottom + 1);
  }
  EXPECT_NEAR(PanelMap({Box(), {0, 180, 2e-300, 1e300}, false, true}).YAt(0.5 * (Box().top + Box().bottom)), 1.414,
              0.01);
}

TEST_F(Axes, EveryVerticalAxisHasATitle) {
  struct Row {
    GraphCode code;
    std::vector<const char*> title;
  };
  const std::vector<Row> rows = {
      {{1, 1}, {" Intensity"}}, {{1, 2}, {"Phase", "function"}}, {{1, 3}, {"Watts/m"}},      {{1, 4}, {"sq m/sr"}},
      {{1, 7}, {"CPDF"}},       {{14, 1}, {"Efficiency"}},       {{14, 6}, {"Area (sq m)"}}, {{16, 1}, {"Asymmetry"}}};
  Range("0", "180");
  for (const Row& row : rows) {
    page.kind.graph = GraphOf(row.code);
    Paint(page, surface);
    for (const char* line : row.title) EXPECT_NE(Read().Text(line), nullptr) << line;
    EXPECT_THAT(Read().Overlaps(), IsEmpty()) << row.title[0];
  }
  page.kind.graph = GraphOf({1, 1});
  page.kind.invWavelength = true;
  Paint(page, surface);
  EXPECT_NE(Read().Text(" (sq m)"), nullptr) << "divided by the square of the wave number";
  page.kind.wavelengths = 30;
  Paint(page, surface);
  EXPECT_NE(Read().Text("Weighted"), nullptr) << "by the light";
}

TEST_F(Axes, ALogarithmicXAxisPrintsWhatTheGridMenusAskFor) {
  form.optXLog.Select();
  Range("1", "180");
  EXPECT_THAT(XLabels(), ElementsAre("1", "10", "100", "180"));
  Click("mnuMinorGridX_Click");
  Draw();
  EXPECT_THAT(XLabels(), ElementsAre("1", "2", "5", "10", "20", "50", "100", "180"));
  Range("0", "180");
  EXPECT_FALSE(XLabels().empty()) << "0 has no logarithm: the axis begins further right";
}

// Within a decade there was not a number between the ends.
TEST_F(Axes, AShortLogarithmicXAxisHasTheTicksOfALinearOne) {
  form.optXLog.Select();
  Range("130", "145");
  EXPECT_THAT(XLabels(), ElementsAre("130", "132", "136", "140", "144", "145"));
  Range("30", "180");
  EXPECT_THAT(XLabels(), ElementsAre("30", "40", "80", "100", "120", "160", "180"));
  Range("1", "10");
  EXPECT_THAT(XLabels(), ElementsAre("1", "10")) << "a whole decade has its own";
}

TEST_F(Axes, ALinearAxisLabelsTheUpperSideOnly) {
  form.optLinear.Select();
  StoreAngles(0.1, [](double a) { return 0.8 - a / 180; });
  form.cboYmin.Text = "-1";
  form.cboYmax.Text = "1";
  Range("0", "180");
  const GraphBox box = Box();
  const auto left = Read().TextsIn({0, box.left, box.top - 150, box.bottom + 90});
  EXPECT_THAT(left, testing::UnorderedElementsAre("1", "-1", "0"));
}

TEST_F(Axes, NothingOverlapsInTheStandardGraphs) {
  const auto check = [&](const std::string& what) {
    EXPECT_THAT(Read().Overlaps(), IsEmpty()) << what;
    EXPECT_THAT(Read().Outside(19200, 15360), IsEmpty()) << what;
  };
  for (const char* size : {"mnuLarge_Click", "mnuMedium_Click", "mnuSmall_Click", "mnuVLarge_Click"}) {
    Click(size);
    for (OptionButton* scale : {&form.OptLog, &form.optLinear}) {
      scale->Select();
      for (const auto& [xmin, xmax] : {std::pair{"0", "180"}, {"137", "145"}, {"0", "360"}, {"12.34", "12.35"}}) {
        Range(xmin, xmax);
        check(std::string(size) + " " + std::string(scale->Name()) + " " + xmin + " to " + xmax);
      }
    }
    form.OptLog.Select();
    ShowRange("0", "180");
    for (const char* panels : {"mnuAmpPhase_Click", "mnuIntPol_Click"}) {
      Click(panels);
      Draw();
      check(std::string(size) + " " + panels);
      Click(panels);
    }
    Click("mnuPolarPlot_Click");
    Draw();
    check(std::string(size) + " polar");
    Click("mnuPolarPlot_Click");
    TakeGraph({1, 6});
    Draw();
    check(std::string(size) + " scattering matrix");
    TakeGraph({1, 1});
    form.optXLog.Select();
    for (const char* grid : {"mnuMinorGridX_Click", "mnuMinorGridY_Click"}) Click(grid);
    Range("1", "180");
    check(std::string(size) + " with all grid lines");
    for (const char* grid : {"mnuMinorGridX_Click", "mnuMinorGridY_Click"}) Click(grid);
    form.OptXLinear.Select();
  }
  Click("mnuLarge_Click");
  Click("mnuSizeSpecial_Click");
  Range("0", "180");
  check("special");
}

TEST_F(Axes, AbsurdLimitsNeitherHangNorDrawOutside) {
  const char* numbers[] = {"0", "180", "-5", "1e308", "-1e308", "nonsense", "1e-300", "90"};
  const GraphBox box = Box();
  for (const bool logX : {false, true}) {
    (logX ? form.optXLog : form.OptXLinear).Select();
    for (const char* low : numbers)
      for (const char* high : numbers)
        for (const char* yLow : {"Automatic", "0", "1e300", "-1"})
          for (const char* yHigh : {"Automatic", "0", "-1e300"}) {
            form.cboYmin.Text = yLow;
            form.cboYmax.Text = yHigh;
            Range(low, high);
            ASSERT_LT(surface.Operations().size(), 20000U) << low << " " << high;
            for (const auto& curve : Read().Curves())
              for (const auto& p : curve.points)
                ASSERT_TRUE(p.x >= box.left - 1 && p.x <= box.right + 1 && p.y >= box.top - 1 && p.y <= box.bottom + 1)
                    << low << " " << high << " " << yLow << " " << yHigh;
          }
  }
}

TEST_F(Axes, ARoundTopStandsAboveTheCurveAndSharesItsUnit) {
  ScaleLook linear;
  linear.logY = false;
  ScaleMemory memory;
  const auto top = [&](double value) { return GridYmax(linear, value, memory); };
  struct Row {
    double value, top;
  };
  for (const auto& row : {Row{8.3, 9}, Row{42, 45}, Row{2.5, 2.6}, Row{1.23, 1.3}, Row{0.75, 0.8}, Row{0.11, 0.12}})
    EXPECT_NEAR(top(row.value), row.top, 1e-9) << row.value;
  // An exact power of ten takes the unit that the call before left.
  top(8.3);
  EXPECT_EQ(top(10), 11) << "the unit of 8.3 is 1";
  top(42);
  EXPECT_EQ(top(10), 15) << "the unit of 42 is 5";
  EXPECT_EQ(top(0), 15) << "nothing to scale by: the last top serves";
}

TEST(RoundedText, DoublesTheSignBelowMinusOne) {
  EXPECT_EQ(RoundedText(0.25, 4), "0.25");
  EXPECT_EQ(RoundedText(0, 4), "0");
  EXPECT_EQ(RoundedText(3, 4), "3");
  EXPECT_EQ(RoundedText(0.00005, 6), "5.00E-05");
  EXPECT_EQ(RoundedText(-0.5, 4), "-0-.5");
  EXPECT_EQ(RoundedText(-2, 4), "--2");
  EXPECT_EQ(Log10Guarded(0), -300);
  EXPECT_EQ(Log10Guarded(1), 0);
  EXPECT_DOUBLE_EQ(Log10Guarded(0.01), -2);
}

}  // namespace
}  // namespace lumivex
