#include "session/inputs/layers/coated_inputs.h"

#include <array>
#include <initializer_list>
#include <string>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/layers/layer_labels.h"
#include "session/inputs/layers/read_layers.h"

namespace lumivex {

namespace {

using Dialog = DlogCoatedSphere;

constexpr int highestN = 12;

void Enable(std::initializer_list<Control*> controls, bool enabled) {
  for (Control* control : controls) control->Enabled = enabled;
}

void ShowSelection(Dialog& d) {
  const bool debye = d.chkDebye.Checked, rab = debye && d.optRAB.Checked, mult = d.chkMult.Checked;
  Enable({&d.Frame2, &d.frmRecursion, &d.optCoatMie, &d.optCoatMie2, &d.optAuto, &d.optPQ, &d.optPQR, &d.optRAB,
          &d.chkDegeneracy},
         debye);
  Enable({&d.cboP, &d.cboQ}, debye && d.optPQ.Checked);
  Enable({&d.cboRays}, debye && d.optPQR.Checked);
  Enable({&d.chkMult, &d.cboMin, &d.cboMax}, rab);
  Enable({&d.cboR, &d.cboA, &d.cboB, &d.cboRAB}, rab && !mult);
  d.lblPath.Visible = d.cboRAB.Visible = d.txtDegen.Visible = !mult;
  d.lblMult.Visible = d.cboMin.Visible = d.cboMax.Visible = mult;
}

/// Numbers that no way has are marked at once.
void MarkPath(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  for (Control* control : std::initializer_list<Control*>{&d.cboR, &d.cboA, &d.cboB, &d.cboRays})
    if (control->BackColour == colours::BadInput) control->BackColour = colours::White;
  if (const auto none = PathsRefused(session))
    for (Control* control : none->marked) control->BackColour = colours::BadInput;
}

void Selection_Click(Session& session) {
  ShowSelection(session.forms.dlogCoatedSphere);
  MarkPath(session);
}

void Material_Click(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  EvaluateLayers(session);
  for (const int layer : {coreLayer, shellLayer, mediumLayer}) {
    const LayerInputs inputs = InputsOfLayer(d, layer);
    inputs.index.BackColour = colours::White;
  }
}

void Numbers_Click(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  d.cboRAB.Text = d.cboR.Text + "-" + d.cboA.Text + "-" + d.cboB.Text;
  Degeneracy(session);
  MarkPath(session);
}

void cboRAB_Click(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  const std::array<SelectionList*, 3> parts = {&d.cboR, &d.cboA, &d.cboB};
  for (SelectionList* part : parts) part->Text.clear();
  std::size_t place = 0;
  for (const char c : d.cboRAB.Text) {
    if (c == '-' && place + 1 < parts.size())
      ++place;
    else
      parts[place]->Text += c;
  }
  Degeneracy(session);
  MarkPath(session);
}

void cboMin_Click(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  if (Val(d.cboMax.Text) < Val(d.cboMin.Text)) d.cboMax.Text = d.cboMin.Text;
}

void cboMax_Click(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  if (Val(d.cboMax.Text) < Val(d.cboMin.Text)) d.cboMin.Text = d.cboMax.Text;
}

void OKButton_Click(Session& session) {
  if (!CoatedSphereHolds(session)) return;
  ShowLayers(session);
  Degeneracy(session);
}

}  // namespace

void FillPathLists(Dialog& dialog) {
  dialog.cboRays.Items = {"p1",     "q1",     "r1",     "p1r1", "q1r1", "q2",   "r2", "p1r1p1", "p1r1q1",
                          "q1r1q1", "r1p1r1", "r1q1r1", "r1q2", "r2p1", "r2q1", "q3", "r3",     "p0r0"};
  dialog.cboRAB.Items.clear();
  for (const auto& [N, A, B] : PathLabels(0, highestN))
    dialog.cboRAB.Items.push_back(std::to_string(N) + "-" + std::to_string(A) + "-" + std::to_string(B));
}

bool AskCoatedSphere(Session& session) {
  ShowSelection(session.forms.dlogCoatedSphere);
  return AskIn(session, session.forms.dlogCoatedSphere);
}

bool CoatedSphereHolds(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  constexpr double largestRadius = 1e9, largestIndex = 1000;
  for (Control* control : d.Controls()) control->BackColour = colours::White;
  for (TextInput* radius : {&d.txtCoreRadius, &d.txtMantleRadius})
    if (!getval(session, *radius, largestRadius, NumberSign::Positive)) return false;
  if (!(Val(d.txtCoreRadius.Text) < Val(d.txtMantleRadius.Text))) {
    RefuseInput(session, d.txtMantleRadius,
                "The radius of the core must be less than the radius of the overall particle");
    return false;
  }
  for (const int layer : {coreLayer, shellLayer, mediumLayer}) {
    const LayerInputs inputs = InputsOfLayer(d, layer);
    if (inputs.material.Text == "Fixed" && !getval(session, inputs.index, largestIndex, NumberSign::Positive))
      return false;
  }
  const auto none = PathsRefused(session);
  if (!none) return true;
  for (Control* control : none->marked) control->BackColour = colours::BadInput;
  session.platform.Message("Input error", none->text);
  return false;
}

void Degeneracy(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  const PathLabel label{ToWhole(Val(d.cboR.Text)), ToWhole(Val(d.cboA.Text)), ToWhole(Val(d.cboB.Text))};
  // Saved results have this label with any B.
  const bool anyB = label.N == 2 && label.A == 4;
  const auto counts = CountsOf(label);
  const double ways = anyB ? 2 : counts ? Degeneracy(*counts) : 1;
  if (ways > 1) d.txtDegen.Text = Shortest(ways);
}

std::span<const LayerEvent> CoatedSphereEvents() {
  static constexpr std::array events = {
      LayerEvent{"dlogCoatedSphere.OKButton_Click", OKButton_Click},
      LayerEvent{"dlogCoatedSphere.cboRIcore_Click", Material_Click},
      LayerEvent{"dlogCoatedSphere.cboRIshell_Click", Material_Click},
      LayerEvent{"dlogCoatedSphere.cboRImedium_Click", Material_Click},
      LayerEvent{"dlogCoatedSphere.chkDebye_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.chkMult_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.optPQ_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.optPQR_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.optRAB_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.cboRays_Click", Selection_Click},
      LayerEvent{"dlogCoatedSphere.cboR_Click", Numbers_Click},
      LayerEvent{"dlogCoatedSphere.cboA_Click", Numbers_Click},
      LayerEvent{"dlogCoatedSphere.cboB_Click", Numbers_Click},
      LayerEvent{"dlogCoatedSphere.cboRAB_Click", cboRAB_Click},
      LayerEvent{"dlogCoatedSphere.cboMin_Click", cboMin_Click},
      LayerEvent{"dlogCoatedSphere.cboMax_Click", cboMax_Click},
  };
  return events;
}

}  // namespace lumivex
