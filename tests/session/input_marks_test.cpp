#include <gtest/gtest.h>

#include <utility>

#include "record/layout/input_name.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

constexpr const char* red = "255";
constexpr const char* white = "16777215";

class InputMarks : public ScriptedSession {};

TEST_F(InputMarks, GoWhenTheirOwnInputChanges) {
  struct MarkCase {
    const char *lines, *input, *good;
  };
  const MarkCase cases[] = {
      {"choose cboGraph Intensity v. radius\nset txtAngle 200", "txtAngle", "20"},
      {"set cboWave 2001", "cboWave", "20"},
      {"choose cboGraph Scattered power v. radius\nset txtF9_max 190", "txtF9_max", "180"},
      {"choose cboGraph Scattered power v. radius\nset txtF9_step 0", "txtF9_step", "1"},
      {"choose cboGraph Scattered power v. radius\nset txtF9_min x", "txtF9_min", "0"},
      {"set cboYmin x", "cboYmin", "1"},
      {"choose cboType Debye\nset cboRays 1.5", "cboRays", "2"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.lines);
    Do("reset");
    Do(std::string(c.lines) + "\nclick cmdNewPlot");
    EXPECT_EQ(Get(std::string(c.input) + ".BackColour"), red);
    Do(std::string("set ") + c.input + " " + c.good);
    EXPECT_EQ(Get(std::string(c.input) + ".BackColour"), white);
  }
}

TEST_F(InputMarks, GoWhenAMaterialWritesTheField) {
  Do("click mnuRI_Fixed1\nset txtRefractReal -1\nclick cmdNewPlot");
  EXPECT_EQ(Get("txtRefractReal.BackColour"), "255");
  Do("click mnuRI_IAPWS");
  EXPECT_EQ(Get("txtRefractReal"), "1.3325704");
  EXPECT_EQ(Get("txtRefractReal.BackColour"), "16777215");
}

