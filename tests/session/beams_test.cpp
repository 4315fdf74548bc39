// Focused beams as a user finds them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "files/reports/save_text.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

const std::string um = " \u00B5m";

class Beams : public ScriptedSession {
 protected:
  /// Chooses a beam with these fields of its dialog.
  void Gaussian(const std::string& fields) { Do("dialog dlogGaussianBeam ok " + fields + "\nclick mnuGaussian"); }
  void Plot() {
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
  }
  std::string OfBeam(const std::string& field) { return Get("dlogGaussianBeam." + field); }
  const Page& Drawn() { return runner.Current().page; }
  const Results* Last() { return runner.Current().state.LastResults.get(); }
  std::string Parameters() {
    std::string text;
    for (const std::string& line : Drawn().runs.back().parameters) text += line + "\n";
    return text;
  }
  bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
  std::string Light() {
    std::string ticked;
    for (const char* entry : {"mnuPlaneWave", "mnuGaussian", "mnuTopHat", "mnuCentralBeam", "mnuMultBeams"})
      ticked += Get(entry) == "true" ? "1" : "0";
    return ticked;
  }
};

TEST_F(Beams, AGaussianBeamIsChosenInItsDialogAndToldOfTheRun) {
  EXPECT_EQ(Get("mnuMultBeams.Enabled") + Get("mnuMieGConv.Enabled"), "falsefalse");
  Gaussian("txtBeamYF=-8 txtBeamWo=5");
  EXPECT_EQ(Light(), "01000");
  EXPECT_EQ(Get("mnuMultBeams.Enabled") + Get("mnuMieGConv.Enabled"), "truetrue");
  EXPECT_TRUE(Get("lblDebyeRays")
                  .starts_with("Mie (Gaussian beam)\nx0 = 0   y0 = -8   z0 = 0   w0 = 5\nLmax = 117 "
                               "Mmax = 18"))
      << Get("lblDebyeRays");
  Do("set txtXmin -180\nset txtXmax 180\nset cboStep 1");
  Plot();
  EXPECT_TRUE(Drawn().runs.back().title.starts_with("Mie scattering (Gaussian beam):  ")) << Drawn().runs.back().title;
  EXPECT_TRUE(Holds(Parameters(), "Gaussian beam: x0 = 0, y0 = -8, z0 = 0, w0 = 5" + um + "\n")) << Parameters();
  EXPECT_TRUE(Holds(Parameters(), "Series: L to 117, M to 18, ")) << Parameters();
  EXPECT_TRUE(Drawn().readings.empty()) << "a beam has no efficiencies";
  const PageCurve& curve = Drawn().curves.front();
  EXPECT_EQ(curve.x[1], -180);
  EXPECT_EQ(curve.x[361], 180);
  EXPECT_EQ(Number("FirstPoint"), 1);
  EXPECT_EQ(Number("LastPoint"), 361);
  EXPECT_EQ(Number("PlaneWaveFlag"), 1);
  EXPECT_EQ(Number("Qext"), 0);
}

TEST_F(Beams, CancelLeavesThePlaneWave) {
  Do("dialog dlogGaussianBeam cancel txtBeamWo=3\nclick mnuGaussian");
  EXPECT_EQ(Light(), "10000");
  EXPECT_EQ(OfBeam("txtBeamWo"), "20");
}

TEST_F(Beams, ThePlaneWaveTakesAnglesAndBeamsBack) {
  Gaussian("txtBeamYF=0");
  Do("click mnuMultBeams\nclick mnuCentralBeam\nset txtXmin -90\nset txtXmax 270");
  EXPECT_EQ(Light(), "01011");
  Do("click mnuPlaneWave");
  EXPECT_EQ(Light(), "10000");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax"), "0 180");
  Do("click mnuUndo");
  EXPECT_EQ(Light(), "01011");
  EXPECT_EQ(Get("txtXmin") + Get("mnuMultBeams.Enabled"), "-90true");
  Do("choose cboType Airy");
  EXPECT_EQ(Light(), "10000") << "no beam lights that method";
}

