#include "session/compare/compare.h"

#include <algorithm>
#include <cmath>
#include <fstream>

#include "pages/curves/curve_names.h"
#include "pages/page_table.h"
#include "session/page.h"
#include "session_fixture.h"

namespace lumivex {
namespace {

/// Curves compared as a user does, by script lines.
class Comparing : public ScriptedSession {
 protected:
  Comparing() { Do("set cboStep 1\nclick cmdNewPlot"); }

  const Page& Shown() { return runner.Current().page; }
  std::vector<ListedCurve> Listed() { return CurvesOnPage(runner.Current()); }
  /// The names of what is drawn, by the alphabet.
  std::vector<std::string> Drawn() {
    std::vector<std::string> all;
    const CurveNames names(Shown());
    for (const PageCurve& curve : Shown().curves) all.push_back(names.InKey(curve));
    std::ranges::sort(all);
    return all;
  }
  bool HasColumn(const std::string& name) {
    const auto columns = TableOf(Shown());
    return std::ranges::find(columns, name, &TableColumn::name) != columns.end();
  }
  /// A file of points that are so many times the perpendicular curve, with noise of turning sign.
  std::string FileOf(double factor, double noise, const std::string& name = "measured.csv") {
    const std::string path = ::testing::TempDir() + name;
    std::ofstream file(path);
    file << "angle,intensity,error\n";
    const auto& s = runner.Current().state;
    for (std::size_t i = 11; i < 171; i += 10) {
      const double y = factor * s.Iperp[i], sign = (i / 10) % 2 == 0 ? 1 : -1;
      file << s.XValues[i] << "," << y * (1 + sign * noise) << "," << y * noise << "\n";
    }
    return path;
  }
  const PageCurve& Points() {
    return *std::ranges::find_if(Shown().curves, [](const PageCurve& curve) { return curve.data != 0; });
  }
};

constexpr const char* perpendicular = "Perpendicular polarisation";
constexpr const char* parallel = "Parallel polarisation";

TEST_F(Comparing, NamesColoursAndHidingLastUntilNewPlot) {
  ASSERT_EQ(Drawn(), (std::vector<std::string>{parallel, perpendicular}));
  Do("curve 1 name \"Mie, s\"\ncurve 1 colour 0072B2\ncurve 2 hide");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{"Mie, s"}));
  EXPECT_EQ(Shown().curves[0].colour, RGB(0, 0x72, 0xB2));
  EXPECT_TRUE(HasColumn("Mie, s"));
  EXPECT_FALSE(HasColumn(parallel)) << "tables have what the page has";
  EXPECT_EQ(Listed().size(), 2U) << "what is hidden is still in the list";
  Do("click cmdReplot\nsize 1100x800\nclick mnuWhite");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{"Mie, s"}));
  Do("set txtRadius 5\nclick cmdOverPlot");
  EXPECT_EQ(Drawn().size(), 3U) << "an overplot comes whole";
  EXPECT_EQ(Drawn()[0], "Mie, s");
  Do("click cmdNewPlot");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{parallel, perpendicular}));
}

TEST_F(Comparing, EveryStepIsUndone) {
  Do("curve 1 hide\ncurve 1 remove\ncurve 1 name other");
  EXPECT_EQ(Listed().size(), 1U);
  EXPECT_EQ(Drawn(), (std::vector<std::string>{"other"}));
  Do("click mnuUndo");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{parallel}));
  Do("click mnuUndo\nclick mnuUndo");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{parallel, perpendicular}));
  Do("click mnuRedo");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{parallel}));
}

