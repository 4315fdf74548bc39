#include "session/inputs/methods/debye_menus.h"

#include <array>

#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/function_checks.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

namespace {

void Changed(Session& session) {
  session.events.Raise("Inputs_Changed");
  if (session.state.CalcMethod == Method::Debye) DebyeLabel(session);
}

void PickDifference(Session& session, MenuEntry& chosen) {
  auto& form = session.form1;
  for (MenuEntry* entry : {&form.mnuMieDebye, &form.mnuGODebye, &form.mnuSWsub})
    entry->Checked = entry == &chosen && !chosen.Checked;
  form.chkDiffraction.Visible = OffersDiffraction(session);
  Changed(session);
}

/// The limits of the partial waves must be numbers, the first not above the last.
void dlogPartial_OKButton_Click(Session& session) {
  auto& dialog = session.forms.dlogPartial;
  dialog.txtMin.BackColour = dialog.txtMax.BackColour = colours::White;
  if (!dialog.optPartial.Checked) return;
  for (TextInput* field : {&dialog.txtMin, &dialog.txtMax})
    if (!IsNumber(field->Text) || Val(field->Text) < 0)
      return RefuseInput(session, *field, "Value must be positive or zero");
  if (Val(dialog.txtMin.Text) > Val(dialog.txtMax.Text))
    RefuseInput(session, dialog.txtMin, "Minimum value must be less than maximum value");
}

/// Limits of the sequence of terms.
void dlogDebyeSeq_OKButton_Click(Session& session) {
  auto& dialog = session.forms.dlogDebyeSeq;
  for (TextInput* field : {&dialog.txtLimit, &dialog.txtTerms}) {
    field->BackColour = colours::White;
    if (!IsNumber(field->Text) || Val(field->Text) < 0)
      return RefuseInput(session, *field, "Value must be positive or zero");
  }
  if (Val(dialog.txtLimit.Text) > HighestRay)
    RefuseInput(session, dialog.txtLimit, "Value must not be greater than 1000");
}

/// A range of p must be whole numbers with a positive step.
void dlogP_OKButton_Click(Session& session) {
  auto& dialog = session.forms.dlogP;
  for (TextInput* field : {&dialog.txtPmin, &dialog.txtPmax, &dialog.txtPstep}) field->BackColour = colours::White;
  if (!dialog.chkMultStep.Checked) return;
  for (TextInput* field : {&dialog.txtPmin, &dialog.txtPmax, &dialog.txtPstep})
    if (!IsNumber(field->Text) || Val(field->Text) < 0)
      return RefuseInput(session, *field, "Value must be positive or zero");
  if (Val(dialog.txtPstep.Text) < 1) return RefuseInput(session, dialog.txtPstep, "Value must be positive");
  if (Val(dialog.txtPmin.Text) > Val(dialog.txtPmax.Text))
    RefuseInput(session, dialog.txtPmin, "Minimum value must be less than maximum value");
}

/// Which way round surface waves are followed.
void PickPath(Session& session, MenuEntry& chosen) {
  auto& form = session.form1;
  for (MenuEntry* entry : {&form.mnuSWBoth, &form.mnuSWShort, &form.mnuSWLong}) entry->Checked = entry == &chosen;
  session.events.Raise("Inputs_Changed");
  DebyeLabel(session);
}

void mnuSWBoth_Click(Session& session) {
  PickPath(session, session.form1.mnuSWBoth);
}

void mnuSWShort_Click(Session& session) {
  PickPath(session, session.form1.mnuSWShort);
}

void mnuSWLong_Click(Session& session) {
  PickPath(session, session.form1.mnuSWLong);
}

void mnuHidden_Click(Session& session) {
  auto& form = session.form1;
  form.mnuHidden.Checked = !form.mnuHidden.Checked;
  for (MenuEntry* entry : {&form.mnuBessel, &form.mnuAiry, &form.mnuReadDiff}) entry->Visible = form.mnuHidden.Checked;
  session.events.Raise("Inputs_Changed");
}

}  // namespace

void mnuMieDebye_Click(Session& session) {
  PickDifference(session, session.form1.mnuMieDebye);
}

void mnuGODebye_Click(Session& session) {
  PickDifference(session, session.form1.mnuGODebye);
}

void mnuSWsub_Click(Session& session) {
  PickDifference(session, session.form1.mnuSWsub);
}

void mnuDebyeRecursion_Click(Session& session) {
  auto& entry = session.form1.mnuDebyeRecursion;
  entry.Checked = !entry.Checked;
  Changed(session);
}

void mnuPartial_Click(Session& session) {
  auto& dialog = session.forms.dlogPartial;
  if (!AskIn(session, dialog)) return;
  session.form1.mnuPartial.Checked = dialog.optPartial.Checked;
  Changed(session);
}

std::span<const SolverEvent> SolverEvents() {
  static constexpr std::array events = {
      SolverEvent{"cborays_Click", cborays_Click},
      SolverEvent{"chkDiffraction_Click", chkDiffraction_Click},
      SolverEvent{"dlogP.cmdSelectAll_Click", cmdSelectAll_Click},
      SolverEvent{"dlogP.cmdSelectNone_Click", cmdSelectNone_Click},
      SolverEvent{"dlogP.chkMultStep_Click", chkMultStep_Click},
      SolverEvent{"dlogP.OKButton_Click", dlogP_OKButton_Click},
      SolverEvent{"dlogDebyeSeq.OKButton_Click", dlogDebyeSeq_OKButton_Click},
      SolverEvent{"dlogPartial.OKButton_Click", dlogPartial_OKButton_Click},
      SolverEvent{"mnuMieDebye_Click", mnuMieDebye_Click},
      SolverEvent{"mnuGODebye_Click", mnuGODebye_Click},
      SolverEvent{"mnuSWsub_Click", mnuSWsub_Click},
      SolverEvent{"mnuSWBoth_Click", mnuSWBoth_Click},
      SolverEvent{"mnuSWShort_Click", mnuSWShort_Click},
      SolverEvent{"mnuSWLong_Click", mnuSWLong_Click},
      SolverEvent{"mnuDebyeRecursion_Click", mnuDebyeRecursion_Click},
      SolverEvent{"mnuPartial_Click", mnuPartial_Click},
      SolverEvent{"mnuHidden_Click", mnuHidden_Click},
      SolverEvent{"mnuBessel_Click", cmdBessel_Click},
      SolverEvent{"mnuAiry_Click", cmdAiry_Click},
      SolverEvent{"mnuReadDiff_Click", read_Diff_file},
  };
  return events;
}

}  // namespace lumivex
