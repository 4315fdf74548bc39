// What comes after a map: series of maps, sizes folded in by Replot, maps and spectra that were stopped, their undo.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/page_table.h"
#include "session/info.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class MapReplot : public ScriptedSession {
 protected:
  Session& Now() { return runner.Current(); }
  const Page& Drawn() { return Now().page; }
  std::vector<Colour> Cells() { return *Drawn().map->pictures.at(0).cells; }
  std::string Status() { return StatusText(Now()); }
  std::string Parameters() {
    std::string text;
    for (const std::string& line : Drawn().runs.back().parameters) text += line + "\n";
    return text;
  }
  /// A map of few cells; radii up to so many um.
  void RunMap(const char* largest) {
    Do(std::string("choose cboGraph Map: angle v. radius\nset txtXmin 137\nset txtXmax 139\nset cboStep 0.5\n") +
       "set txtF9_max " + largest + "\nclick cmdNewPlot");
    ASSERT_TRUE(Drawn().map) << LastText();
  }
  /// A Lee diagram of 41 columns, stopped on its way where a percentage is given.
  void RunLee(const char* stopAt = nullptr) {
    Do("choose cboGraph Lee diagram: radius\nset txtXmin 137\nset txtXmax 145\nset cboStep 0.1\nset txtRmax 100\n"
       "set txtRstep 40");
    if (stopAt != nullptr) Do(std::string("stop-at ") + stopAt);
    Do("click cmdNewPlot");
  }
};

TEST_F(MapReplot, ASeriesOfMapsIsUndoneAndRedone) {
  RunMap("20");
  Do("click mnuMapNormalise");
  const double reference = Number("LeeCurrentMaximum");
  EXPECT_EQ(Number("MapReference"), reference);
  RunMap("40");
  EXPECT_GT(Number("LeeCurrentMaximum"), reference);
  EXPECT_EQ(Number("LeeOverallMaximum"), reference);
  Do("click mnuUndo\nclick mnuUndo");
  ASSERT_EQ(Get("mnuMapNormalise"), "false");
  EXPECT_EQ(Number("LeeOverallMaximum"), Number("LeeCurrentMaximum")) << "without a series its own";
  Do("click mnuRedo");
  ASSERT_EQ(Get("mnuMapNormalise"), "true");
  EXPECT_EQ(Number("LeeOverallMaximum"), reference) << "the map of then is the scale again";
}

// The columns that appear during the run were taken for a map of their own.
TEST_F(MapReplot, ASeriesBeginsWithAMapThatHasEnded) {
  Do("click mnuMapNormalise");
  double now = 0;
  runner.World().clock = [&] { return now += 1; };
  RunMap("40");
  EXPECT_EQ(Number("MapReference"), Number("LeeCurrentMaximum"));
  EXPECT_EQ(Number("LeeOverallMaximum"), Number("LeeCurrentMaximum"));
}

TEST_F(MapReplot, AnotherKindOfMapBeginsAnotherSeries) {
  RunMap("20");
  Do("click mnuMapNormalise\nchoose cboGraph Map: Q v. RI & size x\nset cboStep 4\nset txtF9_step 4\nclick cmdNewPlot");
  EXPECT_EQ(Number("LeeOverallMaximum"), Number("LeeCurrentMaximum"));
  EXPECT_EQ(Number("MapReference"), Number("LeeCurrentMaximum"));
  const double efficiency = Number("MapReference");
  Do("set txtXmax 3\nclick cmdNewPlot");
  EXPECT_EQ(Number("LeeOverallMaximum"), efficiency) << "the next ones belong to it";
  EXPECT_NE(Number("LeeCurrentMaximum"), efficiency);
  // Sums over a spectrum are no intensities of one wavelength.
  RunMap("20");
  const double one = Number("MapReference");
  Do("set cboWave 3\nclick cmdNewPlot");
  EXPECT_NE(Number("MapReference"), one);
  EXPECT_EQ(Number("LeeOverallMaximum"), Number("LeeCurrentMaximum"));
}

