#include <gtest/gtest.h>

#include <cmath>

#include "pages/zoom.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/look/read_look.h"
#include "session/inputs/methods.h"
#include "session/session_fixture.h"
#include "session/view.h"
#include "solvers/angles/scattering_pattern.h"

namespace lumivex {
namespace {

constexpr double pi = 3.14159265358979324;

class AxisGraphs : public ScriptedSession {
 protected:
  const MainFormState& State() { return runner.Current().state; }
  void Choose(const std::string& graph) { Do("choose cboGraph " + graph); }
  /// A step that leaves an axis a handful of points.
  std::string CoarseStep() {
    if (Get("mnuXStepLog") == "true" || State().GraphType == 19) return "5";
    return std::to_string((Number("txtXmax") - Number("txtXmin")) / 5);
  }
};

TEST_F(AxisGraphs, EveryPairOfGraphAndMethodGivesNumbersOrAMessage) {
  for (const auto& graph : OfferedGraphs())
    for (const auto& row : MethodTable()) {
      if (!IsAvailable(row.feature)) continue;
      const std::string method(row.text);
      SCOPED_TRACE(graph + " by " + method);
      Do("reset\nchoose cboGraph " + graph + "\nchoose cboType " + method);
      // Few points are enough to see whether the pair works.
      if (State().GraphType >= 10) Do("set cboStep " + std::string(Get("mnuXStepLog") == "true" ? "20" : "1"));
      if (State().GraphType == 12) Do("set cboStep 0.02");
      if (State().GraphType == 18) Do("set cboStep 5\nset txtF9_step 5");
      // A point of dew, and of a flattened drop, is hundreds of thousands of rays.
      if (method == "Heiligenschein") Do("set cboStep " + (State().GraphType >= 10 ? CoarseStep() : std::string("3")));
      Do("set dlogNonSpherical.cboRayCount 2000");
      runner.World().messages.clear();
      Do("click cmdNewPlot");
      if (!Shown().empty()) continue;
      ASSERT_EQ(State().PrevGraphType, State().GraphType);
      output.str("");
      Do("table");
      EXPECT_GT(output.str().size(), 200U);
      EXPECT_EQ(output.str().find("nan"), std::string::npos);
      EXPECT_EQ(output.str().find("inf"), std::string::npos);
    }
}

TEST_F(AxisGraphs, ChoosingAGraphShowsItsCaptionsAndKeepsRangesWithinAFamily) {
  Choose("Qext/Qsca/Qabs v. radius");
  EXPECT_EQ(Get("Frame2.Caption"), "Radius");
  EXPECT_EQ(Get("Label2"), "Maximum (\u00B5m)");
  EXPECT_EQ(Get("Label5"), "No. of steps");
  EXPECT_EQ(Get("cboPol"), "All 3");
  EXPECT_EQ(Get("txtRadius.Visible"), "false");
  Do("set txtXmax 50");
  Choose("Cext/Csca/Cabs v. radius");
  EXPECT_EQ(Get("txtXmax"), "50");
  Choose("Intensity v. wavelength");
  EXPECT_EQ(Get("txtXmin"), "400");
  EXPECT_EQ(Get("Label5"), "Step (nm)");
  EXPECT_EQ(Get("txtAngle.Visible"), "true");
  EXPECT_EQ(Get("txtLambda.Visible"), "false");
  Choose("Intensity v. scattering angle");
  EXPECT_EQ(Get("Frame2.Caption"), "Angle scale");
  EXPECT_EQ(Get("txtXmax"), "180");
  EXPECT_EQ(Get("txtRadius.Visible"), "true");
  Do("click mnuKeepParameters");
  Choose("Intensity v. radius");
  EXPECT_EQ(Get("txtXmax"), "180");
}

TEST_F(AxisGraphs, PointsAreThoseOfSingleRuns) {
  const double Qext = Number("Qext"), Qback = Number("Qback");
  Do("set txtXmin 0\nset txtXmax 180");
  const double S1 = State().Iperp[1381], S2 = State().Ipar[1381];  // 138 degrees
  Choose("Intensity v. radius");
  Do("set txtXmin 9\nset txtXmax 11\nset cboStep 0.1\nset txtAngle 138\nclick cmdNewPlot");
  ASSERT_EQ(State().LastPoint, 21);
  EXPECT_NEAR(State().XValues[11], 10, 1e-12);
  EXPECT_NEAR(State().Iperp[11], S1, 1e-8 * S1);
  EXPECT_NEAR(State().Ipar[11], S2, 1e-8 * S2);
  Choose("Intensity v. diameter");
  Do("set txtXmin 18\nset txtXmax 22\nset cboStep 0.2\nclick cmdNewPlot");
  EXPECT_NEAR(State().Iperp[11], S1, 1e-8 * S1);
  Choose("Intensity v. wavelength");
  Do("set txtXmin 600\nset txtXmax 700\nset cboStep 10\nclick cmdNewPlot");
  EXPECT_NEAR(State().Iperp[6], S1, 1e-8 * S1);
  Choose("Qext/Qsca/Qabs v. wavelength");
  Do("click cmdNewPlot");
  Choose("Qback v. wavelength");
  Do("set txtXmin 600\nset txtXmax 700\nset cboStep 10\nclick cmdNewPlot");
  EXPECT_NEAR(State().Iperp[6], Qback, 1e-9 * Qback);
  Choose("Qext/Qsca/Qabs v. radius");
  Do("set txtXmin 1\nset txtXmax 100\nset cboStep 2\nclick cmdNewPlot");
  ASSERT_EQ(State().LastPoint, 3);
  EXPECT_NEAR(State().XValues[2], 10, 1e-12);
  EXPECT_NEAR(State().Iperp[2], Qext, 1e-12);
  EXPECT_TRUE(Shown().empty()) << LastText();
}

TEST_F(AxisGraphs, DerivedQuantitiesFollowFromTheEfficiencies) {
  Do("set txtRefractReal 1.4\nset txtRefractImag 0.05\nclick mnuSize\nclick mnuSize");
  const auto run = [&](const std::string& graph) {
    Choose(graph);
    Do("set txtXmin 1\nset txtXmax 4\nset cboStep 2\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << graph << ": " << LastText();
    return std::array{State().Iperp[2], State().Ipar[2], State().Iunpol[2]};
  };
  const auto Q = run("Qext/Qsca/Qabs v. radius");
  EXPECT_NEAR(Q[2], Q[0] - Q[1], 1e-14);
  const auto C = run("Cext/Csca/Cabs v. radius");
  EXPECT_NEAR(C[0], Q[0] * pi * 4e-12, 1e-24);  // radius 2 um
  const auto back = run("Qback v. radius"), radar = run("Qradar v. radius");
  EXPECT_NEAR(radar[0], 4 * pi * back[0], 1e-12);
  EXPECT_NEAR(run("Albedo v. radius")[0], Q[1] / Q[0], 1e-14);
  const double g = run("Asymmetry g v. radius")[0];
  EXPECT_GT(g, 0.5);
  EXPECT_LT(g, 1);
}

// The mean of Q pi r^2 over the sizes, which large spheres outweigh, not Q pi of the mean radius.
TEST_F(AxisGraphs, CrossSectionsOfACloudAreMeans) {
  Do("set txtRefractReal 1.4\nset txtRefractImag 0.01");
  Choose("Cext/Csca/Cabs v. radius");
  Do("click optDisp\nchoose cboDistrib Normal\nset cboN 5\nset cboSD 20");
  Do("set txtXmin 1\nset txtXmax 4\nset cboStep 2\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const double extinction = State().Iperp[2], scattering = State().Ipar[2];
  const auto samples = State().DistSample;
  ASSERT_EQ(samples.size(), 6U);
  double meanExtinction = 0, meanScattering = 0;
  Do("click optMono");
  for (std::size_t k = 1; k < samples.size(); ++k) {
    const std::string radius = Shortest(2 * (1 + 0.2 * samples[k]));
    Do("set txtXmin " + radius + "\nset txtXmax 10\nset cboStep 2\nclick cmdNewPlot");
    meanExtinction += State().Iperp[1] / 5;
    meanScattering += State().Ipar[1] / 5;
  }
  EXPECT_NEAR(extinction / meanExtinction, 1, 1e-9);
  EXPECT_NEAR(scattering / meanScattering, 1, 1e-9);
}

TEST_F(AxisGraphs, ScatteredPowerIntoAllAnglesIsTheCrossSectionTimesTheDensity) {
  Do("set txtRefractReal 1.33\nset txtRefractImag 0");
  Choose("Scattered power v. radius");
  Do("set txtXmin 1\nset txtXmax 5\nset cboStep 1\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const double power = State().Iunpol[5];
  EXPECT_NEAR(power, 100 * Number("Qsca") * pi * 25e-12, 3e-4 * power);
  Do("set txtF9_max 90\nclick cmdNewPlot");
  EXPECT_LT(State().Iunpol[5], power);
}

TEST_F(AxisGraphs, TheRangeOfTheIndexIsThatOfTheAxis) {
  Choose("Intensity v. refractive index");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Variable refractive index");
  Do("set txtXmin 1.3\nset txtXmax 1.5\nset cboStep 0.05\nclick cmdNewPlot");
  const double at14 = State().Iperp[3];
  Choose("Intensity v. scattering angle");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
  Do("set txtRefractReal 1.4\nset txtRefractImag " + Exact(Number("RefRelImag")) + "\nclick cmdNewPlot");
  EXPECT_NEAR(State().Iperp[1381], at14, 1e-6 * at14);
}

TEST_F(AxisGraphs, ConvergenceShowsTheSumRunningPastItsStop) {
  runner.Current().form1.cboGraph.Items.push_back("Convergence");
  Choose("Convergence");
  Do("set txtAngle 0\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("NSTOP"), "162");  // 1.2 times 135
  EXPECT_EQ(Get("txtXmax"), "162");
  EXPECT_NEAR(State().Iperp[162] / State().Iperp[140], 1, 1e-9);
  EXPECT_LT(State().Iperp[50], State().Iperp[162]);
}

TEST_F(AxisGraphs, IntegralsOverTheSphereAreRight) {
  Choose("Phase function");
  Do("set cboStep 0.05\nclick cmdNewPlot");
  const auto rows = [&](const std::vector<double>& curve) {
    return std::span(curve).subspan(1, static_cast<std::size_t>(State().NN));
  };
  EXPECT_NEAR(SphereMean(rows(State().Iunpol)), 1, 3e-4);
  Choose("CPDF");
  Do("click cmdNewPlot");
  const auto cumulative = rows(State().Iunpol);
  EXPECT_EQ(cumulative.front(), 0);
  EXPECT_EQ(cumulative.back(), 1);
  EXPECT_TRUE(std::ranges::is_sorted(cumulative));
  // Half of the light goes into the diffraction peak of some two degrees.
  EXPECT_NEAR(cumulative[40], 0.4, 0.15);
}

TEST_F(AxisGraphs, TheScatteringMatrixOfASphereHasItsSymmetry) {
  Choose("Scattering matrix");
  Do("click cmdNewPlot");
  for (std::size_t i = 1; i <= 1801; i += 50) {
    const double a = State().Extra1[i], b = State().Extra2[i], c = State().Extra3[i];
    EXPECT_NEAR(a * a + b * b + c * c, 1, 1e-12) << i;
  }
  EXPECT_NEAR(State().Extra2[1], 1, 1e-12);      // forward: S33 = S11
  EXPECT_NEAR(State().Extra2[1801], -1, 1e-12);  // backward: S33 = -S11
}

TEST_F(AxisGraphs, AStopLeavesThePointsThatWereDone) {
  Do("choose cboType Debye");
  Choose("Intensity v. radius");
  Do("set txtXmin 10\nset txtXmax 100\nset cboStep 0.1\nstop-at 50\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  const int done = State().LastResults->Find<AxisFound>()->done;
  EXPECT_GT(done, 300);
  ASSERT_LT(done, 901);
  const auto last = static_cast<std::size_t>(done);
  EXPECT_TRUE(std::isfinite(State().Iperp[last]));
  EXPECT_TRUE(std::isnan(State().Iperp[last + 1]));
  Do("click cmdReplot");
}

TEST_F(AxisGraphs, DebyeAnalysisTakesTheTermsAwayOneByOne) {
  Do("dialog dlogDebyeSeq ok txtLimit=12\nclick mnuDebyeSequence\nset txtRefractImag 0\nset cboRays 2\nclick "
     "cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const auto& s = State();
  const auto& found = *s.LastResults->Find<DebyeAnalysisFound>();
  ASSERT_EQ(found.done, 14);
  EXPECT_EQ(Get("cboRays"), "2");
  // The last remainder is Mie less the sum of all terms, as the difference of the two series gives it.
  const ComplexD left = found.dots1.Value(14), all = found.dots1.Value(1);
  Do("choose cboGraph Intensity v. radius\nset txtRefractImag 0\nset cboRays -12\nset txtXmin 10\nset txtXmax 12\nset "
     "cboStep 0.5\nclick "
     "cmdNewPlot");
  EXPECT_NEAR(s.S1ofPoint.Re(1), all.re - left.re, 1e-9 * std::abs(all.re));
  Do("click mnuMieDebye\nclick cmdNewPlot");
  EXPECT_NEAR(s.S1ofPoint.Re(1), left.re, 1e-9 * std::abs(all.re));
  EXPECT_NEAR(s.S1ofPoint.Im(1), left.im, 1e-9 * std::abs(all.re));
}

// Points of an x-axis graph stand at the angle typed, whatever the method's grid would be.
TEST_F(AxisGraphs, EveryMethodAnswersAtTheAngleTyped) {
  for (const char* method : {"Debye", "Young mod", "Young + Airy", "Airy", "Diffraction", "Rayleigh", "Huygens"}) {
    SCOPED_TRACE(method);
    Do("reset\nchoose cboType " + std::string(method) + "\nset cboRays 2\nset txtRefractImag 0\nset txtRadius 3");
    Do("set txtXmin 138.5\nset txtXmax 139.5\nset cboStep 0.1\nclick cmdNewPlot");
    const double between = 0.5 * (std::sqrt(State().Iperp[1390]) + std::sqrt(State().Iperp[1391]));
    Do("choose cboGraph Intensity v. radius\nset txtAngle 138.95\nset txtXmin 3\nset txtXmax 4\nset cboStep 0.2");
    Do("click cmdNewPlot");
    EXPECT_NEAR(std::sqrt(State().Iperp[1]) / between, 1, 1e-3);
  }
}

// Steps of 2.7 degrees became 2.727 quietly, and each fault of the range was told as another.
TEST_F(AxisGraphs, ScatteredPowerTakesAnglesThatItCanSumOver) {
  struct Case {
    const char *lines, *message, *marked;
  };
  for (const auto& c : {Case{"set txtF9_step 2.7", "Must be a sub-multiple of 90 degrees", "txtF9_step"},
                        Case{"set txtF9_step 0", "Step size must be greater than zero", "txtF9_step"},
                        Case{"set txtF9_min -1", "Minimum angle < 0 degrees", "txtF9_min"},
                        Case{"set txtF9_max 180.5", "Maximum angle > 180 degrees", "txtF9_max"},
                        Case{"set txtF9_min 180", "Minimum value must be less than maximum value", "txtF9_min"}}) {
    SCOPED_TRACE(c.lines);
    Do("reset\nchoose cboGraph Scattered power v. radius\nset cboStep 5");
    const auto before = State().LastResults;
    Do(std::string(c.lines) + "\nclick cmdNewPlot");
    EXPECT_EQ(LastText(), c.message);
    EXPECT_EQ(Get(std::string(c.marked) + ".BackColour"), "255");
    EXPECT_EQ(State().LastResults, before);
  }
  runner.World().messages.clear();
  Do("set txtF9_min 0\nset txtF9_step 7.5\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
}

// The scale fits an albedo that hardly changes so closely that another one was drawn outside.
TEST_F(AxisGraphs, AnOverplottedAlbedoStaysInTheBox) {
  Do("choose cboGraph Albedo v. radius\nclick mnuRI_Fixed1\nset txtXmin 20\nset cboStep 50\n"
     "set txtRefractImag 0.5\nclick cmdNewPlot");
  const Page& page = runner.Current().page;
  const AxisLimits first = page.panels[0].limits;
  EXPECT_GT(first.ymin, 0.5);
  const auto inside = [&] {
    const AxisLimits& limits = page.panels[0].limits;
    for (const PageCurve& curve : page.curves)
      for (std::size_t i = 1; i < curve.y.size(); ++i)
        if (!(curve.y[i] >= limits.ymin && curve.y[i] <= limits.ymax)) return false;
    return true;
  };
  EXPECT_TRUE(inside());
  Do("click cmdOverPlot");
  EXPECT_EQ(page.panels[0].limits, first) << "the same curve changes nothing";
  Do("set txtRefractImag 0.0001\nclick cmdOverPlot");
  ASSERT_EQ(page.runs.size(), 3U);
  EXPECT_TRUE(inside());
  EXPECT_EQ(page.homeY.xmax, page.panels[0].limits.ymax) << "where a zoom goes home to";
  // Limits that were typed are meant.
  Do("set cboYmin 0.5\nset cboYmax 0.6\nset txtRefractImag 0.5\nclick cmdNewPlot\n"
     "set txtRefractImag 0.0001\nclick cmdOverPlot");
  EXPECT_EQ(page.panels[0].limits.ymax, 0.6);
}

// A zoom is calculated anew where it has fewer points than can be seen, in steps of 1, 2 or 5.
TEST_F(AxisGraphs, AZoomIsCalculatedAnewWhereItHasFewPoints) {
  Do("set cboStep 1\nclick cmdNewPlot");
  auto& session = runner.Current();
  const auto run = [&](double low, double high) {
    session.page = WithView(session.page, {XRange{low, high}, {}}, ReadLook(session));
    const auto found = RunOfView(session);
    return found ? found->xmin + " " + found->xmax + " " + found->step : "";
  };
  EXPECT_EQ(run(0, 180), "") << "no zoom";
  EXPECT_EQ(run(100, 149), "") << "fifty points";
  EXPECT_EQ(run(100, 148), "100 148 0.05") << "500 of them in steps of 1, 2 or 5";
  EXPECT_EQ(run(100.02, 110.013), "100.02 110.02 0.01") << "ends on steps";
  EXPECT_EQ(run(100, 125), "100 125 0.05");
  EXPECT_EQ(run(100, 150), "");
  Do("set txtXmin 90\nclick cmdNewPlot");
  EXPECT_EQ(run(50, 150), "50 150 0.2") << "below 90 degrees nothing is there";
  CalculateView(session, *RunOfView(session));
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax") + " " + Get("cboStep"), "50 150 0.2");
}

}  // namespace
}  // namespace lumivex
