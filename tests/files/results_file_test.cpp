#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "files/results/own_block.h"
#include "files/results_fixture.h"
#include "session/info.h"
#include "source_folder.h"

namespace lumivex {
namespace {

/// Scripts of whole pages, by their headings.
std::vector<std::pair<std::string, std::string>> RecordedPages() {
  std::ifstream file(SourceFolder() + "/tests/recorded/pages.txt");
  std::vector<std::pair<std::string, std::string>> pages;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("== "))
      pages.emplace_back(line, "");
    else if (!pages.empty())
      pages.back().second += line + "\n";
  }
  return pages;
}

/// Small runs of families and inputs that the recorded pages have not.
const std::vector<std::pair<std::string, std::string>> furtherRuns = {
    {"lee one",
     "choose cboGraph Lee diagram: radius\nset cboWave 1\nset txtRstep 3\nset cboStep 0.5\nclick cmdNewPlot"},
    {"lee colours", "choose cboGraph Lee diagram: radius\nset txtRstep 3\nset cboStep 0.5\nclick cmdNewPlot"},
    {"lee index", "choose cboGraph Lee diagram: refractive index\nset txtRstep 3\nset cboStep 1\nclick cmdNewPlot"},
    {"lee folded",
     "choose cboGraph Lee diagram: radius\nset txtRadius 5\nset txtRmax 20\nset txtRstep 30\nset cboStep 0.5\nclick "
     "cmdNewPlot\nclick optDisp\nset cboSD 20\nset cboN 10\nclick cmdReplot"},
    {"map r", "choose cboGraph Map: angle v. radius\nset cboStep 0.5\nclick cmdNewPlot"},
    {"map r colours", "choose cboGraph Map: angle v. radius\nset cboWave 3\nset cboStep 0.5\nclick cmdNewPlot"},
    {"map ri", "choose cboGraph Map: angle v. RI of sphere\nset cboStep 0.5\nclick cmdNewPlot"},
    {"map wl", "choose cboGraph Map: angle v. wavelength\nset cboStep 0.5\nclick cmdNewPlot"},
    {"map Q", "choose cboGraph Map: Q v. RI & size x\nset cboStep 6\nclick cmdNewPlot"},
    {"map RI x", "choose cboGraph Map: RI v. size x\nset cboStep 6\nclick cmdNewPlot"},
    {"map Qri", "choose cboGraph Map: Q v. Real RI & Imag RI\nset cboStep 6\nclick cmdNewPlot"},
    {"map cloud", "choose cboGraph Map: angle v. radius\nset cboStep 1\nclick optDisp\nset cboN 5\nclick cmdNewPlot"},
    {"multimodal",
     "click optDisp\ndialog dlogMultiModal ok chkMode2=on\nchoose cboDistrib Multimodal\nset cboStep 5\nclick "
     "cmdNewPlot"},
    {"x typed", "click mnuRadiusX\nset txtRadius 30\nset cboStep 2\nclick cmdNewPlot"},
    {"formula", "dialog dlogRI_Formula ok\nclick mnuRI_Formula\nset cboStep 2\nclick cmdNewPlot"},
    {"perm", "dialog dlogDielectric ok\nclick mnuRI_Perm1\nset cboStep 2\nclick cmdNewPlot"},
    {"spectrum file", std::string("open ") + SourceFolder() +
                          "/data/examples/white_led.spe\ndialog dlogSpectrumFile ok optNewFile=on\nset cboWave "
                          "3\nclick mnuSpectrumFile\nset cboStep 2\nclick cmdNewPlot"},
    {"size file low", std::string("dialog dlogDistOption ok\nopen ") + SourceFolder() +
                          "/data/examples/spray.dis\nclick optDisp\nchoose cboDistrib Special\nset cboWave Low\nset "
                          "cboStep 5\nclick cmdNewPlot"},
    {"elev",
     "set cboWave 3\ndialog dlogWernand ok txtElevation=20\nclick mnuSpectrumWernand2\nset cboStep 5\nclick "
     "cmdNewPlot"},
    {"colour since", "set cboWave 3\nset cboStep 1\nclick cmdNewPlot\nclick mnuSaturated\n set cboBright 5"},
    {"cumulative", "choose cboGraph CPDF\nset cboStep 1\nset txtXmin 20\nset txtXmax 160\nclick cmdNewPlot"},
    {"cloud matrix",
     "choose cboGraph Scattering matrix\nclick optDisp\nset cboN 5\nset txtRadius 2\nset cboStep 1\n"
     "click cmdNewPlot"},
    {"matrix by wavelength", "choose cboGraph Scattering matrix: wavelength\nset cboStep 50\nclick cmdNewPlot"},
    {"diameters", "click mnuDiameter\nset txtRadius 4\nset cboStep 1\nclick cmdNewPlot"},
    {"index", "choose cboGraph Intensity v. refractive index\nset cboStep 0.05\nset txtRadius 3\nclick cmdNewPlot"},
    {"efficiencies", "choose cboGraph Qext/Qsca/Qabs v. size x\nset cboStep 40\nclick cmdNewPlot"},
    {"cross-sections", "choose cboGraph Cext/Csca/Cabs v. radius\nset cboStep 30\nclick cmdNewPlot"},
    {"radar", "choose cboGraph Qradar v. diameter\nset cboStep 30\nclick cmdNewPlot"},
    {"asymmetry", "choose cboGraph Asymmetry g v. radius\nset txtXmax 5\nset cboStep 20\nclick cmdNewPlot"},
    {"albedo",
     "choose cboGraph Albedo v. wavelength\nset txtXmin 400\nset txtXmax 700\nset cboStep 50\n"
     "click cmdNewPlot"},
    {"power", "choose cboGraph Scattered power v. radius\nset txtXmax 3\nset cboStep 0.5\nclick cmdNewPlot"},
    {"metal", "click mnuRI_Au\nset txtRadius 0.1\nset cboStep 2\nclick cmdNewPlot"},
    {"typed index",
     "set txtRefractReal 1.45\nset txtRefractImag 0.001\nset txtRadius 3\nset cboStep 2\n"
     "click cmdNewPlot"},
    {"rays",
     "choose cboType Young\ndialog dlogP ok chkRay2=on chkRay3=on\nset cboRays Multiple\nset txtRadius 100\n"
     "set cboStep 1\nclick cmdNewPlot"},
    {"user glass",
     "dialog dlogRI_User1 ok txtMaterial1=Glass of \xC2\xB5\nclick mnuRI_User1\nset cboStep 5\n"
     "set txtRadius 2\nclick cmdNewPlot"},
    {"coated", "choose cboType Coated sphere\nset cboStep 2\nclick cmdNewPlot"},
    {"coated ways",
     "dialog dlogCoatedSphere ok cboRIcore=Gold cboRImedium=Water txtMantleRadius=9 chkDebye=on optPQR=on "
     "cboRays=q1r1\nchoose cboType Coated sphere\nset cboWave 3\nset cboStep 2\nclick cmdNewPlot"},
    {"coated cloud",
     "dialog dlogCoatedSphere ok optFixedShell=on\nchoose cboType Coated sphere\nclick optDisp\nset cboN 5\n"
     "set cboStep 5\nclick cmdNewPlot"},
    {"profile",
     "dialog dlogInhomSphere ok opt3Layer=on txt3N3=1.5 cboLayers=16 optOldCode=on\n"
     "choose cboType Inhomogeneous sphere\nset cboStep 2\nclick cmdNewPlot"},
    {"profile changed since",
     "dialog dlogInhomSphere ok optLuneburg=on\nchoose cboType Inhomogeneous sphere\nset cboStep 2\n"
     "click cmdNewPlot\nset txtRadius 7"},
    {"S1 and S2", "click mnuS1S2\nset txtRadius 2\nset cboStep 2\nclick cmdNewPlot"},
    {"changed since", "set txtRadius 2\nset cboStep 2\nclick cmdNewPlot\nset txtRadius 7\nset txtLambda 0.5"},
    {"narrowed since", "set txtRadius 2\nset cboStep 2\nclick cmdNewPlot\nset txtXmin 90\nclick cmdReplot"},
    {"size file", "dialog dlogDistOption ok\nopen " + SourceFolder() +
                      "/data/examples/spray.dis\nclick optDisp\nchoose cboDistrib Special\nset cboStep 5\n"
                      "click cmdNewPlot"},
    {"beam",
     "dialog dlogGaussianBeam ok txtBeamYF=-3 txtBeamWo=2 chkLock=1 txtPhi=20\nclick mnuGaussian\nclick "
     "mnuMultBeams\nset "
     "txtXmin -90\nset txtXmax 180\nset txtRadius 3\nset cboStep 2\nclick mnuS1S2\nclick cmdNewPlot"},
    {"beam of colours",
     "dialog dlogGaussianBeam ok txtBeamYF=-3 txtBeamWo=3\nclick mnuGaussian\nset txtXmin -90\nset txtRadius 3\nset "
     "cboWave 3\nset cboStep 2\nclick cmdNewPlot"},
    {"beam of a cloud",
     "choose cboType Debye\ndialog dlogGaussianBeam ok txtBeamYF=1 txtBeamWo=3\nclick mnuGaussian\nset txtRadius 3\n"
     "click optDisp\nset cboN 5\nset cboStep 2\nclick cmdNewPlot"},
    {"beam along an axis",
     "dialog dlogGaussianBeam ok txtBeamYF=-3 txtBeamWo=3\nclick mnuGaussian\nchoose cboGraph Intensity v. radius\nset "
     "txtXmax 4\nset cboStep 0.5\nclick cmdNewPlot"},
    {"sums of a beam",
     "dialog dlogGaussianBeam ok txtBeamYF=-3 txtBeamWo=3\nclick mnuGaussian\nclick mnuMieGConv2\nset txtRadius "
     "3\nclick "
     "cmdNewPlot"},
    {"disc of rays",
     "choose cboType Young mod\ndialog dlogGaussianBeam ok txtBeamWo=4\nclick mnuTopHat\nset cboStep 2\nclick "
     "cmdNewPlot"},
    {"surface waves",
     "choose cboType Surface wave\nset cboQmin 2\nset cboQmax 5\nclick mnuSWLong\nset txtSWAmp 0.5\nset cboStep 2\n"
     "click cmdNewPlot"},
    {"surface waves along an axis",
     "choose cboType Surface wave\nchoose cboGraph Intensity v. wavelength\nset cboStep 50\nclick cmdNewPlot"},
    {"dew",
     "dialog dlogHeiligenschein ok txtDistance=1.5 txtSlope=20\nclick mnuHeiligenschein\nset txtRadius 100\n"
     "set txtXmin 170\nset txtXmax 190\nset cboStep 1\nclick mnuS1S2\nclick cmdNewPlot"},
    {"drops",
     "dialog dlogNonSpherical ok optRatioSize=on chkAllRound=on chkP3=off cboRayCount=10000 chkSky=on\n"
     "set txtRadius 300\nset cboStep 5\nclick mnuNonSpherical"},
    {"drops of colours",
     "set cboStep 5\nset cboWave 3\nset txtRadius 300\n"
     "dialog dlogNonSpherical ok optBurgeroid=on cboRayCount=10000 chkSky=on\nclick mnuNonSpherical"},
    {"bows", "dialog dlogNonSpherical ok chkP4=on\nclick mnuBowClock\nset cboStep 45\nclick cmdNewPlot"},
    {"index file", "open " + SourceFolder() +
                       "/data/examples/crown_glass.rix\nclick mnuRI_File1\nset cboStep 5\nset txtRadius 2\n"
                       "click cmdNewPlot"},
};