// A click on a colour folded once more, with whatever width stood in the field by then.
TEST_F(MapReplot, ColoursShowTheSizesThatReplotHasFoldedIn) {
  RunLee();
  const auto single = Drawn().map->values;
  Do("click optDisp\nset cboSD 10\nclick cmdReplot");
  const auto folded = Drawn().map->values;
  ASSERT_NE(folded, single);
  EXPECT_THAT(Parameters(), HasSubstr("Sizes: Log-normal"));
  const std::string words = Parameters();
  Do("set cboSD 0.01\nclick mnuFalseColours\nset cboBright 2");
  EXPECT_EQ(Drawn().map->values, folded);
  EXPECT_EQ(Parameters(), words) << "the width of then";
  EXPECT_THAT(Status(), HasSubstr("sizes folded in"));
  Do("click cmdReplot");
  EXPECT_THAT(LastText(), HasSubstr("Increase the Standard Deviation"));
  EXPECT_EQ(Drawn().map->values, folded) << "what was refused leaves the map";
  Do("click optMono");
  EXPECT_EQ(Drawn().map->values, single);
  Do("click optDisp\nclick mnuFalseColours");
  EXPECT_EQ(Drawn().map->values, single) << "Replot alone folds";
}

TEST_F(MapReplot, ADistributionIsOfferedForResultsOfTheInputsAlone) {
  RunLee();
  Do("click optDisp");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  Do("click optMono");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false");
  Do("click optDisp");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true") << "nothing was typed in between";
  Do("set txtRmax 90");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false");
  Do("click optMono\nclick optDisp");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false") << "the columns are those of other radii";
  EXPECT_EQ(Get("cmdReplot.Visible"), "true");
}

TEST_F(MapReplot, APartStaysAPartAfterReplot) {
  RunLee("20");
  const int done = Drawn().map->values->done;
  ASSERT_GT(done, 1);
  ASSERT_LT(done, 41);
  const std::string part = std::to_string(done) + " of 41 columns";
  EXPECT_THAT(Status(), HasSubstr(part));
  EXPECT_THAT(Parameters(), HasSubstr("Calculated: " + part));
  Do("click optDisp\nset cboSD 10\nclick cmdReplot");
  EXPECT_THAT(Status(), HasSubstr(part));
  EXPECT_THAT(Status(), HasSubstr("sizes folded in: "));
  EXPECT_TRUE(Status().ends_with(", stopped")) << Status();
  Do("click optMono\nset txtRstep 1\nset txtRmax 20\nclick cmdNewPlot");
  EXPECT_THAT(Status(), HasSubstr("Mie, 2 columns, "));
  EXPECT_THAT(Status(), Not(HasSubstr("stopped")));
  EXPECT_THAT(Parameters(), HasSubstr("in 1 step\n"));
}

// Page, tables and record told of different runs until Replot.
TEST_F(MapReplot, AStoppedSpectrumIsOnThePageWithTheWavelengthsThatItHas) {
  Do("set cboWave 20\nset txtRadius 300\nset cboStep 0.1\nstop-at 33\nclick cmdNewPlot");
  const auto& s = Now().state;
  const int done = s.WavelengthsDone;
  ASSERT_GE(done, 1);
  ASSERT_LT(done, 20);
  ASSERT_EQ(Drawn().kind.wavelengths, 20) << "drawn without a Replot";
  ASSERT_TRUE(Drawn().bars);
  const std::string part = std::to_string(done) + " of 20 wavelengths";
  EXPECT_THAT(Status(), HasSubstr(part));
  EXPECT_THAT(Parameters(), HasSubstr(part));
  EXPECT_THAT(Parameters(), Not(HasSubstr("692"))) << "the last wavelength of the band was not reached";
  EXPECT_THAT(TableWithHeader(Drawn()), HasSubstr("# " + part));
  const std::string atOnce = TableAsCsv(Drawn());
  Do("click cmdReplot");
  EXPECT_EQ(TableAsCsv(Drawn()), atOnce);
  EXPECT_THAT(Status(), HasSubstr(part));
}

// The scale of colours could not be chosen before the first map had been run, and began as the graph before left it.
TEST_F(MapReplot, ColoursBeginAlikeWhateverWasChosenBefore) {
  EXPECT_EQ(Get("cboLee.Enabled"), "false");
  Do("choose cboGraph Lee diagram: radius");
  EXPECT_EQ(Get("cboLee.Enabled"), "true");
  for (const char* graph : {"Map: angle v. imaginary RI", "Map: angle v. radius", "Map: angle v. wavelength"})
    for (const char* scale : {"Normalised", "Absolute"}) {
      Do(std::string("choose cboGraph Lee diagram: radius\nchoose cboLee ") + scale + "\nchoose cboGraph " + graph);
      EXPECT_EQ(Get("cboLee"), "Absolute") << graph << " after " << scale;
    }
  Do("choose cboGraph Map: angle v. RI of sphere");
  EXPECT_EQ(Get("cboLee"), "Absolute");
  EXPECT_EQ(Get("mnuFalseColours"), "true") << "one wavelength alone is dark";
  Do("set cboWave 3");
  EXPECT_EQ(Get("cboLee"), "Normalised");
  EXPECT_EQ(Get("mnuFalseColours"), "false");
  Do("click cmdNewPlot");
  EXPECT_EQ(Get("cboLee"), "Normalised") << "after the run too";
  Do("click mnuFalseColours\nset cboWave 7");
  EXPECT_EQ(Get("mnuFalseColours"), "true") << "the user's own choice";
  Do("choose cboGraph Lee diagram: radius");
  EXPECT_EQ(Get("mnuFalseColours"), "false");
}

