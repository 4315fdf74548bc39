/// Inputs and numbers of a file: which are refused, and what follows from those that are read.

#include <algorithm>

#include "files/results/own_block.h"
#include "files/results_fixture.h"

namespace lumivex {
namespace {

TEST_F(ResultsFiles, InputsThatNoUserCanChooseAreRefused) {
  Do("set txtRadius 2\nset cboStep 30\nclick cmdNewPlot");
  Save("good.lvx");
  const auto before = Everything();
  for (const auto& [was, put] : {std::pair{"Form1.cboPol Both", "Form1.cboPol rubbish"},
                                 {"Form1.cboDistrib Log-normal", "Form1.cboDistrib rubbish"},
                                 {"Form1.optMono 1", "Form1.optMono 0"},
                                 {"dlogTemp.txtTemp 5", "dlogTemp.txtTemp 500"},
                                 {"dlogTemp.txtDensity 0.9999", "dlogTemp.txtDensity -1.999"},
                                 {"Form1.mnuRI_IAPWS 1", "Form1.mnuRI_IAPWS 0"},
                                 {"Form1.mnuRI_Air2 0", "Form1.mnuRI_Air2 1"},
                                 {"Form1.mnuDiameter 0", "Form1.mnuDiameter 1"},
                                 {"Form1.mnuSpectrumFlat 0", "Form1.mnuSpectrumFlat 1"}}) {
    std::string text = Content("good.lvx");
    for (auto at = text.find(was); at != std::string::npos; at = text.find(was, at + 1))
      text.replace(at, std::string(was).size(), put);
    ASSERT_NE(text, Content("good.lvx")) << was;
    Write("bad.lvx", text);
    EXPECT_NE(Refused("bad.lvx").find("cannot be run"), std::string::npos) << put << ": " << LastText();
    EXPECT_TRUE(Everything() == before) << put;
  }
  // Those of the screen alone are held against the same.
  for (const auto& [was, put] : {std::pair{"Form1.cboPol Both", "Form1.cboPol rubbish"},
                                 {"Form1.optMono 1", "Form1.optMono 0"},
                                 {"Form1.mnuRI_IAPWS 1", "Form1.mnuRI_IAPWS 0"},
                                 {"Form1.cboType Mie", "Form1.cboType Debye"},
                                 {"Form1.cboGraph Intensity v. scattering angle", "Form1.cboGraph Phase function"},
                                 {"Form1.txtRadius 2", "Form1.txtRadius -2"}}) {
    std::string text = Content("good.lvx");
    const auto at = text.rfind(was);
    ASSERT_NE(at, std::string::npos) << was;
    Write("bad.lvx", text.replace(at, std::string(was).size(), put));
    EXPECT_NE(Refused("bad.lvx").find("cannot be run"), std::string::npos) << put << ": " << LastText();
    EXPECT_TRUE(Everything() == before) << put;
  }
}

TEST_F(ResultsFiles, ValuesBelow0AreRefusedWhereNoneCanBe) {
  /// Puts a minus before the first number behind a place of the file that is not 0.
  const auto fails = [&](const std::string& run, const std::string& place, int linesOn = 1) {
    SCOPED_TRACE(run + place);
    Do("reset\n" + run + "\nclick cmdNewPlot");
    Save("good.lvx");
    std::string text = Content("good.lvx");
    const auto at = text.rfind(place);
    ASSERT_NE(at, std::string::npos);
    const auto line = linesOn == 0 ? at : text.find('\n', at + 1);
    text.insert(text.find(' ', line) + 1, "-");
    Write("bad.lvx", text);
    EXPECT_NE(Refused("bad.lvx").find("below 0"), std::string::npos) << LastText();
  };
  fails("choose cboGraph Qext/Qsca/Qabs v. radius\nset txtXmax 2\nset cboStep 20", "\nQsca ");
  fails("choose cboGraph Scattered power v. radius\nset txtXmax 3\nset cboStep 0.5", "\npowerPerp ");
  fails("set cboWave 3\nset cboStep 30", "\nparallel ");
  // Of the sphere.
  for (const char* number : {"radius", "sizeParameter", "waveNumber", "sphereN", "medium", "Qext", "Qback", "seconds"})
    fails("set txtRadius 2\nset cboStep 30", std::string("\n") + number + " ", 0);
  // Of the lines before our block.
  Do("reset\nset cboStep 30\nset txtRadius 2\nclick cmdNewPlot");
  Save("good.lvx");
  auto lines = LinesOf(Content("good.lvx"));
  const auto last = std::ranges::find(lines, ownBlockLine) - 1;
  last->front() = '-';
  Write("bad.lvx", Joined(lines));
  EXPECT_NE(Refused("bad.lvx").find("below 0"), std::string::npos) << LastText();
  // What may lie there is read.
  Do("reset\nchoose cboGraph Asymmetry g v. radius\nset txtXmin 0.01\nset txtXmax 0.5\nset cboStep 20\n"
     "click mnuRI_Ag\nclick cmdNewPlot");
  const auto& g = runner.Current().state.Iperp;
  EXPECT_TRUE(std::ranges::any_of(g, [](double value) { return value < 0; }));
  Save("g.lvx");
  runner.World().messages.clear();
  Load("g.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
}

TEST_F(ResultsFiles, DropsWhoseRaysOrSkyCannotBeAreRefused) {
  const auto refused = [this](const std::string& line, const std::string& other) {
    std::string text = Content("good.lvx");
    const auto at = text.find("\n" + line);
    ASSERT_NE(at, std::string::npos) << line;
    text.replace(at + 1, text.find('\n', at + 1) - at - 1, other);
    Write("bad.lvx", text);
    EXPECT_NE(Refused("bad.lvx"), ": ") << other;
  };
  Do("dialog dlogNonSpherical ok chkSky=on cboRayCount=1000\nset txtRadius 100\nset cboStep 30\nclick mnuNonSpherical");
  Save("good.lvx");
  for (const auto& [line, other] : {std::pair{"sectors ", "sectors 71"},
                                    {"sectors ", "sectors 100000000"},
                                    {"sectors ", "sectors -1"},
                                    {"skyHigh ", "skyHigh 1000000"},
                                    {"raysDone ", "raysDone many"},
                                    {"raysDone ", "raysDone 1e9"},
                                    {"axisRatio ", "axisRatio -1"}})
    refused(line, other);
  Do("reset\ndialog dlogNonSpherical ok\nclick mnuBowClock\nset cboStep 60\nclick cmdNewPlot");
  Save("good.lvx");
  refused("bow2 ", "bow2 2");
  refused("bow3 ", "bow4 5");
}

TEST_F(ResultsFiles, DialogsOfTheRunAreHeldAgainstWhatTheyTakeAndOthersKeepTheirNumbers) {
  const auto fails = [&](const std::string& runs, const std::string& was, const std::string& put) {
    Do("reset\n" + runs + "\nclick cmdNewPlot");
    Save("good.lvx");
    std::string text = Content("good.lvx");
    for (auto at = text.find(was); at != std::string::npos; at = text.find(was, at + 1))
      text.replace(at, was.size(), put);
    Write("bad.lvx", text);
    return text == Content("good.lvx") ? "not there" : Refused("bad.lvx");
  };
  const std::string quick = "set txtRadius 2\nset cboStep 30\n", refused = "cannot be run";
  EXPECT_NE(fails(quick + "set cboWave 3", "dlogSpectrumBand.txtSpectrumMin 380", "dlogSpectrumBand.txtSpectrumMin x")
                .find(refused),
            std::string::npos);
  EXPECT_NE(fails(quick + "set cboWave 3\nclick mnuSpectrumWernand2", "dlogWernand.txtElevation 45",
                  "dlogWernand.txtElevation 95")
                .find(refused),
            std::string::npos);
  EXPECT_NE(
      fails("choose cboGraph Watts/sq. m. v. scattering angle\n" + quick, "\nDistance 1", "\nDistance 0").find(refused),
      std::string::npos);
  const std::string modes = quick + "click optDisp\ndialog dlogMultiModal ok\nchoose cboDistrib Multimodal";
  for (const char* bad : {"txtMedian1 -10", "txtMedian1 abc", "txtFraction1 -1", "txtSpread1 x"}) {
    const std::string field = std::string(bad).substr(0, std::string(bad).find(' '));
    const std::string was = "dlogMultiModal." + field + " " + Get("dlogMultiModal." + field) + "\n";
    EXPECT_NE(fails(modes, was, "dlogMultiModal." + std::string(bad) + "\n").find(refused), std::string::npos) << bad;
  }
  // Of a dialog that the run did not ask.
  Do("reset\n" + quick + "click cmdNewPlot");
  Save("good.lvx");
  std::string text = Content("good.lvx");
  for (auto at = text.find("txtElevation 45"); at != std::string::npos; at = text.find("txtElevation 45"))
    text.replace(at, 15, "txtElevation up");
  Write("other.lvx", text);
  Do("set dlogWernand.txtElevation 33");
  runner.World().messages.clear();
  Load("other.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("dlogWernand.txtElevation"), "33");
}

TEST_F(ResultsFiles, ListsAndNamesGoBackToThoseOfTheFile) {
  Do("click optDisp\nchoose cboDistrib Gamma\nset cboSD 6\nset cboStep 30\nset txtRadius 2\nclick cmdNewPlot");
  Save("gamma.lvx");
  Do("reset");
  Load("gamma.lvx");
  Do("choose cboDistrib Gamma");
  EXPECT_EQ(Get("cboSD"), "6");
  Do("reset\nclick optDisp\ndialog dlogMultiModal ok\nchoose cboDistrib Multimodal\nset cboStep 30\nclick cmdNewPlot");
  Save("modes.lvx");
  Do("reset");
  Load("modes.lvx");
  Do("dialog dlogMultiModal cancel\nchoose cboDistrib Multimodal");
  EXPECT_EQ(Get("cboDistrib"), "Multimodal");
  Do("reset\nchoose cboType Debye\ndialog dlogP ok chkRay0=on chkRay3=on\nchoose cboRays Multiple\nset cboStep 30\n"
     "click cmdNewPlot");
  Save("rays.lvx");
  Do("reset");
  Load("rays.lvx");
  EXPECT_EQ(Get("RayCount"), "2");
  EXPECT_GE(runner.Current().state.RayMax, 3);
  Do("dialog dlogP cancel\nchoose cboRays Multiple");
  EXPECT_EQ(Get("cboRays"), "Multiple");
}

TEST_F(ResultsFiles, AMapThatWasReadGoesOnAsIfItHadBeenCalculated) {
  for (const bool whole : {true, false}) {
    SCOPED_TRACE(whole);
    const auto read = [&](const std::string& run) {
      Do("reset\n" + run + "\nset cboStep 0.5\nset txtRstep 3\nclick cmdNewPlot");
      Save("map.lvx");
      const std::string text = Content("map.lvx");
      if (!whole) Write("map.lvx", text.substr(0, text.find(ownBlockLine)));
      Do("reset");
      Load("map.lvx");
      ASSERT_TRUE(Shown().empty()) << LastText();
    };
    read("choose cboGraph Map: angle v. RI of sphere");
    Do("choose cboGraph Map: angle v. RI of medium");
    EXPECT_NE(Get("lblSphere").find("IAPWS"), std::string::npos) << Get("lblSphere");
    EXPECT_FALSE(Get("SphereName").empty());
    read("choose cboGraph Map: angle v. radius");
    EXPECT_EQ(Get("mnuFalseColours"), "true");
    Do("choose cboWave RGB");
    EXPECT_EQ(Get("mnuFalseColours"), "false");
    read("choose cboGraph Map: angle v. radius\nset cboWave RGB");
    Do("choose cboWave 1");
    EXPECT_EQ(Get("mnuFalseColours"), "true");
  }
  // A choice of the user's stays.
  Do("reset\nchoose cboGraph Map: angle v. radius\nset cboStep 0.5\nclick cmdNewPlot\nclick mnuFalseColours");
  Save("chosen.lvx");
  Do("reset");
  Load("chosen.lvx");
  Do("choose cboWave RGB\nchoose cboWave 1");
  EXPECT_EQ(Get("mnuFalseColours"), "false");
}

TEST_F(ResultsFiles, SizesThatReplotHasNotFoldedInAreNotInThePageThatIsRead) {
  Do("choose cboGraph Lee diagram: radius\nset txtRstep 3\nset cboStep 0.5\nset cboWave 7\nclick cmdNewPlot\n"
     "click optDisp\nclick cmdReplot");
  EXPECT_FALSE(Shown().empty()) << "it was folded";
  const std::string drawn = Drawn();
  Save("lee.lvx");
  std::string text = Content("lee.lvx");
  // As files of before have it.
  const auto mono = text.rfind("Form1.optMono 1"), disperse = text.rfind("Form1.optDisp 0");
  ASSERT_NE(mono, std::string::npos);
  ASSERT_NE(disperse, std::string::npos);
  text[mono + 14] = '0';
  text[disperse + 14] = '1';
  Write("before.lvx", text);
  for (const char* name : {"lee.lvx", "before.lvx"}) {
    Do("reset");
    Load(name);
    EXPECT_EQ(Drawn(), drawn) << name;
  }
}

}  // namespace
}  // namespace lumivex
