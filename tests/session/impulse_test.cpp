// Answers to a pulse of light, as a user asks for them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "pages/drawing_reader.h"
#include "pages/read_out.h"
#include "record/recording_surface.h"
#include "runs/pulse_band.h"
#include "session/impulse/impulse_plot.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Impulse : public ScriptedSession {
 protected:
  Session& Now() { return runner.Current(); }
  const Page& Drawn() { return Now().page; }
  const Page& Plot() { return ImpulseWindow(Now()).page; }

  /// A drop of 10 um and index 1.333, with rows of 5 degrees.
  void Drop(const std::string& dialog) {
    Do("dialog dlogImpulse ok " + dialog +
       "\nchoose cboGraph Impulse response\nclick mnuRI_Fixed1\nset txtRefractReal 1.333\nset txtRefractImag 0\n"
       "set cboStep 5");
  }

  /// The cell of the picture nearest to an angle and a time.
  double Cell(double angle, double time, std::size_t panel = 0) {
    const PageMap& map = *Drawn().map;
    const int column = static_cast<int>(std::lround(map.across.samples.PlaceOf(time)));
    const int row = static_cast<int>(std::lround(map.up.samples.PlaceOf(angle))) + map.lowest;
    return double{map.values->panels[panel].value[map.values->At(column, row)]};
  }

  SurfacePoint PlaceOf(double angle, double time, std::size_t panel = 0) {
    const PagePanel& p = Drawn().panels[panel];
    return {p.box.left + (time - p.limits.xmin) / (p.limits.xmax - p.limits.xmin) * p.box.Width(),
            p.box.bottom - (angle - p.limits.ymin) / (p.limits.ymax - p.limits.ymin) * (p.box.bottom - p.box.top)};
  }
  std::string Mouse(SurfacePoint at) { return "mouse " + std::to_string(at.x) + " " + std::to_string(at.y); }
};

TEST_F(Impulse, TheDialogTellsThePulse) {
  Do("dialog dlogImpulse ok cbodB=-40\nchoose cboGraph Impulse response");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("lblWatts"), "Gaussian pulse T = 5 fs   Limit = -40 dB");
  EXPECT_EQ(Get("lblDistance"), "Number of samples: 2048  1");
  EXPECT_EQ(Get("txtF9_min"), "0");
  EXPECT_EQ(Get("txtF9_max"), "1109.33");
  EXPECT_EQ(Get("txtF9_step"), "0.54");
  EXPECT_EQ(Now().form1.Frame9.Caption, "Time axis");
  EXPECT_EQ(Get("Label32"), "Time (femtoseconds)");
  EXPECT_EQ(Get("SpectrumLowIndex"), "260");
  EXPECT_EQ(Get("SpectrumHighIndex"), "764");
  EXPECT_EQ(Get("PulseValid"), "1");
  Do("window dlogImpulse");
  output.str("");
  Do("drawing");
  const std::string drawing = output.str();
  for (const char* text :
       {"Wavelength limits: 435.6-1280 nm", "Pulse shape", "Spectrum", "Time (femtoseconds)", "Amplitude"})
    EXPECT_NE(drawing.find(text), std::string::npos) << text << "\n" << drawing.substr(0, 2000);
  // Another factor is another window; the wavelength of the panel is the pulse's.
  Do("dialog dlogImpulse ok cboN=4 cbodB=-20\nclick mnuImpulse");
  EXPECT_EQ(Get("txtF9_max"), "277.33");
  EXPECT_EQ(Get("txtF9_step"), "0.14");
  Do("set txtLambda 0.5");
  EXPECT_EQ(Get("dlogImpulse.txtWavelength"), "0.5");
  EXPECT_EQ(Get("txtF9_max"), "213.33");
  // A range that was typed stays with the pulse that it is for.
  Do("set txtF9_max 100\ndialog dlogImpulse ok\nclick mnuImpulse");
  EXPECT_EQ(Get("txtF9_max"), "100");
  Do("dialog dlogImpulse cancel cboFFT=4096 txtWavelength=0.4\nclick mnuImpulse");
  EXPECT_EQ(Get("txtF9_max"), "100");
  EXPECT_EQ(Get("dlogImpulse.cboFFT"), "2048");
  EXPECT_EQ(Get("txtLambda"), "0.5");
  Do("dialog dlogImpulse ok txtWavelength=0.6\nclick mnuImpulse");
  EXPECT_EQ(Get("txtLambda"), "0.6");
}