TEST_F(Beams, BadBeamsAreMarkedInTheirDialog) {
  struct Case {
    const char *fields, *marked;
  };
  for (const Case& c :
       {Case{"txtBeamWo=0", "txtBeamWo"}, Case{"txtBeamWo=-5", "txtBeamWo"}, Case{"txtBeamWo=1e-300", "txtBeamWo"},
        Case{"txtBeamWo=wide", "txtBeamWo"}, Case{"txtBeamYF=1e12", "txtBeamYF"}, Case{"txtBeamXF=-1e12", "txtBeamXF"},
        Case{"txtBeamZF=", "txtBeamZF"}}) {
    SCOPED_TRACE(c.fields);
    Do("reset");
    Gaussian(c.fields);
    EXPECT_EQ(LastTitle(), "Input error");
    EXPECT_EQ(Light(), "10000");
  }
  // One that reaches a run some other way is refused there.
  Do("reset");
  Gaussian("");
  const Results* before = Last();
  Do("set dlogGaussianBeam.txtBeamWo 0\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Input error");
  EXPECT_EQ(Last(), before);
}

TEST_F(Beams, TheTiltIsLockedWithoutLocksDefinition) {
  Gaussian("");
  EXPECT_EQ(OfBeam("txtPhi.Enabled"), "false");
  Gaussian("chkLock=1 txtPhi=30");
  EXPECT_EQ(OfBeam("txtPhi") + OfBeam("txtPhi.Enabled"), "30true");
  EXPECT_TRUE(Holds(Get("lblDebyeRays"), "\nLock's definition of polarisation"));
  Plot();
  EXPECT_TRUE(Holds(Parameters(), ", tilt 30\u00B0")) << Parameters();
  Gaussian("chkLock=0");
  EXPECT_EQ(OfBeam("txtPhi") + OfBeam("txtPhi.Enabled"), "90false");
}

TEST_F(Beams, ANarrowBeamWarnsWithOkAndCancel) {
  Gaussian("txtBeamYF=0 txtBeamWo=0.5");
  const Results* before = Last();
  Do("set txtRadius 0.3\nset txtLambda 0.65\ndialog dlogGaussianBeam cancel\nclick cmdNewPlot");
  EXPECT_EQ(OfBeam("lblWarning"), "Recommended values of beam\nhalf-width w0 > 1.0345 - 1.5518" + um +
                                      "\nClick on OK to use values shown above\nClick on Cancel to stop calculation");
  EXPECT_EQ(Last(), before);
  EXPECT_EQ(OfBeam("txtBeamWo"), "0.5");
  // OK goes on with what stands there.
  Do("dialog dlogGaussianBeam ok txtBeamWo=1.2\nclick cmdNewPlot");
  ASSERT_NE(Last(), nullptr);
  EXPECT_EQ(Last()->asked.method.beam.w0, 1.2);
  EXPECT_EQ(OfBeam("Frame1.Visible"), "false");
  // s of exactly 0.1 is no reason.
  Do("reset");
  Gaussian("txtBeamYF=0 txtBeamWo=1.1");
  before = Last();
  Do("set txtRadius 0.3\ndialog dlogGaussianBeam cancel\nclick cmdNewPlot");
  EXPECT_NE(Last(), before);
}

TEST_F(Beams, ABeamThatSpreadsWithinTheSphereWarns) {
  Gaussian("txtBeamYF=0 txtBeamWo=1.2 txtBeamZF=3");
  const Results* before = Last();
  Do("dialog dlogGaussianBeam cancel\nclick cmdNewPlot");
  EXPECT_EQ(OfBeam("lblWarning"),
            "Set w0 > 1.4384" + um +
                " and/or set z0 = 0 to increase the spreading length of the Gaussian beam\nClick on OK to use values "
                "shown above\nClick on Cancel to stop calculation");
  EXPECT_EQ(Last(), before);
  Do("dialog dlogGaussianBeam ok txtBeamZF=0 txtBeamWo=1.5\nclick cmdNewPlot");
  ASSERT_NE(Last(), before);
  EXPECT_EQ(Last()->asked.method.beam.z0, 0);
  Gaussian("txtBeamWo=1.2");
  Do("dialog dlogGaussianBeam cancel\nclick cmdNewPlot");
  EXPECT_TRUE(OfBeam("lblWarning").starts_with("Set w0 > 1.4384" + um + " to increase the spreading length"));
}