TEST_F(Comparing, AKeptCurveStaysWhereItFits) {
  Do("curve 1 keep\nset txtRadius 5\nclick cmdNewPlot");
  ASSERT_EQ(Drawn().size(), 3U);
  EXPECT_EQ(Listed().size(), 3U);
  EXPECT_TRUE(std::ranges::any_of(Listed(), &ListedCurve::kept));
  const auto drawn = Drawn();
  EXPECT_EQ(std::ranges::count(drawn, "r = 10 \u00B5m: Perpendicular polarisation"), 1) << drawn[2];
  EXPECT_EQ(Shown().runs.back().number, runner.Current().state.LastResults->number)
      << "title and readings are those of the last run";
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nclick cmdNewPlot");
  EXPECT_TRUE(std::ranges::none_of(Listed(), &ListedCurve::kept)) << "efficiencies have no place for it";
  Do("choose cboGraph Intensity v. scattering angle\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_TRUE(std::ranges::any_of(Listed(), &ListedCurve::kept));
  Do("click cmdReplot\nclick mnuPolarPlot");
  EXPECT_TRUE(std::ranges::none_of(Listed(), &ListedCurve::kept)) << "its angles are not those of a polar plot";
}

TEST_F(Comparing, DifferencesAndRatiosStandBelow) {
  const std::size_t panels = Shown().panels.size();
  const double bottom = Shown().panels.back().box.bottom;
  Do("below ratio 1 2");
  ASSERT_EQ(Shown().panels.size(), panels + 1);
  EXPECT_EQ(Shown().panels.back().box.bottom, bottom) << "the graph gives it room, the page does not grow";
  const PageCurve& ratio = Shown().curves.back();
  const auto& s = runner.Current().state;
  for (const std::size_t row : {1U, 50U, 121U}) EXPECT_NEAR(ratio.y[row], s.Iperp[row] / s.Ipar[row], 1e-12);
  EXPECT_TRUE(HasColumn("Perpendicular polarisation / Parallel polarisation"));
  Do("below difference");
  EXPECT_NEAR(Shown().curves.back().y[50], s.Iperp[50] - s.Ipar[50], 1e-12);
  EXPECT_LE(Shown().panels.back().limits.ymin, 0);
  // Further runs are compared again with what is kept.
  Do("curve 1 keep\ncurve 2 remove\nset txtRadius 10.5\nclick cmdNewPlot");
  Do("below nothing\nbelow ratio 3 1\nset txtRadius 11\nclick cmdNewPlot");
  EXPECT_EQ(runner.Current().comparison.pairs.size(), 1U);
  EXPECT_EQ(Shown().panels.back().below, BelowGraph::Ratio);
  Do("below nothing");
  EXPECT_EQ(Shown().panels.size(), panels);
}

TEST_F(Comparing, AZoomKeepsTheComparison) {
  Do("below difference 1 2\ncurve 1 name one");
  const AxisLimits whole = Shown().panels.back().limits;
  ShowView(runner.Current(), {{100, 150}, std::nullopt});
  const AxisLimits part = Shown().panels.back().limits;
  EXPECT_EQ(part.xmin, 100);
  EXPECT_EQ(Shown().panels.front().limits.xmax, 150);
  EXPECT_LT(part.ymax - part.ymin, whole.ymax - whole.ymin) << "its scale goes by what is seen";
  EXPECT_TRUE(HasColumn("one"));
  ShowView(runner.Current(), {{0, 180}, std::nullopt});
  EXPECT_EQ(Shown().panels.back().limits, whole);
}

TEST_F(Comparing, MeasuredDataAreFittedAndStay) {
  Do("data " + FileOf(40, 0.05));
  ASSERT_EQ(Listed().size(), 3U);
  EXPECT_EQ(Listed()[2].name, "measured.csv");
  EXPECT_NE(Listed()[2].words.find("(fitted)"), std::string::npos);
  const PageCurve& points = Points();
  EXPECT_NEAR(points.y[6] / runner.Current().state.Iperp[61], 1, 0.06) << "drawn over the curve";
  EXPECT_EQ(points.error.size(), 17U);
  EXPECT_TRUE(HasColumn("measured.csv: error"));
  ASSERT_EQ(Shown().panels.back().below, BelowGraph::Ratio);
  EXPECT_NEAR(Shown().curves.back().y[6], 1, 0.06) << "what is left stands below";
  // Noise of one error to either side has a chi^2 of the points over one less.
  EXPECT_NE(Shown().notes[0].text.find("per degree of freedom 1.0"), std::string::npos) << Shown().notes[0].text;

  Do("set txtRadius 10.02\nclick cmdNewPlot");
  EXPECT_EQ(Listed().back().id.data, 1) << "another run is held against the same data";
  Do("data 3 factor 80");
  EXPECT_NEAR(Points().y[6] * 80, Points().y[6] * 80, 0);
  EXPECT_NE(Listed().back().words.find("f = 80, "), std::string::npos) << Listed().back().words;
  Do("data 3 against 2\ndata 3 fit");
  EXPECT_EQ(runner.Current().comparison.data[0].against.name, parallel);
  Do("set txtXmax 90\nclick cmdNewPlot");
  EXPECT_NE(Listed().back().words.find("7 beyond the ends of the axis not drawn"), std::string::npos)
      << Listed().back().words;
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nclick cmdNewPlot");
  EXPECT_TRUE(std::ranges::none_of(Shown().curves, [](const PageCurve& curve) { return curve.data != 0; }));
  EXPECT_EQ(Shown().panels.size(), 1U);
}

TEST_F(Comparing, TheDialogOfMeasuredDataChoosesColumns) {
  const std::string path = ::testing::TempDir() + "columns.csv";
  std::ofstream(path) << "point;angle;sigma;I\n1;10;0,1;2,5\n2;20;0,2;x\n3;30;0,3;3,5\n";
  Do("open " + path +
     "\ndialog dlogMeasured ok cboXColumn=2: angle cboYColumn=4: I txtDataName=the cloud\nclick mnuOpenData");
  ASSERT_EQ(Listed().size(), 3U);
  EXPECT_EQ(Listed()[2].name, "the cloud");
  EXPECT_EQ(LastTitle(), "Measured data");
  EXPECT_EQ(LastText(), "1 line could not be taken, the other 2 are there:\n\nline 3: \"x\" in column 4 is no number");
  const MeasuredPoints& points = *runner.Current().comparison.data[0].points;
  EXPECT_EQ(points.x, (std::vector<double>{10, 30}));
  EXPECT_EQ(points.y, (std::vector<double>{2.5, 3.5}));
  EXPECT_EQ(points.error, (std::vector<double>{0.1, 0.3})) << "a name that tells of errors";
  Do("click mnuUndo");
  EXPECT_EQ(Listed().size(), 2U) << "one step";
}

TEST_F(Comparing, AFileThatHoldsNoneLosesNothing) {
  Do("data " + FileOf(40, 0.05));
  for (const char* line : {"data nowhere.csv", "data 3 factor 0", "curve 9 hide", "curve 1 colour red",
                           "below ratio 1 1", "key 2 0", "mark 1 1", "marker 1 delete"}) {
    std::istringstream script(line);
    EXPECT_EQ(runner.Run(script), ScriptRunner::scriptError) << line;
  }
  EXPECT_EQ(Listed().size(), 3U);
}

TEST_F(Comparing, MarkedPointsAreKeptAsATable) {
  const PagePanel& panel = Shown().panels.front();
  const PanelMap map{panel.box, panel.limits, false, panel.logY};
  const auto& s = runner.Current().state;
  const auto mark = [&](std::size_t row, double y) {
    Do("mark " + Exact(map.X(s.XValues[row])) + " " + Exact(map.Y(y)));
  };
  mark(121, s.Iperp[121]);
  mark(141, s.Ipar[141]);
  ASSERT_EQ(Shown().markers.size(), 2U);
  EXPECT_EQ(MarkersAsText(runner.Current().comparison, '\t'),
            "number\tx\tunit of x\tvalue\tunit of value\tcurve\n1\t120\tdeg\t" +
                std::string(Trim(Significant(s.Iperp[121], 8))) + "\t\tPerpendicular polarisation\n2\t140\tdeg\t" +
                std::string(Trim(Significant(s.Ipar[141], 8))) + "\t\tParallel polarisation\n");
  Do("curve 1 hide");
  EXPECT_EQ(Shown().markers.size(), 1U) << "a mark goes with its curve";
  Do("marker 2 delete\ncurve 1 show\nset txtRadius 4\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().markers.empty()) << "and with its run";
  EXPECT_EQ(runner.Current().comparison.markers.size(), 1U) << "but its values stay in the table";
  Do("markers clear");
  EXPECT_TRUE(runner.Current().comparison.markers.empty());
}

}  // namespace
}  // namespace lumivex
