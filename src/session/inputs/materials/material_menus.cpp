#include "session/inputs/materials/material_menus.h"

#include <string>
#include <vector>

#include "catalogue/method.h"
#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/materials/material_dialogs.h"
#include "session/inputs/materials/read_material.h"
#include "session/inputs/materials/read_ref_index.h"

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
  const Graph& graph = ChosenGraph(s);
  return !graph.OfAngles() && graph.axis != AxisVariable::Wavelength && graph.family != Family::DebyeAnalysis;
}

/// Evaluates the model at the wavelength that stands in txtLambda, as its change event does.
void Reevaluate(Session& session) {
  session.events.Raise("txtLambda_change");
  session.form1.txtLambda.BackColour = colours::White;
}

void ChooseSphere(Session& session, MenuEntry& entry, const std::string& name, const std::string& caption) {
  ClearMenuRI(session);
  entry.Checked = true;
  session.state.SphereName = name;
  session.form1.lblSphere.Caption = caption;
  session.state.SphereIndexTyped = session.state.SphereIndexVaries = 0;
  Reevaluate(session);
}

void ChooseMedium(Session& session, MenuEntry& entry, const std::string& name, const std::string& caption) {
  ClearMenuRI2(session);
  entry.Checked = true;
  session.state.MediumName = name;
  session.form1.lblRI_Medium.Caption = caption;
  session.state.MediumIndexTyped = 0;
  Reevaluate(session);
}

std::string Degrees(const TextInput& field) {
  return std::string(Trim(field.Text)) + "C";
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
  if (s.SphereIndexTyped == 0) s.SphereCaptionBefore = form.lblSphere.Caption;
  s.SphereIndexTyped = 1;
  const Graph& graph = ChosenGraph(s);
  s.SphereIndexVaries = graph.InColour() && graph.VariesIndex() ? 1 : 0;
  form.lblSphere.Caption =
      s.SphereIndexVaries != 0 ? "Sphere: Variable refractive index" : "Sphere: Refractive index set by user";
  form.lblSphere.ForeColour = colours::BadInput;
  field.BackColour = colours::Warning;
  s.RIUserEdited = 1;
  RaiseInputsChanged(session);
}

}  // namespace

void ClearMenuRI(Session& session) {
  for (MenuEntry* entry : SphereEntries(session.form1)) entry->Checked = false;
  session.form1.lblSphere.ForeColour = colours::Black;
  session.form1.lblSphere.BackColour = colours::White;
}

void ClearMenuRI2(Session& session) {
  for (MenuEntry* entry : MediumEntries(session.form1)) entry->Checked = false;
  session.form1.lblRI_Medium.ForeColour = colours::Black;
}

void mnuRI_Formula_Click(Session& session) {
  const auto& d = session.forms.dlogRI_Formula;
  if (!AskIn(session, session.forms.dlogRI_Formula)) return;
  const std::string name = NameOfMaterial(d.cboMaterial.Text);
  session.state.Sellmeier = {name,
                             {Val(d.txtB1.Text), Val(d.txtB2.Text), Val(d.txtB3.Text), Val(d.txtC1.Text),
                              Val(d.txtC2.Text), Val(d.txtC3.Text)},
                             Val(d.txtLambdaMin.Text),
                             Val(d.txtLambdaMax.Text),
                             d.chkIgnore.Checked};
  ChooseSphere(session, session.form1.mnuRI_Formula, name, "Sphere: " + name);
}

void mnuRI_Ray_Click(Session& session) {
  auto& dialog = session.forms.dlogRay;
  if (!AskIn(session, dialog)) return;
  dlogRay_chkRI_Complex_Click(session);
  const bool complex = dialog.chkRI_Complex.Checked;
  session.form1.mnuRI_Ray.Caption = complex ? "Ray (Complex)" : "Ray";
  ChooseSphere(session, session.form1.mnuRI_Ray, "Water",
               complex ? "Sphere: Water (Ray Complex)" : "Sphere: Water (Ray)");
}

void mnuRI_Segelstein_Click(Session& session) {
  auto& dialog = session.forms.dlogSegelstein;
  if (!AskIn(session, dialog)) return;
  dlogSegelstein_chkRI_Complex_Click(session);
  const bool complex = dialog.chkRI_Complex.Checked;
  session.form1.mnuRI_Segelstein.Caption = complex ? "Segelstein (Complex)" : "Segelstein";
  ChooseSphere(session, session.form1.mnuRI_Segelstein, "Water",
               complex ? "Sphere: Water (Segelstein Complex)" : "Sphere: Water (Segelstein)");
}

void UseFileTable1(Session& session) {
  const std::string name = NameOfMaterial(session.state.FileName1);
  ChooseSphere(session, session.form1.mnuRI_File1, name, "Sphere: " + name);
}

void UseFileTable2(Session& session) {
  const std::string name = NameOfMaterial(session.state.FileName2);
  ChooseMedium(session, session.form1.mnuRI_File2, name, "Medium: " + name);
}

void mnuRI_File1_Click(Session& session) {
  if (session.state.RestoringSettings != 0 || ReadRefIndex1(session)) UseFileTable1(session);
}

void mnuRI_Au_Click(Session& session) {
  ChooseSphere(session, session.form1.mnuRI_Au, "Gold", "Sphere: Gold");
}

void mnuRI_Ag_Click(Session& session) {
  ChooseSphere(session, session.form1.mnuRI_Ag, "Silver", "Sphere: Silver");
}

void mnuRI_Cu_Click(Session& session) {
  ChooseSphere(session, session.form1.mnuRI_Cu, "Copper", "Sphere: Copper");
}

