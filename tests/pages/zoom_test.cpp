#include "pages/zoom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/curve_path.h"
#include "pages/curve_steps.h"
#include "pages/graph_fixture.h"
#include "pages/polar_plot.h"

namespace lumivex {
namespace {

struct Zoom : testing::Test, GraphSession {
  Zoom() {
    form.cboStep.Text = "1";
    StoreAngles(
        1, [](double a) { return a < 90 ? 1e6 : 1000; }, [](double) { return 20; });
    Draw();
  }
  SurfacePoint PlaceOf(double x, double y, std::size_t panel = 0) const {
    const auto& kept = session.state.Drawn.panels[panel];
    const PanelMap map{kept.box, kept.limits, session.state.Drawn.kind.logX, kept.logY};
    return {map.X(x), map.Y(y)};
  }
  std::optional<GraphReading> ReadAt(SurfacePoint place) const { return ReadGraph(session.state, place.x, place.y); }
  void Near(XRange range, double xmin, double xmax) {
    EXPECT_NEAR(range.xmin, xmin, 1e-9);
    EXPECT_NEAR(range.xmax, xmax, 1e-9);
  }
};

TEST_F(Zoom, KeepsWhatIsUnderThePointerAndStaysWithinTheCircle) {
  Near(ZoomAt(state, PlaceOf(60, 100).x, 0.5), 30, 120);
  Near(ZoomAt(state, PlaceOf(60, 100).x, 3), 0, 180);
  Near(ZoomAt(state, -1e9, 0.5), 0, 90);
  Near(ZoomAt(state, 5000, 0), 0, 180);
  SetXRange(session, {30, 120});
  Near(PanBy(state, -(0.5) * state.Drawn.panels[0].box.Width()), 75, 165);
  Near(PanBy(state, -(5) * state.Drawn.panels[0].box.Width()), 90, 180);
  Near(PanBy(state, -(-5) * state.Drawn.panels[0].box.Width()), 0, 90);
  double width = 90;
  for (int i = 0; i < 200; ++i) {
    const XRange range = RoundedRange(ZoomAt(state, 7000, 0.8));
    ASSERT_LT(range.xmin, range.xmax);
    SetXRange(session, range);
    width = range.xmax - range.xmin;
  }
  EXPECT_GT(width, 1e-5) << "a zoom ends where numbers run out of digits";
}

TEST_F(Zoom, ChoosesTheScaleForWhatIsInViewAndKeepsOverplots) {
  DrawOver();
  EXPECT_TRUE(SetXRange(session, {100, 150}));
  EXPECT_EQ(state.Drawn.panels[0].limits.ymax, 1000);
  EXPECT_EQ(state.Drawn.panels[0].limits.ymin, 10);
  EXPECT_EQ(state.Drawn.curves.size(), 4U);
  Near(state.Drawn.home, 0, 180);
  form.cboYmax.Text = "5e4";
  SetXRange(session, {0, 50});
  EXPECT_EQ(state.Drawn.panels[0].limits.ymax, 5e4) << "a limit that was chosen stays";
}

TEST_F(Zoom, TellsWhereNothingIsStored) {
  for (std::size_t i = 1; i < state.Iperp.size(); ++i)
    if (i < 138 || i > 146) state.Iperp[i] = state.Ipar[i] = std::nan("");
  ShowRange("137", "145");
  Draw();
  EXPECT_TRUE(SetXRange(session, {138, 144}));
  EXPECT_FALSE(SetXRange(session, {120, 144}));
  EXPECT_TRUE(SetXRange(session, {137, 145})) << "the last step of an axis may end short of it";
}

TEST_F(Zoom, OfAnotherAxisGoesAsFarAsItsCurves) {
  state.GraphType = 11;
  form.optXLog.Select();
  state.Xstep = 1;
  for (std::size_t i = 1; i < state.XValues.size(); ++i) state.XValues[i] = static_cast<double>(i);
  ShowRange("1", "181");
  Draw();
  SetXRange(session, {10, 20});
  const XRange out = ZoomAt(state, 8000, 100);
  EXPECT_NEAR(out.xmin, 1, 1e-9);
  EXPECT_NEAR(out.xmax, 181, 1e-9);
  // A replot in the zoomed range finds the points where they are.
  ShowRange("50", "60");
  Draw();
  ASSERT_FALSE(state.Drawn.curves.empty());
  EXPECT_EQ(state.Drawn.curves.back().x[50], 50);
  EXPECT_EQ(XUnit(state.Drawn.kind), "\u00B5m");
}

TEST_F(Zoom, ThePointerReadsBothAxesAndTheNearestPoint) {
  const auto reading = ReadAt(PlaceOf(120.3, 30));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->x, 120.3, 1e-9);
  EXPECT_NEAR(reading->y, 30, 1e-9);
  ASSERT_TRUE(reading->onCurve);
  EXPECT_EQ(reading->curveX, 120);
  EXPECT_EQ(reading->curveY, 20) << "the parallel curve is the nearer one";
  EXPECT_EQ(reading->text, "120.3 deg   30      Parallel polarisation: 120 deg   20");
  EXPECT_FALSE(ReadAt({100, 100})) << "beside the box";

