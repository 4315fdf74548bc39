#include "session/inputs/beams/beam_menus.h"

#include <array>
#include <initializer_list>
#include <string>

#include "record/number_text.h"
#include "runs/beam_methods.h"
#include "session/checks/number_input.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods/debye_label.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

constexpr double largestLength = 1e9;  // um
constexpr std::string_view gaussianCaption = "Gaussian beam", topHatCaption = "Top hat beam";

void Changed(Session& session) {
  session.events.Raise("Inputs_Changed");
  ShowBeamEntries(session);
  DebyeLabel(session);
}

void PickLight(Session& session, MenuEntry& chosen) {
  auto& form = session.form1;
  for (MenuEntry* entry : {&form.mnuPlaneWave, &form.mnuGaussian, &form.mnuTopHat}) entry->Checked = entry == &chosen;
  Changed(session);
}

void Toggle(Session& session, MenuEntry& entry) {
  entry.Checked = !entry.Checked;
  Changed(session);
}

void ShowFields(Session& session, std::string_view warning) {
  auto& d = session.forms.dlogGaussianBeam;
  const bool onAxis = session.state.CalcMethod == Method::YoungMod;
  if (onAxis && session.state.RestoringSettings == 0) {
    d.txtBeamXF.Text = d.txtBeamYF.Text = "0";
    d.txtPhi.Text = "90";
  }
  d.txtBeamXF.Enabled = d.txtBeamYF.Enabled = !onAxis;
  d.txtPhi.Enabled = d.chkLock.Checked;
  d.Frame1.Visible = d.lblWarning.Visible = !warning.empty();
  d.lblWarning.Caption = warning;
}

void ChooseConvergence(Session& session, MenuEntry& chosen) {
  auto& form = session.form1;
  if (ChosenGraph(session.state).family != Family::Convergence) ChooseGraph(session, "Convergence");
  for (MenuEntry* entry : {&form.mnuMieGConv, &form.mnuMieGConv2}) entry->Checked = entry == &chosen;
  session.events.Raise("Inputs_Changed");
}

void dlogGaussianBeam_OKButton_Click(Session& session) {
  BeamHolds(session);
}

bool WholeField(Session& session, TextInput& field, double most, NumberSign sign) {
  if (!getval(session, field, most, sign)) return false;
  if (Val(field.Text) == Int(Val(field.Text))) return true;
  RefuseInput(session, field, "A whole number is wanted");
  return false;
}

/// M above L has no term, and too many terms have no room.
void dlogMmax_OKButton_Click(Session& session) {
  auto& d = session.forms.dlogMmax;
  constexpr double mostJ = 32767;
  if (!WholeField(session, d.txtMmax, MaxSeriesTerms, NumberSign::Positive)) return;
  if (!WholeField(session, d.txtLmax, MaxSeriesTerms, NumberSign::Positive)) return;
  if (!WholeField(session, d.txtMmax1, MaxSeriesTerms, NumberSign::PositiveOrZero)) return;
  if (!WholeField(session, d.txtJmax1, mostJ, NumberSign::PositiveOrZero)) return;
  if (!getval(session, d.txtError, 1, NumberSign::PositiveOrZero)) return;
  const double Lmax = Val(d.txtLmax.Text), Mmax = Val(d.txtMmax.Text);
  if (Mmax > Lmax) return RefuseInput(session, d.txtMmax, "Value must not be greater than " + d.txtLmax.Text);
  if (Lmax * (Mmax + 1) > mostBeamTerms)
    RefuseInput(session, d.txtMmax, "Lmax times Mmax must not be greater than " + Format(mostBeamTerms, "#,##0"));
}

}  // namespace

void mnuPlaneWave_Click(Session& session) {
  auto& form = session.form1;
  form.mnuCentralBeam.Checked = form.mnuMultBeams.Checked = false;
  const bool beyond = Val(form.txtXmin.Text) < 0 || Val(form.txtXmax.Text) > 180;
  if (ChosenGraph(session.state).AgainstAngle() && beyond) {
    form.txtXmin.Text = "0";
    form.txtXmax.Text = "180";
    session.events.Raise("txtXmin_Change");
  }
  PickLight(session, form.mnuPlaneWave);
}

void mnuGaussian_Click(Session& session) {
  if (AskBeam(session, gaussianCaption)) PickLight(session, session.form1.mnuGaussian);
}

