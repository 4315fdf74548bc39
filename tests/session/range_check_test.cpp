#include "session/checks/range_check.h"

#include <gtest/gtest.h>

#include <functional>

#include "session/inputs/graph_types.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

/// One way to break a rule: what is done to a fresh session, and what must be marked, titled and told.
struct RuleCase {
  const char* name;
  std::function<void(Session&)> provoke;
  const char* marked;  ///< an input that turns red, or ""
  const char* title;
  const char* text;
  bool ends = true;
};

void Graph(Session& session, int type, int subType) {
  session.state.GraphType = type;
  session.state.GraphSubType = subType;
}

const RuleCase ruleCases[] = {
    {"coated graph",
     [](Session& s) {
       s.state.CalcMethod = Method::CoatedSphere;
       Graph(s, 11, 1);
       s.form1.cboGraph.Text = "Intensity v. radius";
     },
     "", "Error", "Coated sphere calculations are not available for graph type Intensity v. radius"},
    {"core beyond the whole",
     [](Session& s) {
       s.state.CalcMethod = Method::CoatedSphere;
       s.forms.dlogCoatedSphere.txtCoreRadius.Text = "10";
     },
     "", "Input error", "The radius of the core must be less than the radius of the overall particle"},
    {"beam with Descartes",
     [](Session& s) {
       s.state.CalcMethod = Method::Descartes;
       s.form1.mnuGaussian.Checked = true;
     },
     "", "Error: Gaussian beam",
     "Gaussian beam calculations are available only for Mie, Debye, Descartes, Young and Young mod calculation "
     "methods"},
    {"top hat with Mie", [](Session& s) { s.form1.mnuTopHat.Checked = true; }, "", "Error: Top hat beam",
     "Top hat beam calculations are available only for Descartes, Young and Young mod calculation methods"},
    {"negative k", [](Session& s) { s.form1.txtRefractImag.Text = "-1"; }, "", "Input error",
     "Imaginary value of RI must NOT be negative", false},
    {"no method", [](Session& s) { s.state.CalcMethod = Method::None; }, "cboType", "Input error",
     "Unknown calculation method"},
    {"one log step",
     [](Session& s) {
       Graph(s, 11, 1);
       s.form1.mnuXStepLog.Checked = true;
       s.form1.cboStep.Text = "1";
     },
     "cboStep", "Input error", "Number of steps must be 1 or more"},
    {"map order",
     [](Session& s) {
       Graph(s, 26, 1);
       s.form1.txtF9_min.Text = "2";
     },
     "txtF9_min", "Input error", "Minimum value must be less than maximum value"},
    {"map steps",
     [](Session& s) {
       Graph(s, 26, 1);
       s.form1.txtF9_step.Text = "1";
     },
     "txtF9_step", "Input error", "Number of steps must be greater than 1"},
    {"narrow distribution",
     [](Session& s) {
       Graph(s, 11, 1);
       s.form1.mnuXStepLog.Checked = s.form1.optDisp.Checked = true;
       s.form1.txtXmin.Text = "1";
       s.form1.txtXmax.Text = "100";
       s.form1.cboStep.Text = "10";
       s.form1.cboSD.Text = "1";
     },
     "", "Input error", "Increase the Standard Deviation to at least 58.6%"},
    {"polar range",
     [](Session& s) {
       s.form1.mnuPolarPlot.Checked = true;
       s.form1.txtXmax.Text = "90";
     },
     "", "Option not available",
     "Polar plots are available only when scattering angles\ncover entire range from 0 to 180 degrees", false},
    {"interpolated colours",
     [](Session& s) {
       s.form1.mnuInterpolate.Checked = true;
       s.state.NumberWavelengths = 3;
       s.form1.cboWave.Text = "3";
     },
     "", "Input error", "Cubic interpolation is implemented only for 1 wavelength or for more than 7 wavelengths",
     false},
    {"colours of a phase function",
     [](Session& s) {
       Graph(s, 1, 2);
       s.state.NumberWavelengths = 3;
       s.form1.cboWave.Text = "3";
     },
     "cboGraph", "Input error", "This graph type is available only for single wavelength calculations"},
    {"disperse matrix",
     [](Session& s) {
       Graph(s, 1, 5);
       s.form1.optDisp.Checked = true;
       s.form1.cboDistrib.Text = "Haze";
     },
     "cboGraph", "Input error", "This graph type is available only for monodisperse calculations"},
    {"albedo of rays",
     [](Session& s) {
       Graph(s, 17, 1);
       s.state.CalcMethod = Method::Young;
     },
     "cboGraph", "Input error", "Selected graph type is available only for Mie and Debye calculations"},
    {"convergence of rays",
     [](Session& s) {
       Graph(s, 13, 1);
       s.state.CalcMethod = Method::Young;
     },
     "cboGraph", "Input error", "Selected graph type is available only for Mie calculations"},
    {"gold in the infrared",
     [](Session& s) {
       s.form1.mnuRI_IAPWS.Checked = false;
       s.form1.mnuRI_Au.Checked = true;
       s.form1.txtLambda.Text = "3";
     },
     "txtLambda", "Refractive index of Gold",
     "The values for refractive index of Gold are valid only for the 188 - 1934 nm band"},
    {"water on a wide axis",
     [](Session& s) {
       Graph(s, 15, 1);
       s.form1.txtXmin.Text = "100";
       s.form1.txtXmax.Text = "900";
     },
     "txtXmin", "Refractive index of water",
     "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band"},
    {"axis beyond the equation",
     [](Session& s) {
       Graph(s, 15, 1);
       s.form1.mnuRI_IAPWS.Checked = false;
       s.form1.mnuRI_Formula.Checked = true;
       s.forms.dlogRI_Formula.txtLambdaMin.Text = "0.3";
       s.forms.dlogRI_Formula.txtLambdaMax.Text = "2.5";
       s.state.Sellmeier.lowest = 0.3;
       s.state.Sellmeier.highest = 2.5;
       s.form1.txtXmin.Text = "200";
       s.form1.txtXmax.Text = "900";
     },
     "", "Refractive index calculations",
     "Wavelength range is beyond the specified limits for mthe Sellmeier equation for Schott BK7\nChange the range of "
     "wavelengths or select \"Ignore warnings\" in next dialog box"},
    {"file at one wavelength",
     [](Session& s) {
       s.form1.mnuRI_IAPWS.Checked = false;
       s.form1.mnuRI_File1.Checked = true;
       s.state.FileFirst1 = 0.7F;
       s.state.FileLast1 = 1.25F;
       s.state.FileName1 = "Testite";
     },
     "txtLambda", "Refractive index of Testite",
     "Values for refractive index of Testite are valid only for the band 700 - 1250 nm (0.7 - 1.25 \u00B5m)"},
    {"sunlight beyond its table",
     [](Session& s) {
       s.state.NumberWavelengths = 10;
       s.form1.cboWave.Text = "10";
       s.forms.dlogSpectrumBand.txtSpectrumMax.Text = "720";
     },
     "lblSpectrumBand", "Spectrum of sunlight", "Lee's spectrum of sunlight is valid only for 380 nm to 700 nm band"},
    {"Wernand's sun beyond its table",
     [](Session& s) {
       s.state.NumberWavelengths = 10;
       s.form1.cboWave.Text = "10";
       s.form1.mnuSpectrumLee.Checked = false;
       s.form1.mnuSpectrumWernand.Checked = true;
       s.forms.dlogSpectrumBand.txtSpectrumMin.Text = "340";
     },
     "lblSpectrumBand", "Spectrum of sunlight",
     "Wernand's spectrum of sunlight is valid only for 350 nm to 1000 nm band"},
    {"phases of a spectrum",
     [](Session& s) {
       s.state.NumberWavelengths = 3;
       s.form1.cboWave.Text = "3";
       s.form1.mnuAmpPhase.Checked = true;
     },
     "cboGraph", "Input error", "This graph type is available only for single wavelength calculations"},
    {"more intensities than are stored",
     [](Session& s) {
       s.state.NumberWavelengths = 2000;
       s.form1.cboWave.Text = "2000";
       s.form1.cboStep.Text = "0.01";
     },
     "cboStep", "Input error", "Increase the step size or reduce the maximum/minimum range"},
    {"no number of colours", [](Session& s) { s.form1.cboWave.Text = "many"; }, "cboWave", "Input error",
     "    The red highlighted data entry is incorrect.    "},
    {"text for a number", [](Session& s) { s.form1.txtRadius.Text = "x"; }, "txtRadius", "Input error",
     "    The red highlighted data entry is incorrect.    "},
    {"angle beyond",
     [](Session& s) {
       Graph(s, 11, 1);
       s.form1.txtAngle.Text = "181";
     },
     "txtAngle", "Input error", "Scattering angle > 180"},
    {"Lee steps",
     [](Session& s) {
       Graph(s, 20, 1);
       s.form1.cboGraph.Text = "Lee diagram: radius";
       s.form1.txtRstep.Text = "2.5";
     },
     "txtRstep", "Input error", "Number of steps not valid"},
    {"too many colours", [](Session& s) { s.form1.cboWave.Text = "2001"; }, "cboWave", "Input error",
     "Maximum number of colors = 2000"},
    {"Lee distribution",
     [](Session& s) {
       Graph(s, 20, 1);
       s.form1.optDisp.Checked = true;
       s.form1.cboDistrib.Text = "Gamma";
     },
     "cboDistrib", "Input error", "Log-normal distribution must be used for Lee diagrams"},
    {"Rayleigh with absorption",
     [](Session& s) {
       s.state.CalcMethod = Method::Rayleigh;
       s.form1.txtRadius.Text = "0.01";
     },
     "", "Input error", "Complex values of refractive index are not valid for this calculation method", false},
    {"Debye without p",
     [](Session& s) {
       s.state.CalcMethod = Method::Debye;
       s.form1.cboRays.Text = "";
     },
     "cboRays", "Input error", "Specify a value for p"},
    {"dark Debye",
     [](Session& s) {
       s.state.CalcMethod = Method::Debye;
       s.form1.txtRefractImag.Text = "1.1";
     },
     "txtRefractImag", "Debye series",
     "Debye rays for p > 0 are suppressed by high absorption in the sphere due to the large imaginary value of the "
     "refractive index"},
    {"Airy p",
     [](Session& s) {
       s.state.CalcMethod = Method::Airy;
       s.form1.txtRefractImag.Text = "0";
       s.form1.cboRays.Text = "1";
     },
     "cboRays", "Input error", "Airy theory is valid only for p > 1"},
    {"diffraction index",
     [](Session& s) {
       s.state.CalcMethod = Method::Diffraction;
       s.form1.txtRefractReal.Text = "0.9";
     },
     "txtRefractReal", "Input error", "Refractive index must be greater than 1 for this calculation method"},
    {"surface wave",
     [](Session& s) {
       s.state.CalcMethod = Method::SurfaceWave;
       s.form1.cboQmin.Text = "5";
       s.form1.cboQmax.Text = "4";
     },
     "cboQmin", "Input error", "Jmin > Jmax"},
    {"radius order",
     [](Session& s) {
       Graph(s, 11, 1);
       s.form1.txtXmin.Text = "5";
       s.form1.txtXmax.Text = "2";
     },
     "txtXmax", "Input error", "Minimum value of radius must be less than maximum value"},
    {"size from zero",
     [](Session& s) {
       Graph(s, 11, 2);
       s.form1.txtXmin.Text = "0";
     },
     "txtXmin", "Input error", "Size parameter x must be > 0"},
    {"coarse wavelengths",
     [](Session& s) {
       Graph(s, 10, 1);
       s.form1.txtXmin.Text = "400";
       s.form1.txtXmax.Text = "700";
       s.form1.cboStep.Text = "200";
     },
     "cboStep", "Input error", "Select a smaller step size"},
    {"fine wavelengths",
     [](Session& s) {
       Graph(s, 10, 1);
       s.form1.txtXmin.Text = "400";
       s.form1.txtXmax.Text = "700";
       s.form1.cboStep.Text = "0.01";
     },
     "cboStep", "Input error", "Select a larger step size"},
    {"sun on an axis",
     [](Session& s) {
       Graph(s, 11, 1);
       s.form1.txtXmin.Text = "1";
       s.form1.optSun.Select();
     },
     "", "Input parameters", "Point source only for these calculations", false},
    {"many Lee columns",
     [](Session& s) {
       Graph(s, 20, 1);
       s.form1.txtRstep.Text = "401";
     },
     "txtRstep", "Input error", "Maximum number of steps = 400"},
    {"coarse sun",
     [](Session& s) {
       s.form1.optSun.Select();
       s.form1.cboStep.Text = "0.25";
     },
     "", "Warning . . .", "Sun requires angular resolution < 0.25 degrees", false},
    {"sun without a step",
     [](Session& s) {
       s.form1.optSun.Select();
       s.form1.cboStep.Text = "0";
     },
     "", "Input error", "Value must be > 0"},
    {"large Rayleigh sphere",
     [](Session& s) {
       s.state.CalcMethod = Method::Rayleigh;
       s.form1.txtRefractImag.Text = "0";
       s.form1.txtRadius.Text = "0.065";
     },
     "", "Input error", "Rayleigh approximation is valid only when r << wavelength", false},
    {"odd step", [](Session& s) { s.form1.cboStep.Text = "7"; }, "cboStep", "Input error",
     "Must be a sub-multiple of 90 degrees"},
    {"angles reversed",
     [](Session& s) {
       s.form1.txtXmin.Text = "100";
       s.form1.txtXmax.Text = "50";
     },
     "txtXmin", "Input error", "Minimum angle > Maximum angle"},
    {"limits reversed",
     [](Session& s) {
       s.form1.cboYmin.Text = "100";
       s.form1.cboYmax.Text = "10";
     },
     "cboYmax", "Input error", "Minimum amplitude > Maximum amplitude"},
    {"limits equal",
     [](Session& s) {
       s.form1.cboYmin.Text = "10";
       s.form1.cboYmax.Text = "10";
     },
     "cboYmin", "Input error", "Minimum amplitude = Maximum amplitude"},
};

