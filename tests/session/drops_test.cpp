// Flattened drops as a user finds them.

#include <gtest/gtest.h>

#include <algorithm>

#include "pages/build_page.h"
#include "record/recording_surface.h"
#include "runs/run_fixture.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Drops : public ScriptedSession {
 protected:
  /// A drop of m = 1.333 with these fields of its dialog.
  void Choose(const std::string& fields, const std::string& rays = "1000000") {
    Do("reset\nset txtRefractReal 1.333\nset txtRefractImag 0\nset txtRadius 500\nset cboStep 1");
    runner.World().messages.clear();
    Do("dialog dlogNonSpherical ok cboRayCount=" + rays + " " + fields + "\nclick mnuNonSpherical");
  }
  const MainFormState& State() { return runner.Current().state; }
  const Results& Last() { return *State().LastResults; }
  /// |S|^2/x^2 of rows, each standing for half a degree to both sides.
  double Mean(const AmplitudeTable& S, int low, int high) {
    double sum = 0;
    for (int row = low; row <= high; ++row) sum += S.Intensity(row + 1) * (row == low || row == high ? 0.5 : 1);
    return sum / (high - low) / (State().SizeParameter * State().SizeParameter);
  }
  double Bow(int p, double clock) {
    const auto& found = *Last().Find<AxisFound>();
    for (std::size_t i = 1; i < found.x.size(); ++i)
      if (found.x[i] == clock) return found.bows[static_cast<std::size_t>(p - 2)][i];
    return 0;
  }
};

TEST_F(Drops, OkRunsAndTheLightGoesWhereRaysGo) {
  Choose("txtAxisRatio=0.9 txtElevation=20 chkAllRound=1 chkP1=1 chkP2=0 chkP3=0");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboType"), "Burgeroid");
  ASSERT_EQ(Last().asked.method.method, Method::Burgeroid) << "OK has run it";
  const DropNumbers& drop = *Last().last.drop;
  EXPECT_NEAR(drop.perpendicular, 0.80855, 4e-4);
  EXPECT_NEAR(drop.parallel, 0.92744, 4e-4);
  EXPECT_NEAR(drop.axisRatio, 0.9, 1e-12);
  EXPECT_NEAR(Mean(State().S1, 30, 32), 0.973, 0.02 * 0.973);
  EXPECT_NEAR(Mean(State().S2, 30, 32), 1.129, 0.02 * 1.129);
  EXPECT_NEAR(Mean(State().S1, 60, 62), 0.0499, 0.03 * 0.0499);
  EXPECT_EQ(Last().asked.words.methodLabel, "Spheroid, axis ratio 0.9 (p = 1)\nSun elevation 20\u00B0, all round");
}

