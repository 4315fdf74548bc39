#include "session/driver/calibration.h"

#include <gtest/gtest.h>

#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Calibration : public ScriptedSession {
 protected:
  /// A run that takes a second at a thousand million terms a second.
  static constexpr const char* longRun = "set txtRadius 4000\nset cboStep 0.01\n";
  bool IsAskedAbout(const std::string& lines) {
    const std::size_t before = Shown().size();
    Do(lines + "answer no\nclick cmdNewPlot");
    runner.World().answers.clear();
    return Shown().size() > before && LastTitle() == "Long calculation !";
  }
};

TEST_F(Calibration, TheFigureThatIsTypedTellsWhichRunsAreLong) {
  Do("dialog dlogCalibration ok txtCalibration=0.5\nclick mnuCalibration");
  EXPECT_EQ(Get("CalibrationState"), "1");
  EXPECT_DOUBLE_EQ(Number("SecondsPerPairTerm"), 2e-6);
  EXPECT_TRUE(IsAskedAbout(longRun));
  EXPECT_FALSE(IsAskedAbout("set txtRadius 10\nset cboStep 0.1\n"));
  // On a slow machine a run is long that no other one takes long for.
  Do("dialog dlogCalibration ok txtCalibration=0.01\nclick mnuCalibration");
  EXPECT_TRUE(IsAskedAbout("set txtRadius 100\nset cboStep 0.02\n"));
  Do("dialog dlogCalibration ok txtCalibration=1e5\nclick mnuCalibration");
  EXPECT_FALSE(IsAskedAbout("set txtRadius 100\nset cboStep 0.1\n"));
  Do("dialog dlogCalibration ok txtCalibration=0.5 chkFast=on\nclick mnuCalibration");
  EXPECT_EQ(Get("CalibrationState"), "3");
  EXPECT_FALSE(IsAskedAbout("set txtRadius 200\nset cboStep 0.1\n"));
}

TEST_F(Calibration, MeasuresWithTheClockOfTheMachine) {
  double now = 0;
  runner.World().clock = [&now] { return now += 1e-3; };
  EXPECT_DOUBLE_EQ(MeasurePairTerm(runner.World()), 1e-3 / (2000 * 400));
  Do("click mnuCalibration");
  EXPECT_NEAR(Number("SecondsPerPairTerm"), 1.25e-9, 1e-15);
  runner.World().clock = [] { return 5.0; };
  EXPECT_GT(MeasurePairTerm(runner.World()), 0) << "a clock that stands still";
}

TEST_F(Calibration, WhatNoMachineHasIsMarkedAndCancelChangesNothing) {
  for (const char* figure : {"0", "-3", "", "abc", "1e9"}) {
    Do(std::string("dialog dlogCalibration ok txtCalibration=") + figure + "\nclick mnuCalibration");
    EXPECT_EQ(LastText(), "    The red highlighted data entry is incorrect.    ") << figure;
    EXPECT_EQ(Get("CalibrationState"), "0") << figure;
  }
  Do("dialog dlogCalibration cancel txtCalibration=5\nclick mnuCalibration");
  EXPECT_EQ(Get("CalibrationState"), "0");
  EXPECT_EQ(Get("mnuUndo.Enabled"), "false") << "the machine is no input";
}

}  // namespace
}  // namespace lumivex
