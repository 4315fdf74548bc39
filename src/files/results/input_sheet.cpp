#include "files/results/input_sheet.h"

#include <algorithm>
#include <initializer_list>

#include "files/results/input_faults.h"
#include "record/number_text.h"
#include "session/driver/commands.h"
#include "session/inputs/map_inputs.h"
#include "session/undo.h"

namespace lumivex {

namespace {

void RaiseTicked(Session& session, const std::vector<MenuEntry*>& entries) {
  for (const MenuEntry* entry : entries)
    if (entry->Checked) {
      session.events.Raise(std::string(entry->Name()) + "_Click");
      return;
    }
}

/// Inputs whose values choosing a graph leaves, or brings back from the start: of a file they are another item's.
bool OfSphereOrMethod(Form1& form, const Control& control) {
  const std::initializer_list<const Control*> others = {&form.cboType,          &form.cboRays,
                                                        &form.txtRefractReal,   &form.txtRefractImag,
                                                        &form.txtRefractMedium, &form.mnuKeepParameters};
  const auto isThat = [&](const Control* each) { return each == &control; };
  return std::ranges::any_of(others, isThat) || std::ranges::any_of(SphereSources(form), isThat) ||
         std::ranges::any_of(MediumSources(form), isThat);
}

}  // namespace

std::vector<MenuEntry*> SphereSources(Form1& f) {
  return {&f.mnuRI_Formula, &f.mnuRI_Ray,    &f.mnuRI_Segelstein, &f.mnuRI_File1, &f.mnuRI_Au,
          &f.mnuRI_Ag,      &f.mnuRI_Cu,     &f.mnuRI_KayeLaby,   &f.mnuRI_IAPWS, &f.mnuRI_Air1,
          &f.mnuRI_Vacuum1, &f.mnuRI_Fixed1, &f.mnuRI_Perm1,      &f.mnuRI_User1};
}

std::vector<MenuEntry*> MediumSources(Form1& f) {
  return {&f.mnuRI_Air2,   &f.mnuRI_Vacuum2, &f.mnuRI_Fixed2,      &f.mnuRI_File2,
          &f.mnuRI_IAPWS2, &f.mnuRI_User2,   &f.mnuRI_Segelstein2, &f.mnuRI_Perm2};
}

std::vector<MenuEntry*> LightSources(Form1& f) {
  return {&f.mnuSpectrumLee,  &f.mnuSpectrumWernand, &f.mnuSpectrumWernand2,
          &f.mnuSpectrumFlat, &f.mnuBlackBody,       &f.mnuSpectrumFile};
}

std::vector<MenuEntry*> SizeMeasures(Form1& f) {
  return {&f.mnuRadius, &f.mnuDiameter, &f.mnuRadiusX};
}

void KeepNames(Session& session) {
  auto& s = session.state;
  s.KeptSphereLabel = session.form1.lblSphere.Caption;
  s.KeptSphereName = s.SphereName;
  s.KeptMediumLabel = session.form1.lblRI_Medium.Caption;
}

void BeginWithGraph(Session& sheet, GraphCode code) {
  Form1& form = sheet.form1;
  if (ChosenGraph(sheet.state).code == code) return;
  InputState kept = PresentInputs(sheet);
  const MaterialState materials = sheet.state;
  form.mnuKeepParameters.Checked = false;
  sheet.events.Raise("cboGraph_Click");
  const FormSnapshot chosen = form.Snapshot();
  FormSnapshot& inputs = kept.forms.front();
  for (std::size_t i = 0; i < inputs.size(); ++i)
    if (!OfSphereOrMethod(form, *form.Find(inputs[i].first))) inputs[i].second = chosen[i].second;
  kept.graph = code;
  RestoreInputs(sheet, kept);
  static_cast<MaterialState&>(sheet.state) = materials;
}

void TickAlone(const std::vector<MenuEntry*>& entries, const MenuEntry& ticked) {
  for (MenuEntry* entry : entries) entry->Checked = entry == &ticked;
}

InputSheet::InputSheet(Session& session) : copy_(session) {
  NoteNumbers();
  copy_.Take(session);
  for (Number& number : numbers_) number.present = number.field->Text;
}

void InputSheet::NoteNumbers() {
  for (Form* form : Inputs().forms.All()) {
    if (form == &Inputs().form1) continue;
    for (Control* control : form->Controls())
      if (control->Kind() == ControlKind::TextInput && IsNumber(static_cast<TextInput*>(control)->Text))
        numbers_.push_back({static_cast<TextInput*>(control), {}});
  }
}

void InputSheet::Settle() {
  Session& sheet = Inputs();
  auto& form = sheet.form1;
  const auto forms = sheet.forms.All();
  std::vector<FormSnapshot> values;
  for (const Form* each : forms) values.push_back(each->Snapshot());
  const auto restore = [&] {
    for (std::size_t i = 0; i < forms.size(); ++i) forms[i]->Restore(values[i]);
  };
  const auto raise = [&](std::string_view event) {
    sheet.events.Raise(event);
    restore();
  };
  form.mnuKeepParameters.Checked = true;
  sheet.events.Raise("cboType_click");
  restore();
  form.mnuKeepParameters.Checked = true;
  sheet.events.Raise("cboGraph_Click");
  restore();
  raise(form.optDisp.Checked ? "optDisp_Click" : "optMono_Click");
  raise(form.mnuDiameter.Checked  ? "mnuDiameter_Click"
        : form.mnuRadiusX.Checked ? "mnuRadiusX_Click"
                                  : "mnuRadius_Click");
  raise("cboWave_Click");
  for (const auto& sources : {SphereSources(form), MediumSources(form), LightSources(form)}) {
    RaiseTicked(sheet, sources);
    restore();
  }
  KeepNames(sheet);
  raise("mnuSpectrumBand_Click");
}

std::string InputSheet::Fault() {
  Session& sheet = Inputs();
  copy_.World().told.clear();
  if (std::string fault = FaultOfInputs(sheet); !fault.empty()) return fault;
  const bool good = InputsHold(sheet);
  if (good) return {};
  const auto& told = copy_.World().told;
  return told.empty() ? "an input that is marked as bad" : told.front();
}

std::string InputSheet::FaultOfShown(const InputState& shown) {
  Session& sheet = Inputs();
  const Form1& form = sheet.form1;
  const std::string graph = form.cboGraph.Text, method = form.cboType.Text;
  const bool noSize = Val(form.txtRadius.Text) < 0;
  RestoreInputs(sheet, shown);
  if (form.cboGraph.Text != graph || form.cboType.Text != method) return "the page is of another graph or method";
  if (Val(form.txtRadius.Text) < 0 && !noSize) return "the size lies below 0";
  return FaultOfInputs(sheet);
}

void InputSheet::PutInto(Session& session) {
  Session& sheet = Inputs();
  for (const Number& number : numbers_)
    if (!Trim(number.field->Text).empty() && !IsNumber(number.field->Text)) number.field->Text = number.present;
  static_cast<MaterialState&>(session.state) = sheet.state;
  static_cast<LightState&>(session.state) = sheet.state;
  static_cast<SizeState&>(session.state) = sheet.state;
  session.state.DiffractionVariant = sheet.state.DiffractionVariant;
  session.state.KeptSphereLabel = sheet.state.KeptSphereLabel;
  session.state.KeptSphereName = sheet.state.KeptSphereName;
  session.state.KeptMediumLabel = sheet.state.KeptMediumLabel;
  session.state.KeptAngle = sheet.state.KeptAngle;
  session.state.KeptRadius = sheet.state.KeptRadius;
  const auto from = sheet.forms.All(), to = session.forms.All();
  for (std::size_t i = 0; i < from.size(); ++i) CopyLooks(*from[i], *to[i]);
  RestoreInputs(session, PresentInputs(sheet));
  FollowMapColours(session);
}

}  // namespace lumivex