TEST_F(Beams, DiagnosticsAskForTheLimitsAndTellNumbers) {
  EXPECT_EQ(Get("mnuHidden.Visible"), "false");
  Gaussian("txtBeamYF=-8 txtBeamWo=5");
  EXPECT_EQ(Get("mnuHidden.Visible"), "true");
  Do("set cboStep 1\nclick mnuHidden\ndialog dlogMmax ok\nclick cmdNewPlot");
  EXPECT_EQ(Get("dlogMmax.txtLmax") + " " + Get("dlogMmax.txtMmax") + " " + Get("dlogMmax.txtMmax1"), "117 18 9");
  EXPECT_FALSE(Last()->asked.method.beam.limits.has_value());
  EXPECT_TRUE(Last()->asked.method.beam.rule.closed);
  std::string readings;
  for (const PageLine& line : Drawn().readings) readings += line.text + "\n";
  EXPECT_TRUE(readings.starts_with("s = 0.02069\nLength = 241.")) << readings;
  EXPECT_TRUE(Holds(readings, "Q = 1 + i0\n")) << readings;
  EXPECT_TRUE(Holds(readings, "Scattering calculations: ")) << readings;
  const double whole = Last()->Find<AngleFound>()->S1.Re(50);
  Do("dialog dlogMmax ok txtMmax=6 txtLmax=80\nclick cmdNewPlot");
  EXPECT_EQ(Last()->asked.method.beam.limits, (BeamLimits{80, 6}));
  EXPECT_NE(Last()->Find<AngleFound>()->S1.Re(50), whole);
  EXPECT_TRUE(Holds(Parameters(), "Lmax = 80, Mmax = 6")) << Parameters();
  // Sums over j, with logarithms or without, come to the same.
  for (const char* fields : {"txtJmax1=900", "txtMmax1=30 txtError=1E-19"}) {
    Do(std::string("dialog dlogMmax ok ") + fields + "\nclick cmdNewPlot");
    EXPECT_FALSE(Last()->asked.method.beam.rule.closed);
    EXPECT_NEAR(Last()->Find<AngleFound>()->S1.Re(50), whole, 1e-8) << fields;
    Do("set dlogMmax.txtError 1E-20");
  }
  const auto* before = Last();
  for (const char* fields : {"txtMmax=0", "txtMmax=118", "txtLmax=1e9", "txtLmax=2.5", "txtJmax1=40000",
                             "txtLmax=200000 txtMmax=100", "txtError=-1"}) {
    const auto shown = Shown().size();
    Do(std::string("dialog dlogMmax ok ") + fields + "\nclick cmdNewPlot");
    EXPECT_GT(Shown().size(), shown) << fields;
    EXPECT_EQ(Last(), before) << fields;
  }
}

TEST_F(Beams, DebyeTermsOfABeamAreLabelled) {
  Do("choose cboType Debye\nset cboRays 2");
  Gaussian("txtBeamYF=-5 txtBeamWo=5");
  EXPECT_EQ(Get("lblDebyeRays"), "Debye series (Gaussian beam) (p = 2)");
  Do("set cboStep 1");
  Plot();
  EXPECT_TRUE(Holds(Parameters(), "Gaussian beam: x0 = 0, y0 = -5")) << Parameters();
  Do("click mnuMultBeams\nclick cmdNewPlot");
  EXPECT_TRUE(Holds(Parameters(), ", multiple beams")) << Parameters();
  // The two sides of a pair are alike.
  Do("set txtXmin -180\nset txtXmax 180\nclick cmdNewPlot");
  const auto& S1 = Last()->Find<AngleFound>()->S1;
  EXPECT_NEAR(S1.Intensity(31), S1.Intensity(331), 1e-9 * S1.Intensity(31));
}

TEST_F(Beams, RaysStandInABeamOnTheAxis) {
  Do("choose cboType Young mod\nset cboRays 1");
  Gaussian("txtBeamWo=4");
  EXPECT_EQ(OfBeam("txtBeamYF") + OfBeam("txtBeamYF.Enabled") + OfBeam("txtBeamWo.Enabled"), "0falsetrue");
  Do("set txtXmin -180\nset txtXmax 180\nset cboStep 1");
  Plot();
  EXPECT_EQ(Get("lblDebyeRays"), "Young mod. (Gaussian beam) (p = 1)");
  const auto& S1 = Last()->Find<AngleFound>()->S1;
  EXPECT_GT(S1.Intensity(186), 0);
  EXPECT_NEAR(S1.Intensity(186), S1.Intensity(176), 1e-9 * S1.Intensity(186));
  Do("dialog dlogGaussianBeam ok txtBeamWo=2\nclick mnuTopHat\nclick cmdNewPlot");
  EXPECT_EQ(Light(), "00100");
  EXPECT_TRUE(Holds(Parameters(), "Top hat beam: ")) << Parameters();
  EXPECT_EQ(Last()->Find<AngleFound>()->S1.Intensity(201), 0) << "rays far from the axis are dark";
}