std::string OwnBlockOf(const std::string& file) {
  return file.substr(std::min(file.find(ownBlockLine), file.size()));
}

/// A page of one run; of an overplot a file keeps the last.
bool IsOneRun(const std::string& script) {
  return script.find("cmdOverPlot") == std::string::npos;
}

/// A file keeps a run, and nothing of what it was compared with.
bool IsCompared(const std::string& script) {
  return script.find("\ndata ") != std::string::npos;
}

TEST_F(ResultsFiles, EveryGraphReadsBackToTheSamePageAndNumbers) {
  auto pages = RecordedPages();
  ASSERT_GT(pages.size(), 30U);
  pages.insert(pages.end(), furtherRuns.begin(), furtherRuns.end());
  int compared = 0;
  for (const auto& [heading, script] : pages) {
    SCOPED_TRACE(heading);
    if (IsCompared(script)) continue;
    Do("reset");
    Do(script);
    if (!runner.Current().state.LastResults) continue;
    const std::string drawn = Drawn();
    Save("run.lvx");
    const std::string saved = Content("run.lvx");
    Do("reset");
    runner.World().messages.clear();
    Load("run.lvx");
    EXPECT_TRUE(Shown().empty()) << LastTitle() << ": " << LastText();
    if (!IsOneRun(script)) continue;
    EXPECT_TRUE(Drawn() == drawn) << "the page is another one";
    Save("again.lvx");
    // What the axes would choose by themselves is no matter of the run where limits are typed.
    const auto before = LinesOf(OwnBlockOf(saved)), after = LinesOf(OwnBlockOf(Content("again.lvx")));
    ASSERT_GT(before.size(), 100U);
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) ASSERT_EQ(before[i], after[i]) << "line " << i + 1;
    ++compared;
  }
  EXPECT_GT(compared, 40);
}