TEST_F(Drops, ASphereIsThatOfRays) {
  Choose("txtAxisRatio=1 chkAllRound=1");
  const AmplitudeTable S1 = State().S1;
  Do("choose cboType Descartes\ndialog dlogP ok chkMultStep=1 txtPmin=2 txtPmax=3\nset cboRays Multiple\n"
     "click cmdOverPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(runner.Current().page.runs.size(), 2U) << "both on one page";
  double sum = 0, rays = 0;
  for (int row = 142; row <= 170; ++row) {
    sum += S1.Intensity(row);
    rays += State().S1.Intensity(row);
  }
  EXPECT_NEAR(sum / rays, 1, 0.01);
}

TEST_F(Drops, NewPlotRunsAgainWithoutTheDialogAndReplotKeepsTheRays) {
  Choose("txtAxisRatio=0.95");
  const AmplitudeTable first = State().S1;
  Do("click cmdNewPlot");
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(State().S1, first) << "the same rays every time";
  const auto* results = &Last();
  Do("click cmdReplot");
  EXPECT_EQ(&Last(), results);
  Do("dialog dlogNonSpherical cancel txtAxisRatio=0.5\nclick mnuNonSpherical");
  EXPECT_EQ(Get("dlogNonSpherical.txtAxisRatio"), "0.95");
  EXPECT_EQ(&Last(), results) << "Cancel runs nothing";
}

TEST_F(Drops, BowsAlongTheClock) {
  Do("reset\nset txtRefractReal 1.333\nset txtRefractImag 0\n"
     "dialog dlogNonSpherical ok txtAxisRatio=0.95 txtElevation=20\nclick mnuBowClock\n"
     "set txtRefractReal 1.333\nset txtRefractImag 0\nset cboStep 45\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const struct {
    int p;
    double angle[4];
  } known[] = {{2, {144.83695, 142.13384, 137.30060, 137.52524}}, {3, {129.09136, 129.30805, 129.03127, 128.81714}}};
  for (const auto& row : known)
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(Bow(row.p, 45 * i), row.angle[i], 1e-4) << row.p << " " << 45 * i;
  const auto& curves = runner.Current().page.curves;
  EXPECT_EQ(curves.size(), 2U) << "p = 4 is not ticked";
  const AxisLimits& limits = runner.Current().page.panels.front().limits;
  EXPECT_TRUE(limits.ymin > 90 && limits.ymax < 180) << limits.ymin << " " << limits.ymax;
  Do("choose cboType Mie\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Selected graph type is available only for flattened drops");
}

TEST_F(Drops, TheSizeMakesTheShape) {
  Do("reset\nset txtRefractReal 1.333\nset txtRefractImag 0\n"
     "dialog dlogNonSpherical ok optBurgeroid=1 txtElevation=40\nclick mnuBowClock\n"
     "set txtRefractReal 1.333\nset txtRefractImag 0\nset txtRadius 750\nset cboStep 45\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const double known[] = {143.74037, 141.25167, 136.06697, 133.82361};
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(Bow(2, 45 * i), known[i], 1e-4) << 45 * i;
  Do("set txtRadius 3001\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Drops are not larger than 6 mm: the radius must not be greater than 3000 \u00B5m");
  Do("set txtRadius 3000\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "A drop of this size is hollow below: its rays are not traced");
  Do("set txtRadius 750\nset txtRefractReal 0.9\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Flattened drops need a refractive index greater than that of the medium");
  Do("set txtRefractReal 1.333\nset txtRadius 0.5\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Flattened drops need a larger size: the size parameter x must be at least 10");
}

TEST_F(Drops, FieldsThatMakeNoDropKeepTheDialogOpen) {
  const struct {
    const char *fields, *text;
  } cases[] = {
      {"txtAxisRatio=0", "The axis ratio must lie between 0.3 and 3"},
      {"txtAxisRatio=flat", "The axis ratio must lie between 0.3 and 3"},
      {"txtElevation=91", "The elevation of the sun must lie between -90 and 90 degrees"},
      {"txtClock=200", "The clock angle must lie between -180 and 180 degrees"},
      {"txtClockWidth=0", "The half-width must lie between 0.01 and 180 degrees"},
      {"chkP2=0 chkP3=0", "No rays selected"},
      {"cboRayCount=0", "The number of rays must lie between 1E3 and 1E9"},
  };
  for (const auto& c : cases) {
    Choose(c.fields);
    ASSERT_EQ(Shown().size(), 1U) << c.fields;
    EXPECT_EQ(LastText(), c.text);
    EXPECT_EQ(Get("cboType"), "Mie") << c.fields;
  }
}

TEST_F(Drops, TheDialogDrawsTheDropAndItsBows) {
  Choose("txtAxisRatio=0.8 optBurgeroid=0", "1000");
  const Session& session = runner.Current();
  const auto at = std::ranges::find_if(
      session.windows, [&](const Window& each) { return each.form == &session.forms.dlogNonSpherical; });
  ASSERT_NE(at, session.windows.end());
  const Window& window = *at;
  ASSERT_TRUE(window.page.drop.has_value());
  const PageDrop& drop = *window.page.drop;
  EXPECT_GE(drop.rays.size(), 2U);
  EXPECT_EQ(drop.rays.front().points.size(), 5U) << "from the sun, in, reflected, out, to the observer";
  ASSERT_EQ(drop.bows.size(), 2U);
  double highest = 0, widest = 0;
  for (const auto& point : drop.outline) {
    highest = std::max(highest, point.z);
    widest = std::max(widest, point.x);
  }
  EXPECT_NEAR(highest / widest, 0.8, 1e-3);
  RecordingSurface surface(9000, 5000);
  Paint(window.page, surface);
  EXPECT_GT(surface.Operations().size(), 20U);
  EXPECT_EQ(runner.Current().forms.dlogNonSpherical.lblDrop.Caption, "Drop of 1 mm, axis ratio 0.8");
}

TEST_F(Drops, AStopKeepsWhatWasCounted) {
  Choose("txtAxisRatio=1 chkAllRound=1", "1000");
  Do("set dlogNonSpherical.cboRayCount 2000000\nstop-at 30\nclick cmdNewPlot");
  const DropNumbers& drop = *Last().last.drop;
  ASSERT_LT(drop.raysDone, drop.raysAsked);
  EXPECT_GT(drop.raysDone, 0.1 * drop.raysAsked);
  // What was traced is a fair sample of the whole drop.
  EXPECT_NEAR(drop.perpendicular, 0.061623 + 0.009684, 1e-3);
  bool told = false;
  for (const std::string& line : runner.Current().page.runs.back().parameters)
    told = told || line.find(" of 2,") != std::string::npos;
  EXPECT_TRUE(told) << "how many rays there are";
}

TEST(DropRuns, AreTheSameOnAnyNumberOfThreadsWithATableOfTheSky) {
  RunRequest request = AngleRequest(500, 1, Method::Burgeroid);
  request.method.rays = {0, 0, 1};
  request.method.drop.axisRatio = 0.9;
  request.method.drop.elevation = 0.35;
  request.method.drop.rays = 2e5;
  request.method.drop.sky = true;
  const RunEnd one = RunSilently(request, 1), three = RunSilently(request, 3);
  ASSERT_EQ(one.outcome, Outcome::Done) << one.refusal.text;
  EXPECT_EQ(Numbers(one.results).all, Numbers(three.results).all);
  const DropSky& sky = one.results.sky;
  EXPECT_EQ(sky.red, three.results.sky.red);
  ASSERT_EQ(sky.red.size(), sky.Size());
  // All sectors together are what is seen all round.
  const auto& found = std::get<AngleFound>(one.results.found);
  for (int row = 140; row <= 175; row += 5) {
    double mean = 0;
    for (int sector = 0; sector < sky.sectors; ++sector)
      mean += double{sky.red[static_cast<std::size_t>(sector * sky.RowCount() + row - sky.rows.low)]} / sky.sectors;
    const double all = (found.S1.Intensity(row) + found.S2.Intensity(row)) / 2;
    EXPECT_NEAR(mean, all, 1e-4 * all) << row;
  }
  // At the top of the bow light begins farther from the sun's shadow than at its side: the arc is smaller there.
  const auto at = [&](int sector, int row) {
    return sky.red[static_cast<std::size_t>(sector * sky.RowCount() + row - sky.rows.low)];
  };
  EXPECT_EQ(at(0, 142), 0);
  EXPECT_GT(at(sky.sectors / 2, 142), 0);
}

}  // namespace
}  // namespace lumivex