TEST_F(Beams, MethodsAndGraphsThatKnowNoBeamSaySo) {
  Gaussian("");
  Do("choose cboType Young + Airy\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error: Gaussian beam");
  EXPECT_EQ(LastText(),
            "Gaussian beam calculations are available only for Mie, Debye, Descartes, Young and Young mod calculation "
            "methods");
  EXPECT_EQ(Light(), "10000");
  Do("choose cboType Young mod\nclick mnuTopHat\nchoose cboType Mie\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error: Top hat beam");
  EXPECT_EQ(Light(), "10000");
  Gaussian("");
  for (const char* graph :
       {"Phase function", "Qext/Qsca/Qabs v. radius", "Map: angle v. radius", "Scattering matrix"}) {
    Do(std::string("choose cboGraph ") + graph + "\nclick cmdNewPlot");
    EXPECT_EQ(LastText(), std::string("Gaussian beam calculations are not available for graph type ") + graph);
    EXPECT_EQ(LastTitle(), "Error: Gaussian beam");
  }
  EXPECT_EQ(Light(), "01000");
}

TEST_F(Beams, AnglesGoRoundOnce) {
  struct Case {
    const char *low, *high, *text;
  };
  Gaussian("txtBeamYF=0");
  for (const Case& c :
       {Case{"-361", "0", "Minimum angle < -360 degrees"}, Case{"0", "361", "Maximum angle > 360 degrees"},
        Case{"-180", "181", "Scattering angles cover 360 degrees at most"},
        Case{"10", "10", "Minimum angle = Maximum angle"}}) {
    Do(std::string("set cboStep 1\nset txtXmin ") + c.low + "\nset txtXmax " + c.high + "\nclick cmdNewPlot");
    EXPECT_EQ(LastText(), c.text);
  }
  const Results* before = Last();
  Do("set txtXmin -1e9\nset txtXmax 1e9\nset cboStep 0.1\nclick cmdNewPlot");
  EXPECT_EQ(Last(), before);
  const auto shown = Shown().size();
  Do("set txtXmin 0\nset txtXmax 360\nset cboStep 1\nclick mnuPolarPlot\nclick cmdNewPlot");
  EXPECT_EQ(Shown().size(), shown) << LastText();
  EXPECT_TRUE(Drawn().kind.polar);
  // Bars have the colours of both sides.
  Do("click mnuPolarPlot\nset txtXmin -180\nset txtXmax 180\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().bars.has_value());
  EXPECT_EQ(Drawn().bars->painted[0].size(), 361U);
  Do("click mnuPolarPlot");
  Do("set txtXmin 0\nclick cmdNewPlot");
  EXPECT_TRUE(LastText().starts_with("Polar plots for Gaussian beams are available"));
}

TEST_F(Beams, RunningSumsGoOverLAndOverM) {
  Gaussian("txtBeamYF=-8 txtBeamWo=5");
  Do("set txtAngle 60\nclick mnuMieGConv\nset txtAngle 60\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboGraph") + Get("mnuMieGConv"), "Convergencetrue");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax"), "1 117");
  EXPECT_EQ(Drawn().kind.xTitle, "L");
  const std::string table = Save_MieGConv(*Last(), false);
  EXPECT_TRUE(table.starts_with("Term 1\tTerm 2\tTerm 3\tL\tM\n")) << table.substr(0, 80);
  EXPECT_TRUE(table.ends_with("\t1\t117\t18\n")) << table.substr(table.size() - 60);
  Do("click mnuMieGConv2\nclick cmdNewPlot");
  EXPECT_EQ(Get("mnuMieGConv") + Get("mnuMieGConv2"), "falsetrue");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax"), "0 18");
  EXPECT_EQ(Drawn().kind.xTitle, "|M|");
  EXPECT_TRUE(Holds(Parameters(), "|M|: 0 to 18")) << Parameters();
  EXPECT_NE(Save_MieGConv(*Last(), true), Save_MieGConv(*Last(), false));
  Do("choose cboGraph Intensity v. scattering angle");
  EXPECT_EQ(Get("mnuMieGConv2"), "false");
}

