#include "files/settings/continue_session.h"

#include <gtest/gtest.h>

#include <random>

#include "files/settings/session_text.h"
#include "files/settings/settings_fixture.h"
#include "scripts/script_commands.h"
#include "session/inputs/graph_types.h"
#include "source_folder.h"

namespace lumivex {
namespace {

std::string Example(const std::string& name) {
  return SourceFolder() + "/data/examples/" + name;
}

/// Things that a user does, one or a few lines each; whatever is done in any order is good.
std::vector<std::string> ThingsToDo() {
  return {"set txtRadius 7.25",
          "set txtLambda 0.5",
          "set txtXmin 20",
          "set txtXmax 160",
          "set cboStep 0.5",
          "click mnuWhite",
          "click mnuMinorGridX",
          "click mnuRedLine",
          "click mnuDiameter",
          "click OptLog\nset cboYmin 0.001",
          "choose cboGraph Qext/Qsca/Qabs v. radius\nset txtXmin 1\nset txtXmax 3\nset cboStep 0.1",
          "choose cboGraph Intensity v. wavelength\nset txtXmin 500\nset txtXmax 520\nset cboStep 5",
          "choose cboGraph Intensity v. refractive index\nset txtXmin 1.2\nset txtXmax 1.4\nset cboStep 0.05",
          "choose cboGraph Intensity v. scattering angle\nset cboWave 7",
          "dialog dlogIncident ok txtIncidentPD=7\nchoose cboGraph Watts/sq. m. v. scattering angle",
          "choose cboGraph Lee diagram: radius\nset txtRadius 1\nset txtRmax 2\nset txtRstep 4\nset cboStep 5",
          "choose cboGraph Map: Q v. RI & size x\nset txtXmin 1\nset txtXmax 3\nset cboStep 5\nset txtF9_step 5",
          "click mnuConvergence",
          "choose cboType Debye\nset cboRays 2",
          "choose cboType Airy\nset cboRays 2",
          "click mnuHuygens",
          "choose cboType Mie",
          "choose cboPol Unpolarised",
          "open " + Example("crown_glass.rix") + "\nclick mnuRI_File1",
          "open " + Example("polystyrene.csv") + "\nclick mnuRI_File2",
          "dialog dlogTemp ok txtTemp=20\nclick mnuRI_IAPWS",
          "click mnuRI_Au",
          "click mnuRI_Fixed1\nset txtRefractReal 1.4",
          "set txtRefractReal 1.37",
          "click mnuRI_Air2",
          "dialog dlogRI_Formula ok txtB1=1.1\nclick mnuRI_Formula",
          "set cboWave 3\nopen " + Example("white_led.spe") + "\nclick mnuSpectrumFile",
          "set cboWave 3\ndialog dlogSpectrumBand ok txtSpectrumMin=400 txtSpectrumMax=600\nclick mnuSpectrumBand",
          "click optDisp\nset cboN 5\nset cboSD 10",
          "click optDisp\nopen " + Example("spray.dis") + "\nclick mnuSizeDist",
          "click optMono",
          "click cmdNewPlot"};
}

/// Lines that the inputs of the moment do not take are left out, as a user leaves a grey entry alone.
void Try(KeepingProgram& program, const std::string& lines) {
  std::istringstream all(lines);
  for (std::string line; std::getline(all, line);) {
    std::istringstream one(line);
    program.runner.Run(one);
  }
  program.runner.World().openPaths.clear();
  program.runner.World().dialogs.clear();
}

std::string PanelOf(Session& session) {
  std::string panel;
  for (const Control* control : session.form1.Controls()) {
    // Commands and what stands on the page follow from the results; undo and recent files are a program's own.
    const bool input = control->Kind() != ControlKind::CommandButton && control->Kind() != ControlKind::MenuEntry &&
                       control->Kind() != ControlKind::Picture && control->Name() != "lblLogo" &&
                       control->Name() != "Frame6";
    if (input)
      panel +=
          std::string(control->Name()) + (control->Visible ? "" : " hidden") + (control->Enabled ? "\n" : " off\n");
  }
  return panel;
}

class ContinueSessionOf : public ::testing::TestWithParam<unsigned> {};

TEST_P(ContinueSessionOf, AnyUserBringsBackInputsPanelAndPage) {
  std::mt19937 random(GetParam());
  const OwnFolder folder;
  const auto things = ThingsToDo();
  KeepingProgram program(folder);
  std::string done;
  for (int i = 0; i < 8; ++i) {
    const std::string& thing = things[random() % things.size()];
    done += thing + "\n";
    Try(program, thing);
  }
  SCOPED_TRACE(done);
  program.End();
  KeepingProgram next(folder, "2");
  ASSERT_TRUE(next.Now().form1.mnuContinueSession.Enabled);
  next.Do("click mnuContinueSession");
  const auto before = program.Now().state.LastResults;
  // Some choices show inputs that the graph hides again with the next one.
  ShowFamilyInputs(program.Now());
  program.Do("click cmdNewPlot");
  EXPECT_EQ(SessionText(next.Now(), {}), SessionText(program.Now(), {}));
  // Inputs that are refused leave the page of before, and what follows from its results.
  if (program.Now().state.LastResults == before) return;
  EXPECT_EQ(PanelOf(next.Now()), PanelOf(program.Now()));
  EXPECT_EQ(DrawingLines(next.Now().windows.front()), DrawingLines(program.Now().windows.front()));
}

INSTANTIATE_TEST_SUITE_P(Seeds, ContinueSessionOf, ::testing::Range(1U, 61U));

TEST(ContinueSession, IsOneStepOfUndo) {
  const OwnFolder folder;
  {
    KeepingProgram program(folder);
    program.Do("set txtRadius 7\ndialog dlogTemp ok txtTemp=20\nclick mnuRI_IAPWS");
    program.End();
  }
  KeepingProgram next(folder);
  next.Do("set txtRadius 4\nclick mnuContinueSession");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "7");
  EXPECT_EQ(next.Now().form1.mnuRI_IAPWS.Caption, "IAPWS 20C Complex");
  next.Do("click mnuUndo");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "4");
}

