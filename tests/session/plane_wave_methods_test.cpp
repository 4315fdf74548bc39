// The methods as a user finds them: the selection of p, labels and titles, differences, what a run leaves in the
// record.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

#include "record/recording_surface.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/debye_menus.h"
#include "session/inputs/methods/function_checks.h"
#include "session/inputs/methods/rays_check.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class PlaneWaveMethods : public ScriptedSession {
 protected:
  void ChooseP(const std::string& text) { session.form1.cboRays.Text = text; }

  Session& session = runner.Current();
  RayState& rays = session.state;
  DlogP& dialog = session.forms.dlogP;
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
  Do("choose cboType Debye\nset txtRefractImag 0\nset cboStep 5\nclick cmdNewPlot");
  const auto before = session.state.Iperp;
  for (const char* method : {"Debye", "Young mod", "Airy", "Huygens"}) {
    Do("choose cboType " + std::string(method));
    const std::size_t shown = Shown().size();
    Do("dialog dlogP ok\nchoose cboRays Multiple\nclick cmdNewPlot");
    EXPECT_GT(Shown().size(), shown);
    EXPECT_EQ(session.state.Iperp, before) << method;
    EXPECT_EQ(session.state.PlotMode, 1);
    Do("choose cboRays 2");
  }
}

TEST_F(PlaneWaveMethods, EachHasItsTitleAndItsLabel) {
  const struct {
    const char *method, *rays, *label, *title;
  } cases[] = {{"Mie", "2", "Mie (plane wave)", "Mie scattering:  Water in a vacuum"},
               {"Debye", "-20", "Debye series (p = 0 to 20)", "Water in a vacuum"},
               {"Debye", "0", "Debye series (p = 0)", "Debye series (p = 0):  Water in a vacuum"},
               {"Descartes", "2", "Descartes (p = 2)", "Water in a vacuum"},
               {"Young", "2", "Young (p = 2)", "Water in a vacuum"},
               {"Young mod", "2", "Young mod. (p = 2)", "Water in a vacuum"},
               {"Young + Airy", "2", "Young + Airy (p = 2)", "Water in a vacuum"},
               {"Airy", "2", "Airy theory (p = 2)", "Water in a vacuum"},
               {"Diffraction", "2", "Diffraction", "Diffraction:  Water in a vacuum"},
               {"Rayleigh", "2", "Rayleigh scattering", "Rayleigh scattering:  Water in a vacuum"},
               {"Huygens", "2", "Huygens (p = 2)", "Ray tracing: Huygens (p =2) Water in a vacuum"}};
  Do("set cboStep 5\ndialog dlogTemp ok chkRI_Complex=false\nclick mnuRI_IAPWS");
  for (const auto& c : cases) {
    Do("choose cboType " + std::string(c.method));
    ChooseP(c.rays);
    Do("set cboStep 5\nclick cmdNewPlot");
    EXPECT_EQ(session.form1.lblDebyeRays.Caption, c.label);
    EXPECT_EQ(session.state.RunTitle, c.title) << c.method;
  }
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