void mnuRI_KayeLaby_Click(Session& session) {
  ChooseSphere(session, session.form1.mnuRI_KayeLaby, "Water", "Sphere: Water (Kaye + Laby)");
}

void mnuRI_IAPWS_Click(Session& session) {
  auto& dialog = session.forms.dlogTemp;
  if (!AskIn(session, dialog)) return;
  dlogTemp_chkRI_Complex_Click(session);
  const std::string caption = "IAPWS " + Degrees(dialog.txtTemp) + (dialog.chkRI_Complex.Checked ? " Complex" : "");
  session.form1.mnuRI_IAPWS.Caption = caption;
  ChooseSphere(session, session.form1.mnuRI_IAPWS, "Water", "Sphere: Water (" + caption + ")");
}

void mnuRI_Air1_Click(Session& session) {
  auto& dialog = session.forms.dlogAir;
  if (!AskIn(session, dialog)) return;
  session.form1.mnuRI_Air1.Caption = "Air " + Degrees(dialog.txtAirTemp);
  ChooseSphere(session, session.form1.mnuRI_Air1, "Air", "Sphere: Air " + Degrees(dialog.txtAirTemp));
}

void mnuRI_Vacuum1_Click(Session& session) {
  ChooseSphere(session, session.form1.mnuRI_Vacuum1, "Vacuum", "Sphere: Vacuum");
}

void mnuRI_Fixed1_Click(Session& session) {
  auto& form = session.form1;
  auto& s = session.state;
  ClearMenuRI(session);
  form.mnuRI_Fixed1.Checked = true;
  s.SphereName = "Sphere of fixed RI";
  s.SphereIndexTyped = s.SphereIndexVaries = 0;
  if (!TraitsOf(s.CalcMethod).layered) {
    form.lblSphere.Caption = "Sphere: Fixed refractive index";
    form.lblSphere.ForeColour = colours::BadInput;
  } else {
    s.Layers.sphereKept = "Sphere: Fixed refractive index";
  }
  if (!WorksAtOneIndex(s)) form.txtRefractReal.Enabled = form.txtRefractImag.Enabled = true;
  Reevaluate(session);
}

void mnuRI_Perm1_Click(Session& session) {
  if (!AskIn(session, session.forms.dlogDielectric)) return;
  ChooseSphere(session, session.form1.mnuRI_Perm1, "Sphere of fixed RI", "Sphere: Fixed dielectric function");
}

void mnuRI_User1_Click(Session& session) {
  auto& dialog = session.forms.dlogRI_User1;
  if (!AskIn(session, dialog)) return dlogRI_User1_CancelButton_Click(session);
  const std::string name = NameOfMaterial(dialog.txtMaterial1.Text);
  ChooseSphere(session, session.form1.mnuRI_User1, name, "Sphere: " + name);
}

void mnuRI_Air2_Click(Session& session) {
  auto& dialog = session.forms.dlogAir;
  if (!AskIn(session, dialog)) return;
  session.form1.mnuRI_Air2.Caption = "Air " + Degrees(dialog.txtAirTemp);
  ChooseMedium(session, session.form1.mnuRI_Air2, "air", "Medium: Air " + Degrees(dialog.txtAirTemp));
}

void mnuRI_Vacuum2_Click(Session& session) {
  ChooseMedium(session, session.form1.mnuRI_Vacuum2, "a vacuum", "Medium: Vacuum");
}

void mnuRI_Fixed2_Click(Session& session) {
  ChooseMedium(session, session.form1.mnuRI_Fixed2, "medium of fixed RI", "Medium: Fixed refractive index");
}

void mnuRI_File2_Click(Session& session) {
  if (session.state.RestoringSettings != 0 || ReadRefIndex2(session)) UseFileTable2(session);
}

void mnuRI_IAPWS2_Click(Session& session) {
  auto& dialog = session.forms.dlogTemp2;
  if (!AskIn(session, dialog)) return;
  session.form1.mnuRI_IAPWS2.Caption = "Water " + Degrees(dialog.txtTemp);
  ChooseMedium(session, session.form1.mnuRI_IAPWS2, "water", "Medium: Water (IAPWS " + Degrees(dialog.txtTemp) + ")");
}

void mnuRI_User2_Click(Session& session) {
  auto& dialog = session.forms.dlogRI_User2;
  if (!AskIn(session, dialog)) return dlogRI_User2_cmdCancel_Click(session);
  const std::string name = NameOfMaterial(dialog.txtMaterial2.Text);
  ChooseMedium(session, session.form1.mnuRI_User2, name, "Medium: " + name);
}

void mnuRI_Segelstein2_Click(Session& session) {
  if (!AskIn(session, session.forms.dlogSegelstein)) return;
  const bool complex = session.forms.dlogSegelstein.chkRI_Complex.Checked;
  session.form1.mnuRI_Segelstein2.Caption = complex ? "Segelstein (Complex)" : "Segelstein";
  ChooseMedium(session, session.form1.mnuRI_Segelstein2, "water",
               complex ? "Medium: Water (Segelstein Complex)" : "Medium: Water (Segelstein)");
}

void mnuRI_Perm2_Click(Session& session) {
  if (!AskIn(session, session.forms.dlogDielectric2)) return;
  ChooseMedium(session, session.form1.mnuRI_Perm2, "medium of fixed RI", "Medium: Fixed dielectric function");
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
  s.MediumIndexTyped = 1;
  form.lblRI_Medium.Caption = "Medium: Refractive index set by user";
  form.lblRI_Medium.ForeColour = colours::BadInput;
  form.txtRefractMedium.BackColour = colours::Warning;
  s.RIUserEdited = 1;
  RaiseInputsChanged(session);
}

}  // namespace lumivex
