#include "materials/material_menus.h"

#include <string>
#include <vector>

#include "materials/kernel/water.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

std::vector<MenuEntry*> SphereEntries(Form1& f) {
  return {&f.mnuRI_Formula, &f.mnuRI_Ray,    &f.mnuRI_Segelstein, &f.mnuRI_File1, &f.mnuRI_Au,
          &f.mnuRI_Ag,      &f.mnuRI_Cu,     &f.mnuRI_KayeLaby,   &f.mnuRI_IAPWS, &f.mnuRI_Air1,
          &f.mnuRI_Vacuum1, &f.mnuRI_Fixed1, &f.mnuRI_Perm1,      &f.mnuRI_User1};
}

std::vector<MenuEntry*> MediumEntries(Form1& f) {
  return {&f.mnuRI_Air2,   &f.mnuRI_Vacuum2, &f.mnuRI_Fixed2,      &f.mnuRI_File2,
          &f.mnuRI_IAPWS2, &f.mnuRI_User2,   &f.mnuRI_Segelstein2, &f.mnuRI_Perm2};
}

/// A graph that works at one refractive index; the others vary the wavelength or the index itself.
bool WorksAtOneIndex(const RunState& s) {
  const bool byWavelength = s.GraphType == 10 || s.GraphType == 15 || s.GraphType == 25;
  const bool powerByWavelength = s.GraphType >= 16 && s.GraphType <= 18 && s.GraphSubType == 3;
  return s.GraphType != 1 && !byWavelength && !powerByWavelength;
}

/// Evaluates the model at the wavelength that stands in txtLambda, as its change event does.
void Reevaluate(Session& session) {
  session.events.Raise("txtLambda_change");
  session.form1.txtLambda.BackColour = colours::White;
}

void MarkTyped(TextInput& field) {
  field.BackColour = colours::Warning;
}

void SphereTyped(Session& session, TextInput& field) {
  auto& s = session.state;
  if (s.LoadingFlag != 0) return;
  auto& form = session.form1;
  if (!form.mnuRI_Fixed1.Checked) {
    ClearMenuRI(session);
    form.mnuRI_Fixed1.Checked = true;
  }
  s.SphereName = "Sphere of fixed RI";
  form.lblSphere.Caption = "Sphere: Refractive index set by user";
  form.lblSphere.ForeColour = colours::BadInput;
  MarkTyped(field);
  s.RIUserEdited = 1;
  session.events.Raise("Inputs_Changed");
}

}  // namespace

void ClearMenuRI(Session& session) {
  for (MenuEntry* entry : SphereEntries(session.form1)) entry->Checked = false;
  session.form1.lblSphere.ForeColour = colours::Black;
}

void ClearMenuRI2(Session& session) {
  for (MenuEntry* entry : MediumEntries(session.form1)) entry->Checked = false;
  session.form1.lblRI_Medium.ForeColour = colours::Black;
}

void mnuRI_IAPWS_Click(Session& session) {
  auto& form = session.form1;
  auto& dialog = session.forms.dlogTemp;
  if (session.state.RestoringSettings == 0 && !session.platform.ShowModal(dialog)) return;
  ClearMenuRI(session);
  form.mnuRI_IAPWS.Checked = true;
  session.state.SphereName = "Water";
  const std::string caption =
      "IAPWS " + std::string(Trim(dialog.txtTemp.Text)) + "C" + (dialog.chkRI_Complex.Checked ? " Complex" : "");
  form.mnuRI_IAPWS.Caption = caption;
  form.lblSphere.Caption = "Sphere: Water (" + caption + ")";
  Reevaluate(session);
}

void mnuRI_Vacuum1_Click(Session& session) {
  ClearMenuRI(session);
  session.form1.mnuRI_Vacuum1.Checked = true;
  session.state.SphereName = "Vacuum";
  session.form1.lblSphere.Caption = "Sphere: Vacuum";
  Reevaluate(session);
}

void mnuRI_Fixed1_Click(Session& session) {
  auto& form = session.form1;
  auto& s = session.state;
  ClearMenuRI(session);
  form.mnuRI_Fixed1.Checked = true;
  s.SphereName = "Sphere of fixed RI";
  if (s.CalcMethod != 13 && s.CalcMethod != 17) {
    form.lblSphere.Caption = "Sphere: Fixed refractive index";
    form.lblSphere.ForeColour = colours::BadInput;
  }
  if (!WorksAtOneIndex(s)) form.txtRefractReal.Enabled = form.txtRefractImag.Enabled = true;
  Reevaluate(session);
}

void mnuRI_Vacuum2_Click(Session& session) {
  ClearMenuRI2(session);
  session.form1.mnuRI_Vacuum2.Checked = true;
  session.state.MediumName = "a vacuum";
  session.form1.lblRI_Medium.Caption = "Medium: Vacuum";
  Reevaluate(session);
}

void mnuRI_Fixed2_Click(Session& session) {
  ClearMenuRI2(session);
  session.form1.mnuRI_Fixed2.Checked = true;
  session.state.MediumName = "medium of fixed RI";
  session.form1.lblRI_Medium.Caption = "Medium: Fixed refractive index";
  Reevaluate(session);
}

void txtRefractReal_Change(Session& session) {
  SphereTyped(session, session.form1.txtRefractReal);
}

void txtRefractImag_Change(Session& session) {
  SphereTyped(session, session.form1.txtRefractImag);
}

void txtRefractMedium_Change(Session& session) {
  auto& s = session.state;
  if (s.LoadingFlag != 0) return;
  auto& form = session.form1;
  if (!form.mnuRI_Fixed2.Checked) {
    ClearMenuRI2(session);
    form.mnuRI_Fixed2.Checked = true;
  }
  s.MediumName = "medium of fixed RI";
  form.lblRI_Medium.Caption = "Medium: Refractive index set by user";
  form.lblRI_Medium.ForeColour = colours::BadInput;
  MarkTyped(form.txtRefractMedium);
  s.RIUserEdited = 1;
  session.events.Raise("Inputs_Changed");
}

void dlogTemp_txtTemp_Change(Session& session) {
  auto& dialog = session.forms.dlogTemp;
  const double temperature = Val(dialog.txtTemp.Text);
  dialog.txtTemp.BackColour = colours::White;
  if (temperature < 0 || temperature > 100) {
    dialog.txtTemp.BackColour = colours::BadInput;
    session.platform.Message("Input error", temperature < 0 ? "Minimum temperature = 0" : "Maximum temperature = 100");
    return;
  }
  dialog.txtDensity.Text = Significant(WaterDensityAt(temperature), 11);
}

}  // namespace lumivex
