#include "session/event_table.h"

#include <algorithm>
#include <cctype>

#include "session/compare/compare.h"
#include "session/driver/calibration.h"
#include "session/driver/commands.h"
#include "session/driver/display_run.h"
#include "session/file_menu.h"
#include "session/impulse/impulse_events.h"
#include "session/info.h"
#include "session/inputs/beams/beam_menus.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/drops/drop_inputs.h"
#include "session/inputs/fourier_inputs.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/input_events.h"
#include "session/inputs/layers/coated_inputs.h"
#include "session/inputs/layers/inhom_inputs.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/materials/material_events.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/debye_menus.h"
#include "session/inputs/two_angle_inputs.h"
#include "session/inputs/volume_inputs.h"
#include "session/live/live_events.h"
#include "session/page.h"
#include "session/simulation/simulation_events.h"
#include "session/start_up.h"
#include "session/undo.h"
#include "session/window_events.h"

namespace lumivex {

namespace {

struct EventRow {
  std::string_view name;
  EventTable::Handler handler;
};

constexpr EventRow eventRows[] = {
    // Commands.
    {"cmdNewPlot_Click", cmdNewPlot_Click},
    {"cmdOverPlot_Click", cmdOverPlot_Click},
    {"cmdReplot_Click", cmdReplot_Click},
    {"cmdStop_Click", cmdStop_Click},
    {"cmdInfo_Click", cmdInfo_Click},
    {"cmdDefault_Click", cmdDefault_Click},
    {"cmdExit_Click", mnuExit_Click},

    // Comparing.
    {"mnuCurves_Click", mnuCurves_Click},
    {"mnuMarkPoints_Click", mnuMarkPoints_Click},

    // Method and graph.
    {"cboType_click", cboType_click},
    {"cboGraph_Click", cboGraph_Click},
    {"cboWave_Click", cboWave_Click},
    {"cboPol_Click", Scale_Click},
    {"cboLee_Click", RecolourPage},
    {"Map_Recoloured", RedrawMap},
    {"mnuDiffractionNew_Click", mnuDiffractionNew_Click},
    {"mnuHuygens_Click", mnuHuygens_Click},
    {"mnuAperture_Click", mnuAperture_Click},
    {"mnuvdh_Click", mnuvdh_Click},
    {"mnuCoatedSphere_Click", mnuCoatedSphere_Click},
    {"mnuInhomSphere_Click", mnuInhomSphere_Click},
    {"mnuDebyeSequence_Click", mnuDebyeSequence_Click},
    {"dlogDebyeSeq.Show", AskDebyeSequence},
    {"chkComponents_Click", Scale_Click},
    {"mnuTwoAngle_Click", mnuTwoAngle_Click},
    {"mnuFFT_Click", mnuFFT_Click},
    {"dlogFFT.cboFFT_Click", dlogFFT_Change},
    {"dlogFFT.cboFFT_Change", dlogFFT_Change},
    {"dlogFFT.txtThetaMin_Change", dlogFFT_Change},
    {"dlogFFT.txtFmin_Change", dlogFFT_Change},
    {"dlogFFT.txtFmax_Change", dlogFFT_Change},
    {"dlogFFT.optFFTreal_Click", dlogFFT_Inputs_Click},
    {"dlogFFT.optFFTcomplex_Click", dlogFFT_Inputs_Click},
    {"dlogFFT.OKButton_Click", dlogFFT_Change},
    {"mnuDiffCrossSection_Click", mnuDiffCrossSection_Click},
    {"mnuConvergence_Click", mnuConvergence_Click},
    {"mnuLiveGraph_Click", mnuLiveGraph_Click},
    {"mnuSlider_Click", mnuSlider_Click},
    {"dlogTwoAngle.Show", AskTwoAngle},
    {"dlogTwoAngle.OKButton_Click", dlogTwoAngle_OKButton_Click},
    {"mnuVolumePlace_Click", mnuVolumePlace_Click},
    {"mnuVolumeNumber_Click", mnuVolumeNumber_Click},
    {"mnuVolumeTime_Click", mnuVolumeTime_Click},
    {"mnuVolumeRadius_Click", mnuVolumeRadius_Click},
    {"dlogVolume.Show", AskVolume},
    {"dlogVolume.OKButton_Click", dlogVolume_OKButton_Click},

    // Inputs.
    {"Inputs_Changed", Inputs_Changed},
    {"txtLambda_change", txtLambda_change},
    {"txtRadius_Change", txtRadius_Change},
    {"txtRmax_Change", FurtherAxis_Changed},
    {"txtRstep_Change", FurtherAxis_Changed},
    {"txtAngle_Change", FurtherAxis_Changed},
    {"txtF9_fixed_Change", FurtherAxis_Changed},
    {"txtF9_min_Change", Times_Changed},
    {"txtF9_max_Change", Times_Changed},
    {"txtF9_step_Change", FurtherAxis_Changed},
    {"txtXmin_Change", Picture_Changed},
    {"txtXmax_Change", Picture_Changed},
    {"cboStep_Change", Step_Changed},
    {"cboYmax_Change", Picture_Changed},
    {"cboYmin_Change", Picture_Changed},
    {"cboYmax_Click", Limit_Click},
    {"cboYmin_Click", Limit_Click},
    {"OptLog_Click", Scale_Click},
    {"optLinear_Click", Scale_Click},
    {"OptXLinear_Click", Scale_Click},
    {"optXLog_Click", Scale_Click},
    {"optPoint_Click", Scale_Click},
    {"optSun_Click", Scale_Click},

    // File, edit, view, help.
    {"mnuSavePicture_Click", mnuSavePicture_Click},
    {"mnuCopyPicture_Click", mnuCopyPicture_Click},
    {"mnuCopyData_Click", mnuCopyData_Click},
    {"mnuSaveData_Click", mnuSaveData_Click},
    {"mnuExit_Click", mnuExit_Click},
    {"mnuUndo_Click", mnuUndo_Click},
    {"mnuRedo_Click", mnuRedo_Click},
    {"mnuRestoreDefaults_Click", cmdDefault_Click},
    {"mnuInfo_Click", cmdInfo_Click},
    {"mnuDataVisible_Click", mnuDataVisible_Click},
    {"mnuKeepParameters_Click", mnuKeepParameters_Click},
    {"mnuHelpContents_Click", mnuHelpContents_Click},
    {"mnuAbout_Click", mnuAbout_Click},

    // Sphere, medium, solver.
    {"mnuRadius_Click", mnuRadius_Click},
    {"mnuDiameter_Click", mnuDiameter_Click},
    {"mnuRadiusX_Click", mnuRadiusX_Click},
    {"mnuSize_Click", mnuSize_Click},
    {"mnuClassicStart_Click", mnuClassicStart_Click},
    {"mnuConstantVolume_Click", mnuConstantVolume_Click},
    {"mnuXStepLog_Click", mnuXStepLog_Click},
    {"mnuCalibration_Click", mnuCalibration_Click},
    {"dlogCalibration.cmdMeasure_Click", dlogCalibration_cmdMeasure_Click},
    {"dlogCalibration.txtCalibration_Change", dlogCalibration_txtCalibration_Change},
    {"dlogCalibration.OKButton_Click", dlogCalibration_OKButton_Click},
};

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

}  // namespace

EventTable::EventTable() {
  for (const auto& row : eventRows) Add(row.name, row.handler);
  for (const auto& row : LookEvents()) Add(row.name, row.handler);
  for (const auto& row : MaterialEvents()) Add(row.name, row.handler);
  for (const auto& row : SolverEvents()) Add(row.name, row.handler);
  for (const auto& row : BeamEvents()) Add(row.name, row.handler);
  for (const auto& row : CoatedSphereEvents()) Add(row.name, row.handler);
  for (const auto& row : InhomSphereEvents()) Add(row.name, row.handler);
  for (const auto& row : DropEvents()) Add(row.name, row.handler);
  for (const auto& row : DewEvents()) Add(row.name, row.handler);
  for (const auto& row : SimulationEvents()) Add(row.name, row.handler);
  for (const auto& row : ImpulseEvents()) Add(row.name, row.handler);
}

void EventTable::Add(std::string_view name, Handler handler) {
  handlers_[LowerCase(name)] = handler;
}

bool EventTable::Listens(std::string_view name) const {
  return handlers_.contains(LowerCase(name));
}

bool EventTable::Raise(std::string_view name) {
  const auto found = handlers_.find(LowerCase(name));
  if (found == handlers_.end() || session_ == nullptr) return false;
  found->second(*session_);
  return true;
}

}  // namespace lumivex