void mnuTopHat_Click(Session& session) {
  if (AskBeam(session, topHatCaption)) PickLight(session, session.form1.mnuTopHat);
}

void mnuCentralBeam_Click(Session& session) {
  Toggle(session, session.form1.mnuCentralBeam);
}

void mnuMultBeams_Click(Session& session) {
  Toggle(session, session.form1.mnuMultBeams);
}

void mnuMieGConv_Click(Session& session) {
  ChooseConvergence(session, session.form1.mnuMieGConv);
}

void mnuMieGConv2_Click(Session& session) {
  ChooseConvergence(session, session.form1.mnuMieGConv2);
}

void chkLock_Click(Session& session) {
  auto& d = session.forms.dlogGaussianBeam;
  if (!d.chkLock.Checked) {
    d.txtPhi.Text = "90";
    d.txtPhi.BackColour = colours::White;
  }
  d.txtPhi.Enabled = d.chkLock.Checked;
}

void ShowBeamEntries(Session& session) {
  auto& form = session.form1;
  const MethodTraits& method = TraitsOf(session.state.CalcMethod);
  const bool beam = InBeam(form) && method.beams, series = beam && method.series;
  form.mnuCentralBeam.Enabled = form.mnuMultBeams.Enabled = beam;
  session.forms.dlogGaussianBeam.txtPhi.Enabled = session.forms.dlogGaussianBeam.chkLock.Checked;
  form.mnuMieGConv.Enabled = form.mnuMieGConv2.Enabled = series && form.mnuGaussian.Checked;
  if (!form.mnuMieGConv.Enabled || ChosenGraph(session.state).family != Family::Convergence)
    form.mnuMieGConv.Checked = form.mnuMieGConv2.Checked = false;
  form.mnuHidden.Visible = method.hasHidden || series;
  for (MenuEntry* entry : {&form.mnuBessel, &form.mnuAiry, &form.mnuReadDiff})
    entry->Visible = form.mnuHidden.Visible && form.mnuHidden.Checked;
}

bool AskBeam(Session& session, std::string_view caption, std::string_view warning) {
  auto& dialog = session.forms.dlogGaussianBeam;
  // Nobody sits before a batch, which types into the fields by itself.
  if (session.state.BatchActive != 0) return BeamHolds(session);
  const FormSnapshot before = dialog.Snapshot();
  dialog.Caption = caption;
  ShowFields(session, warning);
  const bool taken = AskIn(session, dialog);
  if (!taken) dialog.Restore(before);
  dialog.Frame1.Visible = dialog.lblWarning.Visible = false;
  return taken;
}

bool BeamHolds(Session& session) {
  auto& d = session.forms.dlogGaussianBeam;
  for (TextInput* place : {&d.txtBeamXF, &d.txtBeamYF, &d.txtBeamZF, &d.txtPhi}) {
    if (!getval(session, *place, largestLength, NumberSign::Any)) return false;
    if (Val(place->Text) >= -largestLength) continue;
    RefuseInput(session, *place, "Value must not be less than -1E9");
    return false;
  }
  if (!getval(session, d.txtBeamWo, largestLength, NumberSign::Positive)) return false;
  // A needle of light thinner than any atom has no numbers.
  constexpr double leastWidth = 1e-6;
  if (Val(d.txtBeamWo.Text) >= leastWidth) return true;
  RefuseInput(session, d.txtBeamWo, "Value must not be less than 1E-6");
  return false;
}

std::span<const SolverEvent> BeamEvents() {
  static constexpr std::array events = {
      SolverEvent{"mnuPlaneWave_Click", mnuPlaneWave_Click},
      SolverEvent{"mnuGaussian_Click", mnuGaussian_Click},
      SolverEvent{"mnuTopHat_Click", mnuTopHat_Click},
      SolverEvent{"mnuCentralBeam_Click", mnuCentralBeam_Click},
      SolverEvent{"mnuMultBeams_Click", mnuMultBeams_Click},
      SolverEvent{"mnuMieGConv_Click", mnuMieGConv_Click},
      SolverEvent{"mnuMieGConv2_Click", mnuMieGConv2_Click},
      SolverEvent{"dlogGaussianBeam.chkLock_Click", chkLock_Click},
      SolverEvent{"dlogGaussianBeam.OKButton_Click", dlogGaussianBeam_OKButton_Click},
      SolverEvent{"dlogMmax.OKButton_Click", dlogMmax_OKButton_Click},
  };
  return events;
}

}  // namespace lumivex
