#include "pages/zoom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/curves/curve_path.h"
#include "pages/curves/curve_steps.h"
#include "pages/frame/polar_plot.h"
#include "pages/graph_fixture.h"

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
    const auto& kept = page.panels[panel];
    const PanelMap map{kept.box, kept.limits, page.kind.logX, kept.logY};
    return {map.X(x), map.Y(y)};
  }
  std::optional<GraphReading> ReadAt(SurfacePoint place) const { return lumivex::ReadAt(page, place.x, place.y); }
  void Near(XRange range, double xmin, double xmax) {
    EXPECT_NEAR(range.xmin, xmin, 1e-9);
    EXPECT_NEAR(range.xmax, xmax, 1e-9);
  }
};

TEST_F(Zoom, KeepsWhatIsUnderThePointerAndStaysWithinTheCircle) {
  Near(ZoomAt(page, PlaceOf(60, 100).x, 0.5), 30, 120);
  Near(ZoomAt(page, PlaceOf(60, 100).x, 3), 0, 180);
  Near(ZoomAt(page, -1e9, 0.5), 0, 90);
  Near(ZoomAt(page, 5000, 0), 0, 180);
  ShowView(session, {{30, 120}});
  Near(PanBy(page, -(0.5) * page.panels[0].box.Width()), 75, 165);
  Near(PanBy(page, -(5) * page.panels[0].box.Width()), 90, 180);
  Near(PanBy(page, -(-5) * page.panels[0].box.Width()), 0, 90);
  double width = 90;
  for (int i = 0; i < 200; ++i) {
    const XRange range = RoundedRange(ZoomAt(page, 7000, 0.8));
    ASSERT_LT(range.xmin, range.xmax);
    ShowView(session, {range});
    width = range.xmax - range.xmin;
  }
  EXPECT_GT(width, 1e-5) << "a zoom ends where numbers run out of digits";
}

TEST_F(Zoom, ChoosesTheScaleForWhatIsInViewAndKeepsOverplots) {
  DrawOver();
  ShowView(session, {{100, 150}});
  EXPECT_EQ(page.panels[0].limits.ymax, 1000);
  EXPECT_EQ(page.panels[0].limits.ymin, 10);
  EXPECT_EQ(page.curves.size(), 4U);
  Near(page.home, 0, 180);
  form.cboYmax.Text = "5e4";
  ShowView(session, {{0, 50}});
  EXPECT_EQ(page.panels[0].limits.ymax, 5e4) << "a limit that was chosen stays";
}

TEST_F(Zoom, TellsWhereNothingIsStored) {
  Found().rows = {{1, 0}, {138, 146}};
  ShowRange("137", "145");
  Draw();
  EXPECT_TRUE(HasDataOver(page, {138, 144}));
  EXPECT_FALSE(HasDataOver(page, {120, 144}));
  EXPECT_TRUE(HasDataOver(page, {137, 145})) << "the last step of an axis may end short of it";
}

TEST_F(Zoom, TheVerticalAxisKeepsWhatIsUnderThePointerAndItsNumbersApart) {
  const double top = page.panels[0].limits.ymax, bottom = page.panels[0].limits.ymin;
  const XRange half = ZoomYAt(page, PlaceOf(60, 1000).y, 0.5);
  EXPECT_GT(half.xmin, bottom);
  EXPECT_LT(half.xmax, top);
  ShowView(session, {page.home, half});
  EXPECT_EQ(page.panels[0].limits.ymax, half.xmax);
  ShowView(session, {{100, 150}, half});
  EXPECT_EQ(page.panels[0].limits.ymax, half.xmax) << "the user's range stays whatever is in view";
  for (int i = 0; i < 50; ++i) {
    const XRange y = ZoomYAt(page, PlaceOf(120, 1000).y, 0.8);
    ShowView(session, {{100, 150}, y});
  }
  EXPECT_GE(page.panels[0].limits.ymax / page.panels[0].limits.ymin, 2);
  for (int i = 0; i < 50; ++i) ShowView(session, {page.home, ZoomYAt(page, 5000, 1.25)});
  EXPECT_EQ(page.panels[0].limits.ymax, top);
  EXPECT_EQ(page.panels[0].limits.ymin, bottom);
  EXPECT_FALSE(IsZoomed(page));
}

TEST_F(Zoom, LastsWhileTheNextPageHasTheSameRange) {
  ShowView(session, {{100, 150}, XRange{1e2, 1e4}});
  const Page before = page;
  Draw();
  const auto same = KeptView(before, page);
  ASSERT_TRUE(same);
  EXPECT_EQ(*same, ViewOf(before));
  form.optLinear.Select();
  Draw();
  const auto linear = KeptView(before, page);
  ASSERT_TRUE(linear);
  EXPECT_EQ(*linear, (PageView{{100, 150}})) << "limits of a logarithmic axis mean nothing on a linear one";
  ShowRange("0", "90");
  Draw();
  EXPECT_FALSE(KeptView(before, page)) << "limits that were typed are what is wanted now";
}

