#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "pages/page_table.h"
#include "pages/read_out.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class MethodInputs : public ScriptedSession {
 protected:
  /// Messages of a New plot after these lines.
  std::vector<std::string> Told(const std::string& lines) {
    Do(lines);
    runner.World().messages.clear();
    Do("click cmdNewPlot");
    std::vector<std::string> texts;
    for (const auto& message : Shown()) texts.push_back(message.text);
    return texts;
  }
  MainFormState& State() { return runner.Current().state; }

  using Texts = std::vector<std::string>;
  const std::string complexIndex = "Complex values of refractive index are not valid for this calculation method";
  const std::string suppressed =
      "Debye rays for p > 0 are suppressed by high absorption in the sphere due to the large imaginary value of the "
      "refractive index";
};

TEST_F(MethodInputs, AMethodWithoutAbsorptionTakesItOutOfEveryWaterModel) {
  for (const char* material : {"click mnuRI_Segelstein", "click mnuRI_Ray", "click mnuRI_IAPWS", "click mnuRI_Perm1"}) {
    SCOPED_TRACE(material);
    Do("reset");
    EXPECT_EQ(Told(std::string(material) + "\nchoose cboType Rayleigh\nset txtRadius 0.01"), Texts{complexIndex});
    EXPECT_EQ(Number("RefRelImag"), 0);
    EXPECT_EQ(Told(""), Texts{}) << "accepted at the second time";
    EXPECT_EQ(Number("RefRelImag"), 0);
    // The boxes of water come back with the defaults.
    Do("choose cboType Mie\nclick cmdDefault");
    EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
    EXPECT_EQ(Get("dlogSegelstein.chkRI_Complex") + Get("dlogRay.chkRI_Complex"), "truetrue");
  }
}

TEST_F(MethodInputs, AMetalIsRefusedWhereAbsorptionIsNotKnown) {
  for (int time = 1; time <= 2; ++time) {
    EXPECT_EQ(Told("choose cboType Rayleigh\nset txtRadius 0.01\nclick mnuRI_Au"), Texts{complexIndex}) << time;
    EXPECT_EQ(Get("txtRefractImag.BackColour"), "255");
    EXPECT_GT(Number("txtRefractImag"), 3) << "gold keeps its k";
  }
  // Over an axis of wavelength it is the material that counts, not the field with its last wavelength.
  EXPECT_EQ(Told("choose cboGraph Intensity v. wavelength\nset cboStep 10\nset txtRadius 0.01"), Texts{complexIndex});
  EXPECT_EQ(Told(""), Texts{});
}

TEST_F(MethodInputs, DebyeIsRefusedByTheAbsorptionOfTheRun) {
  // The field still shows the k of water: an index of its own has only a single wavelength.
  EXPECT_EQ(Told("set cboWave 7\nset cboStep 1\nclick mnuRI_Au\nchoose cboType Debye\nset txtRadius 100"),
            Texts{suppressed});
  EXPECT_EQ(Get("lblSphere.BackColour"), "255");
  EXPECT_EQ(Told("click mnuRI_IAPWS\nset cboRays 2"), Texts{});
  // Against size the smallest sphere decides, whatever radius stands in the hidden field.
  EXPECT_EQ(Told("set txtRadius 1000\nchoose cboGraph Qext/Qsca/Qabs v. radius\nclick mnuRI_Au\nset cboStep 20"),
            Texts{});
  EXPECT_TRUE(std::ranges::all_of(State().Iperp, [](double Q) { return std::isfinite(Q); }));
  EXPECT_EQ(Told("set txtXmin 50"), Texts{suppressed});
}

TEST_F(MethodInputs, RayleighWarnsOnAxesByTheLargestSphere) {
  const Texts warning = {"Rayleigh approximation is valid only when r << wavelength"};
  EXPECT_EQ(Told("choose cboType Rayleigh\nset txtRefractImag 0\nset txtRadius 0.05"), Texts{}) << "a thirteenth";
  EXPECT_EQ(Told("choose cboGraph Intensity v. radius\nset txtRefractImag 0"), warning);
  EXPECT_EQ(Told("set txtXmin 0.001\nset txtXmax 0.05\nset cboStep 0.001"), Texts{});
  EXPECT_EQ(Told("choose cboGraph Qext/Qsca/Qabs v. diameter\nset txtRefractImag 0\nset txtXmax 0.1"), Texts{});
  EXPECT_EQ(Told("set txtXmax 0.11"), warning);
  EXPECT_EQ(Told("choose cboGraph Intensity v. size parameter x\nset txtRefractImag 0"), warning);
  EXPECT_EQ(Told("set txtXmin 0.01\nset txtXmax 0.4\nset cboStep 0.01"), Texts{});
  EXPECT_EQ(Told("choose cboGraph Intensity v. wavelength\nset txtRefractImag 0\nset cboStep 10\nset txtRadius 0.04"),
            warning);
  EXPECT_EQ(Told("set txtXmin 521"), Texts{});
}

TEST_F(MethodInputs, TooManyPointsAreToldInTheWordsOfTheGraph) {
  EXPECT_EQ(Told("choose cboGraph Qext/Qsca/Qabs v. radius\nclick mnuXStepLog\nset cboStep 0.001"),
            Texts{"Increase the step size or reduce the maximum/minimum range"});
  EXPECT_EQ(Told("click mnuXStepLog\nset cboStep 18001"), Texts{"Select a larger step size"});
  EXPECT_EQ(Told("choose cboGraph Intensity v. radius\nset cboStep 0.001"), Texts{"Select a larger step size"});
}

