#include "session/inputs/volume_inputs.h"

#include <algorithm>
#include <string_view>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/graph_types.h"
#include "session/undo.h"

namespace lumivex {

namespace {

bool AsksForCount(const Session& session) {
  return ChosenGraph(session.state).axis != AxisVariable::Number;
}

bool WholeHolds(Session& session, TextInput& field, double upperLimit, NumberSign sign) {
  if (!getval(session, field, upperLimit, sign)) return false;
  if (Val(field.Text) == Int(Val(field.Text))) return true;
  RefuseInput(session, field, "    The red highlighted data entry is incorrect.    ");
  return false;
}

void Choose(Session& session, std::string_view graph) {
  if (session.form1.cboGraph.Text == graph && ChosenGraph(session.state).family == Family::Volume)
    return AskVolume(session);
  ChooseGraph(session, graph);
}

}  // namespace

bool VolumeHolds(Session& session) {
  auto& dialog = session.forms.dlogVolume;
  for (Control* control : dialog.Controls()) control->BackColour = colours::White;
  if (AsksForCount(session) && !WholeHolds(session, dialog.txtCount, mostVolumeSpheres, NumberSign::Positive))
    return false;
  return getval(session, dialog.txtSide, widestVolume, NumberSign::Positive) &&
         WholeHolds(session, dialog.txtSeed, largestSeed, NumberSign::PositiveOrZero);
}

VolumeRun ReadVolume(const Session& session, const AxisRun& axis) {
  const auto& dialog = session.forms.dlogVolume;
  const double count = AsksForCount(session) ? Val(dialog.txtCount.Text) : axis.xmax;
  VolumeRun run;
  run.axis = axis;
  run.count = ToWhole(std::clamp(count, 1.0, mostVolumeSpheres));
  run.side = Val(dialog.txtSide.Text);
  run.seed = static_cast<std::uint64_t>(std::clamp(Val(dialog.txtSeed.Text), 0.0, largestSeed));
  return run;
}

void AskVolume(Session& session) {
  auto& dialog = session.forms.dlogVolume;
  dialog.lblCount.Visible = dialog.txtCount.Visible = AsksForCount(session);
  if (!AskIn(session, dialog)) {
    // Whoever has chosen the graph and then cancels its dialog wants neither.
    if (session.state.RestoringSettings == 0) TakeBackGraph(session);
    return;
  }
  // So many steps may be too many for the spheres of before alone.
  auto& step = session.form1.cboStep;
  if (step.BackColour == colours::BadInput) step.BackColour = colours::White;
  RaiseInputsChanged(session);
}

void RestoreVolume(Session& session) {
  auto& dialog = session.forms.dlogVolume;
  dialog.txtCount.Text = DlogVolume::startCount;
  dialog.txtSide.Text = DlogVolume::startSide;
  dialog.txtSeed.Text = DlogVolume::startSeed;
  for (Control* control : dialog.Controls()) control->BackColour = colours::White;
}

void mnuVolumePlace_Click(Session& session) {
  Choose(session, "Vol: Int v. xPart");
}

void mnuVolumeNumber_Click(Session& session) {
  Choose(session, "Vol: Int v. N");
}

void mnuVolumeTime_Click(Session& session) {
  Choose(session, "Vol: Int v. time");
}

void mnuVolumeRadius_Click(Session& session) {
  Choose(session, "Vol: Int v. radius");
}

void dlogVolume_OKButton_Click(Session& session) {
  VolumeHolds(session);
}

}  // namespace lumivex
