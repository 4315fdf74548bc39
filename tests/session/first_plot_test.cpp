#include <gtest/gtest.h>

#include <fstream>

#include "session/session_fixture.h"

namespace lumivex {
namespace {

class FirstPlot : public ScriptedSession {};

TEST_F(FirstPlot, OpensOnAFinishedMieCalculation) {
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("CalcMethod"), "1");
  EXPECT_EQ(Get("cboGraph"), "Intensity v. scattering angle");
  EXPECT_EQ(Get("PlotMode"), "1");
  EXPECT_EQ(Get("Busy"), "0");
  // Water at 5 C and 0.65 um, radius 10 um: x from the definition, Q near the limit 2 of large spheres.
  EXPECT_NEAR(Number("SizeParameter"), 2 * 3.14159265358979324 * 10 / 0.65, 1e-12);
  EXPECT_NEAR(Number("SphereRIReal"), 1.33257, 1e-4);
  EXPECT_NEAR(Number("Qext"), 2.0, 0.2);
  EXPECT_GT(Number("Qext"), Number("Qsca"));
  EXPECT_EQ(Get("NSTOP"), "135");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  EXPECT_EQ(Get("cmdStop.Visible"), "false");
}

TEST_F(FirstPlot, TablesHoldTheDisplayedRows) {
  output.str("");
  Do("table");
  std::istringstream table(output.str());
  std::string line;
  std::getline(table, line);
  EXPECT_EQ(line, "x,perpendicular,parallel,unpolarised,extra1,extra2,extra3");
  int rows = 0;
  double lastX = -1;
  while (std::getline(table, line)) {
    ++rows;
    EXPECT_NEAR(Val(line), lastX < 0 ? 0 : lastX + 0.1, 1e-9);
    lastX = Val(line);
  }
  EXPECT_EQ(rows, 1801);
  EXPECT_NEAR(lastX, 180, 1e-9);
}

TEST_F(FirstPlot, OpticalTheoremHoldsThroughTheRecord) {
  output.str("");
  Do("amplitudes");
  std::istringstream rows(output.str());
  std::string header, first;
  std::getline(rows, header);
  std::getline(rows, first);
  EXPECT_EQ(header, "angle,S1re,S1im,S2re,S2im");
  const double S1re = Val(first.substr(first.find(',') + 1));
  const double x = Number("SizeParameter");
  EXPECT_NEAR(4 * S1re / (x * x), Number("Qext"), 1e-12);
}

TEST_F(FirstPlot, EfficienciesAreThoseOfTheSphereWhateverTheRows) {
  const double Qext = Number("Qext"), Qback = Number("Qback");
  Do("set txtXmin 137\nset txtXmax 145\nclick cmdNewPlot");
  EXPECT_NEAR(Number("Qext"), Qext, 1e-12);
  EXPECT_NEAR(Number("Qback"), Qback, 1e-9 * Qback);
  EXPECT_EQ(Get("AngleLow"), "1369");
  EXPECT_EQ(Get("AngleHigh"), "1453");
}

TEST_F(FirstPlot, RestoreDefaultsKeepsTheGraphThatStands) {
  Do("set txtLambda 0.5\nset txtRadius 3\nchoose cboPol Parallel\nclick cmdNewPlot");
  const std::string Qext = Get("Qext");
  Do("click mnuRestoreDefaults");
  EXPECT_EQ(Get("cboWave"), "1");
  EXPECT_EQ(Get("txtLambda"), "0.65");
  EXPECT_EQ(Get("txtRadius"), "10");
  EXPECT_EQ(Get("cboPol"), "Both");
  EXPECT_EQ(Get("Qext"), Qext);
  EXPECT_TRUE(Shown().empty()) << LastText();
  // Gamma function: 1/3, and 5 for a whole argument (4!).
  EXPECT_NEAR(Number("GammaThird"), 2.6789385347077476, 1e-13);
  EXPECT_NEAR(Number("GammaMinusThreeHalves"), 2.3632718012073547, 1e-13);
  EXPECT_EQ(Number("GammaFive"), 24);
}

TEST_F(FirstPlot, AMediumIndexOfZeroCountsAsOne) {
  Do("set txtRefractMedium 0\nclick cmdNewPlot");
  EXPECT_EQ(Number("MediumRIReal"), 1);
  EXPECT_NEAR(Number("SizeParameter"), 96.664389341, 1e-6);
}

TEST_F(FirstPlot, TypedIndicesStayAsTypedAndAreUsedInFull) {
  Do("set txtRefractReal 1.500000000001\nset txtRefractImag 0.01\nclick cmdNewPlot");
  EXPECT_EQ(Get("txtRefractReal"), "1.500000000001");
  EXPECT_EQ(Number("RefRelReal"), 1.500000000001);
  EXPECT_EQ(Number("RefRelImag"), 0.01);
  EXPECT_EQ(Get("lblSphere"), "Sphere: Refractive index set by user");
  Do("click mnuRI_IAPWS\nclick cmdNewPlot");
  // The run takes the full value, the field shows seven decimals of it.
  EXPECT_NEAR(Number("RefRelReal"), Number("txtRefractReal"), 5e-8);
  EXPECT_NE(Number("RefRelReal"), Number("txtRefractReal"));
}

struct WorldCase {
  ScreenSize screen;
  char decimalSymbol;
  std::vector<std::string> titles;
};

TEST(StartUp, TellsOfSmallScreensAndCommaSystemsAndGoesOn) {
  for (const auto& c : {WorldCase{{1280, 1024}, '.', {}}, WorldCase{{900, 700}, '.', {"Screen resolution warning"}},
                        WorldCase{{640, 480}, '.', {"Screen resolution problem"}},
                        WorldCase{{1280, 1024}, ',', {"Microsoft Windows: problem with International Settings"}}}) {
    std::ostringstream output, errors;
    ScriptRunner runner(output, errors);
    runner.World().screen = c.screen;
    runner.World().decimalSymbol = c.decimalSymbol;
    runner.Start();
    std::vector<std::string> titles;
    for (const auto& message : runner.World().messages) titles.push_back(message.title);
    EXPECT_EQ(titles, c.titles) << c.screen.widthPx;
    EXPECT_EQ(runner.Current().form1.cboStep.Items.size(), 10U);
    EXPECT_EQ(runner.Current().form1.cboStep.Text, "0.1");
    EXPECT_GT(runner.Current().state.Qext, 1.9);
  }
}

TEST_F(FirstPlot, LimitsAreThoseTypedOrOfTheCurvesAndAnOverplotKeepsThem) {
  const auto limits = [&] { return Get("Ymin") + " " + Get("Ymax"); };
  Do("set cboStep 1\nset cboYmin 10\nset cboYmax 1e6\nclick cmdNewPlot");
  EXPECT_EQ(limits(), "10 1000000");
  Do("set cboYmax 1e4\nclick cmdOverPlot");
  EXPECT_EQ(limits(), "10 1000000") << "the frame of the graph";
  Do("set txtRadius 20\nset cboYmin Automatic\nclick cmdOverPlot");
  EXPECT_EQ(limits(), "10 1000000");
  Do("click cmdNewPlot");
  EXPECT_EQ(Number("Ymax"), 1e4);
  EXPECT_NE(Number("Ymin"), 10);
  Do("set cboYmin 100\nset cboYmax Automatic\nclick cmdNewPlot");
  EXPECT_EQ(Number("Ymin"), 100);
  EXPECT_GT(Number("Ymax"), 1e6);
}

}  // namespace
}  // namespace lumivex
