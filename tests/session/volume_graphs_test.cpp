#include <gtest/gtest.h>

#include <algorithm>

#include "pages/zoom.h"
#include "record/layout/menu_tree.h"
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
