#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "record/text_file.h"
#include "scripts/script_file.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Script : public ScriptedSession {
 protected:
  /// Runs lines that must fail, and returns what was said.
  std::string Fail(const std::string& lines, int code = ScriptRunner::scriptError) {
    errors.str("");
    std::istringstream script(lines);
    EXPECT_EQ(runner.Run(script), code) << lines;
    return errors.str();
  }
};

TEST_F(Script, ErrorsTellTheLine) {
  EXPECT_EQ(Fail("# fine\n\nget txtRadius\nfly away\n"), "line 4: unknown command fly\n");
  EXPECT_NE(Fail("set txtNothing 1").find("txtNothing"), std::string::npos);
  EXPECT_NE(Fail("get Nothing").find("Nothing"), std::string::npos);
  EXPECT_NE(Fail("get txtRadius.Colour").find("Colour"), std::string::npos);
  EXPECT_NE(Fail("click txtRadius").find("txtRadius"), std::string::npos);
  EXPECT_NE(Fail("click cmdStop").find("disabled or hidden"), std::string::npos);
  EXPECT_NE(Fail("choose cboType Astrology").find("Astrology"), std::string::npos);
  EXPECT_NE(Fail("choose cboPol both").find("both"), std::string::npos);
  EXPECT_NE(Fail("dialog dlogNone ok").find("dlogNone"), std::string::npos);
  EXPECT_NE(Fail("dialog dlogTemp ok txtNone=3").find("txtNone"), std::string::npos);
  EXPECT_NE(Fail("array Nothing").find("Nothing"), std::string::npos);
  EXPECT_NE(Fail("size wide").find("WIDTHxHEIGHT"), std::string::npos);
  EXPECT_NE(Fail("size 1e9x1").find("WIDTHxHEIGHT"), std::string::npos);
  EXPECT_NE(Fail("picture x.png").find("window"), std::string::npos);
  EXPECT_NE(Fail("save-results").find("the name of a file"), std::string::npos);
  for (const char* line : {"table /nowhere/at/all.csv", "amplitudes /dev/full", "array Iperp /dev/full",
                           "drawing /dev/full", "save-results /dev/full"})
    EXPECT_FALSE(Fail(line, ScriptRunner::outputLost).empty());
}

TEST_F(Script, AWindowIsChosenByItsForm) {
  EXPECT_NE(Fail("window Form9").find("there is no window Form9"), std::string::npos);
  EXPECT_NE(Fail("window dlogTemp").find("dlogTemp"), std::string::npos) << "a dialog has no page";
  Do("window form1\ndrawing");
  EXPECT_EQ(output.str().substr(0, 4), "cls ");
  output.str("");
  // A further window is drawn by itself and leaves the main one alone.
  RecordingSurface surface(6000, 4000);
  Form& form = runner.Current().forms.dlogTemp;
  runner.Current().windows.push_back({&form, &surface});
  Do("window dlogTemp\ndrawing\nsize 100x100\nmouse 1 1");
  EXPECT_EQ(output.str(), "cls #f0f0f0\n");
  EXPECT_EQ(runner.Current().surface->ScaleWidth(), 1280 * 15);
  runner.Current().platform.Show(form);
  EXPECT_EQ(runner.World().shownForms, std::vector<std::string>{"dlogTemp"});
}

TEST_F(Script, NamesAndValues) {
  EXPECT_EQ(Get("TXTRADIUS"), "10");
  EXPECT_EQ(Get("optLog"), "true");
  EXPECT_EQ(Get("dlogTemp.txtTemp"), "5");
  EXPECT_EQ(Get("cmdNewPlot.Caption"), "New plot");
  EXPECT_EQ(Get("cboPol.Items"), "Perpendicular|Parallel|Both|Unpolarised|All 3");
  EXPECT_EQ(Get("txtRadius.BackColour"), "16777215");
  EXPECT_EQ(Get("lambda"), "0.65000000000000002");
  Do("click optLinear");
  EXPECT_EQ(Get("OptLog"), "false");
}

TEST_F(Script, DialogsAnswerOnceAndThenStandAsTheyAre) {
  Do("dialog dlogTemp cancel txtTemp=30\nclick mnuRI_IAPWS");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
  Do("dialog dlogTemp ok txtTemp=warm\nclick mnuRI_IAPWS");
  EXPECT_EQ(LastText(), "Temperature (C): a number is needed");
  EXPECT_EQ(Get("dlogTemp.txtTemp"), "5");
  Do("dialog dlogAir ok txtAirTemp=\nclick mnuRI_Air1");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
  Do("dialog dlogTemp ok txtTemp=15 chkRI_Complex=0\nclick mnuRI_IAPWS");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 15C)");
  Do("click cmdNewPlot");
  EXPECT_EQ(Number("RefRelImag"), 0);
}