  const GraphReading next = StepAlongCurve(state, *reading, 1);
  EXPECT_EQ(next.curveX, 121);
  const auto other = NeighbourCurve(state, next, 1);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->curveX, 121);
  EXPECT_EQ(other->curveY, 1000);
  const GraphReading end = StepAlongCurve(state, *ReadAt(PlaceOf(180, 20)), 1);
  EXPECT_EQ(end.curveX, 180) << "the last point stays";
}

TEST_F(Zoom, ASecondPanelIsReadInItsOwnUnits) {
  for (std::size_t i = 1; i < state.Extra2.size(); ++i) state.Extra2[i] = state.Extra3[i] = 200;
  Click("mnuAmpPhase_Click");
  state.PlotMode = 1;
  DisplayTwoPanels(session);
  const auto reading = ReadAt(PlaceOf(90, 180, 1));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->y, 180, 1e-9);
  EXPECT_EQ(reading->curveY, 200);
  EXPECT_THAT(reading->text, testing::StartsWith("90 deg   180 deg"));
  SetXRange(session, {10, 20});
  EXPECT_EQ(state.Drawn.panels[1].limits.xmin, 10);
  EXPECT_EQ(state.Drawn.panels[1].limits.ymax, 360);
}

TEST_F(Zoom, APolarPlotIsReadByAngleAndRadius) {
  Click("mnuPolarPlot_Click");
  form.optLinear.Select();
  StoreAngles(1, [](double a) { return a < 90 ? 100.0 : 50.0; });
  Draw();
  const PolarMap map = PolarMapOf(state, state.Drawn.kind, state.Drawn.panels[0].limits);
  const auto reading = ReadAt(map.Point(45, 60));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->x, 45, 1e-9);
  EXPECT_NEAR(reading->y, 60, 1e-6);
  EXPECT_EQ(reading->curveY, 100);
  EXPECT_FALSE(ReadAt({state.PolarCentreX, state.PolarCentreY - state.PolarRadius - 10})) << "outside";
  Near(ZoomAt(state, 5000, 0.5), 0, 180);
}

// Polar plots.

TEST_F(Zoom, PolarPlotsAreRefusedWhereTheyMakeNoSense) {
  form.mnuIntPol.Checked = true;
  mnuPolarPlot_Click(session);
  form.mnuIntPol.Checked = false;
  form.mnuPlaneWave.Checked = false;
  ShowRange("0", "90");
  mnuPolarPlot_Click(session);
  form.mnuPlaneWave.Checked = true;
  state.NumberWavelengths = 3;
  mnuPolarPlot_Click(session);
  EXPECT_FALSE(form.mnuPolarPlot.Checked);
  EXPECT_THAT(
      platform.messages,
      testing::ElementsAre("Option not available: Polar plots are not available for graphs of Intensity and "
                           "Polarisation",
                           "Option not available: Polar plots are available only when scattering angles\n"
                           "cover entire range from 0 to 180 degrees",
                           "Option not available: Polar plots are available only for single wavelength calculations"));
}

TEST_F(Zoom, PolarRadiusAndRingsFollowTheScale) {
  Click("mnuPolarPlot_Click");
  form.cboYmax.Text = "1000";
  form.cboYmin.Text = "1";
  Draw();
  const PolarMap map = PolarMapOf(state, state.Drawn.kind, state.Drawn.panels[0].limits);
  EXPECT_NEAR(map.Distance(1000), state.PolarRadius, 1e-6);
  EXPECT_NEAR(map.Distance(10), state.PolarRadius / 3.0, 1e-6);
  EXPECT_EQ(map.Distance(0), 0) << "nothing sits at the centre";
  const auto rings = [&] {
    int count = 0;
    for (const auto& op : surface.Operations())
      if (op.kind == DrawnOperation::Kind::Circle && op.radius > 100) ++count;
    return count;
  };
  EXPECT_EQ(rings(), 3) << "the rim, 100 and 10; 1 is the centre";
  state.NANG = 91;
  form.txtAngle.Text = "137.6";
  EXPECT_EQ(AngleDelta(session), 139);
}

}  // namespace
}  // namespace lumivex
