#include "files/batch/batch_block.h"

#include <gmock/gmock.h>

#include "files/batch_fixture.h"
#include "record/catalogue/graph_texts.h"

namespace lumivex {
namespace {

using testing::HasSubstr;
using testing::Not;

class BatchBlocks : public BatchSession {
 protected:
  /// What a batch of one run writes of the present inputs.
  std::string Block(const std::string& commands = "") {
    EXPECT_EQ(Run(commands + "run\n"), BatchEnd::Done) << LastText();
    return Content("job.mut");
  }
  static std::string WithoutDate(std::string text) {
    const auto at = text.find("Date & Time: ") + 13;
    return text.replace(at, text.find('\n', at) - at, "NOW");
  }
  /// Chooses a graph with some ten points along its axis, and a material that has an index everywhere.
  void ChooseWithFewPoints(const std::string& graph) {
    Do("choose cboGraph " + graph);
    const auto& form = runner.Current().form1;
    const Graph& chosen = ChosenGraph(runner.Current().state);
    if (form.txtXmin.Visible && !chosen.InColour()) {
      const double range = Val(form.txtXmax.Text) - Val(form.txtXmin.Text);
      const bool whole = form.mnuXStepLog.Checked || chosen.axis == AxisVariable::Number;
      Do("set cboStep " + (whole ? "10" : Shortest(range / 10)));
    }
    if (chosen.WavelengthAxis()) Do("set txtRefractReal 1.33\nset txtRefractImag 0");
  }
  static double Field(const std::vector<double>& values, int row) { return values[static_cast<std::size_t>(row)]; }
};

// A range from 0 began at the 1E-12 that stands in its place, and the sphere had the name of a material.
TEST_F(BatchBlocks, OfAMapOfIndicesTellsItsRangeAsItWasTyped) {
  Do("choose cboGraph Map: Q v. Real RI & Imag RI\nset txtXmin 0\nset txtXmax 0.5\nset cboStep 2\nset txtF9_step 2");
  const std::string text = Block();
  EXPECT_THAT(text, HasSubstr("\nSphere: \tVariable refractive index\n"));
  EXPECT_THAT(text, HasSubstr("\tImaginary part: \t0 to 0.5\n"));
}

TEST_F(BatchBlocks, OfASphereInLayersTellsWhatIsWithin) {
  Do("dialog dlogCoatedSphere ok txtCoreRadius=2 txtMantleRadius=3 chkDebye=on optPQR=on cboRays=q1r1\n"
     "choose cboType Coated sphere\nset cboStep 90");
  const std::string coated = Block();
  EXPECT_THAT(coated, HasSubstr("\nCore: \tRadius: \t2\t um\tReal part: \t1.5\tImaginary part: \t0\n"));
  EXPECT_THAT(coated, HasSubstr("\nRay paths: \tq1r1: "));
  Do("dialog dlogInhomSphere ok optCosine=on cboLayers=16\nchoose cboType Inhomogeneous sphere\nset cboStep 90");
  const std::string profile = Block();
  EXPECT_THAT(profile, HasSubstr("\nLayers: \t16\tnew code\n"));
  EXPECT_THAT(profile, Not(HasSubstr("Core: ")));
}

TEST_F(BatchBlocks, OfOneSphereStandsWordForWord) {
  const std::string text = WithoutDate(Block("xmin\n10\nxmax\n11\nxstep\n0.5\n"));
  const auto& s = runner.Current().state;
  std::string rows;
  for (int row = 21; row <= 23; ++row)
    rows += Shortest(Field(s.XValues, row)) + "\t" + Shortest(Field(s.Iperp, row)) + "\t" +
            Shortest(Field(s.Ipar, row)) + "\t" + Shortest(Field(s.Iunpol, row)) + "\n";
  EXPECT_EQ(text,
            "Lumivex v4.1\n\n"
            "Date & Time: NOW\n\n"
            "Calculation Method: Mie (plane wave)\n\n"
            "Sphere: \tWater\nMedium: \ta vacuum\n\n"
            "Refractive index (sphere)\tReal part: \t" +
                Significant(s.SphereRIReal, 10) + "\tImaginary part: \t" + Significant(s.SphereRIImag, 10) +
                "\n\n"
                "Refractive index (medium)\t1\n\n"
                "Wavelength: \t0.65\t um\n\n"
                "Radius: \t10\t um\tSize parameter x: \t96.6644\n\n"
                "Graph type: \tIntensity v. scattering angle\n\n"
                "Angle\tPerpendicular\tParallel\tUnpolarised\n" +
                rows +
                "\n"
                "******************************************\n\n");
}

TEST_F(BatchBlocks, AxesHaveTheIndexBesideTheCurves) {
  std::string text = Block("Intensity v. wavelength\nxmin\n400\nxmax\n410\nxstep\n1\nAngle\n138\n");
  EXPECT_THAT(text, HasSubstr("Wavelength: \t0.4 to 0.41\t um\n\n"));
  EXPECT_THAT(text, HasSubstr("\nRadius: \t10\t um\n\nGraph type: \tIntensity v. wavelength\n\n"));
  EXPECT_THAT(text, HasSubstr("Scattering angle = 138\nWavelength\tRef Index (real)\tRef Index (imaginary)\t"
                              "Perpendicular\tParallel\tUnpolarised\n400\t1.34"));
  Do("click mnuInvWavelength");
  EXPECT_THAT(Block(), HasSubstr("Unpolarised\n400\t1.34")) << "wavelengths stay wavelengths";
  text = Block("Intensity v. size parameter x\nxmin\n1\nxmax\n11\nxstep\n0.5\n");
  EXPECT_THAT(text, HasSubstr("Size parameter x: \t1 to 11\n\nWavelength: \t"));
}

TEST_F(BatchBlocks, EveryGraphWritesItsRows) {
  for (const auto& row : GraphTable()) {
    if (!IsAvailable(row.feature)) continue;
    const std::string graph(row.text);
    SCOPED_TRACE(graph);
    Do("reset");
    if (GraphOf(row.code).family == Family::DebyeAnalysis) Do("choose cboType Debye\nset txtRefractImag 0");
    const bool bows = GraphOf(row.code).quantity == Quantity::BowAngle;
    if (bows) Do("dialog dlogNonSpherical ok\nclick mnuBowClock\nset cboStep 45");
    if (!bows) ChooseWithFewPoints(graph);
    const std::string text = Block();
    EXPECT_THAT(text, HasSubstr("\nGraph type: \t" + graph + "\n\n"));
    EXPECT_THAT(text, testing::EndsWith("\n******************************************\n\n"));
    // Rows have as many cells as their heading.
    const auto rows = text.substr(text.find("Graph type: "));
    std::istringstream lines(rows);
    std::ptrdiff_t cells = 0, count = 0;
    for (std::string line; std::getline(lines, line);) {
      const auto tabs = std::ranges::count(line, '\t');
      const bool heading = !line.empty() && std::isalpha(static_cast<unsigned char>(line[0])) != 0;
      if (heading || line.empty()) {
        cells = tabs;
        continue;
      }
      if (line[0] == '*' || line[0] == '#') continue;
      EXPECT_EQ(tabs, cells) << line.substr(0, 80);
      ++count;
    }
    EXPECT_GT(count, 1);
  }
}

TEST_F(BatchBlocks, QuantitiesHaveTheirHeadings) {
  const std::pair<const char*, const char*> cases[] = {
      {"Qext/Qsca/Qabs v. radius", "Radius\tRef Index (real)\tRef Index (imaginary)\tQext\tQsca\tQabs\n0.01\t"},
      {"Cext/Csca/Cabs v. diameter",
       "Diameter\tRef Index (real)\tRef Index (imaginary)\tCext m^2\tCsca m^2\tCabs m^2\n"},
      {"Asymmetry g v. size x", "Size parameter x\tRef Index (real)\tRef Index (imaginary)\tAsymmetry g\n0.1\t"},
      {"Albedo v. wavelength", "Wavelength\tRef Index (real)\tRef Index (imaginary)\tAlbedo\n10\t"},
      {"Scattering matrix", "theta\t(S1(theta))^2\t(S2(theta))^2\t(S1(theta))^2 + (S2(theta))^2\n0\t"},
      {"Intensity v. refractive index", "Refractive index\tRef Index (real)\tRef Index (imaginary)\tPerpendicular\t"},
  };
  for (const auto& [graph, heading] : cases) {
    Do("reset");
    ChooseWithFewPoints(graph);
    EXPECT_THAT(Block(), HasSubstr(heading));
  }
}

TEST_F(BatchBlocks, CloudsAndSpectraTellWhatTheyAre) {
  std::string text = Block("xstep\n5\nDisperse\nSD\n10\nN\n20\n");
  EXPECT_THAT(text, HasSubstr("\n\nSize distribution: \tLog-normal, Std Dev % 10, 20 samples\n\nGraph type: "));
  Do("click optMono\nchoose cboWave 3\nset cboStep 5");
  text = Block();
  EXPECT_THAT(text, HasSubstr("\n\nWavelengths: \t3\nLight: \t"));
  EXPECT_THAT(Block("Diameter\n20\n"), HasSubstr("\n\nDiameter: \t20\t um\tSize parameter x: \t"));
}

TEST_F(BatchBlocks, AmplitudesFollowWhereTheyAreAskedFor) {
  const std::string title =
      "\n\nReal and imaginary values of S1 (perpendicular polarisation) and S2 (parallel polarisation) \n\n"
      "Angle\tS1 Real\tS1 Imaginary\tS1 Magnitude\tS1 Phase\tS2 Real\tS2 Imaginary\tS2 Magnitude\tS2 Phase\n";
  EXPECT_THAT(Block("xmin\n0\nxmax\n2\nxstep\n1\n"), Not(HasSubstr("S1 Real")));
  Do("click mnuS1S2");
  EXPECT_EQ(Get("mnuS1S2"), "true");
  const auto text = Block();
  EXPECT_THAT(text, HasSubstr(title));
  const AmplitudeTable& S1 = runner.Current().state.S1;
  EXPECT_THAT(text, HasSubstr("\n2\t" + Shortest(S1.Re(3)) + "\t" + Shortest(S1.Im(3)) + "\t" +
                              Shortest(std::hypot(S1.Re(3), S1.Im(3))) + "\t"));
  EXPECT_THAT(Block("Intensity v. radius\nxmin\n1\nxmax\n11\nxstep\n1\n"), HasSubstr("Radius\tS1 Real\t"));
}

}  // namespace
}  // namespace lumivex