TEST_F(ResultsFiles, AFileThatFailsHalfwayLeavesTheSessionAsItWas) {
  Do("choose cboGraph Phase function\nset txtRadius 2\nset cboStep 10\nclick cmdNewPlot");
  Save("good.lvx");
  Do("reset\nset txtRadius 3\nset cboStep 20\nclick mnuRI_Ag\nclick cmdNewPlot\nset txtLambda 0.6");
  const auto before = Everything();
  const auto lines = LinesOf(Content("good.lvx"));
  for (std::size_t cut = 1; cut < lines.size(); cut += cut < 60 ? 1 : 37) {
    Write("cut.lvx", Joined({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(cut)}));
    // A file of the layout alone, without our block, is a whole one.
    const bool whole = lines[cut] == ownBlockLine;
    if (whole) continue;
    const std::string message = Refused("cut.lvx");
    EXPECT_FALSE(message.empty());
    ASSERT_TRUE(Everything() == before) << "cut after line " << cut << ": " << message;
  }
}

TEST_F(ResultsFiles, ResultsThatUndoHasLeftAreSavedAllTheSame) {
  Do("set txtRadius 3\nset cboStep 30\nclick cmdNewPlot");
  Save("three.lvx");
  Do("set txtRadius 7\nclick cmdNewPlot");
  Load("three.lvx");
  Do("click mnuUndo");
  Save("again.lvx");
  EXPECT_EQ(OwnBlockOf(Content("again.lvx")).find("Form1.txtRadius 7"), std::string::npos);
  std::string rows = Content("three.lvx").substr(0, Content("three.lvx").find(ownBlockLine));
  ASSERT_FALSE(rows.empty());
  const auto last = rows.rfind('\n', rows.size() - 2);
  Write("nan.lvx", rows.substr(0, last) + "\n nan  nan  nan \n");
  EXPECT_NE(Refused("nan.lvx").find("3 numbers"), std::string::npos);
}

