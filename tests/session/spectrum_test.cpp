#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "materials/material_fixture.h"
#include "pages/build_page.h"
#include "pages/page_table.h"
#include "pages/read_out.h"
#include "record/layout/menu_tree.h"
#include "session/driver/duration.h"
#include "session/driver/progress.h"
#include "session/driver/read_run.h"
#include "session/info.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/look/read_look.h"
#include "session/inputs/sizes/size_menus.h"
#include "session/page.h"

namespace lumivex {
namespace {

/// The values of some rows over 0 to 180 degrees at steps of 1 degree.
constexpr std::array<std::size_t, 6> rows = {1, 20, 90, 91, 138, 181};

class Spectrum : public MaterialSession {
 protected:
  Spectrum() { Do("set txtRadius 4\nset cboStep 1"); }

  /// The curves of one wavelength and size.
  struct Curves {
    std::vector<double> perpendicular, parallel;
  };
  Curves Single(double lambda, double radius) {
    Do("set cboWave 1\nset txtLambda " + Exact(lambda) + "\nset txtRadius " + Exact(radius) + "\nclick cmdNewPlot");
    return {State().Iperp, State().Ipar};
  }
  std::vector<double> List() { return {State().WavelengthList.begin(), State().WavelengthList.end()}; }
  std::vector<double> Weights() { return {State().SpectrumWeightInUse.begin(), State().SpectrumWeightInUse.end()}; }
  const Page& Drawn() { return Now().page; }
  std::size_t CurveCount() { return Drawn().curves.size(); }
};

TEST_F(Spectrum, TheTotalIsTheWeighedSumOfSingleRuns) {
  // The index of water differs from wavelength to wavelength: one that is not looked up anew shows at once.
  for (const bool perWaveNumber : {false, true}) {
    Do("set cboWave 4\nset txtRadius 4");
    if (perWaveNumber) Do("click mnuInvWavelength");
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
    const auto list = List(), weights = Weights();
    const auto perpendicular = State().Iperp, parallel = State().Ipar, unpolarised = State().Iunpol;
    const auto red = State().ColourPar;
    const auto reds = State().WavelengthRed;
    ASSERT_EQ(list.size(), 5U);
    std::array<double, rows.size()> sumPerp{}, sumPar{}, sumRed{};
    for (std::size_t i = 1; i <= 4; ++i) {
      const Curves one = Single(list[i], 4);
      for (std::size_t r = 0; r < rows.size(); ++r) {
        sumPerp[r] += weights[i] * one.perpendicular[rows[r]];
        sumPar[r] += weights[i] * one.parallel[rows[r]];
        sumRed[r] += weights[i] * one.parallel[rows[r]] * reds[i];
      }
    }
    for (std::size_t r = 0; r < rows.size(); ++r) {
      const std::size_t j = rows[r];
      EXPECT_NEAR(perpendicular[j] / sumPerp[r], 1, 1e-12) << j << " " << perWaveNumber;
      EXPECT_NEAR(parallel[j] / sumPar[r], 1, 1e-12) << j << " " << perWaveNumber;
      EXPECT_NEAR(unpolarised[j] / (sumPerp[r] + sumPar[r]) * 2, 1, 1e-12) << j << " " << perWaveNumber;
      EXPECT_NEAR(red.At(j, 1) / sumRed[r], 1, 1e-12) << j << " " << perWaveNumber;
      EXPECT_EQ(red.At(j, 0), parallel[j]);
    }
  }
}

TEST_F(Spectrum, ACloudIsTheDoubleSum) {
  Do("set cboWave 2\nclick optDisp\nset cboSD 10\nset cboN 5\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const auto list = List(), weights = Weights();
  const auto radii = State().DistRadius;
  const auto total = State().Iperp;
  ASSERT_EQ(radii.size(), 6U);
  EXPECT_EQ(Get("Radius"), "4");
  Do("click optMono");
  std::array<double, rows.size()> sum{};
  for (std::size_t i = 1; i <= 2; ++i) {
    for (std::size_t k = 1; k <= 5; ++k) {
      const Curves one = Single(list[i], radii[k]);
      for (std::size_t r = 0; r < rows.size(); ++r) sum[r] += weights[i] * one.perpendicular[rows[r]] / 5;
    }
  }
  for (std::size_t r = 0; r < rows.size(); ++r) EXPECT_NEAR(total[rows[r]] / sum[r], 1, 1e-12) << rows[r];
}

TEST_F(Spectrum, AStopLeavesTheWavelengthsThatWereWhole) {
  Do("set cboWave 20\nset txtRadius 300\nset cboStep 0.1\nstop-at 33\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  const int done = State().WavelengthsDone;
  // A third of the work, in wavelengths done and under way; how many are whole depends on the threads.
  EXPECT_GE(done, 1);
  ASSERT_LT(done, 20);
  const auto stopped = State().Iperp;
  Do("click cmdReplot");
  EXPECT_EQ(State().Iperp, stopped);
  EXPECT_EQ(Drawn().kind.wavelengths, 20);
  double sum = 0;
  const auto list = List(), weights = Weights();
  for (int i = 1; i <= done; ++i) {
    const auto k = static_cast<std::size_t>(i);
    sum += weights[k] * Single(list[k], 300).perpendicular[1381];
  }
  EXPECT_NEAR(stopped[1381] / sum, 1, 1e-12);
}

TEST_F(Spectrum, ARunThatIsRefusedOrStoppedAtOnceLeavesTheOldResults) {
  Do("set cboWave RGB\nclick cmdNewPlot");
  const auto before = State().Iperp;
  const auto list = List();
  // Gold has no index beyond its table, and a flat spectrum no limits of its own.
  Do("dialog dlogSpectrumBand ok txtSpectrumMin=380 txtSpectrumMax=3000\nclick mnuSpectrumBand\nclick mnuSpectrumFlat\n"
     "click mnuRI_Au\nset cboWave 10\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Refractive index of Gold");
  EXPECT_EQ(State().Iperp, before);
  EXPECT_EQ(List(), list);
  Do("dialog dlogTemp ok\nclick mnuRI_IAPWS\ndialog dlogSpectrumBand ok txtSpectrumMax=700\nclick mnuSpectrumBand\nset "
     "txtRadius 3000\nset cboStep 0.01\nset cboWave 200\nstop-at 0\nclick cmdNewPlot");
  EXPECT_EQ(State().Iperp, before);
  EXPECT_EQ(List(), list);
  Do("set cboStep 1\nchoose cboPol Perpendicular");
  EXPECT_EQ(CurveCount(), 3U);
}

TEST_F(Spectrum, ReplotFollowsTheScaleThePolarisationAndTheWaveNumber) {
  Do("set cboWave 10\nclick cmdNewPlot");
  const double total = State().Iperp[91], unnormed = State().ColourPerp.At(91, 0);
  EXPECT_EQ(total, unnormed);
  EXPECT_EQ(CurveCount(), 2U);
  Do("choose cboPol All 3");
  EXPECT_EQ(CurveCount(), 3U);
  Do("click mnuInvWavelength");
  EXPECT_LT(State().Iperp[91], 1e-10 * total);
  Do("click mnuInvWavelength\nclick mnuAmplitude");
  EXPECT_NEAR(State().Iperp[91] * State().Iperp[91] / total, 1, 1e-12);
  Do("click mnuAmplitude\nclick mnuIntPol");
  EXPECT_EQ(Drawn().panels.size(), 2U);
  EXPECT_EQ(State().Iperp[91], total);
  EXPECT_TRUE(Shown().empty()) << LastText();
  Do("click mnuIntPol\nclick mnuAmpPhase");
  EXPECT_EQ(LastText(), "This graph type is available only for single wavelength calculations");
  EXPECT_EQ(Get("mnuAmpPhase"), "false");
}

TEST_F(Spectrum, FewWavelengthsAreCurvesInTheirColours) {
  Do("set cboWave RGB\nclick cmdNewPlot");
  EXPECT_EQ(Get("chkComponents"), "true");
  EXPECT_EQ(Get("chkComponents.Visible"), "true");
  ASSERT_EQ(CurveCount(), 6U);
  const auto& curves = Drawn().curves;
  EXPECT_EQ(curves[0].name, "650 nm: Parallel polarisation");
  EXPECT_EQ(curves[0].colour, RGB(255, 0, 0));
  EXPECT_EQ(curves[3].name, "510 nm: Perpendicular polarisation");
  EXPECT_EQ(curves[3].colour, RGB(0, 255, 0));
  EXPECT_EQ(curves[5].colour, RGB(0, 0, 255));
  // The three curves are the three components of the sum; as singles the wavelengths lie a little beside pure colours.
  constexpr double nearlyPure = 2e-6;
  for (const std::size_t j : rows) {
    EXPECT_NEAR(curves[1].y[j] / State().ColourPerp.At(j, 1), 1, nearlyPure);
    EXPECT_NEAR(curves[3].y[j] / State().ColourPerp.At(j, 2), 1, nearlyPure);
    EXPECT_NEAR(curves[5].y[j] / State().ColourPerp.At(j, 3), 1, nearlyPure);
  }
  EXPECT_NE(TableAsText(Drawn()).find("440 nm: Perpendicular polarisation"), std::string::npos);
  Do("click chkComponents");
  ASSERT_EQ(CurveCount(), 2U);
  EXPECT_EQ(Drawn().curves[1].colours.size(), Drawn().curves[1].y.size());
  EXPECT_EQ(Drawn().curves[1].y[91], State().Iperp[91]);
}

TEST_F(Spectrum, TheSumOfManyShowsTheColourOfItsLight) {
  // The primary bow of large drops: red outside, blue inside.
  Do("set cboWave 60\nset txtRadius 200\nset cboStep 0.1\nset txtXmin 130\nset txtXmax 150\nchoose cboPol "
     "Perpendicular\n"
     "click optSun\nclick cmdNewPlot");
  ASSERT_EQ(CurveCount(), 1U);
  const PageCurve& curve = Drawn().curves[0];
  int reddest = 0, bluest = 0;
  double red = 0, blue = 0;
  for (int row = 1371; row <= 1411; ++row) {
    const Colour c = curve.colours[static_cast<std::size_t>(row)];
    if (c.Red() - c.Blue() > red) reddest = row, red = c.Red() - c.Blue();
    if (c.Blue() - c.Red() > blue) bluest = row, blue = c.Blue() - c.Red();
  }
  EXPECT_GT(reddest, 0);
  EXPECT_GT(bluest, reddest);
  std::set<std::uint32_t> drawn;
  for (const Colour c : curve.colours) drawn.insert(c.value);
  EXPECT_GT(drawn.size(), 10U);
  // Read-out and zoom work on it as on any other.
  const auto& panel = Drawn().panels[0];
  const PanelMap map{panel.box, panel.limits, false, panel.logY};
  const auto reading = ReadAt(Drawn(), map.X(140), map.Y(Drawn().curves[0].y[1401]));
  ASSERT_TRUE(reading && reading->onCurve);
  EXPECT_EQ(reading->curveY, Drawn().curves[0].y[1401]);
  ShowView(Now(), {{138, 142}});
  EXPECT_LE(Drawn().panels[0].limits.ymin, reading->curveY);
  output.str("");
  Do("drawing");
  EXPECT_GT(output.str().size(), 1000U);
}

TEST_F(Spectrum, NothingThatIsOfferedIsDead) {
  Do("open " + exampleFolder + "white_led.spe\nset txtRadius 1\nset cboStep 2");
  const auto waves = Now().form1.cboWave.Items;
  EXPECT_GT(waves.size(), 10U);
  const auto finite = [&] {
    for (int row = State().AngleLow; row <= State().AngleHigh; ++row)
      if (!std::isfinite(State().Iunpol[static_cast<std::size_t>(row)])) return false;
    return true;
  };
  for (const auto& wave : waves) {
    Do("set cboWave " + wave + "\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << wave << LastText();
    EXPECT_EQ(State().ResultWavelengths > 1, wave != "1") << wave;
    EXPECT_TRUE(finite()) << wave;
  }
  Do("set cboWave 10");
  std::set<double> totals;
  for (const auto& entry : OfferedMenu()) {
    if (entry.path != "Light/Spectrum" || entry.entry == "-") continue;
    Do("click " + std::string(entry.entry) + "\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << entry.entry << LastText();
    EXPECT_TRUE(finite()) << entry.entry;
    totals.insert(State().Iperp[46]);
  }
  EXPECT_EQ(totals.size(), 6U) << "two sources give the same light";
  for (const auto& graph : OfferedGraphs()) {
    Do("set cboStep 2\nchoose cboGraph " + graph + "\nset cboWave RGB\nclick cmdNewPlot");
    if (graph == "Intensity v. scattering angle") {
      EXPECT_TRUE(finite());
    } else {
      EXPECT_EQ(LastText(), "This graph type is available only for single wavelength calculations") << graph;
    }
  }
}

TEST_F(Spectrum, OnlyOneWavelengthIsDrawnOver) {
  Do("set cboWave 3");
  EXPECT_EQ(Get("cmdOverPlot.Enabled"), "false");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false");
  Do("click cmdNewPlot");
  EXPECT_EQ(Get("cmdOverPlot.Enabled"), "false");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  // A refused run of one wavelength leaves the colours on the screen.
  Do("set cboWave 1\nset txtLambda -1\nclick cmdNewPlot");
  EXPECT_EQ(Get("cmdOverPlot.Enabled"), "false");
  Do("set txtLambda 0.5\nclick cmdNewPlot");
  EXPECT_EQ(Get("cmdOverPlot.Enabled"), "true");
  EXPECT_EQ(Get("ResultWavelengths"), "1");
  EXPECT_EQ(State().LastResults->Find<SpectrumFound>(), nullptr) << "memory of the colours is kept";
}

TEST_F(Spectrum, InputsFollowTheNumberOfWavelengths) {
  Do("click mnuRadiusX\nset cboWave RGB");
  EXPECT_EQ(Get("mnuRadius"), "true") << "a size parameter has no meaning at several wavelengths";
  EXPECT_EQ(Get("txtLambda.Visible"), "false");
  EXPECT_EQ(Get("txtRefractReal.Visible"), "false");
  EXPECT_EQ(Get("lblSpectrum.Visible"), "true");
  Do("click mnuRI_Fixed1");
  EXPECT_EQ(Get("txtRefractReal.Visible"), "true");
  Do("choose cboGraph Qext/Qsca/Qabs v. radius");
  EXPECT_EQ(Get("cboWave"), "1");
  EXPECT_EQ(Get("lblSpectrum.Visible"), "false");
  EXPECT_EQ(Get("chkComponents.Visible"), "false");
  // What stands in a hidden field is not asked about.
  Do("choose cboGraph Intensity v. scattering angle\nset txtLambda x\nset cboWave 3\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(State().ResultWavelengths, 3);
  Do("set cboWave 1\nset txtLambda 0.65");
  for (const char* count : {"0", "-3", "many", ""}) {
    Do(std::string("set cboWave ") + count + "\nclick cmdNewPlot");
    EXPECT_EQ(Get("cboWave.BackColour"), "255") << count;
  }
}

TEST_F(Spectrum, NumbersFollowTheSizeOfTheDrop) {
  const auto count = [&](const char* density, const char* radius) {
    Do(std::string("set cboStep 10\nset cboWave ") + density + "\nset txtRadius " + radius + "\nclick cmdNewPlot");
    return State().ResultWavelengths;
  };
  EXPECT_EQ(count("High", "1000"), 30);
  EXPECT_EQ(count("High", "1"), 1000);
  EXPECT_EQ(count("Med.", "100"), 30);
  EXPECT_EQ(count("Low", "30"), 33);
}

TEST_F(Spectrum, StepsBelowAHundredthOfADegreeBecomeOne) {
  Do("set cboWave 2\nset cboStep 0.005\nset txtXmin 10\nset txtXmax 20\nclick cmdNewPlot");
  EXPECT_EQ(Get("cboStep"), "0.01");
  EXPECT_EQ(Get("NANG"), "9001");
  EXPECT_EQ(State().AngleHigh - State().AngleLow, 1050);
}

TEST_F(Spectrum, ProgressNeverFallsAndTellsTheTimeLeft) {
  double before = -1;
  int told = 0;
  double highest = 0;
  // A machine that works evenly, and is seen to: the estimate is right from the first.
  runner.World().threads = 1;
  const auto clock = [&] { return 25 * double{State().ProgressFraction}; };
  runner.World().clock = clock;
  runner.World().onYield = [&] {
    const double now = clock();
    const auto& form = Now().form1;
    if (!form.txtProgress.Visible) return;
    const double percent = Val(form.txtProgress.Text.substr(10));
    EXPECT_GE(percent, before);
    before = highest = percent;
    if (now < secondsUntilEstimate) {
      EXPECT_EQ(State().SecondsLeft, -1);
    }
    if (State().SecondsLeft < 0) return;
    ++told;
    EXPECT_NEAR(State().SecondsLeft, 25 - now, 1.5);  // told once a second
    EXPECT_NE(StatusText(Now()).find(" left"), std::string::npos);
  };
  Do("set cboWave 20\nclick optDisp\nset cboN 20\nclick cmdNewPlot");
  EXPECT_GE(highest, 99);
  EXPECT_GT(told, 20);
  EXPECT_EQ(State().SecondsLeft, -1);
  EXPECT_EQ(Get("txtProgress.Visible"), "false");
  EXPECT_EQ(TimeLeftWords(12.3), "13 s left");
  EXPECT_EQ(TimeLeftWords(61), "65 s left");
  EXPECT_EQ(TimeLeftWords(200), "4 min left");
}

TEST_F(Spectrum, TheExpectedTimeCountsWavelengthsAndSizes) {
  const auto seconds = [&] { return ReferenceSeconds(*ReadRun(Now())); };
  Do("set cboWave 1\nset txtLambda 0.515\nset txtRadius 10\nset cboStep 0.1");
  const double one = seconds();
  // The fit of the first plot's sphere, by hand: r = 10, S = 1800 (its parabola held at 314.98), step 0.1.
  const double t = 5.3394821 + 9.759082 - 8.895773e-3 + 6.0300197e-5;
  const double q = (0.2077 + 0.0061566 * 314.98 - 9.773e-6 * 314.98 * 314.98) * t * 0.1 * 0.65 / 0.515;
  EXPECT_NEAR(one / (q * 0.1 * (4.2380146 + 1.2130768 * std::log(1800))), 1, 1e-6);
  Do("set cboWave 10");
  EXPECT_NEAR(seconds() / one, 10, 1e-12);
  Do("click optDisp\nset cboN 20");
  EXPECT_NEAR(seconds() / one, 200, 1e-9);
  Do("click optMono\nset cboWave 1\nclick mnuRI_Vacuum2\nchoose cboType Debye\nset cboRays -4");
  EXPECT_NEAR(seconds(), (7.76814 + 18.1405 + 1.369248e-3) * 0.1 * 0.65 / 0.515 * 5, 1e-9);
}

TEST_F(Spectrum, LeeDiagramsTakeOneSize) {
  Do("click optDisp");
  State().GraphType = 20;
  RefuseDisperseLeeDiagram(Now());
  EXPECT_EQ(LastTitle(), "Disperse calculations");
  EXPECT_EQ(LastText(),
            "Lee diagrams are calculated for monodisperse droplets\n"
            "After this calculation, select \"Disperse\" and use the \"Replot\" command");
  EXPECT_EQ(Get("optMono"), "true");
}

// Up to seven wavelengths have curves of their own, in a frame that holds them all; more are shown as their sum.
TEST_F(Spectrum, SevenWavelengthsAreDrawnApartAndEightAsOne) {
  for (const int count : {2, 7, 8}) {
    SCOPED_TRACE(count);
    Do("set cboStep 2\nset cboWave " + std::to_string(count) + "\nclick cmdNewPlot");
    const Page& page = runner.Current().page;
    ASSERT_EQ(page.curves.size(), count > 7 ? 2U : 2U * static_cast<std::size_t>(count));
    const AxisLimits& limits = page.panels[0].limits;
    double most = 0, least = 1e300;
    std::vector<std::string> names;
    for (const PageCurve& curve : page.curves) {
      EXPECT_EQ(std::ranges::count(names, curve.name), 0) << curve.name;
      names.push_back(curve.name);
      for (std::size_t i = 1; i < curve.y.size(); ++i) {
        if (!std::isfinite(curve.y[i])) continue;
        most = std::max(most, curve.y[i]);
        least = std::min(least, curve.y[i]);
      }
    }
    EXPECT_GE(limits.ymax, most);
    EXPECT_LT(limits.ymax, 10.1 * most) << "and no wider than the next decade";
    EXPECT_LE(limits.ymin, least * 1.0001);
    EXPECT_GT(limits.ymin, least / 10.1);
  }
}

// A stop after the first wavelength leaves its curves, one before it nothing.
TEST_F(Spectrum, OneWavelengthOfSeveralIsAPage) {
  Do("set cboWave 3\nset cboStep 2\nclick cmdNewPlot");
  Results stopped = *State().LastResults;
  const auto page = [&](int done) {
    std::get<SpectrumFound>(stopped.found).done = done;
    return BuildPage(stopped, ReadLook(Now()), Now().page.geometry, {});
  };
  const Page one = page(1);
  ASSERT_EQ(one.curves.size(), 2U);
  EXPECT_EQ(one.curves[0].name, Now().page.curves[0].name);
  EXPECT_TRUE(one.bars);
  EXPECT_EQ(page(2).curves.size(), 4U);
  const Page none = page(0);
  EXPECT_TRUE(none.curves.empty() && none.Empty());
  EXPECT_FALSE(none.bars);
}

// A column a radius, times the wavelengths, and a factor for the range of angles.
TEST_F(Spectrum, TheExpectedTimeOfALeeDiagramAddsUpItsColumns) {
  Do("choose cboGraph Lee diagram: radius\nset cboWave 1\nset txtLambda 0.5");
  double columns = 0, debye = 0;
  for (int i = 0; i <= 4; ++i) {
    const double r = 10 * std::pow(2, i / 4.0);
    columns += (5.3394821 + 0.9759082 * r - 8.895773e-5 * r * r + 7.10891e-8 * r * r * r) * 40 / 6000;
    debye += (7.76814 + 1.81405 * r + 1.369248e-5 * r * r) * 40 / 18000;
  }
  const double ofRange = (1 + 0.42613778 * std::pow(std::log10(2 / 10.0), 4)) * 0.65 / 0.5;
  EXPECT_NEAR(ReferenceSeconds(*ReadRun(Now())) / (columns * ofRange), 1, 1e-12);
  Do("choose cboType Debye\nset cboRays -2");
  EXPECT_NEAR(ReferenceSeconds(*ReadRun(Now())) / (3 * debye * ofRange), 1, 1e-12) << "p = 0, 1 and 2";
  Do("choose cboGraph Map: angle v. wavelength\nchoose cboType Mie\nset txtAngle 20\nset txtXmin 170\nset txtXmax 180");
  const double r = 20, one = (5.3394821 + 0.9759082 * r - 8.895773e-5 * r * r + 7.10891e-8 * r * r * r) * 200 / 6000;
  EXPECT_NEAR(ReferenceSeconds(*ReadRun(Now())) / (5 * one * 0.65 / 0.55), 1, 1e-12) << "the wavelength in the middle";
}

}  // namespace
}  // namespace lumivex
