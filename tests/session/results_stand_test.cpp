/// What was computed stands: runs that are refused, or stopped before anything was whole, change nothing of it.

#include <gtest/gtest.h>

#include <algorithm>

#include "materials/material_fixture.h"
#include "session/record_snapshot.h"

namespace lumivex {
namespace {

class ResultsStand : public MaterialSession {
 protected:
  /// Fields that tell of the command, not of results.
  static bool OfTheCommand(const std::string& name) {
    for (const char* field : {"CommandAborted", "Busy", "StopAnswer", "StartTime", "EstimateTime", "EstimatedSeconds",
                              "SecondsLeft", "SecondsPerPairTerm", "ProgressPercent"})
      if (name == field) return true;
    return false;
  }

  /// Runs lines and, where they did not get as far as a result, holds the record against what it was.
  /// @return whether there was no result.
  bool NothingChanged(const std::string& prepare, const std::string& lines) {
    Do(prepare);
    const RecordSnapshot before = SnapshotOf(State());
    const auto results = State().LastResults;
    const auto curves = Table();
    Do(lines);
    if (State().LastResults != results) return false;
    for (const auto& [name, bytes] : SnapshotOf(State()))
      if (!OfTheCommand(name)) {
        EXPECT_EQ(bytes, before.at(name)) << name << " after " << prepare << " | " << lines;
      }
    EXPECT_EQ(Table(), curves) << prepare << " | " << lines;
    return true;
  }

