// Heiligenschein as a user finds it.

#include <gtest/gtest.h>

#include "files/batch/batch_keywords.h"
#include "pages/page_table.h"
#include "runs/run_fixture.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Dew : public ScriptedSession {
 protected:
  void Choose(const std::string& distance, const std::string& slope) {
    Do("reset\ndialog dlogHeiligenschein ok txtDistance=" + distance + " txtSlope=" + slope +
       "\nclick mnuHeiligenschein\nset txtRefractReal 1.333\nset txtRefractImag 0\nset txtRadius 1000");
    runner.World().messages.clear();
  }
  const MainFormState& State() { return runner.Current().state; }
  /// Brightness over that of a dry surface, so many degrees from the antisolar point.
  double Brightness(double delta) {
    const int row = static_cast<int>(std::nearbyint((180 + delta) / 0.1)) + 1;
    return State().S1.Intensity(row) / (State().SizeParameter * State().SizeParameter);
  }
};

TEST_F(Dew, ShinesRoundTheAntisolarPoint) {
  Choose("1.5", "20");
  EXPECT_EQ(Get("cboType"), "Heiligenschein");
  EXPECT_EQ(Get("lblDebyeRays"), "Heiligenschein (L = 1.5, gamma = 20)");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax"), "150 210") << "both sides, in place of 0 to 180";
  Do("set txtXmin 169\nset txtXmax 191\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  for (const auto& [delta, sum] : {std::pair{-10.0, 1.194}, {-2.0, 45.67}, {1.0, 55.215}, {5.0, 6.98}, {10.0, 1.183}})
    EXPECT_NEAR(Brightness(delta), sum, 0.015 * sum + 0.002) << delta;
  EXPECT_EQ(State().S1, State().S2);
  EXPECT_EQ(State().Xmax, 191);
  const auto table = TableOf(runner.Current().page);
  ASSERT_FALSE(table.empty());
  EXPECT_EQ(table.front().cells.front(), "169");
  EXPECT_EQ(table.front().cells.back(), "191");
}

TEST_F(Dew, BothSidesAreAlikeWhereTheSurfaceFacesTheSun) {
  Choose("2", "0");
  Do("set txtXmin 160\nset txtXmax 185\nclick cmdNewPlot");
  for (const double delta : {0.5, 1.0, 2.0, 5.0}) EXPECT_EQ(Brightness(delta), Brightness(-delta)) << delta;
  EXPECT_NEAR(Brightness(1), 19.22, 0.3);
  EXPECT_NEAR(Brightness(-20), 0.4667, 0.01);
  // Beyond a right angle nothing comes back.
  Do("set txtXmin 80\nset txtXmax 100\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_EQ(State().S1.Re(81), 0);
  EXPECT_GT(State().S1.Re(101), 0);
  Do("set txtXmin 200\nset txtXmax 210\nset cboStep 0.1\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_NEAR(Brightness(20), 0.4667, 0.01) << "one side alone";
}

TEST_F(Dew, GraphsThatGoRoundKeepTheAnglesAndSumsOverAllDirectionsTheirs) {
  Choose("2", "0");
  Do("set txtXmin 178\nset txtXmax 182\nchoose cboGraph Watts/sq. m. v. scattering angle");
  EXPECT_EQ(Get("txtXmax"), "182");
  Do("choose cboGraph Phase function");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax"), "0 180");
  EXPECT_TRUE(Shown().empty()) << LastText();
}

TEST_F(Dew, BadSurfacesAreRefused) {
  const struct {
    const char *fields, *field;
  } cases[] = {{"txtDistance=0.9", "txtDistance"},
               {"txtDistance=far", "txtDistance"},
               {"txtSlope=90", "txtSlope"},
               {"txtSlope=-1", "txtSlope"}};
  for (const auto& c : cases) {
    Do(std::string("reset\ndialog dlogHeiligenschein ok ") + c.fields);
    runner.World().messages.clear();
    Do("click mnuHeiligenschein");
    EXPECT_EQ(Shown().size(), 1U) << c.fields;
    EXPECT_EQ(Get("cboType"), "Mie") << c.fields;
  }
  Choose("2", "0");
  Do("set txtRadius 0.5\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Heiligenschein needs a larger sphere: its size parameter x must be at least 10");
  EXPECT_EQ(runner.Current().form1.txtRadius.BackColour, colours::BadInput);
  Do("choose cboType Mie");
  EXPECT_EQ(runner.Current().form1.txtRadius.BackColour, colours::White) << "it is good for another method";
  Choose("2", "0");
  Do("set txtXmax 361\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Maximum angle > 360 degrees");
  // Light into all directions is told of spheres alone, whose rows end at 180.
  Choose("2", "0");
  Do("choose cboGraph Phase function\nset txtXmax 200\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Maximum angle > 180 degrees");
  Choose("2", "0");
  Do("choose cboType Mie");
  EXPECT_EQ(Get("txtXmax"), "180");
}

TEST(DewRuns, AreTheSameOnAnyNumberOfThreadsAndStopAtTheEdges) {
  RunRequest request = AngleRequest(500, 0.5, Method::Heiligenschein);
  AngleRows rows = RowsFor(170, 190, 0.5);
  rows.origin = 0;
  rows.NANG = 361;
  request.run = AngleRun{rows};
  const RunEnd one = RunSilently(request, 1), three = RunSilently(request, 3);
  ASSERT_EQ(one.outcome, Outcome::Done) << one.refusal.text;
  EXPECT_EQ(Numbers(one.results).all, Numbers(three.results).all);
  StopAt half(0.5);
  const RunEnd stopped = RunWatched(request, half, 1);
  ASSERT_TRUE(stopped.hasResults);
  const auto& found = std::get<AngleFound>(stopped.results.found);
  EXPECT_TRUE(found.rows.Contains(341) && found.rows.Contains(381)) << "170 and 190 degrees come first";
  EXPECT_FALSE(found.rows.Contains(361));
}

TEST_F(Dew, BatchWordsTypeItsSurface) {
  EXPECT_EQ(FindBatchKeyword("L")->control, "dlogHeiligenschein.txtDistance");
  for (const char* word : {"L", "gamma", "Jmin", "Jmax", "Axis ratio", "Sun elevation", "Clock angle", "Rays"}) {
    const std::string target(FindBatchKeyword(word)->control);
    const auto dot = target.find('.');
    Form* form =
        dot == std::string::npos ? &runner.Current().form1 : runner.Current().forms.Find(target.substr(0, dot));
    ASSERT_NE(form, nullptr) << word;
    EXPECT_NE(form->Find(dot == std::string::npos ? target : target.substr(dot + 1)), nullptr) << word;
  }
}

}  // namespace
}  // namespace lumivex