TEST_F(InputMarks, HiddenInputsNeverRefuseARun) {
  struct HiddenCase {
    const char *typed, *then;
  };
  const HiddenCase cases[] = {
      {"set txtRadius x", "choose cboGraph Qext/Qsca/Qabs v. radius\nset txtXmin 1\nset txtXmax 9\nset cboStep 1"},
      {"set txtLambda 1e12",
       "choose cboGraph Qext/Qsca/Qabs v. wavelength\nset txtXmin 400\nset txtXmax 700\nset cboStep 50"},
      {"set txtLambda -1", "set cboWave 3\nset cboStep 1"},
      {"choose cboGraph Intensity v. radius\nset txtAngle x",
       "choose cboGraph Qext/Qsca/Qabs v. radius\nset txtXmin 1\nset txtXmax 9\nset cboStep 1"},
      {"set txtXmin x", "choose cboType Debye\ndialog dlogDebyeSeq ok txtLimit=3\nclick mnuDebyeSequence"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.typed);
    Do("reset\nclick mnuKeepParameters");
    runner.World().messages.clear();
    // The parameters are kept where the graph changes, so that what was typed stays in the hidden input.
    Do(std::string(c.typed) + "\n" + c.then + "\nset txtRefractReal 1.33\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << LastText();
  }
}

TEST_F(InputMarks, ADecimalCommaIsAPoint) {
  Do("set txtLambda 0,55\nset txtRadius 2,5\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Number("Radius"), 2.5);
  EXPECT_EQ(Number("Lambda"), 0.55);
  EXPECT_EQ(Get("txtRadius"), "2.5") << "the input shows how it was read";
  Do("dialog dlogTemp ok txtTemp=12,5\nclick mnuRI_IAPWS");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 12.5C Complex)");
  Do("dialog dlogTemp ok txtTemp=12,500\nclick mnuRI_IAPWS");
  EXPECT_EQ(LastText(), "Temperature (C): use a point as the decimal mark, and nothing between thousands");
  EXPECT_EQ(Get("dlogTemp.txtTemp"), "12.5") << "a refused dialog changes nothing";
}

TEST_F(InputMarks, InputsAreNamedAsTheyStandOnTheScreen) {
  const auto name = [this](Control& input) { return NameOfInput(input); };
  auto& session = runner.Current();
  Form1& form = session.form1;
  const std::pair<Control*, const char*> names[] = {
      {&form.txtRadius, "Radius (\u00B5m)"},
      {&form.txtLambda, "Wavelength (\u00B5m) in vacuo"},
      {&form.txtXmax, "Maximum angle"},
      {&form.txtRefractReal, "Refractive index n of the sphere (real part)"},
      {&form.txtRefractImag, "Absorption index k of the sphere (imaginary part)"},
      {&form.txtF9_max, "Real part (2)"},
      {&session.forms.dlogTemp.txtTemp, "Temperature (C)"},
      {&session.forms.dlogRI_Formula.txtC2, "C2"},
  };
  for (const auto& [input, expected] : names) EXPECT_EQ(name(*input), expected);
  Do("click mnuDiameter");
  EXPECT_EQ(name(form.txtRadius), "Diameter (\u00B5m)");
}

TEST_F(InputMarks, AxisInputsDoNotComeBack) {
  struct ShownCase {
    const char *graph, *lines, *input;
  };
  for (const auto& c : {ShownCase{"Qext/Qsca/Qabs v. radius", "click optDisp", "txtRadius"},
                        ShownCase{"Qext/Qsca/Qabs v. size x", "click optDisp\nclick optMono", "txtRadius"},
                        ShownCase{"Contour 2-angle", "click optDisp\nclick optMono", "txtRadius"},
                        ShownCase{"Albedo v. wavelength", "set cboWave 3\nset cboWave 1", "txtLambda"}}) {
    SCOPED_TRACE(c.graph);
    Do("reset");
    const std::string choose =
        std::string(c.graph) == "Contour 2-angle" ? "click mnuTwoAngle" : std::string("choose cboGraph ") + c.graph;
    Do(choose + "\n" + c.lines);
    EXPECT_EQ(Get(std::string(c.input) + ".Visible"), "false");
  }
}

TEST_F(InputMarks, AFamilyStartsWithWaterAndRadiiUnlessParametersAreKept) {
  const std::string chosen = "click mnuDiameter\nclick mnuRI_Au\nclick mnuRI_IAPWS2\nset txtRadius 1\n";
  Do(chosen + "choose cboGraph Phase function");
  EXPECT_EQ(Get("mnuDiameter") + " " + Get("lblSphere"), "true Sphere: Gold") << "the family is the same";
  Do("choose cboGraph Intensity v. wavelength");
  EXPECT_EQ(Get("mnuRadius") + " " + Get("mnuRI_IAPWS") + " " + Get("mnuRI_Vacuum2"), "true true true");
  EXPECT_EQ(Get("Label7"), "Radius (\u00B5m)");
  EXPECT_EQ(Get("lblSphere") + ", " + Get("lblRI_Medium"), "Sphere: Water (IAPWS 5C Complex), Medium: Vacuum");
  Do("click mnuKeepParameters\n" + chosen + "choose cboGraph Intensity v. scattering angle");
  EXPECT_EQ(Get("mnuDiameter") + " " + Get("lblSphere"), "true Sphere: Gold");
}

TEST_F(InputMarks, MenusFollowTheWavelengthsAndTheMethod) {
  EXPECT_EQ(Get("mnuAverage.Visible"), "false");
  Do("set cboWave 7");
  EXPECT_EQ(Get("mnuAverage.Visible"), "true");
  for (const char* width : {"abc", "-5", "0", ""}) {
    Do("dialog dlogAverage ok txtAverage=" + std::string(width) + "\nclick mnuAverage");
    EXPECT_EQ(LastText(), "Value must be positive") << width;
    EXPECT_EQ(Get("mnuAverage") + Get("dlogAverage.txtAverage"), "false1") << width;
  }
  Do("click mnuAverage\nset cboWave 1");
  EXPECT_EQ(Get("mnuAverage.Visible"), "true") << "or the average could not be taken away";
  Do("click mnuAverage\nset cboWave 3\nset cboWave 1");
  EXPECT_EQ(Get("mnuAverage.Visible"), "false");
  Do("choose cboType Debye\nchoose cboGraph Scattering matrix\nclick cmdNewPlot");
  EXPECT_EQ(Get("cboType") + " " + Get("cboRays.Visible"), "Mie false");
  Do("choose cboGraph Intensity v. scattering angle\nclick mnuAperture\nset txtAngle 5\nclick cmdNewPlot");
  EXPECT_EQ(Get("cboType") + " " + Get("txtXmin") + " " + Get("txtXmax"), "Aperture 0 90");
}

}  // namespace
}  // namespace lumivex
