#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/drawing_reader.h"
#include "pages/page_table.h"
#include "pages/run_words.h"
#include "session/session_fixture.h"
#include "source_folder.h"

namespace lumivex {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class RunWordsTest : public ScriptedSession {
 protected:
  const Page& Drawn() { return runner.Current().page; }
  const std::vector<std::string>& Lines() { return Drawn().runs.back().parameters; }
};

TEST_F(RunWordsTest, AnAxisOfWavelengthsNamesItsRangeAndNoSingleIndex) {
  Do("choose cboGraph Intensity v. wavelength\nset cboStep 50\nset txtAngle 139.3\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Contains("Wavelength scale: 400 to 700 nm in steps of 50 nm"));
  EXPECT_THAT(Lines(), Contains("Scattering angle: 139.3\u00B0"));
  EXPECT_THAT(Lines(), Contains("Radius: 10 \u00B5m"));
  EXPECT_THAT(Lines(), Each(Not(AnyOf(StartsWith("Wavelength: "), StartsWith("Size parameter")))));
  EXPECT_THAT(Lines(), Contains(testing::MatchesRegex("   n = 1\\.34.* to 1\\.33.*")));
  Do("click mnuRI_Fixed1\nset txtRefractImag 0\nset txtRefractReal 1.5\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Contains("   n = 1.5")) << "an index that was typed is the same all along";
}

TEST_F(RunWordsTest, OtherAxesNameTheAnglesTheyAreFor) {
  Do("choose cboGraph Intensity v. refractive index\nset cboStep 0.05\nset txtAngle 42\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Contains("Scattering angle: 42\u00B0"));
  EXPECT_THAT(Lines(), Contains("Refractive index scale: 1.2 to 1.6 in steps of 0.05"));
  EXPECT_THAT(Lines(), Not(Contains("   n = 1.6"))) << "the last point is no more the run's than the first";
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 20\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Each(Not(HasSubstr("Scattering angle"))));
  EXPECT_THAT(Lines(), Contains("Radius: 0.01 to 100 \u00B5m in 20 steps"));
}

TEST_F(RunWordsTest, SizesFromATableAreItsOwn) {
  Do("set cboN 5\nset cboStep 5\nclick optDisp\nopen " + SourceFolder() +
     "/data/examples/spray.dis\nchoose cboDistrib Special\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_THAT(Lines(), Contains("Sizes: Special (spray.dis), 21 sizes"));
  EXPECT_THAT(Lines(), Each(Not(AnyOf(StartsWith("Radius"), StartsWith("Size parameter")))));
}

// Numbers that had been changed stood in files under the parameters of those that had not.
TEST_F(RunWordsTest, WhatTheLookMadeOfTheNumbersIsTold) {
  Do("set cboStep 0.2\nset cboWave 9\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Each(Not(AnyOf(HasSubstr("disc"), HasSubstr("mplitude"), HasSubstr("Cubic"), HasSubstr("mean"),
                                      HasSubstr("independent")))));
  Do("dialog dlogAverage ok txtAverage=5\nclick mnuAverage\nclick mnuInterpolate\nclick mnuAmplitude\nclick optSun\n"
     "click cmdNewPlot");
  for (const char* line : {"Light: Sun's disc", "Amplitudes in place of intensities", "Running mean over 5\u00B0",
                           "Cubic interpolation"}) {
    EXPECT_THAT(Lines(), Contains(line));
    EXPECT_THAT(TableWithHeader(Drawn()), HasSubstr(std::string("# ") + line + "\n"));
  }
  Do("click mnuAmplitude\nclick mnuInvWavelength\nclick mnuSun\nclick cmdNewPlot");
  EXPECT_THAT(Lines(), Contains("Intensity independent of wavelength"));
  EXPECT_THAT(Lines(), Contains("Light: Sun's disc, rectangular"));
  EXPECT_THAT(Lines(), Not(Contains("Amplitudes in place of intensities")));
}

TEST_F(RunWordsTest, AnglesStandInTablesAsTheyWouldBeTyped) {
  Do("set cboStep 0.1\nclick cmdNewPlot");
  std::istringstream table(TableAsCsv(Drawn()));
  std::string line;
  std::getline(table, line);
  for (int row = 0; std::getline(table, line); ++row)
    ASSERT_EQ(line.substr(0, line.find(',')), Shortest(row / 10.0)) << "0.3, not 0.30000000000000004";
  Do("choose cboGraph Intensity v. radius\nset txtXmax 2\nset cboStep 0.02\nclick cmdNewPlot");
  EXPECT_THAT(TableAsCsv(Drawn()), HasSubstr("\n1.14,"));
}

// They were painted under the inputs, and no other surface had them.
TEST_F(RunWordsTest, ChecksOfFunctionsAreAPageBelowTheInputs) {
  for (const char* event : {"mnuBessel_Click", "mnuAiry_Click"}) {
    ASSERT_TRUE(runner.Current().events.Raise(event));
    output.str("");
    Do("drawing");
    const DrawingReader read(static_cast<const RecordingSurface&>(*runner.Current().surface));
    EXPECT_THAT(read.Overlaps(), testing::IsEmpty());
    const auto texts = read.All(DrawnOperation::Kind::Text);
    ASSERT_GT(texts.size(), 25U) << event;
    for (const auto& text : texts) EXPECT_GE(text.points[0].y, 3400) << text.text;
    EXPECT_THAT(output.str(), HasSubstr(texts.back().text));
  }
  Do("click cmdOverPlot");
  EXPECT_TRUE(Drawn().sheet.empty()) << "nothing can be drawn over numbers";
  EXPECT_EQ(Drawn().panels.size(), 1U);
}

TEST(TimeWords, AreInMillisecondsBelowASecond) {
  EXPECT_EQ(TimeWords(0.0005), "0.5 ms");
  EXPECT_EQ(TimeWords(0.25), "250 ms");
  EXPECT_EQ(TimeWords(0.999), "1000 ms");
  EXPECT_EQ(TimeWords(1), "1 s");
  EXPECT_EQ(TimeWords(12.34), "12.3 s");
}

}  // namespace
}  // namespace lumivex
