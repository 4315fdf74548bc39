#include "session/inputs/methods/rays_check.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/read_method.h"

namespace lumivex {

namespace {

constexpr std::string_view multiple = "Multiple";
/// A run of numbers this long is written by its ends.
constexpr int shortestRun = 3;

int RayNumber(double value) {
  return ToWhole(std::clamp(value, 0.0, static_cast<double>(HighestRay)));
}

std::vector<int> SelectRange(const RayRange& range) {
  const int low = RayNumber(Val(range.Pmin)), high = RayNumber(Val(range.Pmax)), step = RayNumber(Val(range.Pstep));
  std::vector<int> enabled(static_cast<std::size_t>(high) + 1, 0);
  if (step < 1) return enabled;
  for (int p = low; p <= high; p += step) enabled[static_cast<std::size_t>(p)] = 1;
  return enabled;
}

std::vector<int> SelectOne(std::string_view text) {
  const double value = Val(text);
  std::vector<int> enabled(static_cast<std::size_t>(RayNumber(std::abs(value))) + 1, value < 0 ? 1 : 0);
  enabled.back() = 1;
  return enabled;
}

void SetBoxes(Session& session, bool checked) {
  for (CheckBox& box : session.forms.dlogP.chkRays) box.Checked = checked;
}

bool Asks(const Session& session) {
  return session.form1.cboRays.Text == multiple && session.state.RestoringSettings == 0 &&
         session.state.LoadingFlag == 0;
}

}  // namespace

RayInputs RayInputsOf(const Session& session) {
  const DlogP& dialog = session.forms.dlogP;
  RayInputs inputs{session.form1.cboRays.Text, std::nullopt, {}};
  if (dialog.chkMultStep.Checked) inputs.range = {dialog.txtPmin.Text, dialog.txtPmax.Text, dialog.txtPstep.Text};
  for (const CheckBox& box : dialog.chkRays) inputs.boxes.push_back(box.Checked ? 1 : 0);
  return inputs;
}

std::vector<int> SelectedRays(const RayInputs& inputs) {
  if (inputs.text != multiple) return SelectOne(inputs.text);
  return inputs.range ? SelectRange(*inputs.range) : inputs.boxes;
}

bool SelectsRays(Method method) {
  return method == Method::Debye || static_cast<int>(method) > static_cast<int>(Method::Diffraction);
}

void RaysCheck(Session& session) {
  RayState& rays = session.state;
  const RayInputs inputs = RayInputsOf(session);
  if (inputs.text == multiple && inputs.range) {
    rays.Pmin = RayNumber(Val(inputs.range->Pmin));
    rays.Pmax = RayNumber(Val(inputs.range->Pmax));
    rays.Pstep = RayNumber(Val(inputs.range->Pstep));
  }
  rays.RayEnabled = SelectedRays(inputs);
  rays.RayMax = static_cast<int>(rays.RayEnabled.size()) - 1;
  rays.RayCount = static_cast<int>(std::ranges::count(rays.RayEnabled, 1));
}

bool LacksRays(const Session& session) {
  const RayInputs inputs = RayInputsOf(session);
  const bool alone = OffersDiffraction(session) && WithDiffraction(session);
  return TraitsOf(session.state.CalcMethod).needsP && inputs.text == multiple && !alone &&
         std::ranges::count(SelectedRays(inputs), 1) == 0;
}

bool NoRaysSelected(const Session& session) {
  return session.form1.cboRays.Text == multiple && session.state.RayCount == 0;
}

bool OffersDiffraction(const Session& session) {
  const Method method = session.state.CalcMethod;
  const bool difference = session.form1.mnuGODebye.Checked && TakesDifferences(ChosenGraph(session.state));
  return TraitsOf(method).takesDiffraction || (method == Method::Debye && difference);
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