TEST_F(Zoom, OfAnotherAxisGoesAsFarAsItsCurves) {
  AxisFound found;
  found.done = 181;
  found.S1.Resize(found.done);
  found.S2.Resize(found.done);
  found.radius.assign(182, 1);
  found.waveNumber.assign(182, 1);
  for (int i = 0; i <= found.done; ++i) found.x.push_back(i);
  for (int i = 1; i <= found.done; ++i) found.S1.Set(i, i, 0);
  results.asked.run = AxisRun{};
  results.found = found;
  TakeGraph({11, 1});
  form.optXLog.Select();
  ShowRange("1", "181");
  Draw();
  ShowView(session, {{10, 20}});
  const XRange out = ZoomAt(page, 8000, 100);
  EXPECT_NEAR(out.xmin, 1, 1e-9);
  EXPECT_NEAR(out.xmax, 181, 1e-9);
  // A replot in the zoomed range finds the points where they are.
  ShowRange("50", "60");
  Draw();
  ASSERT_FALSE(page.curves.empty());
  EXPECT_EQ(page.curves.back().x[50], 50);
  EXPECT_THAT(ReadAt(PlaceOf(55, 100))->text, testing::HasSubstr("55 \u00B5m"));
}

TEST_F(Zoom, ThePointerReadsBothAxesAndTheNearestPoint) {
  const auto reading = ReadAt(PlaceOf(120.3, 30));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->x, 120.3, 1e-9);
  EXPECT_NEAR(reading->y, 30, 1e-9);
  ASSERT_TRUE(reading->onCurve);
  EXPECT_EQ(reading->curveX, 120);
  EXPECT_NEAR(reading->curveY, 20, 1e-9) << "the parallel curve is the nearer one";
  EXPECT_EQ(reading->text, "120.3 deg   30      Parallel polarisation: 120 deg   20");
  EXPECT_FALSE(ReadAt({100, 100})) << "beside the box";

  const GraphReading next = StepAlongCurve(page, *reading, 1);
  EXPECT_EQ(next.curveX, 121);
  const auto other = NeighbourCurve(page, next, 1);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->curveX, 121);
  EXPECT_NEAR(other->curveY, 1000, 1e-9);
  const GraphReading end = StepAlongCurve(page, *ReadAt(PlaceOf(180, 20)), 1);
  EXPECT_EQ(end.curveX, 180) << "the last point stays";
}

TEST_F(Zoom, ASecondPanelIsReadInItsOwnUnits) {
  StoreAngles(
      1, [](double) { return 100.0; }, [](double) { return 20.0; }, 200);
  Click("mnuAmpPhase_Click");
  Draw();
  const auto reading = ReadAt(PlaceOf(90, 180, 1));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->y, 180, 1e-9);
  EXPECT_NEAR(reading->curveY, 200, 1e-9);
  EXPECT_THAT(reading->text, testing::StartsWith("90 deg   180 deg"));
  ShowView(session, {{10, 20}});
  EXPECT_EQ(page.panels[1].limits.xmin, 10);
  EXPECT_EQ(page.panels[1].limits.ymax, 360);
}

TEST_F(Zoom, APolarPlotIsReadByAngleAndRadius) {
  Click("mnuPolarPlot_Click");
  form.optLinear.Select();
  StoreAngles(1, [](double a) { return a < 90 ? 100.0 : 50.0; });
  Draw();
  const PolarMap map = PolarMapOf(page);
  const auto reading = ReadAt(map.Point(45, 60));
  ASSERT_TRUE(reading);
  EXPECT_NEAR(reading->x, 45, 1e-9);
  EXPECT_NEAR(reading->y, 60, 1e-6);
  EXPECT_NEAR(reading->curveY, 100, 1e-9);
  EXPECT_FALSE(ReadAt({state.PolarCentreX, state.PolarCentreY - state.PolarRadius - 10})) << "outside";
  Near(ZoomAt(page, 5000, 0.5), 0, 180);
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
  const PolarMap map = PolarMapOf(page);
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

// A pan moves by its part of the box, and stops at the ends of the frame.
TEST_F(Zoom, APanOfTheVerticalAxisStopsAtTheFrame) {
  const AxisLimits whole = page.panels[0].limits;
  const double height = page.panels[0].box.Height();
  ASSERT_TRUE(page.panels[0].logY);
  EXPECT_EQ(PanYBy(page, height / 2).xmin, whole.ymin) << "all of it is in view";
  const double low = std::sqrt(whole.ymin * whole.ymax);
  ShowView(session, {page.home, XRange{low, 10 * low}});
  const XRange moved = PanYBy(page, height / 4);
  EXPECT_NEAR(moved.xmin / (low * std::pow(10, 0.25)), 1, 1e-9);
  EXPECT_NEAR(moved.xmax / moved.xmin, 10, 1e-9);
  const XRange top = PanYBy(page, 100 * height), bottom = PanYBy(page, -100 * height);
  EXPECT_EQ(top.xmax, whole.ymax);
  EXPECT_NEAR(top.xmin * 10 / whole.ymax, 1, 1e-9);
  EXPECT_EQ(bottom.xmin, whole.ymin);
}

}  // namespace
}  // namespace lumivex