  std::string Table() {
    output.str("");
    Do("table");
    return output.str();
  }
};

/// Requests of every family, small.
const std::vector<std::string> families = {
    "set cboStep 5",
    "choose cboGraph Watts/sq. m. v. scattering angle\nset cboStep 5",
    "choose cboGraph Phase function\nset cboStep 5",
    "choose cboGraph Scattering matrix\nset cboStep 5",
    "choose cboWave 3\nset cboStep 5",
    "click optDisp\nset cboStep 5",
    "choose cboGraph Intensity v. radius\nset txtXmin 1\nset txtXmax 9\nset cboStep 1",
    "choose cboGraph Intensity v. wavelength\nclick optDisp\nset txtXmin 400\nset txtXmax 700\nset cboStep 50",
    "choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 20",
    "choose cboGraph Scattered power v. radius\nset txtXmin 1\nset txtXmax 3\nset cboStep 0.25",
    "choose cboGraph Intensity v. refractive index\nset txtXmin 1.2\nset txtXmax 1.4\nset cboStep 0.02",
    "click mnuConvergence",
    "choose cboType Debye\nset txtRefractImag 0\nset cboRays 2\nset cboStep 5",
    "choose cboType Young mod\nset txtRefractImag 0\nset cboStep 5",
};

TEST_F(ResultsStand, ARefusedRunChangesNothing) {
  // Each by another way out: a bad number, a rule, a limit of the series, a material without an index, no p.
  const std::vector<std::pair<std::string, std::string>> refusals = {
      {"set txtRadius abc", "click cmdNewPlot"},
      {"set txtXmin 100\nset txtXmax 20", "click cmdNewPlot"},
      {"choose cboType Mie\nset txtRadius 60000", "click cmdNewPlot"},
      {"choose cboType Mie\nset txtRadius 60000", "click cmdOverPlot"},
      {"choose cboType Debye\nset cboRays Multiple", "click cmdNewPlot"},
  };
  int refused = 0;
  for (const auto& family : families) {
    for (const auto& [prepare, run] : refusals) {
      Do("reset\n" + family + "\nclick cmdNewPlot");
      if (run == "click cmdOverPlot" && Get("cmdOverPlot.Enabled") == "false") continue;
      if (prepare.find("txtRadius") != std::string::npos && Get("txtRadius.Visible") == "false") continue;
      refused += NothingChanged(prepare, run) ? 1 : 0;
    }
  }
  EXPECT_GT(refused, 45);
}

TEST_F(ResultsStand, AStopBeforeAnythingWasWholeChangesNothing) {
  int stopped = 0;
  for (const auto& family : families) {
    if (family.find("Rays") != std::string::npos) continue;
    Do("reset\n" + family + "\nclick cmdNewPlot\nset txtLambda 0.5");
    const auto results = State().LastResults;
    const RecordSnapshot before = SnapshotOf(State());
    Do("stop-at 0\nclick cmdNewPlot");
    if (State().LastResults != results) continue;  // too short to be stopped
    ++stopped;
    for (const auto& [name, bytes] : SnapshotOf(State()))
      if (!OfTheCommand(name)) {
        EXPECT_EQ(bytes, before.at(name)) << name << " after " << family;
      }
  }
  EXPECT_GT(stopped, 6);
}

TEST_F(ResultsStand, AnotherRunsAmplitudesNeverGetUnderAnAxis) {
  Do("choose cboType Debye\nset txtRefractImag 0\nset cboRays 2\nchoose cboGraph Intensity v. radius\nset txtXmin 10\n"
     "set txtXmax 310\nset cboStep 100\nclick cmdNewPlot");
  const auto before = Table();
  Do("set txtXmin 15000\nset txtXmax 16000\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  Do("set txtXmin 10\nset txtXmax 310\nchoose cboPol Parallel");
  EXPECT_EQ(Table(), before);
  Do("set cboStep 150\nset txtXmin 15000\nset txtXmax 16000\nclick cmdNewPlot\nset txtXmin 10\nset txtXmax 310\n"
     "set cboStep 100\nchoose cboPol Perpendicular");
  EXPECT_EQ(Table(), before);
}

TEST_F(ResultsStand, ARefusedPowerRunLeavesTheAngleGraph) {
  Do("set cboStep 5\nclick cmdNewPlot");
  const auto before = Table();
  Do("choose cboGraph Scattered power v. radius\nset txtXmin 50000\nset txtXmax 60000\nset cboStep 1000\n"
     "click cmdNewPlot");
  EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  Do("choose cboGraph Intensity v. scattering angle\nset cboStep 5\nchoose cboPol Parallel");
  EXPECT_EQ(Table(), before);
}

TEST_F(ResultsStand, AStoppedCloudOnAnAxisHasNoFalseLastPoint) {
  const std::string inputs =
      "choose cboGraph Intensity v. wavelength\nclick optDisp\nset cboN 20\nset txtRadius 30\nset txtXmin 400\n"
      "set txtXmax 700\nset cboStep 10\n";
  Do(inputs + "click cmdNewPlot");
  const auto whole = State().Iperp;
  Do("stop-at 45\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  int done = 0;
  for (std::size_t i = 1; i < whole.size(); ++i) {
    if (!std::isfinite(State().Iperp[i])) continue;
    ++done;
    EXPECT_EQ(State().Iperp[i], whole[i]) << i;
  }
  EXPECT_GT(done, 5);
  EXPECT_LT(done, 31);
}

TEST_F(ResultsStand, EfficienciesOfASmallCloudDoNotDependOnTheRange) {
  Do("choose cboType Rayleigh\nset txtRefractImag 0\nset txtRadius 0.01\nclick optDisp\nset cboSD 20\nset cboStep 0.5\n"
     "click cmdNewPlot");
  const double all = Number("Qsca");
  Do("set txtXmin 10\nset txtXmax 170\nclick cmdNewPlot");
  EXPECT_NEAR(Number("Qsca") / all, 1, 1e-3);
}

TEST_F(ResultsStand, ARefusedReplotStillTakesColoursAndSizes) {
  for (const std::string refused : {"set txtRadius -1", "set txtLambda 0", "set cboYmin 9\nset cboYmax 5"}) {
    Do("reset\n" + refused + "\nclick mnuBlack\nclick mnuMedium");
    EXPECT_EQ(runner.Current().page.style.paper, Colour{0xF0F0F0}) << refused;
    EXPECT_EQ(runner.Current().page.style.ground, colours::Black) << refused;
    EXPECT_EQ(runner.Current().page.geometry.box.right, 13150) << refused;
  }
}

TEST_F(ResultsStand, TheDebyeAnalysisFollowsItsLook) {
  Do("click mnuDebyeSequence\nclick cmdNewPlot");
  EXPECT_EQ(Get("lblDebyeRays.Caption"), "Debye series (p = 0 to 20)") << "whatever cboRays reads";
  ASSERT_TRUE(runner.Current().page.phasors);
  EXPECT_TRUE(runner.Current().page.phasors->logarithmic);
  Do("click optLinear\nchoose cboPol Parallel");
  ASSERT_TRUE(runner.Current().page.phasors);
  EXPECT_FALSE(runner.Current().page.phasors->logarithmic);
  EXPECT_EQ(State().Ymin, 0);
  EXPECT_FALSE(runner.Current().page.phasors->showsFirst);
}

TEST_F(ResultsStand, TheIndexThatWasUsedStaysOnShow) {
  Do("choose cboType Airy\nset txtRefractImag 0\nclick mnuRI_Au\nclick cmdNewPlot\nchoose cboType Mie\nclick "
     "cmdNewPlot");
  EXPECT_NEAR(Val(Get("txtRefractImag")), State().LastResults->last.indices.sphereK, 1e-7);
}

TEST_F(ResultsStand, LoopsEndWhereTheRunHas) {
  for (int i = 0; i < 5; ++i) {
    Do("reset\nchoose cboType Debye\nset txtRefractImag 0\nset cboRays 2\nchoose cboGraph Intensity v. radius\n"
       "set txtXmin 1\nset txtXmax 20\nset cboStep 0.1\nclick cmdNewPlot");
    EXPECT_EQ(State().PointIndex, 191);
    Do("choose cboGraph Intensity v. scattering angle\nclick optDisp\nset cboWave 7\nset cboStep 5\nclick cmdNewPlot");
    EXPECT_EQ(State().WavelengthIndex, 7);
    EXPECT_EQ(State().SampleIndex, 20);
    EXPECT_EQ(State().PointIndex, 0);
  }
}

}  // namespace
}  // namespace lumivex