// A radius of 10 um was the angle of the next graph, and an index of 1.1 its radius.
TEST_F(MapReplot, FieldsThatMeantSomethingElseAreThemselvesAgain) {
  Do("set txtRadius 12\nchoose cboGraph Intensity v. wavelength\nset txtAngle 140");
  Do("choose cboGraph Lee diagram: refractive index");
  EXPECT_EQ(Get("txtAngle"), "10");
  EXPECT_EQ(Get("txtRadius"), "1.1");
  Do("choose cboGraph Map: angle v. RI of sphere");
  EXPECT_EQ(Get("txtRadius"), "12");
  Do("choose cboGraph Map: angle v. imaginary RI\nset txtAngle 7\nchoose cboGraph Intensity v. wavelength");
  EXPECT_EQ(Get("txtAngle"), "140");
  EXPECT_EQ(Get("txtRadius"), "12");
}

/// The CSV of a map, read by column and row.
struct CellTable {
  std::string name;
  std::vector<double> columns, rows;
  std::vector<std::vector<std::string>> cells;
};
std::vector<CellTable> ReadTables(const std::string& csv) {
  std::vector<CellTable> tables;
  std::istringstream lines(csv);
  std::string line;
  while (std::getline(lines, line)) {
    if (line.starts_with("# ")) tables.push_back({line.substr(2), {}, {}, {}});
    if (line.empty() || line.starts_with("# ")) continue;
    CellTable& table = tables.back();
    std::istringstream cells(line);
    std::string cell;
    std::getline(cells, cell, ',');
    const bool head = table.columns.empty();
    if (!head) table.rows.push_back(Val(cell));
    std::vector<std::string> row;
    while (std::getline(cells, cell, ',')) head ? table.columns.push_back(Val(cell)) : row.push_back(cell);
    if (!head) table.cells.push_back(row);
  }
  return tables;
}

// What the pointer tells of a cell is what the table has at the same place, and the strongest wavelength is one that
// was calculated.
TEST_F(MapReplot, ScriptsReadTheCellsUnderThePointer) {
  Do("choose cboGraph Lee diagram: radius\nset cboWave RGB\nset txtXmin 137\nset txtXmax 145\nset cboStep 0.5\n"
     "set txtRstep 4\nclick cmdNewPlot");
  output.str("");
  Do("table");
  const auto tables = ReadTables(output.str());
  ASSERT_EQ(tables.size(), 9U);
  ASSERT_EQ(tables[0].columns.size(), 5U);
  ASSERT_EQ(tables[0].rows.size(), 17U);
  for (std::size_t picture = 0; picture < 3; ++picture)
    for (const std::size_t column : {0U, 3U})
      for (const std::size_t row : {0U, 7U, 16U}) {
        const PagePanel& panel = Drawn().panels[picture];
        const PanelMap place{panel.box, panel.limits, Drawn().kind.logX, panel.logY};
        const double radius = tables[0].columns[column], angle = tables[0].rows[row];
        output.str("");
        Do("read " + Exact(place.X(radius)) + " " + Exact(place.Y(angle)));
        EXPECT_THAT(output.str(),
                    HasSubstr(": " + Significant(radius, 4) + " \u00B5m   " + Significant(angle, 4) + " deg   red "));
        const auto told = [&](const std::string& name) {
          return Val(output.str().substr(output.str().find(name) + name.size()));
        };
        std::size_t channel = 3 * picture;
        for (const char* name : {"red ", "green ", "blue "}) {
          const double cell = Val(tables[channel++].cells[row][column]);
          EXPECT_NEAR(told(name), cell, 6e-6 * cell) << output.str();
        }
        const double most = told("most at ");
        EXPECT_TRUE(most == 650 || most == 510 || most == 440) << most;
      }
  output.str("");
  Do("read 1 1");
  EXPECT_EQ(output.str(), "nothing\n");
}

}  // namespace
}  // namespace lumivex
