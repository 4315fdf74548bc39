#include "session/inputs/methods/rays_check.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/inputs/methods/debye_label.h"

namespace lumivex {

namespace {

constexpr std::string_view multiple = "Multiple";
/// A run of numbers this long is written by its ends.
constexpr int shortestRun = 3;

int RayNumber(double value) {
  return ToWhole(std::clamp(value, 0.0, static_cast<double>(HighestRay)));
}

void SelectRange(RayState& rays, const DlogP& dialog) {
  rays.Pmin = RayNumber(Val(dialog.txtPmin.Text));
  rays.Pmax = RayNumber(Val(dialog.txtPmax.Text));
  rays.Pstep = RayNumber(Val(dialog.txtPstep.Text));
  rays.RayMax = rays.Pmax;
  rays.RayEnabled.assign(static_cast<std::size_t>(rays.RayMax) + 1, 0);
  if (rays.Pstep < 1) return;
  for (int p = rays.Pmin; p <= rays.Pmax; p += rays.Pstep) rays.RayEnabled[static_cast<std::size_t>(p)] = 1;
}

void SelectBoxes(RayState& rays, const DlogP& dialog) {
  rays.RayMax = LastRayBox;
  rays.RayEnabled.clear();
  for (const CheckBox& box : dialog.chkRays) rays.RayEnabled.push_back(box.Checked ? 1 : 0);
}

void SetBoxes(Session& session, bool checked) {
  for (CheckBox& box : session.forms.dlogP.chkRays) box.Checked = checked;
}

bool Asks(const Session& session) {
  return session.form1.cboRays.Text == multiple && session.state.RestoringSettings == 0 &&
         session.state.LoadingFlag == 0;
}

}  // namespace

void RaysCheck(Session& session) {
  RayState& rays = session.state;
  const std::string& text = session.form1.cboRays.Text;
  if (text == multiple) {
    const DlogP& dialog = session.forms.dlogP;
    if (dialog.chkMultStep.Checked)
      SelectRange(rays, dialog);
    else
      SelectBoxes(rays, dialog);
  } else {
    const double value = Val(text);
    rays.RayMax = RayNumber(std::abs(value));
    rays.RayEnabled.assign(static_cast<std::size_t>(rays.RayMax) + 1, value < 0 ? 1 : 0);
    rays.RayEnabled.back() = 1;
  }
  rays.RayCount = static_cast<int>(std::ranges::count(rays.RayEnabled, 1));
}

bool NoRaysSelected(const Session& session) {
  return session.form1.cboRays.Text == multiple && session.state.RayCount == 0;
}

void RefuseNoRays(Session& session) {
  session.platform.Message("Error", "No rays selected");
  session.state.PlotMode = 4;
}

bool WithDiffraction(const Session& session) {
  return session.form1.chkDiffraction.Checked || session.forms.dlogP.chkDiffraction.Checked;
}

std::string SelectedRaysText(std::span<const int> enabled) {
  std::string text;
  const auto count = static_cast<int>(enabled.size());
  const auto on = [enabled, count](int p) { return p < count && enabled[static_cast<std::size_t>(p)] != 0; };
  for (int p = 0; p < count; ++p) {
    if (!on(p)) continue;
    int last = p;
    while (on(last + 1)) ++last;
    if (!text.empty()) text += ", ";
    text += std::to_string(p);
    if (last - p + 1 < shortestRun) continue;
    text += " to " + std::to_string(last);
    p = last;
  }
  return text;
}

void cborays_Click(Session& session) {
  if (Asks(session)) {
    auto& box = session.forms.dlogP.chkDiffraction;
    box.Checked = session.form1.chkDiffraction.Checked;
    if (!session.platform.ShowModal(session.forms.dlogP)) session.form1.cboRays.Text = session.state.KeptRays;
    session.form1.chkDiffraction.Checked = box.Checked;
  }
  RaysCheck(session);
  if (NoRaysSelected(session) && Asks(session)) {
    session.platform.Message("Error", "No rays selected");
    cmdSelectNone_Click(session);
  }
  session.state.KeptRays = session.form1.cboRays.Text;
  session.form1.cboRays.BackColour = colours::White;
  session.events.Raise("Inputs_Changed");
  DebyeLabel(session);
}

void cmdSelectAll_Click(Session& session) {
  SetBoxes(session, true);
}

void cmdSelectNone_Click(Session& session) {
  SetBoxes(session, false);
}

void chkMultStep_Click(Session& session) {
  DlogP& dialog = session.forms.dlogP;
  const bool byRange = dialog.chkMultStep.Checked;
  for (TextInput* field : {&dialog.txtPmin, &dialog.txtPmax, &dialog.txtPstep}) field->Enabled = byRange;
  for (CheckBox& box : dialog.chkRays) box.Enabled = !byRange;
  dialog.cmdSelectAll.Enabled = dialog.cmdSelectNone.Enabled = !byRange;
}

void chkDiffraction_Click(Session& session) {
  session.forms.dlogP.chkDiffraction.Checked = session.form1.chkDiffraction.Checked;
  session.events.Raise("Inputs_Changed");
  DebyeLabel(session);
}

}  // namespace lumivex