TEST_F(MethodInputs, TermsOfOneSeriesHaveNoDifference) {
  Do("choose cboType Debye\nclick mnuConvergence\nclick cmdNewPlot");
  const std::vector<double> plain = State().Iperp;
  for (const char* entry : {"mnuMieDebye", "mnuGODebye", "mnuSWsub"}) {
    EXPECT_EQ(Told(std::string("click ") + entry), Texts{});
    EXPECT_EQ(Get("lblDebyeRays"), "Debye series (p = 2)") << entry;
    EXPECT_EQ(State().Iperp, plain) << entry;
  }
  Do("dialog dlogDebyeSeq ok txtLimit=3\nclick mnuDebyeSequence");
  EXPECT_EQ(Told(""), Texts{});
  EXPECT_EQ(Get("lblDebyeRays"), "Debye series (p = 0 to 3)");
  Do("choose cboGraph Intensity v. scattering angle\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_EQ(Get("lblDebyeRays"), "Debye series - GO (p = 2)") << "other graphs take it up again";
}

TEST_F(MethodInputs, ConvergenceEndsAtTheIntensityOfExactlyThatAngle) {
  Do("set txtRefractReal 1.33\nset txtAngle 137.96\nclick mnuKeepParameters\nclick mnuConvergence\nclick cmdNewPlot");
  const double perpendicular = State().Iperp.back(), parallel = State().Ipar.back();
  Do("choose cboGraph Intensity v. radius\nset txtXmin 10\nset txtXmax 11\nset cboStep 0.4\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_NEAR(State().Iperp[1] / perpendicular, 1, 1e-9);
  EXPECT_NEAR(State().Ipar[1] / parallel, 1, 1e-9);
  EXPECT_EQ(Told("click mnuConvergence\nclick optDisp"),
            Texts{"This graph type is available only for monodisperse calculations"});
}

TEST_F(MethodInputs, WavelengthsStandAsTheirInverse) {
  Do("choose cboGraph Intensity v. wavelength\nset txtRefractReal 1.33\nset cboStep 1\nclick cmdNewPlot");
  const std::vector<double> plain = State().Iperp;
  Do("click mnuInvWavelength");
  const double k = 2 * 3.14159265358979324 / 0.4e-6;
  EXPECT_DOUBLE_EQ(State().XValues[1], 2.5);
  EXPECT_NEAR(State().Iperp[1] * k * k / plain[1], 1, 1e-12);
  const Page& page = runner.Current().page;
  EXPECT_DOUBLE_EQ(page.panels[0].limits.xmin, 1000.0 / 700);
  EXPECT_DOUBLE_EQ(page.panels[0].limits.xmax, 2.5);
  const PageCurve& curve = page.curves.back();
  EXPECT_TRUE(std::is_sorted(curve.x.begin() + 1, curve.x.end()));
  EXPECT_EQ(curve.y.All().back(), State().Iperp[1]);
  EXPECT_EQ(TableOf(page)[0].name, "Inverse wavelength (1/\u00B5m)");
  const auto reading = ReadAt(page, page.panels[0].box.left + 900, page.panels[0].box.top + 900);
  ASSERT_TRUE(reading);
  EXPECT_NE(reading->text.find("1/\u00B5m"), std::string::npos) << reading->text;
  Do("click mnuInvWavelength");
  EXPECT_EQ(State().Iperp, plain);
  EXPECT_EQ(State().XValues[1], 400);
}

/// The intensity that a reading tells; 0 where it is not there.
double Reading(const Page& page, const std::string& name) {
  for (const PageLine& line : page.readings)
    if (line.text.starts_with(name)) return Val(line.text.substr(name.size()));
  return 0;
}

TEST_F(MethodInputs, ReadingsOfTheEndsAreThoseOfTheRowsOnShow) {
  for (const char* lines : {"", "click mnuSize", "choose cboType Debye", "choose cboType Debye\nclick mnuMieDebye",
                            "choose cboType Debye\nclick mnuGODebye"}) {
    SCOPED_TRACE(lines);
    Do("reset");
    Do(std::string(lines) + "\nset cboStep 1\nclick cmdNewPlot");
    const auto& s = State();
    const auto last = static_cast<std::size_t>(s.NN);
    const double forward = (s.Iperp[1] + s.Ipar[1]) / 2, backward = (s.Iperp[last] + s.Ipar[last]) / 2;
    EXPECT_NEAR(Reading(runner.Current().page, "  0 deg: ") / forward, 1, 5e-3);
    EXPECT_NEAR(Reading(runner.Current().page, "  180 deg: ") / backward, 1, 5e-3);
  }
  // A graph that leaves the ends out has those of the sphere, but none of a difference.
  Do("reset\nset cboStep 1\nset txtXmin 10\nset txtXmax 170\nclick cmdNewPlot");
  EXPECT_NEAR(Reading(runner.Current().page, "  0 deg: "), 2.18e7, 1e5);
  Do("choose cboType Debye\nclick mnuMieDebye\nclick cmdNewPlot");
  EXPECT_EQ(Reading(runner.Current().page, "  0 deg: "), 0);
}

}  // namespace
}  // namespace lumivex
