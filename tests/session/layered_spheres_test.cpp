// Coated and inhomogeneous spheres as a user finds them.

#include <gtest/gtest.h>

#include <algorithm>

#include "session/info.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

const std::string um = " \u00B5m";

class LayeredSpheres : public ScriptedSession {
 protected:
  /// Chooses the coated sphere with these fields of its dialog.
  void Coated(const std::string& fields) { Do("dialog dlogCoatedSphere ok " + fields + "\nclick mnuCoatedSphere"); }
  void Profile(const std::string& fields) { Do("dialog dlogInhomSphere ok " + fields + "\nclick mnuInhomSphere"); }
  const Page& Drawn() { return runner.Current().page; }
  std::string Of(const std::string& dialog, const std::string& field) { return Get(dialog + "." + field); }
  std::string OfCoated(const std::string& field) { return Of("dlogCoatedSphere", field); }
  std::string Parameters() {
    std::string text;
    for (const std::string& line : Drawn().runs.back().parameters) text += line + "\n";
    return text;
  }
  bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
};

TEST_F(LayeredSpheres, ACoatedSphereIsChosenInItsDialogAndNamedInTheWindow) {
  const std::string before = Get("lblSphere");
  Coated("txtCoreRadius=4 txtMantleRadius=6 txtRIcore=1.6");
  EXPECT_EQ(Get("cboType"), "Coated sphere");
  EXPECT_EQ(Get("lblSphere"), "Core: r1 = 4" + um + ", n1 = 1.6");
  EXPECT_EQ(Get("lblRI_Medium"), "Coating: r2 = 6" + um + ", n2 = 1.3333");
  EXPECT_EQ(Get("txtRadius"), "6");
  EXPECT_EQ(Get("txtRefractReal.Visible") + Get("txtRefractMedium.Visible"), "falsefalse");
  EXPECT_EQ(Get("txtLambda.BackColour"), Get("txtXmin.BackColour"));
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("lblRI_Medium"), "Shell: r2 = 6" + um + ", n2 = 1.3333");
  EXPECT_EQ(Drawn().runs.back().title, "Coated sphere in a vacuum");
  EXPECT_EQ(Drawn().runs.back().methodLabel, "Coated sphere 1");
  for (const char* part : {"Core: r1 = 4", "   n = 1.6", "Coating: r2 = 6", "   n = 1.3333", "Medium: Vacuum"})
    EXPECT_TRUE(Holds(Parameters(), part)) << part << "\n" << Parameters();
  EXPECT_FALSE(Drawn().readings.empty());
  Do("choose cboType Mie");
  EXPECT_EQ(Get("lblSphere"), before);
  EXPECT_EQ(Get("lblRI_Medium"), "Medium: Vacuum");
  EXPECT_EQ(Get("txtRefractReal.Visible"), "true");
}