class RangeRules : public ScriptedSession {};

TEST_F(RangeRules, EachMarksTitlesTellsAndEndsOrGoesOn) {
  for (const auto& c : ruleCases) {
    SCOPED_TRACE(c.name);
    Do("reset");
    runner.World().messages.clear();
    Session& session = runner.Current();
    c.provoke(session);
    ShowFamilyInputs(session);
    double Xmin = 0, Xmax = 0, Ymin = 0, Ymax = 0;
    int abort = 0;
    RangeCheck(session, Xmin, Xmax, Ymin, Ymax, abort);
    ASSERT_EQ(Shown().size(), 1U) << (Shown().size() > 1 ? Shown()[1].text : "");
    EXPECT_EQ(LastTitle(), c.title);
    EXPECT_EQ(LastText(), c.text);
    EXPECT_EQ(abort, c.ends ? 1 : 0);
    if (*c.marked != 0) {
      EXPECT_EQ(Get(std::string(c.marked) + ".BackColour"), "255");
    }
  }
}

// A rule that speaks and lets the run go on would leave numbers of other inputs than those that stand there.
TEST_F(RangeRules, NothingIsCalculatedWithNumbersThatAreRefused) {
  for (const char* lines :
       {"choose cboType Debye\nset cboRays 1e9", "choose cboType Debye\nset cboRays -1e9",
        "choose cboType Debye\nset cboRays 2.5", "click optDisp\nset cboSD -1", "click mnuHuygens\nset txtAngle 0",
        "click mnuHuygens\nset txtAngle 1e6", "set cboYmax x", "set cboYmin x", "set txtXmin -1", "set cboStep 0",
        "set cboWave 0", "set txtLambda 0", "set txtXmin 90\nset txtXmax 80", "set cboYmin 5\nset cboYmax 4"}) {
    Do("reset");
    runner.World().messages.clear();
    Do(std::string(lines) + "\nset txtRadius 3\nclick cmdNewPlot");
    EXPECT_EQ(Shown().size(), 1U) << lines;
    EXPECT_EQ(Number("Radius"), 10) << lines;
  }
}