TEST_F(Script, ArraysTablesAndDrawingsGoToFilesToo) {
  const auto path = std::filesystem::temp_directory_path() / "lumivex script test.csv";
  Do("table " + path.string());
  const auto file = ReadWholeFile(path.string());
  std::filesystem::remove(path);
  ASSERT_TRUE(file);
  output.str("");
  Do("table");
  EXPECT_EQ(*file, output.str());
  output.str("");
  Do("array Iperp");
  const std::string rows = output.str();
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 1901);
  output.str("");
  Do("drawing");
  EXPECT_NE(output.str().find("\"Scattering angle (deg.)\""), std::string::npos);
  EXPECT_NE(output.str().find("\"Mie scattering:  Water in a vacuum\""), std::string::npos);
  EXPECT_NE(output.str().find("\"Qsca = "), std::string::npos);
}

TEST_F(Script, ResetOpensAFreshSession) {
  const std::string fresh = Get("Qext");
  Do("set txtRadius 3\nclick cmdNewPlot\nreset");
  EXPECT_EQ(Get("txtRadius"), "10");
  EXPECT_EQ(Get("Qext"), fresh);
}

TEST_F(Script, ResizePlacesTheGraphInTheNewSurface) {
  Do("size 1000x700");
  EXPECT_NEAR(Number("GraphRight"), 0.97 * 15000, 1);
  EXPECT_NEAR(Number("GraphBottom"), 0.86 * 10500, 1);
}

TEST_F(Script, PathsMayHoldAHashBetweenQuotes) {
  const auto folder = std::filesystem::temp_directory_path() / "lumivex script paths";
  std::filesystem::create_directories(folder);
  Do("\xEF\xBB\xBFget txtRadius # a mark of byte order begins no command");
  Do("array Iperp \"" + (folder / "run #1.csv").string() + "\" # as told");
  Do("array Iperp " + (folder / "run#2.csv").string() + " # no quotes needed");
  EXPECT_TRUE(std::filesystem::exists(folder / "run #1.csv"));
  EXPECT_TRUE(std::filesystem::exists(folder / "run#2.csv"));
  Do("open \"" + (folder / "a #b.rix").string() + "\"");
  EXPECT_EQ(runner.World().openPaths.back(), (folder / "a #b.rix").string());
  Do("set txtRadius 5 # \" closes nothing");
  EXPECT_EQ(Get("txtRadius"), "5");
  std::filesystem::remove_all(folder);
}

TEST_F(Script, PicturesNeedAName) {
  std::string asked;
  RecordingSurface surface(12000, 9000);
  ScriptWindow window;
  window.picture = [&asked](Form&, std::string_view path, int width, int) {
    asked = std::string(path) + "|" + std::to_string(width);
    return std::string();
  };
  window.screenshot = [](Form&, std::string_view) { return std::string(); };
  runner.UseWindow(surface, window);
  runner.Start();
  for (const char* line : {"picture", "picture 100x100", "picture \"\" 100x100", "screenshot", "screenshot \"\""})
    EXPECT_NE(Fail(line).find("needs the name of a file"), std::string::npos) << line;
  EXPECT_EQ(asked, "");
  Do("picture \"a #1.png\" 300x200");
  EXPECT_EQ(asked, "a #1.png|300");
}

TEST(ScriptFile, FoldersAndLostOutputAreTold) {
  std::ifstream script;
  const std::string folder = std::filesystem::temp_directory_path().string();
  EXPECT_EQ(OpenScript(script, folder), folder + " is a folder, not a script");
  EXPECT_EQ(OpenScript(script, "/none"), "/none cannot be read: No such file or directory");
  std::ostringstream errors;
  std::ofstream lost("/dev/full");
  lost << "numbers";
  EXPECT_FALSE(OutputWasWritten(lost, errors, "lumivex-run"));
  EXPECT_NE(errors.str().find("lumivex-run: the output could not be written"), std::string::npos);
  EXPECT_TRUE(OutputWasWritten(errors, errors, ""));
}

}  // namespace
}  // namespace lumivex