TEST(ContinueSession, AProgramInWhichNothingWasDoneLeavesTheLastSession) {
  const OwnFolder folder;
  {
    KeepingProgram program(folder);
    EXPECT_FALSE(program.Now().form1.mnuContinueSession.Enabled);
    program.Do("set txtRadius 7");
    program.End();
  }
  KeepingProgram(folder).End();
  KeepingProgram next(folder);
  next.Do("click mnuContinueSession");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "7");
}

TEST(ContinueSession, TablesComeBackThoughTheirFilesAreGone) {
  const OwnFolder folder;
  const auto names = {"crown_glass.rix", "white_led.spe", "spray.dis"};
  for (const char* name : names) std::filesystem::copy(Example(name), folder.Path(name));
  KeepingProgram program(folder);
  program.Do("set txtRadius 7\nset cboWave 3\nset cboStep 5\nopen " + folder.Path("crown_glass.rix") +
             "\nclick mnuRI_File1\nopen " + folder.Path("white_led.spe") +
             "\nclick mnuSpectrumFile\nclick optDisp\nopen " + folder.Path("spray.dis") +
             "\nclick mnuSizeDist\nclick cmdNewPlot");
  program.End();
  for (const char* name : names) std::filesystem::remove(folder.Path(name));
  KeepingProgram next(folder);
  next.Do("click mnuContinueSession");
  EXPECT_TRUE(next.runner.World().messages.empty()) << next.errors.str();
  EXPECT_EQ(next.Now().form1.lblSphere.Caption, "Sphere: Crown glass");
  EXPECT_EQ(DrawingLines(next.Now().windows.front()), DrawingLines(program.Now().windows.front()));
}

TEST(ContinueSession, DamageIsToldAndChangesNothing) {
  const OwnFolder folder;
  {
    KeepingProgram program(folder);
    program.Do("set txtRadius 7");
    program.End();
  }
  const std::string good = folder.Read(lastSessionName);
  KeepingProgram next(folder);
  const std::string before = SessionText(next.Now(), {});
  for (std::size_t i = 0; i + 1 < good.size(); i += 97) {
    folder.Write(lastSessionName, i % 2 == 0 ? good.substr(0, i) : std::string(good).replace(i, 1, "~"));
    next.Do("click mnuContinueSession");
    EXPECT_EQ(SessionText(next.Now(), {}), before);
    EXPECT_EQ(next.runner.World().messages.back().title, "Continue last session");
  }
  folder.Write(lastSessionName, good);
  next.Do("click mnuContinueSession");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "7");
}

