// The routines of the Debye series, rays, Airy's theory and the closed forms: what they ask of the record and the
// dialogs, what they leave there, what they say.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

#include "record/recording_surface.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/debye_menus.h"
#include "session/inputs/methods/function_checks.h"
#include "session/inputs/methods/rays_check.h"
#include "session/routines/debye.h"
#include "session/routines/mie.h"
#include "session/routines/rays.h"
#include "session/routines/simple_methods.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using Solver = void (*)(Session&, const SolverCall&, AmplitudeTable&, AmplitudeTable&, double&, double&, double&,
                        double&, RunMonitor&);

class PlaneWaveMethods : public ScriptedSession {
 protected:
  PlaneWaveMethods() {
    session.state.SphereName = "Water";
    session.state.MediumName = "Vacuum";
    session.form1.txtRefractImag.Text = "0";
  }

  void Run(Solver solver, int method, double x, double mRe = 1.333, double mIm = 0, RowWindow window = {1, 181}) {
    session.state.CalcMethod = method;
    session.state.PlotMode = 1;
    SilentMonitor monitor;
    solver(session, {x, mRe, mIm, 91, window.low, window.high}, S1, S2, Qext, Qsca, Qback, g, monitor);
  }
  void ChooseP(const std::string& text) { session.form1.cboRays.Text = text; }

  Session& session = runner.Current();
  RayState& rays = session.state;
  DlogP& dialog = session.forms.dlogP;
  AmplitudeTable S1, S2;
  double Qext = -1, Qsca = -1, Qback = -1, g = -1;
};

TEST_F(PlaneWaveMethods, RaysAreSelectedByNumberRangeAndBoxes) {
  struct Case {
    std::string text;
    int max, count;
    std::vector<int> on;
  };
  for (const Case& c : {Case{"0", 0, 1, {0}}, Case{"7", 7, 1, {7}}, Case{"-3", 3, 4, {0, 1, 2, 3}},
                        Case{"99999", HighestRay, 1, {HighestRay}}, Case{"", 0, 1, {0}}}) {
    ChooseP(c.text);
    RaysCheck(session);
    EXPECT_EQ(rays.RayMax, c.max) << c.text;
    EXPECT_EQ(rays.RayCount, c.count) << c.text;
    for (const int p : c.on) EXPECT_EQ(rays.RayEnabled.at(static_cast<std::size_t>(p)), 1) << c.text;
  }
  ChooseP("Multiple");
  dialog.chkRays[0].Checked = dialog.chkRays[50].Checked = true;
  RaysCheck(session);
  EXPECT_EQ(rays.RayMax, 50);
  EXPECT_EQ(rays.RayCount, 2);
  dialog.chkMultStep.Checked = true;
  dialog.txtPmin.Text = "2";
  dialog.txtPmax.Text = "60";
  dialog.txtPstep.Text = "10";
  RaysCheck(session);
  EXPECT_EQ(rays.RayCount, 6);
  EXPECT_EQ(rays.RayEnabled.at(52), 1);
  dialog.txtPstep.Text = "0";
  RaysCheck(session);
  EXPECT_EQ(rays.RayCount, 0);
}

TEST_F(PlaneWaveMethods, MultipleOpensItsDialogAndWantsASelection) {
  ChooseP("Multiple");
  runner.World().dialogs.push_back({"dlogP", true, {}});
  cborays_Click(session);
  EXPECT_TRUE(runner.World().dialogs.empty());
  EXPECT_EQ(LastTitle(), "Error");
  EXPECT_EQ(LastText(), "No rays selected");
  cmdSelectAll_Click(session);
  cborays_Click(session);
  EXPECT_EQ(Shown().size(), 1U);
  EXPECT_EQ(rays.RayCount, 51);
  cmdSelectNone_Click(session);
  RaysCheck(session);
  EXPECT_EQ(rays.RayCount, 0);
}

TEST_F(PlaneWaveMethods, NothingSelectedLeavesTheOldResults) {
  ChooseP("2");
  Run(GO, 8, 100);
  const AmplitudeTable before = S1;
  ChooseP("Multiple");
  for (const auto& [solver, method] : {std::pair<Solver, int>{DebyeSeries, 2}, {GO, 8}, {Airy, 5}, {Huygens, 9}}) {
    const std::size_t shown = Shown().size();
    Run(solver, method, 100);
    EXPECT_EQ(session.state.PlotMode, 4);
    EXPECT_EQ(LastText(), "No rays selected");
    EXPECT_EQ(Shown().size(), shown + 1);
    EXPECT_EQ(S1, before);
  }
  // Diffraction alone is something to add to rays.
  dialog.chkDiffraction.Checked = true;
  Run(GO, 8, 100);
  EXPECT_EQ(session.state.PlotMode, 1);
  EXPECT_DOUBLE_EQ(S1.Re(1), 5000.0);
  EXPECT_DOUBLE_EQ(Qext, 2.0);
}

