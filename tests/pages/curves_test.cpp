#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "axes/curve_smoothing.h"
#include "pages/drawing_reader.h"
#include "pages/graph_fixture.h"
#include "pages/page_table.h"

namespace lumivex {
namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr Colour red{0x0000FF}, darkRed{0x000080};

struct Curves : testing::Test, GraphSession {
  Curves() {
    form.cboStep.Text = "1";
    StoreAngles(
        1, [](double a) { return 10 + a; }, [](double a) { return 300 - a; });
  }
  std::vector<DrawnOperation> Drawn() const { return DrawingReader(surface).Curves(); }
  PanelMap Map() const {
    const auto& panel = page.panels.front();
    return {panel.box, panel.limits, page.kind.logX, panel.logY};
  }
  double XAt(const DrawnOperation& curve, std::size_t i) const { return Map().XAt(curve.points[i].x); }
  double YAt(const DrawnOperation& curve, std::size_t i) const { return Map().YAt(curve.points[i].y); }
};

TEST_F(Curves, ComeInTheirOrderAndColours) {
  struct Row {
    const char* pol;
    std::vector<Colour> colours;
  };
  const std::vector<Row> rows = {{"Both", {darkRed, red}},
                                 {"All 3", {darkRed, colours::Black, red}},
                                 {"Perpendicular polarisation", {red}},
                                 {"Parallel polarisation", {red}},
                                 {"Unpolarised", {red}}};
  for (const auto& row : rows) {
    form.cboPol.Text = row.pol;
    Draw();
    const auto curves = Drawn();
    ASSERT_EQ(curves.size(), row.colours.size()) << row.pol;
    for (std::size_t i = 0; i < curves.size(); ++i) EXPECT_EQ(curves[i].colour, row.colours[i]) << row.pol << " " << i;
  }
  form.cboPol.Text = "Both";
  Click("mnuGreyLine_Click");
  Draw();
  EXPECT_EQ(Drawn()[0].colour, RGB(40, 40, 40));
  EXPECT_EQ(Drawn()[1].colour, RGB(128, 128, 128));
}

TEST_F(Curves, RunOnAsOneLineWithTheirPen) {
  Click("mnuDash_Click");
  Click("mnuDrawWidth2_Click");
  Draw();
  for (const auto& curve : Drawn()) {
    EXPECT_EQ(curve.points.size(), 181U) << "a dash that starts anew at every point is a solid line";
    EXPECT_EQ(curve.drawStyle, 1);
    EXPECT_EQ(curve.drawWidth, 2);
  }
  // Below the graph the key shows the pens.
  for (const auto& line : DrawingReader(surface).All(DrawnOperation::Kind::Line))
    EXPECT_EQ(line.drawStyle, line.points[0].y > state.GraphBottom + 300 && line.colour != page.style.ground ? 1 : 0);
}

TEST_F(Curves, AreCutAtTheEdgeOfTheBox) {
  form.optLinear.Select();
  form.cboYmax.Text = "100";
  form.cboPol.Text = "Perpendicular polarisation";
  StoreAngles(1, [](double a) { return 10 + a; });
  Draw();
  ASSERT_EQ(Drawn().size(), 1U);
  const auto curve = Drawn()[0];
  EXPECT_NEAR(XAt(curve, curve.points.size() - 1), 90, 1e-6);
  EXPECT_NEAR(curve.points.back().y, state.GraphTop, 1e-3);

  // Between two points the cut is where the straight line meets the edge.
  form.cboYmax.Text = "50.5";
  Draw();
  EXPECT_NEAR(XAt(Drawn()[0], Drawn()[0].points.size() - 1), 40.5, 1e-4);

  // On a logarithmic axis what is above runs along the top; zero would run along the bottom, where the line of the box
  // is, and is left out.
  form.OptLog.Select();
  form.cboYmin.Text = "1";
  StoreAngles(1, [](double a) { return a < 90 ? 0 : 1e6; });
  Draw();
  EXPECT_NEAR(XAt(Drawn()[0], 0), 89, 1e-6);
  EXPECT_NEAR(Drawn()[0].points[0].y, state.GraphBottom, 1e-3);
  EXPECT_NEAR(Drawn()[0].points.back().y, state.GraphTop, 1e-3);
}

TEST_F(Curves, AValueThatWasNotComputedLiftsThePenAndDoesNotCount) {
  form.cboPol.Text = "Perpendicular polarisation";
  Found().rows.forward.high = 49;
  Found().rows.mirrored.low = 100;
  Draw();
  ASSERT_EQ(Drawn().size(), 2U);
  EXPECT_NEAR(XAt(Drawn()[0], Drawn()[0].points.size() - 1), 48, 1e-6);
  EXPECT_NEAR(XAt(Drawn()[1], 0), 99, 1e-6);
  EXPECT_NEAR(state.YAutoMax, 300, 1e-9);
  StoreAngles(1, [](double) { return notComputed; });
  Draw();
  EXPECT_TRUE(Drawn().empty());
  EXPECT_LT(state.Ymin, state.Ymax);
}

TEST_F(Curves, AnOverplotKeepsTheFrameAndItsLimits) {
  Draw();
  const double top = state.Ymax, bottom = state.Ymin;
  Click("mnuBlueLine_Click");
  StoreAngles(1, [](double) { return 5e8; });
  DrawOver();
  EXPECT_EQ(state.Ymax, top);
  EXPECT_EQ(state.Ymin, bottom);
  EXPECT_EQ(Drawn().size(), 4U);
  EXPECT_EQ(page.curves.size(), 4U);

  // The whole picture comes back on any surface.
  RecordingSurface other(12000, 12000);
  Paint(page, other);
  const auto again = DrawingReader(other).Curves();
  ASSERT_EQ(again.size(), 4U);
  EXPECT_EQ(again[0].colour, darkRed);
  EXPECT_EQ(again[3].colour, RGB(0, 0, 255));

  // Over a frame of another graph, or of other units, nothing is drawn.
  form.mnuAmplitude.Checked = true;
  DrawOver();
  EXPECT_EQ(page.curves.size(), 2U);
  form.mnuAmplitude.Checked = false;
  TakeGraph({1, 4});
  DrawOver();
  EXPECT_EQ(page.kind.graph.quantity, Quantity::DifferentialCrossSection);
  EXPECT_EQ(page.curves.size(), 2U);
}

TEST_F(Curves, AreAveragedOverTheWidthAsked) {
  form.cboPol.Text = "Perpendicular polarisation";
  form.optLinear.Select();
  StoreAngles(1, [](double a) { return a == 90 ? 50.0 : 0.0; });
  session.forms.dlogAverage.txtAverage.Text = "4";
  Click("mnuAverage_Click");
  EXPECT_EQ(form.lblAverage.Caption, "Average  4");
  Draw();
  const auto curve = Drawn()[0];
  for (std::size_t i = 80; i < 100; ++i)
    EXPECT_NEAR(YAt(curve, i), i >= 88 && i <= 92 ? 10 : 0, 1e-6) << "at " << i << " degrees: five rows share the peak";
  platform.dialogAnswer = false;
  Click("mnuAverage_Click");
  EXPECT_FALSE(form.mnuAverage.Checked) << "turning it off asks nothing";
  Click("mnuAverage_Click");
  EXPECT_FALSE(form.mnuAverage.Checked) << "a cancelled dialog changes nothing";
}

TEST_F(Curves, AreFoldedWithTheDiscOfTheSun) {
  form.cboPol.Text = "Perpendicular polarisation";
  form.optLinear.Select();
  StoreAngles(0.1, [](double a) { return std::abs(a - 90) < 0.05 ? 100.0 : 0.0; });
  form.optSun.Select();
  const double edge = 0.6, middle = std::sqrt(1 - 0.16), total = 1 + 2 * (middle + edge);
  Draw();
  const auto& y = page.curves[0].y;
  EXPECT_NEAR(y[901], 100 / total, 1e-9);
  EXPECT_NEAR(y[902], 100 * middle / total, 1e-9);
  EXPECT_NEAR(y[899], 100 * edge / total, 1e-9);
  EXPECT_EQ(y[904], 0);
  // At 0 and 180 degrees the pattern is its own mirror image.
  StoreAngles(0.1, [](double) { return 7.0; });
  Draw();
  EXPECT_NEAR(page.curves[0].y[1], 7, 1e-12);
  EXPECT_NEAR(page.curves[0].y[1801], 7, 1e-12);
  Click("mnuSun_Click");
  EXPECT_EQ(SunDiscWeights(0.1, ReadLook(session).sun.rectangular).total, 5);
}

TEST_F(Curves, InterpolationPassesThroughThePointsAndBetween) {
  form.cboPol.Text = "Perpendicular polarisation";
  form.optLinear.Select();
  StoreAngles(10, [](double a) { return a * a; });
  Click("mnuInterpolate_Click");
  Draw();
  const auto curve = Drawn()[0];
  EXPECT_GT(curve.points.size(), 170U);
  for (std::size_t i = 0; i < curve.points.size(); i += 7)
    EXPECT_NEAR(YAt(curve, i), std::pow(XAt(curve, i), 2), 0.5) << "a cubic follows a parabola";
}

TEST_F(Curves, MarkersAreCirclesAndCrosses) {
  Click("mnuDrawWidth0_Click");
  form.cboPol.Text = "All 3";
  Draw();
  EXPECT_TRUE(Drawn().empty());
  EXPECT_EQ(DrawingReader(surface).All(DrawnOperation::Kind::Circle).size(), 181U);
  EXPECT_EQ(std::ranges::count_if(surface.Operations(),
                                  [](const DrawnOperation& op) {
                                    return op.kind == DrawnOperation::Kind::Line && op.colour == darkRed &&
                                           std::abs(std::abs(op.points[0].x - op.points[1].x) - 140) < 1e-6;
                                  }),
            2 * 181)
      << "diagonal crosses on the parallel curve, nothing on the third";
}

TEST_F(Curves, TwoPanelsShareTheXAxis) {
  Click("mnuIntPol_Click");
  Draw();
  ASSERT_EQ(page.panels.size(), 2U);
  const auto &upper = page.panels[0], &lower = page.panels[1];
  EXPECT_LT(upper.box.bottom, lower.box.top);
  EXPECT_EQ(upper.limits.xmax, lower.limits.xmax);
  EXPECT_EQ(lower.limits.ymin, -1);
  EXPECT_EQ(Drawn().size(), 3U);
  EXPECT_NE(DrawingReader(surface).Text("Degree of linear polarisation"), nullptr);
  EXPECT_NE(DrawingReader(surface).Text(".4"), nullptr);
  const double middle = 0.5 * (lower.box.top + lower.box.bottom);
  EXPECT_TRUE(std::ranges::any_of(surface.Operations(), [&](const DrawnOperation& op) {
    return op.kind == DrawnOperation::Kind::Line && op.colour == colours::Black && op.points[0].y == middle &&
           op.points[1].y == middle && op.points[0].x == lower.box.left && op.points[1].x == lower.box.right;
  })) << "zero polarisation";

  Click("mnuAmpPhase_Click");
  EXPECT_FALSE(form.mnuIntPol.Checked);
  Draw();
  EXPECT_EQ(Drawn().size(), 4U);
  EXPECT_NE(DrawingReader(surface).Text("180"), nullptr);
  EXPECT_NE(DrawingReader(surface).Text("Phase angle"), nullptr);
}

TEST_F(Curves, TheScatteringMatrixHasItsRatiosBelow) {
  TakeGraph({1, 6});
  Click("mnuPolarPlot_Click");
  Draw();
  ASSERT_EQ(page.panels.size(), 2U) << "ratios have no polar form";
  std::vector<std::string> names;
  std::vector<int> colours;
  for (const auto& curve : page.curves) {
    names.push_back(curve.name);
    colours.push_back(curve.panel == 1 ? curve.colour.Red() * 65536 + curve.colour.Green() * 256 + curve.colour.Blue()
                                       : -1);
    EXPECT_NE(DrawingReader(surface).Text(curve.name), nullptr) << curve.name;
  }
  EXPECT_THAT(names, testing::ElementsAre("S11", "S34/S11", "S33/S11", "S12/S11"));
  for (std::size_t i = 1; i < page.curves.size(); ++i)
    EXPECT_NE(page.curves[i].colour, page.curves[0].colour) << page.curves[i].name << " beside S11 in the key";
  std::ranges::sort(colours);
  EXPECT_EQ(std::ranges::unique(colours).size(), 0U) << "three colours";
  EXPECT_THAT(TableAsText(page), testing::StartsWith("Scattering angle (deg.)\tS11\tS34/S11\tS33/S11\tS12/S11\n0\t"));
}

}  // namespace
}  // namespace lumivex
