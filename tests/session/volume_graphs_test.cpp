#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "pages/zoom.h"
#include "record/layout/menu_tree.h"
#include "record/recording_surface.h"
#include "session/inputs/look/read_look.h"
#include "session/session_fixture.h"
#include "session/view.h"

namespace lumivex {
namespace {

class VolumeGraphs : public ScriptedSession {
 protected:
  const MainFormState& State() { return runner.Current().state; }
  const Page& Drawn() { return runner.Current().page; }
  void Choose(const char* entry, const std::string& fields = "") {
    Do("dialog dlogVolume ok " + fields + "\nclick " + entry);
  }
  std::string Drawing() {
    output.str("");
    Do("drawing");
    return output.str();
  }
  std::string Table() {
    Do("click mnuCopyData");
    return runner.World().copiedText;
  }
};

TEST_F(VolumeGraphs, AreInTheAdvancedMenuWithAxesOfTheirOwn) {
  struct Case {
    const char *entry, *graph, *frame, *minimum, *xmin, *xmax, *step, *title;
    bool radius, count;
  };
  for (const auto& c :
       {Case{"mnuVolumePlace", "Vol: Int v. xPart", "Position of one sphere", "Minimum (\u00B5m)", "0", "20", "0.02",
             "Position x of one sphere (\u00B5m)", true, true},
        Case{"mnuVolumeNumber", "Vol: Int v. N", "Number of spheres N", "Minimum", "1", "100", "1",
             "Number of spheres N", true, false},
        Case{"mnuVolumeTime", "Vol: Int v. time", "Time", "Minimum (s)", "0", "10", "0.01", "Time (s)", true, true},
        Case{"mnuVolumeRadius", "Vol: Int v. radius", "Radius of sphere", "Minimum (\u00B5m)", "1", "5", "0.01",
             "Radius (\u00B5m)", false, true}}) {
    SCOPED_TRACE(c.graph);
    bool inMenu = false;
    for (const MenuRow& row : OfferedMenu()) inMenu |= row.entry == c.entry && row.path.starts_with("Advanced/");
    EXPECT_TRUE(inMenu);
    Choose(c.entry);
    EXPECT_EQ(Get("cboGraph"), c.graph);
    EXPECT_EQ(Get("Frame2.Caption"), c.frame);
    EXPECT_EQ(Get("Label3"), c.minimum);
    EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax") + " " + Get("cboStep"),
              std::string(c.xmin) + " " + c.xmax + " " + c.step);
    EXPECT_EQ(Get("txtRadius.Visible"), c.radius ? "true" : "false");
    EXPECT_EQ(Get("dlogVolume.txtCount.Visible"), c.count ? "true" : "false");
    EXPECT_EQ(Get("txtAngle.Visible"), "true");
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
    EXPECT_EQ(State().LastPoint, State().PointIndex);
    ASSERT_EQ(Drawn().curves.size(), 4U);
    const std::string drawing = Drawing();
    for (const char* text :
         {c.title, "Perpendicular polarisation: N|S|\u00B2", "Parallel polarisation: N|S|\u00B2", "Mie scattering"})
      EXPECT_NE(drawing.find(text), std::string::npos) << text;
    EXPECT_EQ(Table().substr(0, Table().find('\t')), c.title);
    EXPECT_NE(Table().find("Parallel polarisation: N|S|\u00B2"), std::string::npos);
    Do("click cmdReplot");
    EXPECT_EQ(Drawing(), drawing);
  }
}

TEST_F(VolumeGraphs, AskForTheirCubeAgainAndTellRunsApart) {
  Choose("mnuVolumeNumber", "txtSeed=3");
  Do("click cmdNewPlot");
  EXPECT_EQ(State().Iperp.size(), 101U);
  const double before = State().Iperp[50];
  Choose("mnuVolumeNumber", "txtSeed=4 txtSide=500");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false") << "the results are those of another cube";
  EXPECT_EQ(Get("txtXmax"), "100") << "the axis stays";
  Do("click cmdOverPlot");
  ASSERT_EQ(Drawn().runs.size(), 2U);
  EXPECT_NE(State().Iperp[50], before);
  EXPECT_NE(Drawing().find("side 500 \u00B5m, seed 4: Perpendicular polarisation"), std::string::npos);
  const auto& lines = Drawn().runs[1].parameters;
  const auto told = [&](const std::string& text) {
    return std::ranges::any_of(lines, [&](const std::string& line) { return line.find(text) != std::string::npos; });
  };
  EXPECT_TRUE(told("Spheres at random places in a cube of 500 \u00B5m, seed 4"));
  EXPECT_TRUE(told("Scattering angle: 138\u00B0"));
  EXPECT_TRUE(told("Number of spheres N: 1 to 100 in steps of 1"));
  Do("dialog dlogVolume cancel\nclick mnuVolumeNumber");
  EXPECT_EQ(Get("dlogVolume.txtSeed"), "4");
  EXPECT_EQ(Get("GraphType"), "31") << "the graph was there already";
}

// Cancel left another graph than the one on the screen.
TEST_F(VolumeGraphs, ACancelledDialogChoosesNoGraph) {
  Do("choose cboGraph Intensity v. radius\nset txtXmax 7\nclick cmdNewPlot");
  const std::string drawing = Drawing();
  for (const char* entry : {"mnuVolumePlace", "mnuVolumeRadius"}) {
    Do("dialog dlogVolume cancel txtSeed=8\nclick " + std::string(entry));
    EXPECT_EQ(Get("GraphType") + " " + Get("cboGraph"), "11 Intensity v. radius");
    EXPECT_EQ(Get("txtXmax") + " " + Get("Label3") + " " + Get("txtRadius.Visible"), "7 Minimum (\u00B5m) false");
    EXPECT_EQ(Get("cmdReplot.Enabled"), "true") << "the results are those of the inputs";
    EXPECT_EQ(Get("dlogVolume.txtSeed"), "1");
    EXPECT_EQ(Drawing(), drawing);
  }
  Choose("mnuVolumePlace");
  Do("dialog dlogVolume cancel\nchoose cboGraph Vol: Int v. xPart");
  EXPECT_EQ(Get("GraphType"), "30");
  Do("click mnuUndo");
  EXPECT_EQ(Get("GraphType") + " " + Get("txtXmax"), "11 7");
}

// Two seeds had the same pens, and what no place of a sphere changes was drawn and named twice.
TEST_F(VolumeGraphs, OverplottedSeedsAreToldApart) {
  Choose("mnuVolumeNumber", "txtSeed=1");
  Do("click cmdNewPlot");
  Choose("mnuVolumeNumber", "txtSeed=2");
  Do("click cmdOverPlot");
  Choose("mnuVolumeNumber", "txtSeed=3");
  Do("click cmdOverPlot");
  const auto& curves = Drawn().curves;
  ASSERT_EQ(curves.size(), 8U) << "three runs of two, and two without interference";
  for (std::size_t i = 0; i < curves.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_TRUE(curves[i].colour != curves[j].colour || curves[i].drawStyle != curves[j].drawStyle) << i << " " << j;
  const std::string table = Table();
  EXPECT_NE(table.find("\tParallel polarisation: N|S|\u00B2\t"), std::string::npos) << "of no seed";
  EXPECT_NE(table.find("\tseed 3: Parallel polarisation"), std::string::npos);
  // Other spheres send other light alone.
  Do("set txtRadius 5\nclick cmdOverPlot");
  EXPECT_EQ(Drawn().curves.size(), 12U);
  EXPECT_NE(Table().find("r = 5 \u00B5m: Parallel polarisation: N|S|\u00B2"), std::string::npos);
  // A pen that was picked is the user's own.
  Do("click mnuGreenLine\nclick cmdOverPlot");
  const Colour picked = Drawn().curves.back().colour;
  Do("click cmdNewPlot");
  EXPECT_EQ(Drawn().curves.back().colour, picked);
}

TEST_F(VolumeGraphs, TablesOfScriptsHaveTheLightWithoutInterference) {
  Choose("mnuVolumeNumber");
  Do("set txtXmax 3\nclick cmdNewPlot");
  output.str("");
  Do("table");
  std::istringstream lines(output.str());
  std::string line;
  ASSERT_TRUE(std::getline(lines, line));
  EXPECT_EQ(line,
            "x,perpendicular,parallel,unpolarised,extra1,extra2,extra3,alone perpendicular,alone parallel,alone "
            "unpolarised");
  double one = 0;
  for (int n = 1; n <= 3; ++n) {
    ASSERT_TRUE(std::getline(lines, line));
    std::vector<double> cells;
    std::istringstream row(line);
    for (std::string cell; std::getline(row, cell, ',');) cells.push_back(Val(cell));
    ASSERT_EQ(cells.size(), 10U);
    if (n == 1) one = cells[1];
    EXPECT_EQ(cells[0], n);
    EXPECT_NEAR(cells[7] / (n * one), 1, 1e-12) << "of one sphere its own intensity";
    EXPECT_NEAR(cells[9], (cells[7] + cells[8]) / 2, 1e-9 * cells[9]);
  }
}

TEST_F(VolumeGraphs, TellHowFullTheCubeIs) {
  const auto told = [&](const std::string& line) {
    const auto& lines = Drawn().runs.back().parameters;
    return std::ranges::find(lines, line) != lines.end();
  };
  // 4/3 pi r^3 N over the cube's volume.
  Choose("mnuVolumeRadius", "txtCount=100 txtSide=100");
  Do("set txtXmin 1\nset txtXmax 2\nset cboStep 0.25\nclick cmdNewPlot");
  EXPECT_TRUE(told("Spheres fill 0.0419 % to 0.335 % of the cube"));
  Choose("mnuVolumeNumber");
  Do("set txtRadius 1\nclick cmdNewPlot");
  EXPECT_TRUE(told("Spheres fill 0.0419 % of the cube, all of them"));
  // Of a log-normal cloud the mean of the cubes counts, which is above that of the mean size.
  Choose("mnuVolumePlace");
  Do("set txtRadius 1\nset cboStep 1\nclick optDisp\nset cboSD 50\nset cboN 50\nclick cmdNewPlot");
  EXPECT_FALSE(told("Spheres fill 0.0419 % of the cube"));
  double cubes = 0;
  for (std::size_t i = 1; i < State().DistRadius.size(); ++i) cubes += std::pow(State().DistRadius[i], 3) / 50;
  EXPECT_TRUE(told("Spheres fill " + Significant(0.0418879 * cubes, 3) + " % of the cube"));
}

// Numbers of spheres had ticks at 1.5 and 2.5.
TEST_F(VolumeGraphs, TicksOfNumbersAreWhole) {
  Choose("mnuVolumeNumber");
  for (const char* most : {"2", "3", "5", "9"}) {
    Do(std::string("set txtXmax ") + most + "\nclick cmdNewPlot");
    const double bottom = Drawn().panels[0].box.bottom;
    int labels = 0;
    for (const auto& text : static_cast<const RecordingSurface&>(*runner.Current().surface).Operations()) {
      if (text.kind != DrawnOperation::Kind::Text || text.points[0].y < bottom || text.points[0].y > bottom + 200)
        continue;
      ++labels;
      EXPECT_EQ(text.text.find('.'), std::string::npos) << text.text;
    }
    EXPECT_GE(labels, 2) << most;
  }
}

// Hours were asked for before the spheres were refused.
TEST_F(VolumeGraphs, WhatCannotBeCalculatedAsksForNoTime) {
  for (const char* lines : {"click mnuVolumeRadius\nset txtXmax 1e7\nset cboStep 1000",
                            "click mnuVolumeTime\nset txtRadius 1e7", "click mnuVolumePlace\nset txtRadius 1e7"}) {
    runner.World().messages.clear();
    Do(std::string("dialog dlogVolume ok\n") + lines + "\nclick cmdNewPlot");
    ASSERT_EQ(Shown().size(), 1U) << lines;
    EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  }
}

TEST_F(VolumeGraphs, FewerSpheresTakeTheMarkOffTheStep) {
  Choose("mnuVolumeTime");
  Do("set dlogVolume.txtCount 1000000\nclick cmdNewPlot");
  EXPECT_EQ(Get("cboStep.BackColour"), "255");
  Choose("mnuVolumeTime", "txtCount=10");
  EXPECT_EQ(Get("cboStep.BackColour"), "16777215");
}

TEST_F(VolumeGraphs, MotionIsToldWithItsDiffusion) {
  Choose("mnuVolumeTime", "txtCount=3");
  Do("set txtRadius 1\nset cboStep 0.5\nclick cmdNewPlot\nclick optLinear");
  const auto& lines = Drawn().runs[0].parameters;
  EXPECT_TRUE(std::ranges::find(lines, "Brownian motion in water at 20 \u00B0C: D = 0.2144 \u00B5m\u00B2/s") !=
              lines.end());
  // A linear axis reaches above the curve without interference, however dark the speckle.
  for (const PageCurve& curve : Drawn().curves)
    for (std::size_t i = 1; i < curve.y.size(); ++i) EXPECT_LE(curve.y[i], Drawn().panels[0].limits.ymax);
}

TEST_F(VolumeGraphs, BadInputsAreToldAndLeaveTheGraph) {
  struct Case {
    const char *entry, *field, *text, *message;
  };
  constexpr const char* wrong = "    The red highlighted data entry is incorrect.    ";
  for (const auto& c :
       {Case{"mnuVolumePlace", "dlogVolume.txtCount", "0", "Value must be positive"},
        Case{"mnuVolumePlace", "dlogVolume.txtCount", "2.5", wrong},
        Case{"mnuVolumePlace", "dlogVolume.txtCount", "1000001", "Value must not be greater than 1000000"},
        Case{"mnuVolumePlace", "dlogVolume.txtSide", "-3", "Value must be positive"},
        Case{"mnuVolumePlace", "dlogVolume.txtSide", "1e7", "Value must not be greater than 1000000"},
        Case{"mnuVolumePlace", "dlogVolume.txtSeed", "abc", wrong},
        Case{"mnuVolumePlace", "dlogVolume.txtSeed", "-1", "Value must be positive or zero"},
        Case{"mnuVolumePlace", "dlogVolume.txtSeed", "1.5", wrong},
        Case{"mnuVolumePlace", "txtXmax", "1001", "Value must not be greater than 1000"},
        Case{"mnuVolumePlace", "txtXmin", "20", "Minimum value must be less than maximum value"},
        Case{"mnuVolumePlace", "cboStep", "0.001", "Increase the step size or reduce the maximum/minimum range"},
        Case{"mnuVolumePlace", "cboStep", "0", "Step size must be greater than zero"},
        Case{"mnuVolumePlace", "cboStep", "15", "Select a smaller step size"},
        Case{"mnuVolumePlace", "txtAngle", "181", "Scattering angle > 180"},
        Case{"mnuVolumeNumber", "txtXmin", "0", "Value must be positive"},
        Case{"mnuVolumeNumber", "txtXmin", "1.5", wrong},
        Case{"mnuVolumeNumber", "txtXmax", "2000000", "Value must not be greater than 1000000"},
        Case{"mnuVolumeNumber", "cboStep", "0.5", wrong},
        Case{"mnuVolumeNumber", "cboStep", "100", "Select a smaller step size"},
        Case{"mnuVolumeTime", "dlogVolume.txtCount", "1000000",
             "Increase the step size or reduce the maximum/minimum range"},
        Case{"mnuVolumeRadius", "txtXmin", "0", "Value must be positive"}}) {
    SCOPED_TRACE(std::string(c.entry) + " " + c.field + " " + c.text);
    Do("reset");
    runner.World().messages.clear();
    Choose(c.entry, "txtCount=20");
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
    const auto results = State().LastResults;
    const std::string field = c.field;
    Do("set " + field + " " + c.text + "\nclick cmdNewPlot");
    EXPECT_EQ(LastText(), c.message);
    EXPECT_EQ(State().LastResults, results);
    const auto dot = field.find('.');
    Form* form =
        dot == std::string::npos ? &runner.Current().form1 : static_cast<Form*>(&runner.Current().forms.dlogVolume);
    EXPECT_EQ(form->Find(dot == std::string::npos ? field : field.substr(dot + 1))->BackColour, colours::BadInput);
  }
}

TEST_F(VolumeGraphs, TheDialogRefusesWhatItCannotUse) {
  Choose("mnuVolumeTime");
  Do("dialog dlogVolume ok txtCount=0\nclick mnuVolumeTime");
  EXPECT_EQ(LastText(), "Value must be positive");
  EXPECT_EQ(Get("dlogVolume.txtCount"), "100");
  Do("dialog dlogVolume ok txtSide=0,5\nclick mnuVolumeTime");
  EXPECT_EQ(Get("dlogVolume.txtSide"), "0.5");
}

TEST_F(VolumeGraphs, UndoAndDefaultsKnowTheCube) {
  Choose("mnuVolumePlace");
  Choose("mnuVolumePlace", "txtCount=7 txtSeed=9");
  Do("click mnuUndo");
  EXPECT_EQ(Get("dlogVolume.txtCount") + " " + Get("dlogVolume.txtSeed"), "100 1");
  Do("click mnuRedo");
  EXPECT_EQ(Get("dlogVolume.txtCount") + " " + Get("dlogVolume.txtSeed"), "7 9");
  Do("click mnuUndo\nclick mnuUndo");
  EXPECT_EQ(Get("GraphType"), "1");
  Choose("mnuVolumePlace", "txtCount=7 txtSide=2000 txtSeed=9");
  Do("click mnuRestoreDefaults");
  EXPECT_EQ(Get("dlogVolume.txtCount") + " " + Get("dlogVolume.txtSide") + " " + Get("dlogVolume.txtSeed"),
            "100 1000 1");
}

TEST_F(VolumeGraphs, AStoppedRunChangesNoResults) {
  Choose("mnuVolumeTime", "txtCount=400");
  Do("set cboStep 1\nclick cmdNewPlot");
  const auto results = State().LastResults;
  const double first = State().Iperp[1];
  Do("set cboStep 0.01\nstop-at 40\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  EXPECT_EQ(State().LastResults, results);
  EXPECT_EQ(State().Iperp[1], first);
}

TEST_F(VolumeGraphs, AZoomOverNumbersIsCalculatedInWholeSpheres) {
  Choose("mnuVolumeNumber");
  Do("set txtXmax 5000\nset cboStep 50\nclick cmdNewPlot");
  auto& session = runner.Current();
  session.page = WithView(session.page, {XRange{301.5, 444.5}, {}}, ReadLook(session));
  const auto run = RunOfView(session);
  ASSERT_TRUE(run);
  CalculateView(session, *run);
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboStep"), "1");
}

TEST_F(VolumeGraphs, TakeCloudsAndLogarithmicSteps) {
  Choose("mnuVolumeNumber");
  Do("click optDisp\nset cboSD 5\nclick mnuXStepLog\nset txtXmax 10000\nset cboStep 80\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("Label5"), "No. of steps");
  EXPECT_EQ(State().XValues[1], 1);
  EXPECT_EQ(State().XValues[static_cast<std::size_t>(State().LastPoint)], 10000);
  EXPECT_TRUE(Drawn().histogram);
  Choose("mnuVolumeTime");
  Do("click mnuXStepLog\nset cboStep 50\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Value must be positive") << "equal ratios do not begin at 0";
}

}  // namespace
}  // namespace lumivex
