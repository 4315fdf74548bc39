/// The simulation window as a user drives it: light from a run, points, painting, messages, and every way out.

#include <cmath>

#include "pages/photograph/photograph_page.h"
#include "session/session_fixture.h"
#include "session/simulation/paint_simulation.h"
#include "session/simulation/read_simulation.h"
#include "session/simulation/simulation_events.h"
#include "session/simulation/simulation_page.h"
#include "sky/paint_sky.h"

namespace lumivex {
namespace {

class Simulation : public ScriptedSession {
 protected:
  Session& Now() { return runner.Current(); }
  MainFormState& State() { return Now().state; }
  Form2& Sim() { return Now().forms.form2; }
  const Bitmap& Painted() { return *Now().simulation.picture; }
  const PagePhotograph& Shown() { return *SimulationWindow(Now()).page.photograph; }

  /// A small coloured bow, and its light in the window.
  void TakeLight() {
    Do("choose cboWave 3\nset txtRadius 50\nset txtXmin 130\nset txtXmax 145\nchoose cboStep 0.5\nclick cmdNewPlot");
    Now().events.Raise("cmdSimulation_Click");
  }
  /// A click on a pixel of the picture.
  void ClickPixel(double x, double y) {
    const PictureWindow window = WindowOf(Shown(), SimulationWindow(Now()).surface->ScaleWidth(),
                                          SimulationWindow(Now()).surface->ScaleHeight());
    const SurfacePoint at = PlaceOfPoint(Shown(), window, {x, y});
    picture1_mousedown(Now(), at.x, at.y);
  }
  /// Which inputs of both windows are switched on.
  std::string SwitchedOn() {
    std::string names;
    for (const Form* form : {static_cast<const Form*>(&Now().form1), static_cast<const Form*>(&Sim())})
      for (const Control* control : form->Controls())
        if (control->Enabled) names += std::string(control->Name()) + " ";
    return names;
  }
  /// A picture file that is there.
  void OfferPicture(int width, int height, double focal35 = 0) {
    runner.World().openPhotograph = [=](std::string_view) {
      return OpenedPhotograph{Bitmap(width, height, OpaquePixel(90, 100, 110)), focal35, "notes", "", ""};
    };
  }
};

TEST_F(Simulation, TakesTheColoursOfTheRunAndPaintsTheChosenQuadrants) {
  TakeLight();
  EXPECT_EQ(runner.World().shownForms.back(), "Form2");
  EXPECT_EQ(State().SimTableRows, 31);
  EXPECT_DOUBLE_EQ(State().SimTableFirst, 130);
  EXPECT_DOUBLE_EQ(State().SimTableStep, 0.5);
  EXPECT_EQ(Number("HalfWidth"), 900);
  EXPECT_NEAR(Number("ImageFocal"), 1400, 1e-6);
  const Bitmap before = Painted();
  const std::string on = SwitchedOn();
  Do("click Form2.cmdSimPlot");
  EXPECT_TRUE(Shown().preview);
  EXPECT_EQ(SwitchedOn(), on);
  const auto background = OpaquePixel(84, 100, 124);
  EXPECT_EQ(Painted().Row(1190)[1000], background) << "beyond the last angle";
  EXPECT_EQ(Painted().Row(600)[899], before.Row(600)[899]) << "the west keeps the photograph";
  // The pixel of 137.5 degrees above the antisolar point has the colour of its row of the bar.
  const double y = 600 + 1400 * std::tan(std::atan(540 / 1400.0) - 42.5 * std::acos(-1) / 180);
  const auto row = static_cast<std::size_t>((137.5 - 130) / 0.5) + 1;
  const std::uint32_t pixel = Painted().Row(static_cast<int>(std::lround(y)))[900];
  for (int c = 0; c < 3; ++c) {
    const double back = std::array{84, 100, 124}[static_cast<std::size_t>(c)];
    const double bar = State().SimColourTable.At(row, 7 + static_cast<std::size_t>(c));
    EXPECT_NEAR(double(ChannelOf(pixel, c)), bar * (255 - back) / 255 + back, 6) << c;
  }
  Do("click Form2.cmdRestorePic");
  EXPECT_EQ(Painted().pixels, before.pixels);
  EXPECT_TRUE(runner.World().messages.empty());
}

TEST_F(Simulation, NothingIsLockedOrPaintedByInputsThatCannotBeUsed) {
  struct Case {
    const char *lines, *title, *text;
  };
  const auto refuse = [&](const Case& c) {
    Do(c.lines);
    const auto picture = Now().simulation.picture;
    const std::string on = SwitchedOn();
    Do("click Form2.cmdSimPlot");
    EXPECT_EQ(LastTitle(), c.title) << c.lines;
    EXPECT_EQ(LastText(), c.text) << c.lines;
    EXPECT_EQ(SwitchedOn(), on) << c.lines;
    EXPECT_EQ(Now().simulation.picture, picture) << c.lines;
    runner.World().messages.clear();
  };
  mnuKeepPicture_Click(Now());
  refuse({"click Form2.chkPreview", "Simulation",
          "No colours are stored: plot intensity against scattering angle for several wavelengths, then press "
          "Simulation"});
  TakeLight();
  refuse({"set Form2.txtBackGreen 256", "Input error", "Values must be in the range 0 - 255"});
  EXPECT_EQ(Sim().txtBackGreen.BackColour, colours::BadInput);
  refuse({"set Form2.txtBackGreen -1", "Input error", "Values must be in the range 0 - 255"});
  refuse({"set Form2.txtBackGreen 3\nset Form2.cboScale 0", "Input error", "Focal length < 0"});
  EXPECT_EQ(Sim().cboScale.BackColour, colours::BadInput);
  refuse({"set Form2.cboScale 28\nclick Form2.cmdQuadNE\nclick Form2.cmdQuadSE", "Select quadrant(s)",
          "No quadrant selected"});
  Do("click Form2.cmdQuadSW");
  EXPECT_EQ(Get("Form2.cmdQuadSW"), "SW ON");
  EXPECT_EQ(Number("XTo"), 899);
  EXPECT_EQ(Number("YFrom"), 600);
  const std::string range = "Values must be in the range -90 - 90";
  for (const char* elevation : {"91", "-91"})
    refuse({elevation[0] == '-' ? "set Form2.txtSunElevation -91" : "set Form2.txtSunElevation 91", "Input error",
            range.c_str()});
  refuse({"choose Form2.cboPoint Arc", "Analyse", "Mark three points on the arc first"});
  refuse({"choose Form2.cboPoint Sun\nclick Form2.optDivergingLight\nset Form2.txtD2 0", "Input error",
          "Values must be in the range 1e-09 - 1e+09"});
}

TEST_F(Simulation, WhatIsTypedStaysUntilAnotherKindOfPointIsChosen) {
  // Before anybody has seen the window.
  Do("set Form2.txtX1 700\nset Form2.txtSunElevation 20");
  SimulationWindow(Now());
  EXPECT_EQ(Get("Form2.txtX1"), "700");
  EXPECT_EQ(Get("Form2.txtSunElevation"), "20");
  const std::string antisolarRow = Get("Form2.txtY1");
  Do("choose Form2.cboPoint Anti-solar point");
  EXPECT_EQ(Get("Form2.txtX1"), "700") << "the same kind again";
  Do("choose Form2.cboPoint Sun");
  EXPECT_EQ(Get("Form2.txtX1"), "900");
  EXPECT_NE(Get("Form2.txtY1"), antisolarRow);
  Do("choose Form2.cboPoint Anti-solar point");
  EXPECT_EQ(Get("Form2.txtY1"), antisolarRow) << "the row that the window begins with";
  // Undo changes the kind as well as the boxes.
  Do("choose Form2.cboPoint Arc\nclick mnuUndo\nchoose Form2.cboPoint Arc");
  EXPECT_EQ(Get("Form2.txtSunElevation"), "139");
}

TEST_F(Simulation, AStopKeepsWhatIsPaintedAndSwitchesEverythingOnAgain) {
  TakeLight();
  const std::string on = SwitchedOn();
  runner.World().threads = 1;
  runner.World().onYield = [&] {
    EXPECT_FALSE(Now().form1.cmdNewPlot.Enabled);
    EXPECT_FALSE(Sim().txtX1.Enabled);
    Now().events.Raise("Form2.cmdStopSim_Click");
  };
  const Bitmap before = Painted();
  Do("click Form2.cmdSimPlot");
  runner.World().onYield = nullptr;
  EXPECT_EQ(SwitchedOn(), on);
  EXPECT_EQ(Painted().Row(1199)[1799], before.Row(1199)[1799]);
  EXPECT_NE(Painted().Row(0)[1799], before.Row(0)[1799]);
}

TEST_F(Simulation, AClickMovesThePointAndUndoTakesItBack) {
  TakeLight();
  ClickPixel(321, 876);
  EXPECT_EQ(Sim().txtX1.Text, "321");
  EXPECT_EQ(Sim().txtY1.Text, "876");
  EXPECT_EQ(Sim().lblPosition.Caption.substr(0, 14), "Pixel 321, 876");
  // The antisolar point is where the scattering angle is 180, and as far below the horizon as the sun is above.
  EXPECT_NE(Sim().lblPosition.Caption.find("altitude -15.00"), std::string::npos) << Sim().lblPosition.Caption;
  EXPECT_NE(Sim().lblPosition.Caption.find("scattering angle 180.00"), std::string::npos);
  Do("click mnuUndo");
  EXPECT_EQ(Sim().txtX1.Text, "900");
  Do("choose Form2.cboPoint Altitude/Azimuth");
  EXPECT_EQ(Sim().txtX1.Text + " " + Sim().txtY1.Text + " " + Sim().txtSunElevation.Text, "26 162 15");
  ClickPixel(321, 876);
  EXPECT_EQ(Sim().txtX1.Text, "26") << "the box holds degrees";
  ClickPixel(900, 600);
  EXPECT_NE(Sim().lblPosition.Caption.find("altitude 26.00"), std::string::npos) << Sim().lblPosition.Caption;
  EXPECT_NE(Sim().lblPosition.Caption.find("scattering angle 135.42"), std::string::npos);
}

TEST_F(Simulation, ThreeClicksFindTheCentreOfAnArc) {
  OfferPicture(3000, 2000);
  Do("open any.jpg\nclick Form2.mnuOpenPicture\nclick Form2.chkPreview\nchoose Form2.cboPoint Arc");
  EXPECT_EQ(Sim().txtSunElevation.Text, "139");
  EXPECT_EQ(Sim().lblSunElevation.Caption, "Scattering angle");
  Do("click Form2.cmdAnalyse");
  EXPECT_EQ(LastText(), "Mark a point on the arc (left click with mouse)");
  ClickPixel(935, 235);
  EXPECT_EQ(LastTitle(), "Second point");
  EXPECT_EQ(LastText(), "Mark a point on the arc (left click with mouse)");
  ClickPixel(1500, 155);
  ClickPixel(2065, 235);
  EXPECT_EQ(Number("ArcPointCount"), 3);
  EXPECT_EQ(LastTitle(), "Input scattering angle");
  EXPECT_EQ(LastText(), "Input scattering angle");
  ASSERT_EQ(Shown().marks.size(), 4U);
  EXPECT_NEAR(Shown().marks.back().x, 1500, 0.5);
  EXPECT_NEAR(Shown().marks.back().y, 1900.07, 0.5);
  EXPECT_NE(Sim().lblArc.Caption.find("-21.09"), std::string::npos) << Sim().lblArc.Caption;
  // A fourth click begins anew; three on one line are told.
  ClickPixel(100, 100);
  EXPECT_EQ(Number("ArcPointCount"), 1);
  ClickPixel(200, 200);
  ClickPixel(300, 300);
  EXPECT_EQ(LastText(), "The three points lie on one line: there is no arc through them");
  EXPECT_EQ(Number("ArcPointCount"), 0);
}

TEST_F(Simulation, MarksOutliveAnAngleThatIsStillToBeTyped) {
  Do("click Form2.chkPreview\nchoose Form2.cboPoint Arc\nset Form2.txtSunElevation \"\"");
  ClickPixel(500, 300);
  ClickPixel(900, 200);
  ClickPixel(1300, 300);
  EXPECT_EQ(Number("ArcPointCount"), 3);
  EXPECT_EQ(LastText(), "Input scattering angle");
  Do("set Form2.txtSunElevation 139");
  EXPECT_FALSE(Sim().lblArc.Caption.empty());
}

TEST_F(Simulation, AScriptStopsAPainting) {
  TakeLight();
  Do("click Form2.cmdSimPlot");
  const auto whole = Painted().pixels;
  Do("click Form2.cmdRestorePic\nstop-at 30\nclick Form2.cmdSimPlot");
  EXPECT_FALSE(Painted().pixels == whole);
  Do("click Form2.cmdSimPlot");
  EXPECT_TRUE(Painted().pixels == whole);
}

TEST_F(Simulation, TheLightEndsWithTheRun) {
  Do("set cboWave 3\nset txtRadius 10\nset txtXmin 130\nset txtXmax 150\nset cboStep 0.1\nclick cmdNewPlot\nclick "
     "cmdSimulation");
  EXPECT_EQ(State().SimTableRows, 201);
  EXPECT_NEAR(State().SimTableFirst, 130, 1e-9);
}

TEST_F(Simulation, OpensPhotographsAndSavesThemWithTheirNotes) {
  OfferPicture(600, 400, 35.04);
  std::string saved;
  int lines = 0;
  runner.World().savePhotograph = [&](const Page& page, std::string_view notes, std::string_view path) {
    saved = std::string(notes) + " to " + std::string(path);
    lines = static_cast<int>(page.photograph->lines.size());
    EXPECT_FALSE(page.photograph->preview);
    return std::string();
  };
  Do("click Form2.cmdCircle\nopen /photos/bow.jpg\nclick Form2.mnuOpenPicture");
  EXPECT_EQ(Get("Form2.cboScale"), "35");
  EXPECT_EQ(Get("Form2.cmdCircle"), "Circles ON") << "circles of another picture";
  EXPECT_EQ(Sim().Caption, "Simulation: bow.jpg");
  EXPECT_EQ(Number("HalfWidth"), 300);
  EXPECT_EQ(Sim().txtX1.Text + " " + Sim().txtY1.Text, "300 380");
  Do("click Form2.cmdGrid\nsave out.jpg\nclick Form2.mnuSavePicture");
  EXPECT_EQ(saved, "notes to out.jpg");
  EXPECT_EQ(lines, 1);
  EXPECT_TRUE(runner.World().messages.empty());
  OfferPicture(1920, 1080);
  Do("open wide.png\nclick Form2.mnuOpenPicture");
  EXPECT_EQ(LastTitle(), "Warning - possible scale error");
  EXPECT_EQ(LastText(), "Aspect ratio = 1.778");
  runner.World().openPhotograph = [](std::string_view path) {
    OpenedPhotograph none;
    none.failure = std::string(path) + " cannot be read as a picture";
    return none;
  };
  Do("open notes.txt\nclick Form2.mnuOpenPicture");
  EXPECT_EQ(LastText(), "notes.txt cannot be read as a picture");
  EXPECT_EQ(Number("HalfWidth"), 960) << "the picture of before stays";
  Do("click Form2.mnuLandscape");
  EXPECT_EQ(Sim().Caption, "Simulation");
}

TEST_F(Simulation, PictureOperationsCanBeTakenBack) {
  Do("click Form2.mnuLandscape");
  const Bitmap before = Painted();
  Do("click Form2.mnuInvert");
  EXPECT_EQ(Painted().pixels.front(), before.pixels.front() ^ 0xFFFFFFU);
  Do("click Form2.mnuSatCol");
  const auto pixel = Painted().pixels.front();
  EXPECT_EQ(std::max({ChannelOf(pixel, 0), ChannelOf(pixel, 1), ChannelOf(pixel, 2)}), 255U);
  Do("click Form2.mnuRestorePicture");
  EXPECT_EQ(Painted().pixels, before.pixels);
  Do("click Form2.mnuInvert\nclick Form2.mnuKeepPicture\nclick Form2.mnuRestorePicture");
  EXPECT_NE(Painted().pixels, before.pixels);
}

TEST_F(Simulation, OverThePhotographPaintingAgainAddsNothing) {
  TakeLight();
  Do("choose Form2.cboComposite Over the photograph\nset Form2.txtStrength 0.5\nclick Form2.cmdSimPlot");
  const Bitmap once = Painted();
  EXPECT_NE(once.pixels, Now().simulation.photograph->pixels);
  Do("click Form2.cmdSimPlot");
  EXPECT_EQ(Painted().pixels, once.pixels);
  Do("set Form2.txtStrength 0\nclick Form2.cmdSimPlot");
  EXPECT_EQ(Painted().pixels, Now().simulation.photograph->pixels);
}

TEST_F(Simulation, ALeeDiagramGivesTheColumnNearestToTheDropSize) {
  Do("click Form2.cmdSimLee");
  EXPECT_EQ(LastTitle(), "Simulation from Lee diagram");
  runner.World().messages.clear();
  Do("choose cboGraph Lee diagram: radius\nchoose cboWave 3\nset txtRadius 5\nset txtRmax 40\nset txtRstep 3\nset "
     "txtXmin "
     "130\nset txtXmax 150\nchoose cboStep 1\nclick cmdNewPlot");
  Do("set Form2.txtDropRadius 13\nclick Form2.cmdSimLee");
  EXPECT_TRUE(runner.World().messages.empty()) << LastText();
  EXPECT_EQ(Now().simulation.lightWords.substr(0, 8), "r = 10 \xC2");
  EXPECT_NE(Now().simulation.lightWords.find("n = 1.33"), std::string::npos) << Now().simulation.lightWords;
  ASSERT_TRUE(Now().simulation.light);
  EXPECT_EQ(Now().simulation.light->rows.size(), 21U);
  EXPECT_DOUBLE_EQ(Now().simulation.light->first, 130);
  double most = 0;
  for (const auto& row : Now().simulation.light->rows)
    most = std::max({most, row.perpendicular.r, row.perpendicular.g, row.perpendicular.b});
  EXPECT_NEAR(most, 255, 1e-3) << "the greatest of the column is full";
  EXPECT_NE(Painted().pixels, Now().simulation.photograph->pixels);
}

TEST_F(Simulation, LinesAreDrawnOverThePictureAndTakenAway) {
  Do("click Form2.mnuLandscape\nclick Form2.cmdCircle\nclick Form2.cmdGrid");
  EXPECT_EQ(Get("Form2.cmdCircle"), "Circles OFF");
  output.str("");
  Do("window Form2\ndrawing");
  EXPECT_NE(output.str().find("polyline"), std::string::npos) << output.str().substr(0, 500);
  Do("set Form2.cboRStep 0\nclick Form2.cmdCircle\nclick Form2.cmdCircle");
  EXPECT_EQ(LastText(), "Values must be in the range 0.1 - 90");
  EXPECT_EQ(Get("Form2.cmdCircle"), "Circles ON");
  Do("click Form2.cmdRestorePic");
  EXPECT_TRUE(Shown().lines.empty());
}

TEST_F(Simulation, ZoomKeepsWhatIsUnderThePointer) {
  Do("click Form2.mnuLandscape");
  Page& page = SimulationWindow(Now()).page;
  const auto at = [&](double x, double y) {
    return PicturePointAt(*page.photograph, WindowOf(*page.photograph, 18000, 12000), {x, y});
  };
  const PicturePoint before = at(4000, 9000);
  ZoomPhotograph(page, {4000, 9000}, 3);
  EXPECT_NEAR(at(4000, 9000).x, before.x, 1e-9);
  EXPECT_NEAR(at(4000, 9000).y, before.y, 1e-9);
  EXPECT_NEAR(at(4030, 9000).x - before.x, 1, 1e-9) << "10 units a pixel, three times as large";
  PanPhotograph(page, 300, 0);
  EXPECT_NEAR(at(4300, 9000).x, before.x, 1e-9);
  PanPhotograph(page, 1e6, 0);
  EXPECT_NEAR(at(0, 9000).x, -0.5, 1e-9) << "the view ends at the picture";
  ZoomPhotograph(page, {0, 0}, 0.001);
  EXPECT_EQ(page.photograph->zoom, 1);
}

}  // namespace
}  // namespace lumivex