TEST_F(Beams, OtherGraphsOfOneAngleAndSpectraKnowBeams) {
  Gaussian("txtBeamYF=-3 txtBeamWo=5");
  for (const char* inputs : {"choose cboGraph Intensity v. radius\nset txtXmin 2\nset txtXmax 6\nset cboStep 0.5",
                             "choose cboGraph Intensity v. wavelength\nset cboStep 20",
                             "choose cboGraph Intensity v. scattering angle\nset cboStep 2\nset cboWave 3"}) {
    Do(std::string(inputs) + "\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << LastText();
    ASSERT_FALSE(Drawn().curves.empty()) << inputs;
  }
}

TEST_F(Beams, WhatIsTooLargeIsToldAndNothingIsLost) {
  Do("set cboStep 1\nclick cmdNewPlot");
  const auto* before = Last();
  Gaussian("txtBeamYF=0");
  Do("set txtRadius 30000\ndialog dlogGaussianBeam ok\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error in MIE_Gaussian sub-routine");
  EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  EXPECT_EQ(Last(), before);
}

TEST_F(Beams, TablesHaveTheRowsOnShow) {
  Gaussian("txtBeamYF=0 txtBeamWo=5");
  Do("set txtXmin 150\nset txtXmax 160\nset cboStep 1");
  Plot();
  output.str("");
  Do("table");
  EXPECT_TRUE(Holds(output.str(), "\n150,")) << output.str();
  EXPECT_TRUE(Holds(output.str(), "\n160,")) << output.str();
  Do("set txtXmin -180\nset txtXmax 180");
  Plot();
  Do("set txtXmin -30\nset txtXmax 30\nclick cmdReplot");
  output.str("");
  Do("amplitudes");
  EXPECT_TRUE(Holds(output.str(), "\n-30,") && Holds(output.str(), "\n30,") && !Holds(output.str(), "\n-31,"));
}

TEST_F(Beams, UnderTheSunAWideBeamIsAPlaneWave) {
  Do("click optSun\nset txtXmin 20\nset txtXmax 30\nset cboStep 0.1");
  Plot();
  const PageCurve plane = Drawn().curves.back();
  Gaussian("txtBeamYF=0 txtBeamWo=1e6");
  Plot();
  const PageCurve& wide = Drawn().curves.back();
  int same = 0, without = 0;
  for (std::size_t i = 1; i < wide.x.size(); ++i) {
    // The ends have no neighbours on one side.
    if (!std::isfinite(wide.y[i])) ++without;
    for (std::size_t j = 1; j < plane.x.size() && std::isfinite(wide.y[i]); ++j) {
      if (!(std::fabs(plane.x[j] - wide.x[i]) < 1e-6)) continue;
      EXPECT_NEAR(wide.y[i], plane.y[j], 1e-6 * plane.y[j]) << wide.x[i];
      ++same;
    }
  }
  EXPECT_EQ(same, 97);
  EXPECT_EQ(without, 4);
}

TEST_F(Beams, ATypedMmaxLeavesEachSphereItsLmax) {
  Gaussian("txtBeamYF=0 txtBeamWo=50");
  Do("choose cboGraph Intensity v. radius\nset txtAngle 40\nset txtXmin 10\nset txtXmax 20\nset cboStep 2");
  Plot();
  const std::vector<double> whole = Drawn().curves.back().y.All();
  Do("click mnuHidden\ndialog dlogMmax ok txtMmax=6\nclick cmdNewPlot");
  for (std::size_t i = 1; i < whole.size(); ++i) EXPECT_NEAR(Drawn().curves.back().y[i], whole[i], 1e-9 * whole[i]);
}

TEST_F(Beams, WarningsAndLimitsLookAtAllThatIsSwept) {
  Gaussian("txtBeamYF=0 txtBeamWo=2");
  Do("choose cboGraph Intensity v. radius\nset txtXmin 10\nset txtXmax 100\nset cboStep 10\n"
     "dialog dlogGaussianBeam cancel\nclick cmdNewPlot");
  EXPECT_EQ(Number("CommandAborted"), 1);
  EXPECT_TRUE(Holds(OfBeam("lblWarning"), "Set w0 > 4.5486")) << OfBeam("lblWarning");
  // A beam that meets nothing, and a sphere beyond all limits, are told at once.
  Do("reset\nset cboStep 1");
  Gaussian("txtBeamWo=5 txtBeamYF=-1000");
  Do("click cmdNewPlot");
  EXPECT_TRUE(Holds(LastText(), "does not reach the sphere")) << LastText();
  Do("set txtRadius 25000\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Error in MIE_Gaussian sub-routine");
}

}  // namespace
}  // namespace lumivex
