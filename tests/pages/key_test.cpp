#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/build_page.h"
#include "pages/curves/curve_key.h"
#include "pages/curves/curve_names.h"
#include "pages/drawing_reader.h"
#include "pages/page_table.h"
#include "pages/read_out.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Key : public ScriptedSession {
 protected:
  const Page& Drawn() { return runner.Current().page; }
  DrawingReader Read() { return DrawingReader(static_cast<const RecordingSurface&>(*runner.Current().surface)); }
  /// Names of all columns of the table but the first.
  std::vector<std::string> Columns() {
    std::vector<std::string> names;
    for (const auto& column : TableOf(Drawn())) names.push_back(column.name);
    names.erase(names.begin());
    return names;
  }
  /// What differs between the runs, in the words of the key.
  std::vector<std::string> Runs() {
    std::vector<std::string> words;
    const CurveNames names(Drawn());
    for (std::size_t run = 0; run < Drawn().runs.size(); ++run) words.push_back(names.OfRun(run));
    return words;
  }
};

TEST_F(Key, TellsCurvesByWhatTheirRunsDifferIn) {
  struct Row {
    const char* lines;
    std::vector<std::string> runs;
  };
  const std::vector<Row> rows = {
      {"click cmdNewPlot\nclick cmdOverPlot", {"", ""}},
      {"click cmdNewPlot\nset txtRadius 5\nclick cmdOverPlot", {"r = 10 \u00B5m", "r = 5 \u00B5m"}},
      {"click cmdNewPlot\nchoose cboType Debye\nchoose cboRays 2\nclick cmdOverPlot", {"Mie", "Debye series (p = 2)"}},
      {"choose cboType Diffraction\nclick cmdNewPlot\nclick mnuDiffractionNew\nclick cmdOverPlot",
       {"Diffraction", "Diffraction new"}},
      {"click cmdNewPlot\nset txtLambda 0.45\nset txtRadius 3\nclick cmdOverPlot",
       {"r = 10 \u00B5m, 650 nm", "r = 3 \u00B5m, 450 nm"}},
      {"click mnuRI_Fixed1\nset txtRefractImag 0\nset txtRefractReal 1.4\nclick cmdNewPlot\nset txtRefractReal "
       "1.5\nclick cmdOverPlot",
       {"n = 1.4", "n = 1.5"}},
      {"set cboStep 1\nclick cmdNewPlot\nset cboStep 0.5\nclick cmdOverPlot", {"step 1", "step 0.5"}},
      {"click cmdNewPlot\nset cboN 5\nclick optDisp\nclick cmdOverPlot",
       {"r = 10 \u00B5m", "Log-normal, Std Dev % 5, 5 samples, r = 10 \u00B5m"}},
      {"choose cboGraph Intensity v. wavelength\nset cboStep 50\nset txtAngle 10\nclick cmdNewPlot\nset txtAngle 20\n"
       "click cmdOverPlot",
       {"10\u00B0", "20\u00B0"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.lines);
    Do("reset");
    Do(row.lines);
    EXPECT_EQ(Runs(), row.runs);
  }
}

TEST_F(Key, SaysTheSameInPictureTableAndReadOut) {
  Do("choose cboPol Both\nclick cmdNewPlot\nclick mnuBlueLine\nset txtRadius 5\nclick cmdOverPlot");
  const std::vector<std::string> names = {
      "r = 10 \u00B5m: Parallel polarisation", "r = 10 \u00B5m: Perpendicular polarisation",
      "r = 5 \u00B5m: Parallel polarisation", "r = 5 \u00B5m: Perpendicular polarisation"};
  EXPECT_EQ(Columns(), names);
  Do("drawing");
  ASSERT_EQ(Drawn().curves.size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    const DrawnOperation* text = Read().Text(names[i]);
    ASSERT_NE(text, nullptr) << names[i];
    const auto lines = Read().All(DrawnOperation::Kind::Line);
    EXPECT_TRUE(std::ranges::any_of(lines,
                                    [&](const DrawnOperation& line) {
                                      return line.colour == Drawn().curves[i].colour &&
                                             line.points[1].x < text->points[0].x &&
                                             line.points[1].x > text->points[0].x - 200 &&
                                             line.points[0].y > text->points[0].y &&
                                             line.points[0].y < text->points[0].y + text->height;
                                    }))
        << "the pen of " << names[i];
  }
  const PagePanel& panel = Drawn().panels[0];
  const PanelMap map{panel.box, panel.limits, false, true};
  const auto reading = ReadAt(Drawn(), map.X(60), map.Y(Drawn().curves[2].y[601]));
  ASSERT_TRUE(reading);
  EXPECT_THAT(reading->text, HasSubstr("r = 5 \u00B5m: "));
  const std::string csv = TableWithHeader(Drawn());
  EXPECT_THAT(csv, HasSubstr("# Run 1\n"));
  EXPECT_THAT(csv, HasSubstr("# Radius: 5 "));
  const auto header = HeaderInShort(Drawn());
  EXPECT_EQ(std::ranges::count(header, "Wavelength: 0.65 \u00B5m in vacuo"), 1) << "what all runs have stands once";
  EXPECT_THAT(header.back(), testing::StartsWith("Run 2: Radius: 5 "));
}

TEST_F(Key, StandsBelowEveryGraphOfSeveralCurves) {
  struct Row {
    const char* lines;
    std::vector<std::string> texts;
  };
  const std::vector<Row> rows = {
      {"choose cboPol Both\nclick cmdNewPlot", {"Perpendicular polarisation", "Parallel polarisation"}},
      {"choose cboGraph Scattering matrix\nclick cmdNewPlot", {"S11", "S12/S11", "S33/S11", "S34/S11"}},
      {"click mnuRI_Fixed1\nset txtRefractImag 0.1\nchoose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 50\n"
       "click cmdNewPlot",
       {"Qext", "Qsca", "Qabs"}},
      {"choose cboGraph Qext/Qsca/Qabs v. radius\nclick mnuRI_Fixed1\nset txtRefractImag 0\nset cboStep 50\nclick "
       "cmdNewPlot",
       {"Qext = Qsca   Qabs = 0"}},
      {"choose cboGraph Cext/Csca/Cabs v. radius\nclick mnuRI_Fixed1\nset txtRefractImag 0\nset cboStep 50\nclick "
       "cmdNewPlot",
       {"Cext = Csca   Cabs = 0"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.lines);
    Do("reset");
    Do(row.lines);
    Do("drawing");
    const double below = Drawn().panels.back().box.bottom;
    for (const std::string& text : row.texts) {
      const DrawnOperation* found = Read().Text(text);
      ASSERT_NE(found, nullptr) << text;
      EXPECT_GT(found->points[0].y, below) << text;
    }
    EXPECT_THAT(Read().Overlaps(), testing::IsEmpty());
  }
  Do("reset\nchoose cboPol Unpolarised\nclick cmdNewPlot\ndrawing");
  EXPECT_EQ(Read().Text("Unpolarised"), nullptr) << "one curve needs no key";
}

TEST_F(Key, NamesWhatOneCurveStandsForInTheTableToo) {
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nclick mnuRI_Fixed1\nset txtRefractImag 0\nset cboStep 50\n"
     "click cmdNewPlot");
  EXPECT_THAT(Columns(), ElementsAre("Qext = Qsca   Qabs = 0"));
  // These have no polarisations, with absorption or without.
  const std::vector<std::pair<std::string, std::string>> graphs = {{"Qback v. radius", "Qback"},
                                                                   {"Qradar v. radius", "Qradar"},
                                                                   {"Asymmetry g v. radius", "Asymmetry parameter g"},
                                                                   {"Albedo v. radius", "Albedo"}};
  for (const auto& [graph, name] : graphs) {
    Do("set txtRefractImag 0.1\nchoose cboPol All 3\nchoose cboGraph " + graph + "\nset cboStep 50\nclick cmdNewPlot");
    EXPECT_THAT(Columns(), ElementsAre(name));
  }
}

TEST_F(Key, TellsDegreesOfPolarisationOfSeveralRuns) {
  Do("choose cboPol Both\nclick mnuIntPol\nclick cmdNewPlot\nclick mnuBlueLine\nset txtRadius 5\nclick cmdOverPlot\n"
     "drawing");
  const double below = Drawn().panels.back().box.bottom;
  for (const char* name : {"r = 10 \u00B5m: Degree of linear polarisation", "r = 5 \u00B5m: Parallel polarisation",
                           "r = 5 \u00B5m: Degree of linear polarisation"}) {
    const DrawnOperation* text = Read().Text(name);
    ASSERT_NE(text, nullptr) << name;
    EXPECT_GT(text->points[0].y, below) << name;
  }
}

// It was printed over the curves of a graph that reached below the window, and through the title of slides.
TEST_F(Key, StandsBelowTheTitleOfTheAxisOnALowSurface) {
  for (const char* size : {"click mnuLarge", "click mnuVLarge", "click mnuLarge\nclick mnuSizeSpecial"}) {
    for (const double px : {560, 660}) {
      SCOPED_TRACE(size + (" " + std::to_string(px)));
      Do("reset\nsize 1366x" + Shortest(px));
      Do(size);
      Do("choose cboPol All 3\nset cboStep 1\nclick cmdNewPlot\ndrawing");
      const DrawnOperation* title = Read().Text("Scattering angle (deg.)");
      ASSERT_NE(title, nullptr);
      EXPECT_GT(title->points[0].y, Drawn().panels.back().box.bottom);
      for (const char* name : {"Perpendicular polarisation", "Parallel polarisation", "Unpolarised"}) {
        const DrawnOperation* text = Read().Text(name);
        ASSERT_NE(text, nullptr) << name;
        EXPECT_GE(text->points[0].y, title->points[0].y + title->height) << name;
        EXPECT_LE(text->points[0].y + text->height, Drawn().geometry.surfaceHeight) << name;
      }
    }
  }
}

TEST_F(Key, LeavesOutNoCurveWhileThereIsRoom) {
  Do("set cboStep 5\nchoose cboPol Both\nclick cmdNewPlot");
  for (int i = 1; i <= 20; ++i) Do("set txtRadius " + std::to_string(10 + i) + "\nclick cmdOverPlot");
  Page page = Drawn();
  ASSERT_EQ(page.runs.size(), 21U);
  for (const char* size : {"mnuVLarge", "mnuSmall", "mnuMedium", "mnuLarge"}) {
    Do(std::string("click ") + size);
    page = PlacePage(page, Drawn().geometry);
    page.style.size = Drawn().style.size;
    RecordingSurface surface(page.geometry.surfaceWidth, page.geometry.surfaceHeight);
    Paint(page, surface);
    const DrawingReader read(surface);
    for (const auto& curve : page.curves)
      EXPECT_NE(read.Text(CurveNames(page).InKey(curve)), nullptr) << size << " " << curve.name << " " << curve.run;
    EXPECT_THAT(read.Overlaps(), testing::IsEmpty()) << size;
  }
  // Where there is none at all, the key says so.
  RecordingSurface low(8000, page.geometry.box.bottom + 1000);
  Paint(page, low);
  EXPECT_TRUE(std::ranges::any_of(low.Operations(), [](const DrawnOperation& op) {
    return op.text.starts_with("and ") && op.text.ends_with(" more");
  }));
}

TEST_F(Key, CurvesOfARunHoldTheirAnglesOnce) {
  Do("click cmdNewPlot\nset txtRadius 5\nclick cmdOverPlot");
  for (const auto& curve : Drawn().curves) EXPECT_TRUE(curve.x.SharesWith(Drawn().curves[0].x));
  const Page copy = Drawn();
  EXPECT_TRUE(copy.curves[1].y.SharesWith(Drawn().curves[1].y));
}

// Three polarisations of seven wavelengths were 21 names of seven pens, in letters that nobody could read.
TEST_F(Key, NamesAWavelengthOnceForAllItsCurves) {
  const auto entries = [&] {
    std::vector<std::string> names;
    const double below = Drawn().panels[0].box.bottom + 400;
    for (const auto& text : Read().All(DrawnOperation::Kind::Text))
      if (text.points[0].y > below && text.text.ends_with(" nm")) {
        names.push_back(text.text);
        EXPECT_GE(text.fontSize, 7);
      }
    return names;
  };
  Do("set cboWave RGB\nset cboStep 2\nchoose cboPol All 3\nclick cmdNewPlot");
  EXPECT_THAT(entries(), testing::UnorderedElementsAre("650 nm", "510 nm", "440 nm"));
  EXPECT_THAT(Columns(), testing::Contains("650 nm: Perpendicular polarisation")) << "tables name each curve";
  EXPECT_EQ(EntriesInKey(Drawn()), 3U);
  Do("choose cboPol Parallel");
  EXPECT_THAT(entries(), testing::IsEmpty()) << "of one polarisation the name tells it";
  EXPECT_NE(Read().Text("650 nm: Parallel polarisation"), nullptr);
  Do("choose cboPol Both\nset cboWave 20\nclick cmdNewPlot");
  EXPECT_EQ(EntriesInKey(Drawn()), 2U) << "sums have no wavelength";
}

}  // namespace
}  // namespace lumivex
