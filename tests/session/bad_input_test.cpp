#include <gtest/gtest.h>

#include "session/session_fixture.h"

namespace lumivex {
namespace {

class BadInput : public ScriptedSession {};

struct InputCase {
  const char* input;
  const char* text;
  const char* message;
};

// What users type by accident into the five inputs that every run reads, and what they are told.
const InputCase inputCases[] = {
    {"txtRadius", "", "    The red highlighted data entry is incorrect.    "},
    {"txtRadius", "ten", "    The red highlighted data entry is incorrect.    "},
    {"txtRadius", "1,500", "Radius (\u00B5m): use a point as the decimal mark, and nothing between thousands"},
    {"txtRadius", "1,5,0", "    The red highlighted data entry is incorrect.    "},
    {"txtRadius", "nan", "    The red highlighted data entry is incorrect.    "},
    {"txtRadius", "1e999", "    The red highlighted data entry is incorrect.    "},
    {"txtRadius", "-1", "Value must be positive"},
    {"txtRadius", "0", "Value must be positive"},
    {"txtRadius", "1e12", "Value must not be greater than 1000000000"},
    {"txtLambda", "", "    The red highlighted data entry is incorrect.    "},
    {"txtLambda", "-0.5", "Value must be positive"},
    {"txtLambda", "0", "Value must be positive"},
    {"txtXmin", "x", "    The red highlighted data entry is incorrect.    "},
    {"txtXmin", "-5", "Value must be positive or zero"},
    {"txtXmin", "190", "Minimum angle > 180 degrees"},
    {"txtXmin", "180", "Minimum angle = Maximum angle"},
    {"txtXmax", "inf", "    The red highlighted data entry is incorrect.    "},
    {"txtXmax", "181", "Maximum angle > 180 degrees"},
    {"txtXmax", "0", "Minimum angle = Maximum angle"},
    {"cboStep", "0", "Step size must be greater than zero"},
    {"cboStep", "7", "Must be a sub-multiple of 90 degrees"},
    {"cboStep", "1e-9", "Select a larger step size"},
    {"cboStep", "two", "    The red highlighted data entry is incorrect.    "},
    {"cboYmin", "0", "Minimum amplitude <= 0 not valid for logarithmic scale"},
    {"cboYmax", "-1", "Maximum amplitude <= 0 not valid for logarithmic scale"},
};

TEST_F(BadInput, IsMarkedAndToldAndTheOldResultsStay) {
  for (const auto& c : inputCases) {
    SCOPED_TRACE(std::string(c.input) + " \"" + c.text + "\"");
    Do("reset");
    const std::string Qext = Get("Qext"), terms = Get("NSTOP");
    runner.World().messages.clear();
    Do(std::string("set ") + c.input + " " + c.text + "\nclick cmdNewPlot");
    ASSERT_EQ(Shown().size(), 1U);
    EXPECT_EQ(LastText(), c.message);
    EXPECT_EQ(Get(std::string(c.input) + ".BackColour"), "255");
    EXPECT_EQ(Get("Qext"), Qext);
    EXPECT_EQ(Get("NSTOP"), terms);
    EXPECT_EQ(Get("cmdNewPlot.Enabled"), "true");
  }
}

TEST_F(BadInput, TheMarkGoesWithTheMendedInputOrTheNextCheck) {
  Do("set txtXmin 100\nset txtXmax 50\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Minimum angle > Maximum angle");
  EXPECT_EQ(Get("txtXmin.BackColour"), "255");
  Do("set txtXmax 150\nclick cmdNewPlot");
  EXPECT_EQ(Get("txtXmin.BackColour"), Get("txtXmax.BackColour"));
  EXPECT_EQ(Number("Xmax"), 150);
}

TEST_F(BadInput, StepsThatDivideNinetyDegreesAreTaken) {
  for (const char* step : {"7.5", "0.25", "90", "45", "0.01"}) {
    Do(std::string("set cboStep ") + step + "\nclick cmdNewPlot");
    EXPECT_EQ(Number("Xstep"), Val(step));
  }
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("NANG"), "9001");
}

TEST_F(BadInput, SpheresBeyondTheSeriesAreRefusedInItsWords) {
  const std::string Qext = Get("Qext");
  Do("set txtRadius 30000\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error in BHMIE sub-routine");
  EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  EXPECT_EQ(Get("Qext"), Qext);
  EXPECT_EQ(Get("PlotMode"), "1");
  output.str("");
  Do("amplitudes");
  EXPECT_GT(output.str().size(), 10000U) << "the amplitudes of the old graph are gone";
  Do("set txtRadius 10\nclick cmdNewPlot");
  EXPECT_EQ(Shown().size(), 1U);
}

TEST_F(BadInput, AnUnknownMethodCalculatesNothing) {
  const std::string Qext = Get("Qext");
  runner.Current().form1.cboType.Text = "";
  Do("set txtRadius 5\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error");
  EXPECT_EQ(LastText(), "Unknown calculation method");
  EXPECT_EQ(Get("CalcMethod"), "0");
  EXPECT_EQ(Get("Qext"), Qext);
}

TEST_F(BadInput, NegativeAbsorptionIsRepairedAndTheRunGoesOn) {
  Do("set txtRefractReal 1.5\nset txtRefractImag -0.1\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Imaginary value of RI must NOT be negative");
  EXPECT_EQ(Get("txtRefractImag"), "0");
  EXPECT_EQ(Number("RefRelImag"), 0);
  EXPECT_EQ(Number("RefRelReal"), 1.5);
}

TEST_F(BadInput, ATemperatureOutsideTheModelIsRefused) {
  Do("dialog dlogTemp ok txtTemp=120\nclick mnuRI_IAPWS");
  EXPECT_EQ(LastText(), "Maximum temperature = 100");
  Do("dialog dlogTemp ok txtTemp=20\nclick mnuRI_IAPWS");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 20C Complex)");
  EXPECT_NEAR(Number("dlogTemp.txtDensity"), 0.99821, 1e-4);
}

// Some of them ended in an overflow, those above and below in nothing.
TEST_F(BadInput, SpheresTooSmallForNumbersAreToldOneWay) {
  for (const char* method : {"Mie", "Debye", "Rayleigh", "Diffraction"})
    for (const char* radius : {"1e-42", "1e-60", "1e-78", "1e-90", "1e-120", "1e-200", "1e-300"}) {
      SCOPED_TRACE(std::string(method) + " " + radius);
      Do(std::string("reset\nset txtRefractImag 0\nchoose cboType ") + method + "\nset cboStep 10\nset txtRadius " +
         radius + "\nclick cmdNewPlot");
      EXPECT_EQ(LastText(), "Radius (\u00B5m): the size parameter x must be at least 1E-40");
      EXPECT_EQ(runner.Current().form1.txtRadius.BackColour, colours::BadInput);
      const auto told = Shown().size();
      Do("set txtRadius 1e-40\nclick cmdNewPlot");
      EXPECT_EQ(Shown().size(), told) << LastText();
    }
  Do("reset\nchoose cboGraph Qext/Qsca/Qabs v. radius\nset txtXmin 1e-90\nclick cmdNewPlot");
  EXPECT_NE(LastText().find("the size parameter x must be at least 1E-40"), std::string::npos) << LastText();
  EXPECT_EQ(runner.Current().form1.txtXmin.BackColour, colours::BadInput);
}

}  // namespace
}  // namespace lumivex