TEST_F(PlaneWaveMethods, DebyeSeriesFillsTheRecord) {
  ChooseP("-20");
  Run(DebyeSeries, 2, 60, 1.333, 0, {1, 120});
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Debye series (p = 0 to 20)");
  EXPECT_EQ(session.state.NSTOP, 78);
  EXPECT_EQ(session.state.NN, 181);
  EXPECT_TRUE(session.state.SummedRows.Contains(120));
  EXPECT_FALSE(session.state.SummedRows.Contains(121));
  EXPECT_EQ(S1.Re(121), 0.0);
  EXPECT_NEAR(Qext, 4 * S1.Re(1) / 3600, 1e-12);
  EXPECT_EQ(Qsca, Qext);
  // Left alone where the index is entered with an imaginary part.
  session.form1.txtRefractImag.Text = "0.001";
  Qext = -7;
  Run(DebyeSeries, 2, 60, 1.333, 0.001);
  EXPECT_EQ(Qext, -7);
  session.forms.dlogPartial.optPartial.Select();
  Run(DebyeSeries, 2, 60);
  EXPECT_EQ(session.state.PartialWaveFirst, 12);
  EXPECT_EQ(session.state.PartialWaveLast, 24);
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Debye series: 0.2x - 0.4x (p = 0 to 20)");
}

TEST_F(PlaneWaveMethods, DebyeSeriesRefusesAndHandsOver) {
  ChooseP("0");
  Run(DebyeSeries, 2, 150000, 1.4);
  EXPECT_EQ(LastTitle(), "Error");
  EXPECT_EQ(LastText(), "Reduce radius or increase wavelength");
  EXPECT_EQ(session.state.PlotMode, 4);
  // x mIm = 700 exactly stays with the series, whose margin is 2 terms; above it the Mie series takes over.
  Run(DebyeSeries, 2, 1000, 1.5, 0.7);
  EXPECT_EQ(session.state.NSTOP, 1042);
  const AmplitudeTable terms = S1;
  Run(DebyeSeries, 2, 1000, 1.5, 0.7000001);
  EXPECT_EQ(session.state.NSTOP, 1060);
  EXPECT_EQ(session.state.CalcMethod, 2);
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(S1.Re(row), terms.Re(row), 0.05) << row;
}

TEST_F(PlaneWaveMethods, DifferencesLeaveWhatTheTermsLack) {
  ChooseP("-2");
  Run(DebyeSeries, 2, 200);
  const AmplitudeTable terms = S1;
  Run(BHMIE, 1, 200);
  const AmplitudeTable mie = S1;
  session.form1.mnuMieDebye.Checked = true;
  Run(DebyeDifference, 2, 200);
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(S1.Re(row), mie.Re(row) - terms.Re(row), 1e-6) << row;
  EXPECT_EQ(session.state.CalcMethod, 2);
  session.form1.mnuMieDebye.Checked = false;

  Run(GO2, 8, 200, 1.333, 1e-4);
  const AmplitudeTable optics = S2;
  Run(DebyeSeries, 2, 200, 1.333, 1e-4);
  const AmplitudeTable parallel = S2;
  session.form1.mnuSWsub.Checked = true;
  Run(DebyeSeries, 2, 200, 1.333, 1e-4);
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(S2.Re(row), parallel.Re(row) - optics.Re(row), 1e-6) << row;
  session.form1.mnuSWsub.Checked = false;
  session.form1.mnuGODebye.Checked = true;
  Run(DebyeDifference, 2, 200, 1.333, 1e-4);
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(S2.Re(row), optics.Re(row) - parallel.Re(row), 1e-6) << row;
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Debye series - GO (p = 0 to 2)");
}

