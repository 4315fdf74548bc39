#include "session/inputs/materials/material_dialogs.h"

#include "materials/index/water.h"
#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/materials/refractive_index.h"

namespace lumivex {

namespace {

void FollowTemperature(Session& session, TextInput& txtTemp, TextInput& txtDensity) {
  const double temperature = Val(txtTemp.Text);
  txtTemp.BackColour = colours::White;
  if (temperature < 0) return RefuseInput(session, txtTemp, "Minimum temperature = 0");
  if (temperature > 100) return RefuseInput(session, txtTemp, "Maximum temperature = 100");
  txtDensity.Text = Significant(WaterDensityAt(temperature), 11);
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