TEST_F(Impulse, PulsesWithoutABandAreTold) {
  struct Case {
    const char *fields, *dB;
  };
  for (const Case& row :
       {Case{"cboPulseShape=Rectangular cboPulseDuration=20 cbodB=-30", "-30"},
        Case{"cboPulseDuration=2 cbodB=-30", "-30"}, Case{"cboPulseShape=FM", "-20"}, Case{"cboPulseShape=AM", "-20"},
        Case{"cboPulseDuration=0.1", "-20"}, Case{"cboFFT=128 cboN=16", "-20"}}) {
    Do(std::string("reset\ndialog dlogImpulse ok ") + row.fields + "\nchoose cboGraph Impulse response");
    EXPECT_EQ(LastTitle(), "Pulse shape") << row.fields;
    EXPECT_EQ(LastText(), std::string("Cut-off of ") + row.dB + "dB is too low for this pulse shape") << row.fields;
    EXPECT_EQ(Get("PulseValid"), "0");
    const auto results = Now().state.LastResults;
    Do("click cmdNewPlot");
    EXPECT_EQ(LastTitle(), "Pulse shape problem");
    EXPECT_EQ(LastText(), "Select another pulse shape or higher cut-off");
    EXPECT_EQ(Now().state.LastResults, results);
  }
}

TEST_F(Impulse, FieldsThatAreNoPulseKeepTheDialogOpen) {
  Do("dialog dlogImpulse ok\nchoose cboGraph Impulse response");
  for (const char* field : {"cboFFT=1000", "cboFFT=64", "cboFFT=262144", "cboN=3", "cboN=0", "cbodB=0", "cbodB=5",
                            "cboPulseDuration=0", "cboPulseDuration=x", "txtWavelength=-1", "cboPulseShape=Square"}) {
    const std::string name = std::string(field).substr(0, std::string(field).find('='));
    const std::string before = Get("dlogImpulse." + name);
    Do(std::string("dialog dlogImpulse ok ") + field + "\nclick mnuImpulse");
    EXPECT_EQ(Get("dlogImpulse." + name), before) << field;
    EXPECT_EQ(Get("txtF9_max"), "1109.33") << field;
  }
}

