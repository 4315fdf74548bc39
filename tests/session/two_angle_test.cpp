#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "session/inputs/two_angle_inputs.h"
#include "session/session_fixture.h"
#include "solvers/series/mie_point.h"

namespace lumivex {
namespace {

constexpr double pi = 3.14159265358979324;

class TwoAngles : public ScriptedSession {
 protected:
  const MainFormState& State() { return runner.Current().state; }
  const Page& Drawn() { return runner.Current().page; }
  void Choose(const std::string& fields = "") {
    Do("dialog dlogIncident ok\ndialog dlogTwoAngle ok " + fields + "\nclick mnuTwoAngle");
  }
  std::string Drawing() {
    output.str("");
    Do("drawing");
    return output.str();
  }

  /// Simpson's rule over angles that are no rows of any grid.
  double CrossSection(double radius, double index, double lambda, double low, double high) {
    constexpr int pieces = 4000;
    const double k = 2 * pi / lambda, step = (high - low) * pi / 180 / pieces;
    double sum = 0;
    SilentMonitor silent;
    for (int i = 0; i <= pieces; ++i) {
      const double angle = low * pi / 180 + i * step;
      const MiePoint point = SolveMiePoint({k * radius, index, State().RefRelImag, angle, false, false}, silent);
      const double product = point.S1.re * point.S2.re + point.S1.im * point.S2.im;
      sum += (i == 0 || i == pieces ? 1 : i % 2 == 1 ? 4 : 2) * product * std::sin(angle);
    }
    return 2 * pi / (k * k) * sum * step / 3;
  }
};

TEST_F(TwoAngles, SumsAreTheIntegralsOverBothRanges) {
  // Edges on rows and between them; a range where the product changes its sign.
  struct Case {
    double low1, high1, low2, high2, tolerance;
  };
  for (const auto& c :
       {Case{0.5, 5.5, 5.5, 10.5, 1e-3}, Case{0, 180, 90, 180, 2e-3}, Case{20.03, 29.97, 140, 150, 5e-3}}) {
    SCOPED_TRACE(c.low1);
    std::ostringstream fields;
    fields << "txtAngle1min=" << c.low1 << " txtAngle1max=" << c.high1 << " txtAngle2min=" << c.low2
           << " txtAngle2max=" << c.high2
           << " txtRImin=1.33 txtRImax=1.5 txtRIstep=0.17 txtRmin=1 txtRmax=4 txtRstep=3";
    Do("reset");
    Choose(fields.str());
    Do("click cmdNewPlot");
    ASSERT_TRUE(Shown().empty()) << LastText();
    ASSERT_EQ(State().MapPerp.columns, 2U);
    ASSERT_EQ(State().MapPerp.rows, 2U);
    for (const std::size_t row : {0U, 1U})
      for (const std::size_t column : {0U, 1U}) {
        const double radius = row == 0 ? 1 : 4, index = column == 0 ? 1.33 : 1.5;
        const double first = CrossSection(radius, index, 0.65, c.low1, c.high1);
        const double second = CrossSection(radius, index, 0.65, c.low2, c.high2);
        const double whole = std::abs(CrossSection(radius, index, 0.65, 0, 10)) * 1e-4;
        EXPECT_NEAR(State().MapPerp.At(row, column), first, c.tolerance * std::abs(first) + whole) << radius << index;
        EXPECT_NEAR(State().MapPar.At(row, column), second, c.tolerance * std::abs(second) + whole) << radius << index;
      }
  }
}

TEST_F(TwoAngles, SumsDoNotDependOnWhatIsDividedByTheSize) {
  Choose("txtRImax=1.3 txtRmax=1");
  Do("click cmdNewPlot");
  const double value = State().MapPerp.At(1, 0);
  Do("click mnuSize\nclick cmdNewPlot");
  EXPECT_NEAR(State().MapPerp.At(1, 0), value, 1e-12 * value);
}

TEST_F(TwoAngles, ChartShowsLinesIndicesAndRadiiAndIsDrawnAnew) {
  Choose();
  EXPECT_EQ(Get("lblSphere"), "Sphere: Variable refractive index");
  EXPECT_EQ(Get("txtRadius.Visible"), "false");
  EXPECT_EQ(Get("txtXmin.Visible"), "false");
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Drawn().curves.size(), 5U);
  const std::string drawing = Drawing();
  for (const char* text : {"n = 1.3", "1.375", "r = ", "Cross-section, 0.5 to 5.5 deg. (sq \u00B5m)",
                           "5.5 to 10.5 deg.", "Mie scattering into two ranges of angle"})
    EXPECT_NE(drawing.find(text), std::string::npos) << text;
  const auto sizeOf = [&](const char* text) {
    const auto at = drawing.find(std::string("\"") + text);
    const auto size = drawing.rfind("size=", at);
    return drawing.substr(size, drawing.find(' ', size) - size);
  };
  EXPECT_EQ(sizeOf("5.5 to 10.5 deg."), sizeOf("(sq")) << "the two lines of one title";
  Do("click cmdReplot");
  EXPECT_EQ(Drawing(), drawing);
  // Over it only a chart of the same ranges, then both are there.
  Do("set txtLambda 0.5\nclick cmdOverPlot");
  EXPECT_EQ(Drawn().curves.size(), 10U);
  EXPECT_EQ(Drawn().curves.back().run, 1U);
  Do("dialog dlogTwoAngle ok txtAngle2max=12\nclick mnuTwoAngle\nclick cmdOverPlot");
  EXPECT_EQ(Drawn().curves.size(), 5U);
  Do("click mnuCopyData");
  const std::string& copied = runner.World().copiedText;
  EXPECT_TRUE(copied.starts_with("Radius (\u00B5m)\tn = 1.3: Cross-section, 0.5 to 5.5 deg.")) << copied.substr(0, 80);
  EXPECT_NE(copied.find("\n0.5\t"), std::string::npos);
  // Back among the graphs against angle everything is as before.
  Do("choose cboGraph Intensity v. scattering angle\nclick cmdNewPlot");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
  EXPECT_EQ(Get("txtXmin.Visible"), "true");
  EXPECT_EQ(Get("txtRadius.Visible"), "true");
  EXPECT_EQ(State().NSTOP, 166);
}

TEST_F(TwoAngles, BadInputsAreToldAndLeaveTheGraph) {
  struct Case {
    const char *field, *text, *message;
  };
  Choose();
  Do("click cmdNewPlot");
  const double value = State().MapPerp.At(2, 2);
  for (const auto& c :
       {Case{"txtAngle1min", "-1", "Minimum angle < 0 degrees"},
        Case{"txtAngle2max", "181", "Maximum angle > 180 degrees"},
        Case{"txtAngle1max", "0.1", "Minimum angle > Maximum angle"},
        Case{"txtAngle2min", "10.5", "Minimum angle = Maximum angle"}, Case{"txtRImin", "0", "Value must be positive"},
        Case{"txtRImax", "1.2", "Minimum value must be less than maximum value"},
        Case{"txtRIstep", "0", "Step size must be greater than zero"},
        Case{"txtRIstep", "1e-9", "Select a larger step size"}, Case{"txtRmin", "0", "Value must be positive"},
        Case{"txtRmax", "abc", "    The red highlighted data entry is incorrect.    "},
        Case{"txtRstep", "-0.5", "Step size must be greater than zero"},
        Case{"txtRstep", "1e-300", "Select a larger step size"},
        Case{"txtRmax", "1e12", "Value must not be greater than 1000000000"},
        Case{"txtRmax", "3e4", "Error in BHMIE sub-routine"}}) {
    SCOPED_TRACE(std::string(c.field) + " " + c.text);
    auto* field = static_cast<TextInput*>(runner.Current().forms.dlogTwoAngle.Find(c.field));
    const std::string before = field->Text;
    field->Text = c.text;
    runner.World().messages.clear();
    if (std::string(c.text) == "3e4") Do("set dlogTwoAngle.txtRstep 29999");
    Do("click cmdNewPlot");
    if (std::string(c.text) == "3e4") {
      EXPECT_EQ(LastTitle(), c.message);
    } else {
      EXPECT_EQ(LastTitle(), "Input error");
      EXPECT_EQ(LastText(), c.message);
      EXPECT_EQ(field->BackColour, colours::BadInput);
    }
    EXPECT_EQ(State().MapPerp.At(2, 2), value);
    EXPECT_EQ(State().PlotMode, 1);
    field->Text = before;
  }
  Do("set dlogTwoAngle.txtRstep 0.5\nclick cmdNewPlot");
  EXPECT_EQ(State().MapPerp.At(2, 2), value);
}

TEST_F(TwoAngles, HasLimitsOfWork) {
  Choose();
  const auto answer = [&](const char* indices, const char* radii) {
    // Index 1 to 2 and radius 1 to 2 in so many steps; the runs themselves are stopped at once.
    auto& dialog = runner.Current().forms.dlogTwoAngle;
    dialog.txtRImin.Text = dialog.txtRmin.Text = "1";
    dialog.txtRImax.Text = dialog.txtRmax.Text = "2";
    dialog.txtRIstep.Text = indices;
    dialog.txtRstep.Text = radii;
    runner.World().messages.clear();
    Do("answer yes\nanswer yes\nstop-at 0\nclick cmdNewPlot");
    return LastText();
  };
  EXPECT_EQ(answer("0.0025", "0.5"), "Select a larger step size") << "401 curves";
  EXPECT_NE(answer("0.00251", "0.5"), "Select a larger step size");
  EXPECT_EQ(answer("0.5", "1e-6"), "Select a larger step size");
  EXPECT_EQ(answer("0.00251", "0.00025"), "Increase the step size or reduce the maximum/minimum range");
  EXPECT_NE(answer("0.00251", "0.00045"), "Increase the step size or reduce the maximum/minimum range");
}

TEST_F(TwoAngles, TakesAMillionSpheresAndNoMore) {
  Choose("txtRImin=1 txtRImax=4 txtRIstep=1 txtRmin=1 txtRstep=1");
  auto& session = runner.Current();
  const auto spheres = [&](const char* largest) {
    session.forms.dlogTwoAngle.txtRmax.Text = largest;
    const auto inputs = ReadTwoAngleInputs(session);
    return inputs ? inputs->index.size() * inputs->radius.size() : 0;
  };
  EXPECT_EQ(spheres("250000"), 1000000U);
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(spheres("250001"), 0U);
  EXPECT_EQ(LastText(), "Increase the step size or reduce the maximum/minimum range");
}

TEST_F(TwoAngles, NeedsOneSphereOfTheMieSeriesAtATime) {
  Choose();
  Do("click optDisp\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "This graph type is available only for monodisperse calculations");
}

TEST_F(TwoAngles, AStopKeepsTheSpheresThatWereDone) {
  Choose("txtRmin=10 txtRmax=50 txtRstep=0.1");
  Do("stop-at 60\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  const auto& cells = State().MapPerp.cells;
  ASSERT_EQ(cells.size(), 401U * 5U);
  EXPECT_TRUE(std::isfinite(State().MapPerp.At(0, 0)));
  EXPECT_FALSE(std::isfinite(State().MapPerp.At(400, 4)));
  Do("click cmdReplot");
  EXPECT_EQ(Drawn().curves.size(), 5U);
}

}  // namespace
}  // namespace lumivex