TEST_F(PlaneWaveMethods, DifferencesExcludeEachOther) {
  const auto& form = session.form1;
  mnuMieDebye_Click(session);
  EXPECT_TRUE(form.mnuMieDebye.Checked);
  mnuSWsub_Click(session);
  EXPECT_TRUE(form.mnuSWsub.Checked && !form.mnuMieDebye.Checked);
  mnuSWsub_Click(session);
  EXPECT_FALSE(form.mnuSWsub.Checked);
  runner.World().dialogs.push_back({"dlogPartial", false, {{"txtMin", "0.7"}}});
  mnuPartial_Click(session);
  EXPECT_EQ(session.forms.dlogPartial.txtMin.Text, "0.2");
}

// With an absorbing sphere rays alone have the parallel amplitude of older programs, which must not reach a sum with
// another field.
TEST_F(PlaneWaveMethods, ParallelSignOfAbsorbingSpheres) {
  ChooseP("1");
  Run(GO, 8, 200, 1.333, 1e-3);
  const double alone1 = S1.Im(40), alone2 = S2.Im(40);
  Run(GO2, 8, 200, 1.333, 1e-3);
  EXPECT_EQ(S1.Im(40), alone1);
  EXPECT_EQ(S2.Im(40), -alone2);
  session.form1.chkDiffraction.Checked = true;
  Run(GO, 8, 200, 1.333, 1e-3);
  EXPECT_NEAR(S2.Im(40), -alone2, 1e-12);
}

TEST_F(PlaneWaveMethods, RayMethodsAndTheirLabels) {
  ChooseP("2");
  const struct {
    int method;
    const char* label;
  } cases[] = {{6, "Descartes (p = 2)"}, {7, "Young (p = 2)"}, {8, "Young mod. (p = 2)"}, {14, "Young + Airy (p = 2)"}};
  std::vector<double> rainbow;
  for (const auto& c : cases) {
    Run(GO, c.method, 1000);
    EXPECT_EQ(session.form1.lblDebyeRays.Caption, c.label);
    EXPECT_EQ(session.state.RunTitle, "Water in Vacuum");
    EXPECT_TRUE(session.state.SummedRows.Contains(181));
    rainbow.push_back(S1.Intensity(138));
  }
  EXPECT_NEAR(session.state.RainbowAngle, 137.92 * 3.14159265 / 180, 1e-4);
  // Only Airy's field reaches into the dark side, one degree below the rainbow.
  EXPECT_EQ(rainbow[0], 0.0);
  EXPECT_EQ(rainbow[2], 0.0);
  EXPECT_GT(rainbow[3], 0.0);
  Run(Airy, 5, 1000);
  EXPECT_NEAR(S1.Intensity(138), rainbow[3], 1e-9 * rainbow[3]);
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Airy theory (p = 2)");
  ChooseP("Multiple");
  dialog.chkRays[0].Checked = dialog.chkRays[3].Checked = true;
  dialog.chkDiffraction.Checked = true;
  DebyeLabel(session);
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Airy theory (p = 0, 3)");
  Run(GO, 8, 1000);
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Young mod. (p = 0, 3)+ Diffraction");
}

TEST_F(PlaneWaveMethods, DiffractionAndRayleighHaveTitlesAndEfficiencies) {
  Run(Diffraction, 4, 100);
  EXPECT_EQ(session.state.RunTitle, "Diffraction:  Water in Vacuum");
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Diffraction");
  EXPECT_DOUBLE_EQ(Qext, 2.0);
  session.state.DiffractionVariant = 1;
  const double disc = S1.Re(3);
  Run(Diffraction, 4, 100);
  EXPECT_NE(S1.Re(3), disc);
  EXPECT_NEAR(S1.Re(3), disc, 0.1 * 5000);

  // Size and wavelength of the fields belong to the same x for the integral over angles.
  session.form1.txtRadius.Text = "0.01";
  session.form1.txtLambda.Text = "0.62831853071795865";
  session.state.Lambda = 0.62831853071795865;
  session.state.NANG = 91;
  Run(Rayleigh, 3, 0.1, 1.5);
  EXPECT_EQ(session.state.RunTitle, "Rayleigh scattering:  Water in Vacuum");
  const double closed = 8.0 / 3.0 * 1e-4 * std::pow(1.25 / 4.25, 2);
  EXPECT_NEAR(Qsca / closed, 1, 1e-3);
  EXPECT_EQ(Qext, Qsca);
  EXPECT_NEAR(Qback, S1.Intensity(181) / (3.14159265358979 * 0.01), 1e-15);
  Run(Rayleigh, 3, 0.1, 1.5, 0, {10, 20});
  EXPECT_NEAR(Qsca / closed, 1, 1e-12);
  session.form1.mnuHidden.Checked = true;
  Run(Rayleigh, 3, 0.1, 1.5);
  EXPECT_NEAR(Qext, 4 * 0.1 * 1.25 / 4.25, 1e-12);
}