TEST_F(RangeRules, TheFirstRuleOfTheOrderSpeaks) {
  Do("set txtRadius x\nset cboStep 7\nset cboYmin 10\nset cboYmax 10\nclick cmdNewPlot");
  ASSERT_EQ(Shown().size(), 1U);
  EXPECT_EQ(LastText(), "    The red highlighted data entry is incorrect.    ");
  EXPECT_EQ(Get("cboStep.BackColour"), "16777215");
}

TEST_F(RangeRules, NumbersAreWrittenBackClean) {
  Do("set txtRadius   +0012.50\nset txtLambda 0.5e0\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("txtRadius"), "12.50");
  EXPECT_EQ(Number("Radius"), 12.5);
}

// A logarithm has no 0 at either end; a linear scale has, and is what is chosen then.
TEST_F(RangeRules, LimitsOfTheAmplitudeScaleSuitIt) {
  struct Case {
    const char *lines, *message, *marked;
  };
  for (const auto& c :
       {Case{"set cboYmin 0", "Minimum amplitude <= 0 not valid for logarithmic scale", "cboYmin"},
        Case{"set cboYmax 0", "Maximum amplitude <= 0 not valid for logarithmic scale", "cboYmax"},
        Case{"set cboYmin -1\nset cboYmax -2", "Minimum amplitude <= 0 not valid for logarithmic scale", "cboYmin"},
        Case{"set cboYmin 1\nset cboYmax -2", "Maximum amplitude <= 0 not valid for logarithmic scale", "cboYmax"}}) {
    SCOPED_TRACE(c.lines);
    Do("reset\nset cboStep 5\nclick OptLog");
    runner.World().messages.clear();
    Do(std::string(c.lines) + "\nclick cmdNewPlot");
    ASSERT_EQ(Shown().size(), 1U);
    EXPECT_EQ(LastText(), c.message);
    EXPECT_EQ(Get(std::string(c.marked) + ".BackColour"), "255");
    EXPECT_EQ(Get("optLinear"), "true") << "there the limit is good";
  }
  for (const char* good :
       {"click OptLog\nset cboYmin 1e-9", "click OptLog\nset cboYmax 1e-9", "click optLinear\nset cboYmin 0",
        "click optLinear\nset cboYmin -5\nset cboYmax 0", "click OptLog\nset cboYmin 1\nset cboYmax 1.001"}) {
    SCOPED_TRACE(good);
    Do("reset\nset cboStep 5");
    runner.World().messages.clear();
    Do(std::string(good) + "\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << LastText();
  }
}

}  // namespace
}  // namespace lumivex