// Of a program of another version.
TEST(ContinueSession, InputsThatThisProgramLacksChangeNothing) {
  const OwnFolder folder;
  KeepingProgram program(folder);
  program.Do("set txtRadius 7");
  const std::string good = SessionText(program.Now(), {});
  const auto with = [&](const std::string& line, const std::string& other) {
    std::string text = good;
    const auto at = text.find(line);
    EXPECT_NE(at, std::string::npos) << line;
    folder.Write(lastSessionName, Sealed(text.replace(at, line.size(), other)));
    const bool continued = ContinueSession(program.Now(), folder.Path(lastSessionName));
    EXPECT_TRUE(continued || SessionText(program.Now(), {}) == good) << other;
    return continued;
  };
  EXPECT_FALSE(with("Form1.cboType Mie", "Form1.cboType No method"));
  EXPECT_FALSE(with("Form1.cboGraph Intensity v. scattering angle", "Form1.cboGraph No graph"));
  EXPECT_FALSE(with("BlackBodyTemp 6000", "BlackBodyTemp hot"));
  EXPECT_TRUE(with("dlogTemp.chkRI_Complex 1", "dlogOther.chkRI_Complex 0"));
}

// Recovery.

TEST(KeepSession, WhatACrashLeftIsOfferedOnceAndContinues) {
  const OwnFolder folder;
  {
    KeepingProgram crashed(folder, "77");
    EXPECT_FALSE(crashed.recovered);
    EXPECT_EQ(folder.Files(), 0) << "the run of the start is not worth keeping";
    crashed.Do("set txtRadius 7\nclick cmdNewPlot\nset txtRadius 8");
    EXPECT_EQ(folder.Files(), 1);
  }
  KeepingProgram next(folder, "78");
  EXPECT_TRUE(next.recovered);
  EXPECT_FALSE(KeepingProgram(folder, "79").recovered) << "asked once";
  next.Do("click mnuContinueSession");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "7") << "the inputs of the last run";
  next.End();
  EXPECT_EQ(folder.Files(), 1) << "nothing but the last session";
  EXPECT_FALSE(KeepingProgram(folder, "80").recovered);
}

TEST(KeepSession, AProgramThatRunsKeepsItsOwn) {
  const OwnFolder folder;
  KeepingProgram running(folder);
  // As long as this test runs, a program of this name and number does.
  running.Now().settings.program = ThisProgram();
  running.Do("set txtRadius 7\nclick cmdNewPlot");
  KeepingProgram next(folder, "2");
  EXPECT_FALSE(next.recovered);
  EXPECT_TRUE(std::filesystem::exists(running.Now().settings.sessionFile));
  next.Do("set txtRadius 8\nclick cmdNewPlot");
  next.End();
  running.End();
  KeepingProgram last(folder, "3");
  last.Do("click mnuContinueSession");
  EXPECT_EQ(last.Now().form1.txtRadius.Text, "7") << "the one that ended last";
}

TEST(KeepSession, WhatABatchSetsIsNotTheUsers) {
  const OwnFolder folder;
  KeepingProgram program(folder);
  program.Now().state.BatchActive = 1;
  program.Do("set txtRadius 7\nclick cmdNewPlot");
  EXPECT_EQ(folder.Files(), 0);
}

TEST(KeepSession, WhatCannotBeWrittenAtTheEndIsOfferedAtTheNextStart) {
  const OwnFolder folder;
  {
    KeepingProgram program(folder, "5");
    program.Do("set txtRadius 7\nclick cmdNewPlot");
    // A folder in its place takes no file.
    std::filesystem::create_directory(program.Now().settings.lastSessionFile);
    EndSession(program.Now());
    std::filesystem::remove(program.Now().settings.lastSessionFile);
  }
  folder.Write("Lumivex-host-99.session", "a younger one that is half a fi");
  KeepingProgram next(folder, "6");
  EXPECT_TRUE(next.recovered) << "the whole one, whatever is younger";
  next.Do("click mnuContinueSession");
  EXPECT_EQ(next.Now().form1.txtRadius.Text, "7");
}

TEST(KeepSession, ADamagedRestIsClearedAwayAndNotOffered) {
  const OwnFolder folder;
  folder.Write("Lumivex-host-5.session", "half a fi");
  folder.Write("Lumivex-other.txt", "somebody else's");
  EXPECT_FALSE(KeepingProgram(folder).recovered);
  EXPECT_EQ(folder.Files(), 1);
}

}  // namespace
}  // namespace lumivex