TEST_F(LayeredSpheres, TheSizeInThePanelIsTheOuterOne) {
  Coated("txtMantleRadius=8");
  Do("click mnuDiameter");
  EXPECT_EQ(Get("txtRadius"), "16");
  Do("set txtRadius 18");
  EXPECT_EQ(OfCoated("txtMantleRadius"), "9");
  EXPECT_EQ(Get("lblRI_Medium"), "Coating: r2 = 9" + um + ", n2 = 1.3333");
  Do("click mnuRadiusX");
  EXPECT_NEAR(Number("txtRadius"), 2 * 3.14159265358979 * 9 / 0.65, 1e-6);
  Do("click mnuRadius\nset txtRadius 7\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "The radius of the core must be less than the radius of the overall particle");
}

TEST_F(LayeredSpheres, CancelLeavesTheMethod) {
  Do("choose cboType Airy\ndialog dlogCoatedSphere cancel txtCoreRadius=1\nchoose cboType Coated sphere");
  EXPECT_EQ(Get("cboType"), "Airy");
  EXPECT_EQ(OfCoated("txtCoreRadius"), "7.5");
  Coated("txtCoreRadius=5");
  Do("dialog dlogCoatedSphere cancel txtCoreRadius=1\nclick mnuCoatedSphere");
  EXPECT_EQ(Get("cboType"), "Coated sphere") << "it was the method before";
  EXPECT_EQ(OfCoated("txtCoreRadius"), "5");
}

TEST_F(LayeredSpheres, ADialogWithABadSphereStays) {
  struct Case {
    const char *fields, *text, *marked;
  };
  for (const Case& c :
       {Case{"txtCoreRadius=10", "The radius of the core must be less than the radius of the overall particle",
             "txtMantleRadius"},
        Case{"txtCoreRadius=0", "", "txtCoreRadius"}, Case{"txtRIshell=0", "", "txtRIshell"},
        Case{"txtRIcore=-1.5", "", "txtRIcore"}, Case{"txtMantleRadius=wide", "", "txtMantleRadius"},
        Case{"chkDebye=1 cboR=2 cboA=4 cboB=2",
             "No ray path has N = 2, A = 4, B = 2: A is even and at most 2(N + 1), B is odd where N is even and even "
             "where N is odd",
             "cboB"}}) {
    Do("reset");
    const auto shown = Shown().size();
    Coated(c.fields);
    ASSERT_GT(Shown().size(), shown) << c.fields;
    EXPECT_EQ(LastTitle(), "Input error");
    if (*c.text != '\0') {
      EXPECT_EQ(LastText(), c.text);
    }
    EXPECT_EQ(Get("cboType"), "Mie") << c.fields;
  }
}

TEST_F(LayeredSpheres, MaterialsOfLayersFillTheirFields) {
  Coated("cboRIcore=Glass cboRImedium=Fixed txtRImedium=1.1");
  EXPECT_EQ(OfCoated("txtRIcore.Enabled"), "false");
  EXPECT_NEAR(Val(OfCoated("txtRIcore")), 1.5145, 1e-3);
  EXPECT_EQ(OfCoated("txtRImedium.Enabled"), "true");
  const std::string red = OfCoated("txtRIcore");
  Do("set txtLambda 0.4");
  EXPECT_NE(OfCoated("txtRIcore"), red) << "glass bends blue light more";
  EXPECT_TRUE(Holds(Get("lblSphere"), "n1 = " + OfCoated("txtRIcore")));
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_NEAR(Number("SizeParameter"), 2 * 3.14159265358979 * 10 * 1.1 / 0.4, 1e-9);
  EXPECT_EQ(Drawn().runs.back().title, "Coated sphere in medium of fixed RI");
  Do("dialog dlogCoatedSphere ok cboRIcore=Gold\nclick mnuCoatedSphere\nset txtLambda 0.1\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "The values for refractive index of Gold are valid only for the 188 - 1934 nm band");
}

TEST_F(LayeredSpheres, GraphsOfOtherKindsAreRefused) {
  Coated("");
  Do("choose cboGraph Convergence\nset txtAngle 40\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_GT(Drawn().curves.size(), 0U);
  Do("choose cboGraph Intensity v. radius\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error");
  EXPECT_EQ(LastText(), "Coated sphere calculations are not available for graph type Intensity v. radius");
}

TEST_F(LayeredSpheres, WaysAreSelectedByNumbersWordsAndOrders) {
  struct Case {
    const char *fields, *label, *words;
  };
  for (const Case& c : {Case{"chkDebye=1 cboRAB=5-8-4", "N = 5, A = 8, B = 4", "N-A-B 5-8-4, 12 ways"},
                        Case{"chkDebye=1 cboRAB=5-8-4 chkDegeneracy=0", "N = 5, A = 8, B = 4", "N-A-B 5-8-4"},
                        Case{"chkDebye=1 optPQR=1 cboRays=q1r1", "N = 2, A = 4, B = 3", "q1r1: N-A-B 2-4-3, 2 ways"},
                        Case{"chkDebye=1 optPQR=1 cboRays=p0r0", "N = 0, A = 2, B = 1", "p0r0: N-A-B 0-2-1"},
                        Case{"chkDebye=1 optPQ=1 cboP=2 cboQ=2", "N = 3, A = 4, B = 4", "P = 2, Q = 2: N-A-B 3-4-4"},
                        Case{"chkDebye=1 chkMult=1 cboMin=1 cboMax=3", "N = 1 to 3", "N = 1 to 3, all ways"}}) {
    SCOPED_TRACE(c.fields);
    Do("reset");
    Coated(c.fields);
    EXPECT_EQ(Get("lblDebyeRays"), std::string("Coated sphere 1: Debye ") + c.label);
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
    EXPECT_TRUE(Holds(Parameters(), std::string("Ray paths: ") + c.words + "\n")) << Parameters();
  }
  Coated("optCoatMie2=1");
  EXPECT_TRUE(Get("lblDebyeRays").starts_with("Coated sphere 2: Debye N = "));
}

TEST_F(LayeredSpheres, NumbersOfAPathFollowEachOther) {
  const auto& d = runner.Current().forms.dlogCoatedSphere;
  EXPECT_EQ(d.cboRAB.Items.size(), 259U);
  EXPECT_EQ(d.cboRAB.Items.front() + " " + d.cboRAB.Items.back(), "0-0-0 12-26-13");
  EXPECT_EQ(d.cboRays.Items.size(), 18U);
  struct Case {
    const char *label, *ways;
  };
  // A label of one way leaves the number as it stands.
  for (const Case& c : {Case{"2-4-3", "2"}, Case{"3-4-4", "3"}, Case{"5-8-4", "12"}, Case{"12-12-11", "1260"},
                        Case{"0-2-1", "1260"}, Case{"12-14-7", "700"}}) {
    Coated(std::string("chkDebye=1 cboRAB=") + c.label);
    EXPECT_EQ(OfCoated("cboR") + "-" + OfCoated("cboA") + "-" + OfCoated("cboB"), c.label);
    EXPECT_EQ(OfCoated("txtDegen"), c.ways) << c.label;
  }
  Coated("cboR=2 cboA=4 cboB=1");
  EXPECT_EQ(OfCoated("cboRAB"), "2-4-1");
  EXPECT_EQ(OfCoated("txtDegen"), "2");
  Coated("chkMult=1 cboMin=7 cboMax=3");
  EXPECT_EQ(OfCoated("cboMin") + OfCoated("cboMax"), "33");
  Coated("cboMin=5");
  EXPECT_EQ(OfCoated("cboMax"), "5");
  EXPECT_EQ(OfCoated("cboRAB.Visible") + OfCoated("cboMin.Visible"), "falsetrue");
}

TEST_F(LayeredSpheres, WaysAreOnOfferWhileTheBoxIsTicked) {
  Coated("");
  EXPECT_EQ(OfCoated("Frame2.Enabled") + OfCoated("cboRAB.Enabled"), "falsefalse");
  Coated("chkDebye=1");
  EXPECT_EQ(OfCoated("Frame2.Enabled") + OfCoated("cboRAB.Enabled") + OfCoated("cboP.Enabled"), "truetruefalse");
  Coated("optPQ=1");
  EXPECT_EQ(OfCoated("cboRAB.Enabled") + OfCoated("cboP.Enabled"), "falsetrue");
}

TEST_F(LayeredSpheres, ACloudOfCoatedSpheresTellsWhatVaries) {
  Coated("txtCoreRadius=4 optFixedShell=1");
  Do("click optDisp\nset cboSD 5\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_TRUE(Holds(Parameters(), "of the cores, coating fixed")) << Parameters();
  Do("set cboSD 90\ndialog dlogCoatedSphere ok txtCoreRadius=9 optFixedCore=1\nclick mnuCoatedSphere\nclick "
     "cmdNewPlot");
  EXPECT_EQ(LastText(), "The radius of the core must be less than the radius of the overall particle");
}

TEST_F(LayeredSpheres, AProfileIsCalculatedFromItsDialog) {
  Profile("optLuneburg=1 cboLayers=64");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboType"), "Inhomogeneous sphere");
  EXPECT_EQ(Get("lblSphere"), "Sphere: n(r) = Sqrt [2 - 0.7 r^2]");
  EXPECT_EQ(Drawn().runs.size(), 1U);
  EXPECT_EQ(Drawn().runs.back().title, "n(r) = Sqrt [2 - 0.7 r^2] in a vacuum");
  EXPECT_EQ(Drawn().runs.back().methodLabel, "Inhomogeneous sphere (Luneburg)");
  for (const char* part : {"B = 1, C = 0.7", "Sphere: n(r) = Sqrt [2 - 0.7 r^2]", "64 layers, new code"})
    EXPECT_TRUE(Holds(Parameters(), part)) << Parameters();
  Profile("chkOverwrite=0 optOldCode=1");
  EXPECT_EQ(Drawn().runs.size(), 2U);
  const auto& curves = Drawn().curves;
  ASSERT_EQ(curves.size(), 4U);
  for (std::size_t i = 1; i < curves[0].y.size(); ++i)
    ASSERT_NEAR(curves[2].y[i], curves[0].y[i], 1e-8 * curves[0].y[i] + 1e-6) << "old and new code agree";
  Profile("chkOverwrite=1");
  EXPECT_EQ(Drawn().runs.size(), 1U);
  Do("choose cboType Mie");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
}

TEST_F(LayeredSpheres, EquationsAreWrittenAndTheirFieldsShown) {
  struct Case {
    const char *fields, *equation, *frame;
  };
  for (const Case& c :
       {Case{"optExponential=1", "n(r) = 0.3333 + 1 r^-0.2", "frmExponential"},
        Case{"optPolynomial=1 txtK1=0.1 txtM1=-0.02", "n(r) = 1.5 + 0.1 r - 0.1667 r^2 - 0.02 r^3", "frmPolynomial"},
        Case{"optPolynomial=1 txtJ1=0 txtK1=1.2 txtL1=0", "n(r) = 1.2 r", "frmPolynomial"},
        Case{"OptModLuneburg=1 txtF=0.5", "n(r) = Sqrt [1 + 0.5 - 0.5 r^2]", "frmModLuneburg"},
        Case{"optLuneburg=1 txtLB=1.2 txtLC=1", "n(r) = Sqrt [2.4 - 1 r^2]", "frmLuneburg"}}) {
    SCOPED_TRACE(c.fields);
    Do("reset");
    Profile(c.fields);
    EXPECT_EQ(Of("dlogInhomSphere", "lblEquation"), c.equation);
    for (const char* frame : {"frmCoated", "frm3Layer", "frmModLuneburg", "frmLuneburg", "frmExponential",
                              "frmPolynomial", "frmSinusoidal"})
      EXPECT_EQ(Of("dlogInhomSphere", std::string(frame) + ".Visible"),
                frame == std::string(c.frame) ? "true" : "false");
  }
  Profile("optLuneburg=1 txtLB=1.2 txtLC=1");
  EXPECT_EQ(Of("dlogInhomSphere", "lblEquation2"), "J = 1.2,  K = 1");
}

TEST_F(LayeredSpheres, TheDialogDrawsTheProfile) {
  const auto drawing = [&] {
    output.str("");
    Do("window dlogInhomSphere\ndrawing\nwindow Form1");
    return output.str();
  };
  Profile("optLuneburg=1 cboLayers=8");
  const std::string first = drawing();
  EXPECT_TRUE(Holds(first, "n(r)"));
  Profile("txtLC=0.5");
  const std::string second = drawing();
  EXPECT_NE(first, second);
  Profile("chkGraphUpdate=0 txtLC=0.9");
  EXPECT_EQ(drawing(), second);
  Profile("chkGraphUpdate=1");
  EXPECT_NE(drawing(), second);
}

TEST_F(LayeredSpheres, AProfileWithoutAnIndexIsMarkedWithoutAWord) {
  Profile("optLuneburg=1");
  const auto results = runner.Current().state.LastResults;
  Profile("txtLB=0.2 txtLC=1");
  EXPECT_EQ(runner.Current().state.LastResults, results) << "no run";
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(Of("dlogInhomSphere", "txtLC"), "0.7") << "the dialog was given up";
  auto& d = runner.Current().forms.dlogInhomSphere;
  d.txtLC.Text = "3";
  Do("click cmdNewPlot");
  EXPECT_EQ(runner.Current().state.LastResults, results);
  EXPECT_EQ(d.txtLC.BackColour, colours::BadInput);
  EXPECT_TRUE(Holds(d.txtLC.Tip, "no refractive index above 0 at r = 0.8")) << d.txtLC.Tip;
  EXPECT_EQ(runner.Current().form1.lblSphere.BackColour, colours::BadInput);
  const auto& profile = runner.Current().windows[1].page.profile;
  ASSERT_TRUE(profile);
  d.txtLC.Text = "0.7";
  Do("click cmdNewPlot");
  EXPECT_NE(runner.Current().state.LastResults, results);
  EXPECT_FALSE(Holds(d.txtLC.Tip, "above 0"));
}

TEST_F(LayeredSpheres, UndoBringsSphereAndNamesBack) {
  Coated("txtCoreRadius=4");
  Do("choose cboType Mie\nclick mnuUndo");
  EXPECT_EQ(Get("cboType"), "Coated sphere");
  EXPECT_EQ(Get("lblSphere"), "Core: r1 = 4" + um + ", n1 = 1.5");
  Do("choose cboType Mie");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
  Do("click mnuUndo\nclick mnuUndo");
  EXPECT_EQ(Get("cboType"), "Mie");
  EXPECT_EQ(OfCoated("txtCoreRadius"), "7.5");
}

TEST_F(LayeredSpheres, AMaterialChosenMeanwhileIsNotForgotten) {
  Coated("");
  Do("click mnuRI_Au\nclick mnuRI_Air2");
  EXPECT_EQ(Get("lblSphere"), "Core: r1 = 7.5" + um + ", n1 = 1.5");
  Do("choose cboType Mie");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Gold");
  EXPECT_EQ(Get("lblRI_Medium"), "Medium: Air 15C");
}

TEST_F(LayeredSpheres, SpectraTakeTheIndicesOfEachWavelength) {
  Coated("cboRIcore=Glass cboRIshell=Water");
  Do("choose cboWave 7\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Number("NumberWavelengths"), 7);
  EXPECT_TRUE(Holds(Parameters(), "Core: r1 = 7.5")) << Parameters();
}

TEST_F(LayeredSpheres, AStopIsSeenWhileTheCoefficientsAreFound) {
  Do("set cboStep 1\nset txtRadius 2");
  Profile("cboLayers=64");
  const auto before = runner.Current().state.LastResults;
  Do("dialog dlogInhomSphere ok cboLayers=4096\nset txtRadius 40\nstop-at 3\nclick mnuInhomSphere");
  EXPECT_EQ(runner.Current().state.LastResults, before);
  EXPECT_TRUE(Holds(StatusText(runner.Current()), "terms")) << StatusText(runner.Current());
}

TEST_F(LayeredSpheres, ADistributionOfCoresIsDrawnAsSuch) {
  Coated("txtCoreRadius=4 txtMantleRadius=10 optFixedShell=1");
  Do("set cboStep 5\nclick optDisp\nset cboSD 5\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().histogram);
  EXPECT_NEAR(Drawn().histogram->low, 3.62, 0.01);
  EXPECT_NEAR(Drawn().histogram->high, 4.42, 0.01);
  // Spheres that are smaller than their cores: the width is at fault.
  Coated("txtCoreRadius=9.8 txtMantleRadius=10 optFixedCore=1");
  Do("click cmdNewPlot");
  EXPECT_EQ(LastText(), "The radius of the core must be less than the radius of the overall particle");
  EXPECT_EQ(runner.Current().form1.cboSD.BackColour, colours::BadInput);
}

TEST_F(LayeredSpheres, ASizeParameterIsTakenAsItIsTyped) {
  Coated("txtCoreRadius=4 txtMantleRadius=6");
  Do("click mnuRadiusX\nset cboStep 5\nset txtRadius 50\nclick cmdNewPlot");
  EXPECT_NEAR(Number("SizeParameter"), 50, 1e-13);
  EXPECT_EQ(Get("txtRadius"), "50");
}

TEST_F(LayeredSpheres, LayersOfTheMediumsIndexScatterNothing) {
  Do("set cboStep 5");
  Profile("OptModLuneburg=1 txtF=0");
  EXPECT_EQ(Number("Qsca"), 0);
  EXPECT_EQ(Number("Gsca"), 0);
  Coated("txtCoreRadius=4 txtMantleRadius=6 txtRIcore=1 txtRIshell=1");
  Do("click cmdNewPlot");
  EXPECT_EQ(Number("Qsca"), 0);
}

}  // namespace
}  // namespace lumivex
