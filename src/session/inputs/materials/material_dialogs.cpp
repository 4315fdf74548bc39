#include "session/inputs/materials/material_dialogs.h"

#include "materials/index/water.h"
#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/materials/refractive_index.h"

namespace lumivex {

namespace {

/// Marks an input that is no number. It is told when the dialog is confirmed, not while somebody is typing.
bool MarkUnlessNumber(TextInput& field) {
  const bool number = IsNumber(field.Text);
  field.BackColour = number ? colours::White : colours::BadInput;
  return number;
}

/// Tells of an input of a confirmed dialog that is no number; its mark keeps the dialog open.
bool RefuseUnlessNumber(Session& session, TextInput& field, const Label& label) {
  if (!SettleComma(session, field)) return true;
  if (MarkUnlessNumber(field)) return false;
  RefuseInput(session, field, label.Caption + ": a number is needed");
  return true;
}

template <class Dialog>
bool RefuseWater(Session& session, Dialog& dialog) {
  // A temperature out of range has been told, and keeps its mark.
  const bool outOfRange = IsNumber(dialog.txtTemp.Text) && dialog.txtTemp.BackColour == colours::BadInput;
  return (!outOfRange && RefuseUnlessNumber(session, dialog.txtTemp, dialog.lblTemp)) ||
         RefuseUnlessNumber(session, dialog.txtDensity, dialog.lblDensity);
}

void FollowTemperature(Session& session, TextInput& txtTemp, TextInput& txtDensity) {
  if (!MarkUnlessNumber(txtTemp)) return;
  const double temperature = Val(txtTemp.Text);
  if (temperature < 0) return RefuseInput(session, txtTemp, "Minimum temperature = 0");
  if (temperature > 100) return RefuseInput(session, txtTemp, "Maximum temperature = 100");
  txtDensity.Text = Significant(WaterDensityAt(temperature), 11);
  txtDensity.BackColour = colours::White;
}

void PutDefaultsBack(UserMaterialDialog& d) {
  d.txtMaterial.Text = "Glass";
  d.txtRI_lambda1_1.Text = "0.43584";
  d.txtRI_lambda1_2.Text = "0.47998";
  d.txtRI_lambda1_3.Text = "0.58756";
  d.txtRI_lambda1_4.Text = "0.70652";
  d.txtRI_1_1.Text = "1.5301";
  d.txtRI_1_2.Text = "1.5258";
  d.txtRI_1_3.Text = "1.5192";
  d.txtRI_1_4.Text = "1.515";
}

}  // namespace

void dlogTemp_txtTemp_Change(Session& session) {
  auto& dialog = session.forms.dlogTemp;
  FollowTemperature(session, dialog.txtTemp, dialog.txtDensity);
}

void dlogTemp2_txtTemp_Change(Session& session) {
  auto& dialog = session.forms.dlogTemp2;
  FollowTemperature(session, dialog.txtTemp, dialog.txtDensity);
}

void dlogTemp_txtDensity_Change(Session& session) {
  MarkUnlessNumber(session.forms.dlogTemp.txtDensity);
}

void dlogTemp2_txtDensity_Change(Session& session) {
  MarkUnlessNumber(session.forms.dlogTemp2.txtDensity);
}

void dlogAir_txtAirTemp_Change(Session& session) {
  MarkUnlessNumber(session.forms.dlogAir.txtAirTemp);
}

void dlogTemp_OKButton_Click(Session& session) {
  if (!RefuseWater(session, session.forms.dlogTemp)) dlogTemp_chkRI_Complex_Click(session);
}

void dlogTemp2_OKButton_Click(Session& session) {
  RefuseWater(session, session.forms.dlogTemp2);
}

void dlogAir_OKButton_Click(Session& session) {
  auto& dialog = session.forms.dlogAir;
  RefuseUnlessNumber(session, dialog.txtAirTemp, dialog.lblAirTemp);
}

void dlogTemp_chkRI_Complex_Click(Session& session) {
  auto& forms = session.forms;
  forms.dlogSegelstein.chkRI_Complex.Checked = forms.dlogTemp.chkRI_Complex.Checked;
}

void dlogSegelstein_chkRI_Complex_Click(Session& session) {
  auto& forms = session.forms;
  forms.dlogTemp.chkRI_Complex.Checked = forms.dlogSegelstein.chkRI_Complex.Checked;
}

void dlogRay_chkRI_Complex_Click(Session& session) {
  auto& forms = session.forms;
  forms.dlogTemp.chkRI_Complex.Checked = forms.dlogRay.chkRI_Complex.Checked;
}

void dlogDielectric_OKButton_Click(Session& session) {
  RefRel(session, Val(session.form1.txtLambda.Text), LookupVoice::Quiet);
}

void dlogDielectric2_OKButton_Click(Session& session) {
  auto& field = session.forms.dlogDielectric2.txtDFreal2;
  if (Val(field.Text) <= 0) return RefuseInput(session, field, "Value must be positive");
  RefRel(session, Val(session.form1.txtLambda.Text), LookupVoice::Quiet);
}

void dlogDielectric2_txtDFreal2_Change(Session& session) {
  session.forms.dlogDielectric2.txtDFreal2.BackColour = colours::White;
}

void dlogRI_User1_CancelButton_Click(Session& session) {
  PutDefaultsBack(session.forms.dlogRI_User1);
}

void dlogRI_User2_cmdCancel_Click(Session& session) {
  PutDefaultsBack(session.forms.dlogRI_User2);
}

}  // namespace lumivex