TEST_F(PlaneWaveMethods, ApertureAndGloryReadTheirFields) {
  session.form1.txtAngle.Text = "4";
  Run(Aperture, 10, 50);
  EXPECT_EQ(rays.ApertureCentre, (std::vector<double>{0.125, 0.375, 0.625, 0.875}));
  EXPECT_NEAR(S1.Re(1), 1, 1e-14);
  EXPECT_EQ(session.form1.txtAngle.Text, "4");
  session.form1.txtAngle.Text = "no number";
  Run(Aperture, 10, 50);
  EXPECT_EQ(rays.ApertureCentre.size(), 1U);
  session.form1.cboQmin.Text = "2";
  session.form1.cboQmax.Text = "2";
  Run(vdh, 12, 50);
  EXPECT_EQ(S1, S2);
  EXPECT_EQ(S1.Re(91), 0.0);
  EXPECT_EQ(rays.BesselOrders.size(), 5U);
}

TEST_F(PlaneWaveMethods, HuygensDrawsItsWavefront) {
  ChooseP("2");
  session.form1.txtAngle.Text = "90";
  RecordingSurface recording(16000, 11000);
  DrawingSurface* const shown = session.surface;
  session.surface = &recording;
  Run(Huygens, 9, 1000, 1.333, 0, {121, 151});
  session.surface = shown;
  EXPECT_EQ(session.state.RunTitle, "Ray tracing: Huygens (p =2) Water in Vacuum");
  EXPECT_EQ(session.form1.lblDebyeRays.Caption, "Huygens (p = 2)");
  ASSERT_EQ(rays.HuygensWaves.size(), 1U);
  EXPECT_EQ(rays.HuygensWaves[0].waveX.size(), 91U);
  EXPECT_GT(recording.Operations().size(), 10U);
  EXPECT_GT(S1.Intensity(140), 0.0);
}

TEST_F(PlaneWaveMethods, AStoppedRunStoresWholeRows) {
  struct Stopper final : RunMonitor {
    RunState& state;
    int left = 3;
    explicit Stopper(RunState& s) : state(s) {}
    bool Report(std::size_t, std::size_t) override {
      if (--left == 0) state.PlotMode = 4;
      return state.PlotMode != 4;
    }
  };
  ChooseP("-30");
  session.state.CalcMethod = 8;
  session.state.PlotMode = 1;
  Stopper stopper(session.state);
  stopper.left = 40;
  GO(session, {1000, 1.333, 0, 901, 1, 1801}, S1, S2, Qext, Qsca, Qback, g, stopper);
  EXPECT_EQ(session.state.PlotMode, 4);
  EXPECT_FALSE(session.state.SummedRows.Contains(1801));
  for (int row = 1; row <= 1801; ++row) {
    EXPECT_EQ(S1.Intensity(row) > 0, session.state.SummedRows.Contains(row)) << row;
  }
}

TEST_F(PlaneWaveMethods, FunctionChecksPrintAndRead) {
  RecordingSurface recording(16000, 11000);
  DrawingSurface* const shown = session.surface;
  session.surface = &recording;
  cmdAiry_Click(session);
  EXPECT_GE(recording.Operations().size(), 26U);
  cmdBessel_Click(session);
  session.surface = shown;

  const auto path = std::filesystem::temp_directory_path() / "lumivex_bessel_diff_test.txt";
  const auto read = [&](const std::string& content) {
    std::ofstream(path) << content;
    runner.World().openPaths.push_back(path.string());
    read_Diff_file(session);
  };
  read("Bessel\r\n1.5, 2\n-3e-2\n");
  EXPECT_EQ(rays.BesselDiffTable, (std::vector<double>{1.5, 2, -0.03}));
  EXPECT_TRUE(Shown().empty());
  for (const char* bad : {"", "Bessels\n1", "1 2 3"}) {
    read(bad);
    EXPECT_EQ(LastText(), "Error in file: BesselDiff.txt") << bad;
  }
  EXPECT_EQ(rays.BesselDiffTable.size(), 3U);
  std::string many = "Bessel\n";
  for (int i = 0; i < 2000; ++i) many += std::to_string(i) + "\n";
  read(many);
  EXPECT_EQ(rays.BesselDiffTable.size(), 1001U);
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace lumivex