// Each setting that came new would otherwise have closed every file of before.
TEST_F(ResultsFiles, SettingsAreFoundByNameAndMayBeMissing) {
  Do("set txtRadius 2\nset cboStep 30\nclick cmdNewPlot");
  const std::string drawn = Drawn();
  Save("good.lvx");
  std::string text = Content("good.lvx");
  const auto at = text.find("\nDistance ");
  ASSERT_NE(at, std::string::npos);
  text.replace(at, text.find('\n', at + 1) - at, "\nOfAnotherVersion 1e300");
  Write("other.lvx", text);
  Do("reset");
  Load("other.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Drawn(), drawn);
  text.replace(text.find("\nIncidentDensity ") + 17, 1, "x");
  Write("bad.lvx", text);
  EXPECT_NE(Refused("bad.lvx").find("a number should stand there"), std::string::npos);
}

// A field that comes new would otherwise close every file to the programs of before.
TEST_F(ResultsFiles, FieldsOfResultsThatNobodyKnowsArePassedOver) {
  Do("set txtRadius 2\nset cboStep 30\nclick cmdNewPlot");
  const std::string drawn = Drawn();
  Save("good.lvx");
  std::string text = Content("good.lvx");
  for (const char* field : {"\nseconds ", "\nS1 ", "\nmirroredLow ", "\nwavefronts "}) {
    ASSERT_NE(text.find(field), std::string::npos) << field;
    text.insert(text.find(field), "\nOfAnotherVersion 3\n1 2 -3\nWithWords no numbers at all");
  }
  Write("other.lvx", text);
  Do("reset");
  Load("other.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Drawn(), drawn);
  text.replace(text.find("\nS1 "), 4, "\nXX ");
  Write("bad.lvx", text);
  EXPECT_NE(Refused("bad.lvx").find("\"S1\" should stand there"), std::string::npos) << LastText();
}

// They are no numbers, and as such the file was refused.
TEST_F(ResultsFiles, CellsThatAStopCameBeforeAreReadAsMissing) {
  Do("click mnuTwoAngle\nstop-at 30\nclick cmdNewPlot");
  const auto* found = runner.Current().state.LastResults->Find<TwoAngleFound>();
  ASSERT_NE(found, nullptr);
  ASSERT_LT(static_cast<std::size_t>(found->done), found->first.cells.size());
  const std::string drawn = Drawn();
  Save("part.lvx");
  Do("reset");
  runner.World().messages.clear();
  Load("part.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Drawn(), drawn);
}

TEST_F(ResultsFiles, TablesHaveTheRowsThatAReplotHadNarrowed) {
  for (const char* graph : {"set txtRadius 2\nset cboStep 2\nclick cmdNewPlot\nset txtXmin 90\nset txtXmax 120",
                            "choose cboGraph Intensity v. radius\nset txtXmax 3\nset cboStep 0.1\nclick cmdNewPlot\n"
                            "set txtXmin 1\nset txtXmax 2"}) {
    SCOPED_TRACE(graph);
    const auto tables = [&] {
      output.str("");
      Do("table\namplitudes\nget PlotXmin\nget PlotXmax");
      return output.str();
    };
    Do(std::string("reset\n") + graph + "\nclick cmdReplot");
    const std::string before = tables();
    EXPECT_LT(LinesOf(before).size(), 60U) << "rows that are not shown";
    Save("narrow.lvx");
    Do("reset");
    Load("narrow.lvx");
    EXPECT_EQ(tables(), before);
  }
}

// What no input holds was left of the session before, so that other inputs came back than those of the file.
// They are in no page before Replot, and a reader that folds them in draws another one.
// Nobody types so much, and yet it may be pasted.
TEST_F(ResultsFiles, ATextThatIsLongerThanALineIsCutWhereACharacterEnds) {
  std::string name;
  for (int i = 0; i < 3000; ++i) name += "\xC2\xB5";
  Do("dialog dlogRI_User1 ok txtMaterial1=" + name + "\nclick mnuRI_User1\nset txtRadius 2\nset cboStep 30\n" +
     "click cmdNewPlot");
  Save("long.lvx");
  Do("reset");
  Load("long.lvx");
  EXPECT_TRUE(Shown().empty()) << LastText();
  const std::string read = Get("dlogRI_User1.txtMaterial1");
  EXPECT_GT(read.size(), 4000U);
  EXPECT_EQ(read, name.substr(0, read.size()));
  EXPECT_EQ(read.size() % 2, 0U);
}

TEST_F(ResultsFiles, TheStatusLineSaysThatParametersAreOff) {
  Do("set txtRadius 2\nset cboStep 30\nclick cmdNewPlot");
  Save("run.lvx");
  Load("run.lvx");
  Session& session = runner.Current();
  EXPECT_TRUE(StatusText(session).starts_with("Information OFF   Mie, ")) << StatusText(session);
  Do("click mnuInfo");
  EXPECT_TRUE(StatusText(session).starts_with("Mie, ")) << StatusText(session);
  Do("click mnuInfo\nclick cmdNewPlot");
  EXPECT_TRUE(StatusText(session).starts_with("Mie, ")) << StatusText(session);
}

TEST_F(ResultsFiles, NoLineOfRubbishHarms) {
  Do("set txtRadius 2\nset cboStep 30\nclick cmdNewPlot");
  Save("good.lvx");
  const auto good = LinesOf(Content("good.lvx"));
  const std::string long4000(4000, 'x'), latin = "\xE9\xFF\x80 caf\xE9";
  // Of the inputs by name in our block one line is like the next.
  for (std::size_t at = 0; at < good.size(); at += at < 50 || at + 150 > good.size() ? 1 : 23) {
    for (const std::string& rubbish : {std::string("rubbish"), std::string(), std::string("1e400"), long4000, latin}) {
      auto lines = good;
      lines[at] = rubbish;
      Write("bad.lvx", Joined(lines));
      runner.World().messages.clear();
      std::istringstream script("load " + Path("bad.lvx"));
      runner.Run(script);
      for (const auto& message : Shown()) {
        EXPECT_EQ(message.text.find(std::string(41, 'x')), std::string::npos) << "a quote is too long";
        EXPECT_EQ(message.text.find('\xFF'), std::string::npos);
      }
    }
  }
}

TEST_F(ResultsFiles, WhatIsNoResultsFileIsTold) {
  const auto before = Everything();
  Write("foreign.lvx", "Something else\n1\n2\n");
  EXPECT_EQ(Refused("foreign.lvx"), "Lumivex: The selected file is not a valid Lumivex file");
  Write("empty.lvx", "");
  EXPECT_EQ(Refused("empty.lvx"), "Lumivex: The selected file is not a valid Lumivex file");
  Write("newer.lvx", "Lumivex v9.0.00\n");
  EXPECT_EQ(Refused("newer.lvx"),
            "Please update Lumivex: This file has been generated by a newer version of Lumivex\n"
            "Please obtain the latest version of Lumivex from:\nLumivex");
  Write("graph.lvx", "Lumivex v4.4.00\nIntensity v. luck\n");
  EXPECT_EQ(Refused("graph.lvx"), "File error: Error in Graph Type");
  // A gigabyte of zeros, of which hardly anything stands on the disk.
  Write("zeros.lvx", "");
  std::filesystem::resize_file(Path("zeros.lvx"), 1U << 30);
  EXPECT_EQ(Refused("zeros.lvx"), "Lumivex: The selected file is not a valid Lumivex file");
  Write("headed.lvx", "Lumivex v4.4.00\nIntensity v. scattering angle\n");
  std::filesystem::resize_file(Path("headed.lvx"), 1U << 30);
  EXPECT_NE(Refused("headed.lvx").find("longer"), std::string::npos);
  std::filesystem::create_directories(Path("folder.lvx"));
  EXPECT_NE(Refused("folder.lvx").find("folder"), std::string::npos);
  ASSERT_EQ(mkfifo(Path("pipe.lvx").c_str(), 0600), 0);
  EXPECT_NE(Refused("pipe.lvx").find("pipe.lvx: "), std::string::npos) << "nobody waits for its other end";
  if (::geteuid() != 0) {
    Write("closed.lvx", "Lumivex v4.4.00\n");
    std::filesystem::permissions(Path("closed.lvx"), std::filesystem::perms::none);
    EXPECT_NE(Refused("closed.lvx").find("closed.lvx: "), std::string::npos);
  }
  EXPECT_NE(Refused("missing.lvx").find("not there"), std::string::npos);
  EXPECT_TRUE(Everything() == before);
}

TEST_F(ResultsFiles, AnOverplotKeepsThePageAndTellsOtherLimits) {
  Do("set txtRadius 3\nset cboStep 2\nclick cmdNewPlot");
  Save("three.lvx");
  Do("set txtXmin 90\nset txtRadius 4\nclick cmdNewPlot");
  Save("narrow.lvx");
  Do("reset\nset txtRadius 2\nset cboStep 2\nclick cmdNewPlot\nopen " + Path("three.lvx") + "\nclick mnuOverplot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("txtRadius"), "3");
  EXPECT_EQ(runner.Current().page.runs.size(), 2U);
  EXPECT_EQ(Get("OverplotFromFile"), "0");
  Do("open " + Path("narrow.lvx") + "\nclick mnuOverplot");
  EXPECT_EQ(LastTitle(), "Overplot from file");
  EXPECT_EQ(LastText(), "Incompatible x-values");
  EXPECT_EQ(runner.Current().form1.txtXmin.BackColour, colours::White);
  EXPECT_EQ(runner.Current().page.runs.size(), 3U);
}

TEST_F(ResultsFiles, MenusAskForNames) {
  Do("set txtRadius 2\nset cboStep 2\nclick cmdNewPlot\nsave " + Path("menu") + "\nclick mnuSave\nset txtRadius 5\n" +
     "open " + Path("menu.lvx") + "\nclick mnuRead");
  EXPECT_EQ(Get("txtRadius"), "2");
  EXPECT_TRUE(runner.Current().form1.cmdReplot.Enabled);
  EXPECT_FALSE(runner.Current().form1.Frame6.Visible) << "parameters of another run are on show";
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "5") << "reading is one step of undo";
  Do("click mnuSave");
  EXPECT_EQ(LastText(), "No file was selected");
}

TEST_F(ResultsFiles, WhatCannotBeWrittenLosesNothing) {
  Do("set txtRadius 2\nset cboStep 5\nclick cmdNewPlot");
  Save("kept.lvx");
  const std::string kept = Content("kept.lvx");
  const auto fails = [&](const std::string& path) {
    std::istringstream script("save-results " + path);
    return runner.Run(script) == ScriptRunner::outputLost;
  };
  EXPECT_TRUE(fails(Path("gone/run.lvx"))) << "the folder is not there";
  EXPECT_TRUE(fails("/dev/full")) << "the disk is full";
  EXPECT_TRUE(fails(Path(""))) << "it is a folder";
  if (::geteuid() != 0) {
    std::filesystem::permissions(Path("kept.lvx"), std::filesystem::perms::owner_read);
    EXPECT_TRUE(fails(Path("kept.lvx")));
    const auto folder = std::filesystem::path(Path("kept.lvx")).parent_path();
    std::filesystem::permissions(folder, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_TRUE(fails(Path("new.lvx"))) << "the folder takes no file";
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    EXPECT_FALSE(std::filesystem::exists(Path("new.lvx")));
  }
  EXPECT_EQ(Content("kept.lvx"), kept);
}

}  // namespace
}  // namespace lumivex