TEST_F(Impulse, BandsTimesAndCloudsBeyondWhatCanBeAreRefused) {
  // 2 fs reach 12.8 um, where the formula of water has no index.
  Do("dialog dlogImpulse ok cboPulseDuration=2\nchoose cboGraph Impulse response\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band");
  Do("dialog dlogImpulse ok cboPulseDuration=5\nclick mnuImpulse\nset cboStep 30\nset txtF9_max 1109.5\nclick "
     "cmdNewPlot");
  EXPECT_EQ(LastText(), "Value must not be greater than 1109.33 fs");
  Do("set txtF9_max 10\nset txtF9_min 20\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Minimum value must be less than maximum value");
  Do("set txtF9_min 0\nset txtF9_step 0\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Step size must be greater than zero");
  Do("set txtF9_step 0.54\nclick optDisp\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "This graph type is available only for monodisperse calculations");
  Do("click optMono\nset cboWave 3\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "This graph type is available only for single wavelength calculations");
  Do("set cboWave 1\nset cboStep 0.01\nset txtF9_max 1109\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Increase the step size or reduce the maximum/minimum range");
}

TEST_F(Impulse, ThePictureIsReadLikeOtherMaps) {
  Drop("cboFFT=4096 cbodB=-40");
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  ASSERT_TRUE(Drawn().map);
  EXPECT_EQ(Drawn().panels.size(), 3U);
  EXPECT_EQ(Drawn().map->across.title, "Time (fs)");
  EXPECT_EQ(Drawn().map->pictures[0].title, "Perpendicular polarisation");
  // p = 0 and p = 1 at 10 degrees, the glory's surface waves at 180.
  EXPECT_NEAR(Cell(10, 60.708), 7010.85, 0.1);
  EXPECT_NEAR(Cell(10, 89.958, 1), 30180.30, 0.4);
  EXPECT_NEAR(Cell(180, 192.875), 1224.405, 0.02);
  const auto reading = ReadAt(Drawn(), PlaceOf(60, 112.25).x, PlaceOf(60, 112.25).y);
  ASSERT_TRUE(reading);
  EXPECT_NE(reading->text.find("112."), std::string::npos) << reading->text;
  EXPECT_NE(reading->text.find("818.42"), std::string::npos) << reading->text;
  EXPECT_EQ(Get("NumberWavelengths"), "1");
  // A part of the window has the same samples.
  Do("set txtF9_min 80\nset txtF9_max 100\nclick cmdNewPlot");
  EXPECT_NEAR(Cell(10, 89.958, 1), 30180.30, 0.4);
  EXPECT_LE(Drawn().map->values->columns, 38);
}

TEST_F(Impulse, AShortWindowIsTold) {
  Drop("");
  Do("dialog dlogImpulse ok cboFFT=128\nclick mnuImpulse");
  EXPECT_EQ(LastTitle(), "Impulse response");
  EXPECT_NE(LastText().find("69.33 fs"), std::string::npos) << LastText();
  EXPECT_NE(LastText().find("422.13 fs"), std::string::npos) << LastText();
  // Of each run in the status line alone.
  Do("click cmdNewPlot");
  EXPECT_EQ(Shown().size(), 1U);
  EXPECT_EQ(Now().remark.text, LastText());
  EXPECT_EQ(Now().remark.of.lock(), Now().state.LastResults);
}

TEST_F(Impulse, AClickShowsTheResponseAtItsAngle) {
  Drop("cboFFT=4096 cbodB=-40");
  Do("set cboStep 0.5\nset txtF9_max 400\nclick cmdNewPlot");
  Do(Mouse(PlaceOf(90, 200)));
  EXPECT_EQ(Get("ImpulsePlot.cboTheta"), "90");
  EXPECT_EQ(Get("ImpulsePlot.txtXmax"), "400");
  ASSERT_EQ(Plot().curves.size(), 2U);
  // All samples, whatever the picture shows, and the same light.
  const auto first = ImpulseCurve(Plot(), 1), second = ImpulseCurve(Plot(), 2);
  ASSERT_TRUE(first.value && second.value);
  EXPECT_EQ(first.time->size(), 4097U);
  const double start = (*first.time)[1];
  const auto at = [&](double time) { return static_cast<std::size_t>(std::lround((time - start) / (13.0 / 24))) + 1; };
  EXPECT_NEAR((*first.value)[at(19.54)], 123.187, 1e-3);
  EXPECT_NEAR((*second.value)[at(19.54)], 6.52112, 1e-5);
  EXPECT_NEAR((*first.value)[at(250.29)], 3.17449, 1e-5);
  // A click tells the values of the nearest sample; beside the graph it tells nothing.
  const GraphBox box = Plot().panels.front().box;
  InversePlot(Now(), box.left - 10, 2000);
  EXPECT_EQ(Get("ImpulsePlot.lblTime"), "");
  InversePlot(Now(), box.left + 19.54 / 400 * box.Width(), 2000);
  EXPECT_EQ(Get("ImpulsePlot.lblTime"), "Time = 19.54 fs");
  EXPECT_EQ(Get("ImpulsePlot.lblIntensity1"), "Intensity 1 = 1.23E+02");
  EXPECT_EQ(Get("ImpulsePlot.lblIntensity2"), "Intensity 2 = 6.52E+00");
  // Each curve has its name beside its start.
  Do("choose ImpulsePlot.cboPol All 3\nclick ImpulsePlot.cmdReplot");
  const DrawingReader drawing(static_cast<const RecordingSurface&>(*ImpulseWindow(Now()).surface));
  const auto names = drawing.TextsIn(box);
  for (const char* name : {"Perpendicular", "Parallel", "Unpolarised"})
    EXPECT_EQ(std::ranges::count(names, name), 1) << name;
  // Times of the picture, whatever the panel says by now.
  Do("set txtF9_max 300\n" + Mouse(PlaceOf(90, 200)));
  EXPECT_EQ(Get("ImpulsePlot.txtXmax"), "399.79");
  Do("set txtF9_max 400\n" + Mouse(PlaceOf(90, 200)));
  // Another angle is calculated anew.
  Do("set ImpulsePlot.cboTheta 180");
  EXPECT_TRUE(Now().forms.impulsePlot.cmdReplot.Enabled);
  Do("choose ImpulsePlot.cboPol All 3\nclick ImpulsePlot.cmdReplot");
  EXPECT_FALSE(Now().forms.impulsePlot.cmdReplot.Enabled);
  EXPECT_EQ(Plot().curves.size(), 3U);
  EXPECT_NEAR((*ImpulseCurve(Plot(), 3).value)[at(192.875)], 1224.405, 1e-3);
  // Axes that are none are told and draw nothing.
  Do("set ImpulsePlot.txtXmin 400\nclick ImpulsePlot.cmdReplot");
  EXPECT_EQ(LastTitle(), "Input error");
  EXPECT_EQ(LastText(), "Minimum value must be less than maximum value");
  Do("set ImpulsePlot.txtXmin 0\nset ImpulsePlot.cboYmin -1\nclick ImpulsePlot.cmdReplot");
  EXPECT_EQ(LastText(), "Value must be positive");
  Do("set ImpulsePlot.cboTheta 200\nset ImpulsePlot.cboYmin Automatic\nclick ImpulsePlot.cmdReplot");
  EXPECT_EQ(LastText(), "Scattering angles lie between 0 and 180 degrees");
}

TEST_F(Impulse, TheWindowIsSavedAsText) {
  const std::string path = (std::filesystem::temp_directory_path() / "lumivex_impulse_test.txt").string();
  const auto saved = [&] {
    std::ifstream file(path);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  Drop("");
  Do("set cboStep 90\nset txtF9_max 50\nclick cmdNewPlot\nclick mnuImpulsePlot\nsave " + path +
     "\nclick ImpulsePlot.mnuSave");
  const std::string one = saved();
  EXPECT_NE(one.find("Gaussian pulse, 5 fs"), std::string::npos) << one.substr(0, 800);
  EXPECT_NE(one.find("Parallel\tPerpendicular"), std::string::npos) << one.substr(0, 1200);
  Do("dialog dlogImpulse ok chkSave=1\nclick mnuImpulse\nsave " + path + "\nclick ImpulsePlot.mnuSave");
  EXPECT_GT(saved().size(), one.size() + 1000);
  std::filesystem::remove(path);
}

TEST_F(Impulse, RaysLieOnTheirRidges) {
  Drop("cboFFT=4096 cbodB=-40");
  Do("click cmdNewPlot\nclick mnuTimePlot\nset dlogTimePlot.cboStep 0.1\nset dlogTimePlot.txtRaysGO 4\n"
     "click dlogTimePlot.cmdGO");
  ASSERT_EQ(Drawn().map->marks.size(), 1U);
  const auto& dots = Drawn().map->marks.front();
  const auto holds = [&](double angle, double time) {
    return std::ranges::any_of(dots.places, [&](const MapMarks::Place& place) {
      return std::fabs(place.up - angle) < 1e-3 && std::fabs(place.across - time) < 1e-3;
    });
  };
  EXPECT_EQ(dots.places.size(), 55U);
  for (const auto& [angle, time] : {std::pair{180.0, 0.0},
                                    {106.260, 13.333},
                                    {8.903, 89.658},
                                    {82.787, 125.428},
                                    {180.0, 177.733},
                                    {138.447, 168.715},
                                    {86.766, 251.400},
                                    {31.422, 299.822}})
    EXPECT_TRUE(holds(angle, time)) << angle;
  Do("click dlogTimePlot.chkNS\nclick dlogTimePlot.cmdSW");
  EXPECT_EQ(Drawn().map->marks.size(), 6U);  // two kinds of rays, p = 0 to 3
  const auto& line = Drawn().map->marks[1];
  EXPECT_TRUE(line.joined);
  EXPECT_NEAR(line.places[0].up, 82.787, 1e-3);
  EXPECT_NEAR(line.places[0].across, 125.428, 1e-3);
  EXPECT_NEAR(line.places[1].up, 180, 1e-9);
  // They stay over another look of the picture, and go with Remove.
  Do("set cboBright 2");
  EXPECT_EQ(Drawn().map->marks.size(), 6U);
  const std::string file = (std::filesystem::temp_directory_path() / "lumivex_ridges.lvx").string();
  Do("save-results " + file + "\nreset\nload " + file);
  EXPECT_EQ(Drawn().map->marks.size(), 6U) << "a file has them too";
  std::filesystem::remove(file);
  Do("click dlogTimePlot.cmdClear");
  EXPECT_TRUE(Drawn().map->marks.empty());
  Do("click mnuUndo");
  EXPECT_EQ(Drawn().map->marks.size(), 6U);
  Do("choose cboGraph Intensity v. scattering angle\nclick cmdNewPlot\nclick dlogTimePlot.cmdGO");
  EXPECT_EQ(LastTitle(), "Option not available");
}

TEST_F(Impulse, CorrelationKeepsTheRidgesWhereTheyAre) {
  Drop("");
  Do("set cboStep 30\nclick cmdNewPlot");
  const auto peak = [&](double low, double high, std::size_t panel) {
    std::pair<double, double> highest{0, 0};
    for (double t = low; t < high; t += 0.5) highest = std::max(highest, std::pair{Cell(150, t, panel), t});
    return highest;
  };
  const auto plain = peak(165, 185, 0);
  Do("click mnuCCF");
  EXPECT_EQ(Get("mnuCCF"), "true");
  const auto correlated = peak(165, 185, 0);
  EXPECT_NEAR(correlated.second, plain.second, 1.1);
  EXPECT_NEAR(correlated.first / plain.first, 12, 1.5);
  Do("click mnuCCF");
  EXPECT_EQ(peak(165, 185, 0), plain);
}

TEST_F(Impulse, EfficienciesAgainstTime) {
  Do("dialog dlogImpulse ok cboFFT=4096 cbodB=-40\nclick mnuImpulseQ\nclick mnuRI_Fixed1\nset txtRefractReal 1.333\n"
     "set txtRefractImag 0\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboGraph"), "Qext/Qsca/Qabs impulse response");
  EXPECT_EQ(Now().form1.Frame9.Caption, "Time axis");
  EXPECT_EQ(Now().form1.Frame2.Caption, "Wavelength scale");
  EXPECT_EQ(Get("txtXmin"), "435.602");
  const PageCurve& curve = Drawn().curves.front();
  ASSERT_EQ(curve.x.size(), 4097U);
  EXPECT_NEAR(curve.x[2049], 0, 1e-9);
  EXPECT_NEAR(curve.y[2049], 4.373, 1e-3);
  EXPECT_NEAR(curve.y[2049 + 466], 6.1e-5, 0.2e-5);
  Do("set txtRefractImag 0.001\nclick cmdNewPlot");
  EXPECT_EQ(Drawn().curves.size(), 3U);
  Do("set txtF9_min -40\nset txtF9_max 40\nclick cmdReplot");
  EXPECT_EQ(RangeShown(Drawn()).xmax, 40);
  // Another graph of the same pulse begins with its own times.
  Do("choose cboGraph Impulse response");
  EXPECT_EQ(Get("txtF9_min"), "0");
  EXPECT_EQ(Get("txtF9_max"), "2218.67");
}

TEST_F(Impulse, InAWideBeamItIsThatOfAPlaneWave) {
  Drop("cboFFT=256 cboPulseDuration=10");
  Do("set txtRadius 3\nset cboStep 30\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().map);
  const double plane = Cell(30, 26);
  ASSERT_GT(plane, 0);
  Do("dialog dlogGaussianBeam ok txtBeamYF=0 txtBeamWo=200\nclick mnuGaussian\nset txtXmin -30\nset txtXmax 60\nclick "
     "cmdNewPlot");
  ASSERT_TRUE(Drawn().map) << LastText();
  EXPECT_EQ(Drawn().map->up.samples.first, -30);
  EXPECT_NEAR(Cell(30, 26), plane, 0.01 * plane);
  EXPECT_NEAR(Cell(-30, 26), plane, 0.01 * plane);
}

TEST_F(Impulse, ResultsFilesHoldThePicture) {
  const std::string path = (std::filesystem::temp_directory_path() / "lumivex_impulse_test.lvx").string();
  Drop("cboPulseDuration=10 cboFFT=1024");
  Do("set cboStep 10\nset txtF9_max 300\nclick cmdNewPlot\nsave-results " + path);
  const MapFound whole = *Drawn().map->values;
  Do("reset\nload " + path);
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("cboGraph"), "Impulse response");
  EXPECT_EQ(Get("dlogImpulse.cboPulseDuration"), "10");
  EXPECT_EQ(Get("txtF9_max"), "300");
  ASSERT_TRUE(Drawn().map);
  EXPECT_EQ(Drawn().map->values->panels[1].value, whole.panels[1].value);
  // Of a stopped run the rows that are there.
  Do("click mnuImpulsePlot");
  EXPECT_EQ(Plot().curves.size(), 2U);
  Do("reset\ndialog dlogImpulse ok\nclick mnuImpulseQ\nclick cmdNewPlot\nsave-results " + path + "\nreset\nload " +
     path);
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Drawn().curves.front().x.size(), 2049U);
  std::filesystem::remove(path);
}

TEST_F(Impulse, UndoBringsBackWhatIsToldOfThePulse) {
  Drop("cboFFT=2048");
  const std::string told = Get("lblWatts");
  Do("choose cboGraph Intensity v. scattering angle");
  EXPECT_EQ(Get("lblWatts.Visible"), "false");
  Do("click mnuUndo");
  EXPECT_EQ(Get("lblWatts.Visible") + Get("lblDistance.Visible"), "truetrue");
  EXPECT_EQ(Get("lblWatts"), told);
  Do("click mnuRedo");
  EXPECT_EQ(Get("lblWatts.Visible"), "false");
}

TEST_F(Impulse, WhatIsToldOfAPulseGoesWithIt) {
  Do("dialog dlogImpulse ok\nchoose cboGraph Impulse response\nset txtF9_max 280\n"
     "choose cboGraph Qext/Qsca/Qabs impulse response");
  EXPECT_EQ(Get("txtF9_min"), "-554.67") << "times of another graph";
  Do("dialog dlogIncident cancel\nchoose cboGraph Watts/sq. m. v. scattering angle");
  EXPECT_EQ(Get("lblWatts") + Get("lblDistance"), "");
  // A window that does not hold its pulse is told.
  runner.World().messages.clear();
  Do("dialog dlogImpulse ok cboFFT=128 cboPulseDuration=100\nchoose cboGraph Impulse response");
  ASSERT_FALSE(Shown().empty());
  EXPECT_EQ(LastText(), "The time window of 69.33 fs cuts the pulse off. Select more samples.");
}

TEST_F(Impulse, BeyondItsSamplesTheWindowTellsNothing) {
  Drop("cboFFT=2048");
  Do("click cmdNewPlot\nclick mnuImpulsePlot\nset ImpulsePlot.txtXmax 6000\nset ImpulsePlot.txtXmin 1000\n"
     "click ImpulsePlot.cmdReplot");
  const GraphBox box = Plot().panels.front().box;
  InversePlot(Now(), box.right - 10, 2000);
  EXPECT_NE(Get("ImpulsePlot.lblTime"), "");
  EXPECT_EQ(Get("ImpulsePlot.lblIntensity1") + Get("ImpulsePlot.lblIntensity2"), "");
  InversePlot(Now(), box.left + 10, 2000);
  EXPECT_NE(Get("ImpulsePlot.lblIntensity1"), "");
}

TEST_F(Impulse, RowsThatAStopHasLeftHaveNoCells) {
  Drop("cboFFT=2048");
  Do("click cmdNewPlot");
  Page page = Drawn();
  // As it is after a stop: the rows up to 60 degrees.
  page.map->up.samples = {0, 60, 13};
  const auto reading = [&](double angle) {
    const SurfacePoint at = PlaceOf(angle, 100);
    return ReadAt(page, at.x, at.y);
  };
  ASSERT_TRUE(reading(50) && reading(150));
  EXPECT_TRUE(reading(50)->onCurve);
  EXPECT_FALSE(reading(150)->onCurve);
  EXPECT_NEAR(reading(150)->y, 150, 0.5);
}

TEST_F(Impulse, ChangesAfterTheRunLeaveItsFileWhole) {
  const std::string file = (std::filesystem::temp_directory_path() / "lumivex_pulse.lvx").string();
  // Each was once taken for the inputs of the run, and the file could not be read.
  for (const char* change :
       {"set txtF9_max 150", "set txtF9_min 20", "set txtF9_step 5",
        "dialog dlogImpulse ok cboFFT=1024\nclick mnuImpulse", "set txtF9_max 5000\nclick cmdNewPlot"}) {
    Do("reset");
    Drop("cboFFT=2048");
    Do("set txtF9_max 200\nset txtF9_step 2\nclick cmdNewPlot");
    const double cell = Cell(90, 20);
    Do(std::string(change) + "\nsave-results " + file + "\nreset\nload " + file);
    ASSERT_TRUE(Drawn().map) << change;
    EXPECT_EQ(Get("txtF9_max"), "200") << change;
    EXPECT_EQ(Get("txtF9_step"), "2") << change;
    EXPECT_EQ(Cell(90, 20), cell) << change;
  }
  std::filesystem::remove(file);
}

TEST_F(Impulse, CorrelationKeepsTheTimesThatWereTypedAndItsStopTheMenu) {
  Drop("cboFFT=2048");
  Do("set txtF9_max 200\nset txtF9_step 2\nclick cmdNewPlot\nclick mnuCCF");
  EXPECT_EQ(Get("txtF9_max"), "200");
  EXPECT_EQ(Get("mnuCCF"), "true");
  Do("click mnuCCF\nset txtRadius 30\nset cboStep 0.5\nset txtF9_max 600\nclick cmdNewPlot");
  const auto before = Now().state.LastResults;
  // There is one block of rows, and a stop within it leaves the picture.
  Do("stop-at 1\nclick mnuCCF");
  EXPECT_EQ(Now().state.LastResults, before);
  EXPECT_EQ(Get("mnuCCF"), "false");
}

TEST_F(Impulse, LightWithoutAPhaseIsRefused) {
  Drop("");
  Do("choose cboType Descartes\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Intensities of Descartes have no phase, and so no times");
  EXPECT_FALSE(Drawn().map);
}

TEST_F(Impulse, TheWindowOffersANewRunAndKeepsItsAngleWithoutOne) {
  Drop("");
  Do("set cboStep 10\nclick cmdNewPlot\nclick mnuImpulsePlot\nset ImpulsePlot.cboTheta 20\nclick "
     "ImpulsePlot.cmdReplot");
  EXPECT_EQ(Get("ImpulsePlot.cmdReplot.Enabled"), "false");
  Do("set txtRadius 5\nclick cmdNewPlot");
  EXPECT_EQ(Get("ImpulsePlot.cmdReplot.Enabled"), "true");
  Do("click ImpulsePlot.cmdReplot\nwindow ImpulsePlot\nmouse 6000 4000");
  EXPECT_NE(Get("ImpulsePlot.lblTime"), "");
  Do("choose cboGraph Intensity v. scattering angle\nclick cmdNewPlot\nset ImpulsePlot.cboTheta 30\n"
     "click ImpulsePlot.cmdReplot");
  EXPECT_EQ(LastText(), "The response at one angle needs a graph of an impulse response");
  EXPECT_EQ(Get("ImpulsePlot.cboTheta"), "20");
}

TEST_F(Impulse, TimesBeforeTheFirstLightAreRefused) {
  Drop("");
  Do("set txtF9_min -10\nclick cmdNewPlot");
  EXPECT_EQ(LastText(), "Value must not be less than 0 fs");
}

}  // namespace
}  // namespace lumivex
