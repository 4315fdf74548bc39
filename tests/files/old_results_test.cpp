/// Results files of every version that there was, written by the rules of each.

#include "files/results/file_version.h"
#include "files/results_fixture.h"
#include "runs/curves.h"

namespace lumivex {
namespace {

constexpr int everyVersion[] = {1,    101,  200,  201,  202,  203,  204,  205,  3102, 3201, 3202, 3411, 3502, 4000,
                                4001, 4002, 4003, 4004, 4005, 4006, 4007, 4008, 4108, 4200, 4201, 4301, 4302, 4400};

/// A drop of water of 12 C and 4 um in air of 10 C, by steps of 30 degrees.
struct OldFile {
  int version = 4400;
  std::string graph = "Intensity v. scattering angle", method = "Mie";
  std::vector<std::string> rays = {};
  std::vector<std::string> own = {};  ///< lines of the method

  std::string Text() const {
    std::vector<std::string> lines = {std::string(FileVersionLine(version)), graph, "IAPWS 12C", "Air 10C"};
    const auto add = [&](bool stands, std::initializer_list<std::string> more) {
      if (stands) lines.insert(lines.end(), more);
    };
    add(true, {"User1"});
    add(version > 203, {"Old glass"});
    add(true, {" .4           1.51 ", " .5 , 1.505", " .6\t1.5", " .7D+00  1.495 ", "Defined2"});
    add(version >= 200, {method, rays.empty() ? "2" : "Multiple"});
    if (version > 3102) lines.insert(lines.end(), rays.begin(), rays.end());
    lines.insert(lines.end(), own.begin(), own.end());
    add(true, {"IAPWS"});
    add(version < 201, {" 12            .9995 "});
    add(version >= 201, {"12", ".9995"});
    add(version > 204, {" 1 "});
    add(version >= 201, {"Air2", "10"});
    add(version >= 4000, {"1.00028"});
    add(true, {"1", "0.5", "Radius", "4", "1.33"});
    add(version > 202, {".000001"});
    add(true, {" 0 ", " 180 ", "30", "Automatic", " .1 ", "1000", " 1000 ", " .2 ", " 900 ", "Log", " 2.1 "});
    for (const char* row : {"900 900 900", "100 80 90", "10 8 9", "1 2 1.5", "3 4 3.5", "5 6 5.5", "50 50 50"})
      lines.emplace_back(row);
    return Joined(lines);
  }
};

TEST_F(ResultsFiles, EveryVersionReads) {
  for (const int version : everyVersion) {
    SCOPED_TRACE(version);
    Do("reset\nset txtRefractMedium 1.5\nset txtRefractImag 0.25\nset txtLambda 0.7");
    runner.World().messages.clear();
    Write("old.lvx", OldFile{version}.Text());
    Load("old.lvx");
    EXPECT_TRUE(Shown().empty()) << LastText();
    EXPECT_EQ(Get("txtRadius"), "4");
    EXPECT_EQ(Get("txtLambda"), "0.5");
    EXPECT_EQ(Get("cboYmax"), "1000");
    EXPECT_EQ(Get("dlogTemp.txtTemp"), "12");
    EXPECT_EQ(Get("dlogRI_User1.txtMaterial1"), version > 203 ? "Old glass" : "Glass");
    EXPECT_EQ(Get("dlogRI_User1.txtRI_1_4"), "1.495");
    // What a version lacks stays as it was.
    EXPECT_EQ(Get("mnuRI_Air2") == "true", version >= 201);
    // Names follow the source; the index is the file's own.
    const std::string complex = Get("dlogTemp.chkRI_Complex") == "true" ? " Complex" : "";
    EXPECT_EQ(Get("SphereName"), "IAPWS 12C" + complex);
    EXPECT_EQ(Get("lblSphere"), "Sphere: IAPWS 12C" + complex);
    EXPECT_EQ(Get("MediumName"), "Air 10C");
    EXPECT_EQ(Get("txtRefractReal"), "1.33");
    const auto& results = *runner.Current().state.LastResults;
    const auto* found = results.Find<AngleFound>();
    ASSERT_NE(found, nullptr);
    EXPECT_NEAR(found->S1.Intensity(2), 100, 1e-12);
    EXPECT_NEAR(found->S2.Intensity(7), 50, 1e-12);
    EXPECT_EQ(results.last.efficiencies.Qsca, 2.1);
    EXPECT_GT(results.last.efficiencies.Qext, 0);
    EXPECT_EQ(results.asked.particle.radius, 4);
  }
}

TEST_F(ResultsFiles, FormerNamesAreKnown) {
  Write("old.lvx", OldFile{200, "Intensity v. scattering angle", "Debye series"}.Text());
  Load("old.lvx");
  EXPECT_EQ(Get("cboType"), "Debye");
  Write("older.lvx", OldFile{204, "Intensity v. scattering angle", "Mie scattering"}.Text());
  Load("older.lvx");
  EXPECT_EQ(Get("cboType"), "Mie");
  Write("unknown.lvx", OldFile{4400, "Intensity v. scattering angle", std::string(50, 'z')}.Text());
  EXPECT_EQ(Refused("unknown.lvx"), "File error: Unknown calculation method: \"" + std::string(40, 'z') + "\"");
}

TEST_F(ResultsFiles, DewTellsItsSurfaceSinceTheVersionThatBeganTo) {
  Write("dew.lvx", OldFile{4302, "Intensity v. scattering angle", "Heiligenschein", {}, {"1.5", "20"}}.Text());
  Load("dew.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("dlogHeiligenschein.txtDistance") + " " + Get("dlogHeiligenschein.txtSlope"), "1.5 20");
  Write("older.lvx", OldFile{4301, "Intensity v. scattering angle", "Heiligenschein"}.Text());
  Load("older.lvx");
  EXPECT_EQ(Get("dlogHeiligenschein.txtDistance"), "1.5") << "what a version lacks stays";
  EXPECT_NEAR(runner.Current().state.LastResults->Find<AngleFound>()->S2.Intensity(7), 50, 1e-12);
  Write("within.lvx", OldFile{4400, "Intensity v. scattering angle", "Heiligenschein", {}, {"0.5", "20"}}.Text());
  EXPECT_NE(Refused("within.lvx").find("\"Heiligenschein\" has a value that it does not take"), std::string::npos);
}

// A file that cannot say which p are ticked was refused while none was.
TEST_F(ResultsFiles, RaysThatAFileDoesNotTellStayAsTheyAreTicked) {
  for (const int version : {200, 3102}) {
    SCOPED_TRACE(version);
    Write("rays.lvx", OldFile{version, "Intensity v. scattering angle", "Debye", {"Multiple"}}.Text());
    for (const auto& [ticks, rays] :
         {std::pair{"", ""},
          {"choose cboType Debye\ndialog dlogP ok chkRay0=on chkRay3=on\nset cboRays Multiple", "0, 3"}}) {
      Do(std::string("reset\n") + ticks);
      runner.World().messages.clear();
      Load("rays.lvx");
      EXPECT_TRUE(Shown().empty()) << LastText();
      EXPECT_EQ(Get("cboRays"), "Multiple");
      EXPECT_EQ(runner.Current().state.LastResults->asked.words.rays, rays);
      EXPECT_NEAR(runner.Current().state.LastResults->Find<AngleFound>()->S1.Intensity(2), 100, 1e-12);
    }
  }
}

// Nobody could tell afterwards of which rays the curves are.
TEST_F(ResultsFiles, NoneOfSeveralRaysIsRefusedWhereAFileTellsThem) {
  Write("none.lvx", OldFile{3201, "Intensity v. scattering angle", "Debye", {" 0 "}}.Text());
  EXPECT_NE(Refused("none.lvx").find("No rays selected"), std::string::npos) << LastText();
  Write("old.lvx", OldFile{3102, "Intensity v. scattering angle", "Debye", {"Multiple"}}.Text());
  Load("old.lvx");
  std::istringstream script("save-results " + Path("again.lvx"));
  EXPECT_EQ(runner.Run(script), ScriptRunner::scriptError) << "it could not be read";
}

TEST_F(ResultsFiles, SelectedRaysAreReadSinceTheyWereWritten) {
  Write("rays.lvx", OldFile{4400, "Intensity v. scattering angle", "Debye", {" 2 ", " 0 ", " 3 "}}.Text());
  Load("rays.lvx");
  EXPECT_EQ(runner.Current().state.LastResults->asked.words.rays, "0, 3");
  Write("step.lvx", OldFile{4400, "Intensity v. scattering angle", "Debye", {"Step", "1", "2", "5"}}.Text());
  Load("step.lvx");
  EXPECT_EQ(runner.Current().state.LastResults->asked.words.rays, "1, 3, 5");
}

// In a fresh session the step of another graph stood there, with which no run could be asked for.
TEST_F(ResultsFiles, WhatChoosingTheGraphSetsIsSetWhereTheLayoutDoesNotTellIt) {
  Do("choose cboGraph Scattered power v. radius\nset txtXmin 1\nset txtXmax 5\nset cboStep 0.2\nclick cmdNewPlot");
  Save("whole.lvx");
  const std::string whole = Content("whole.lvx");
  Write("lines.lvx", whole.substr(0, whole.find("Lumivex: every input")));
  Do("reset\nset txtRefractMedium 1.1");
  Load("lines.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("txtF9_step"), "0.1");
  EXPECT_EQ(Get("cboPol"), "All 3");
  EXPECT_EQ(Get("mnuRI_Vacuum2"), "true") << "it is in the file";
  EXPECT_EQ(Get("txtXmax"), "5");
}

TEST_F(ResultsFiles, TheLayoutAloneBringsTheCurves) {
  // Without our block, as other programs write it.
  for (const char* run :
       {"set txtRadius 2\nset cboStep 5", "set cboWave 7\nset txtRadius 2\nset cboStep 10",
        "choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 20",
        "choose cboGraph Scattering matrix: wavelength\nset cboStep 40",
        "choose cboGraph Map: angle v. radius\nset cboStep 0.5", "choose cboGraph Map: RI v. size x\nset cboStep 6",
        "dialog dlogCoatedSphere ok txtCoreRadius=2 txtMantleRadius=3 txtRIshell=1.4 chkDebye=on "
        "optPQ=on\nchoose cboType Coated sphere\nset cboStep 10",
        "dialog dlogInhomSphere ok optPolynomial=on txtL1=-0.2\n"
        "choose cboType Inhomogeneous sphere\nset txtRadius 2\nset cboStep 10"}) {
    SCOPED_TRACE(run);
    Do("reset");
    Do(run);
    Do("click cmdNewPlot");
    const std::string falseColours = Get("mnuFalseColours"), label = Get("lblSphere");
    const Curves asked = CurvesOf(*runner.Current().state.LastResults, {});
    Save("whole.lvx");
    const std::string whole = Content("whole.lvx");
    Write("lines.lvx", whole.substr(0, whole.find("Lumivex: every input")));
    Do("reset");
    Load("lines.lvx");
    EXPECT_EQ(Get("mnuFalseColours"), falseColours);
    if (label.find("IAPWS") == std::string::npos) {
      EXPECT_EQ(Get("lblSphere"), label);
    }
    const Curves read = CurvesOf(*runner.Current().state.LastResults, {});
    ASSERT_EQ(read.perpendicular.size(), asked.perpendicular.size());
    for (int i = asked.firstRow; i <= asked.lastRow; ++i) {
      const auto at = static_cast<std::size_t>(i);
      EXPECT_NEAR(read.perpendicular[at], asked.perpendicular[at], 1e-13 * asked.perpendicular[at]) << i;
      EXPECT_NEAR(read.parallel[at], asked.parallel[at], 1e-13 * asked.parallel[at]) << i;
    }
  }
}

}  // namespace
}  // namespace lumivex
