#include "files/results/input_faults.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

#include "files/results/input_sheet.h"
#include "materials/files/readable_text.h"
#include "record/catalogue/graph_texts.h"
#include "record/catalogue/method_texts.h"
#include "record/number_text.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/read_sizes.h"
#include "session/undo.h"

namespace lumivex {

namespace {

/// What no user can choose: a text that a list does not have, or none or several of options that exclude each other.
std::string FaultOfChoices(Session& sheet) {
  for (const Form* form : sheet.forms.All()) {
    std::map<std::string, int> chosen;
    for (const Control* control : form->Controls()) {
      if (control->Kind() == ControlKind::SelectionList) {
        const auto& list = static_cast<const SelectionList&>(*control);
        // Menus choose graphs and methods that the lists do not have.
        const bool ofMenus = (SameName(list.Name(), "cboGraph") && FindGraph(list.Text) != nullptr) ||
                             (SameName(list.Name(), "cboType") && FindMethod(list.Text) != nullptr);
        if (!ofMenus && !list.Editable && !list.Items.empty() && !list.Text.empty() && !list.Holds(list.Text))
          return std::string(list.Name()) + " has no \"" + Readable(list.Text) + "\" to choose";
      }
      if (control->Kind() == ControlKind::OptionButton) {
        const auto& option = static_cast<const OptionButton&>(*control);
        chosen[option.Group] += option.Checked ? 1 : 0;
      }
    }
    for (const auto& [group, count] : chosen)
      if (count != 1) return "one of the options " + group + " should be chosen";
  }
  return {};
}

/// Menus of which one entry is ticked, always.
std::string FaultOfMenus(Session& sheet) {
  Form1& form = sheet.form1;
  const std::pair<std::string_view, std::vector<MenuEntry*>> menus[] = {
      {"the materials of the sphere", SphereSources(form)},
      {"the materials of the medium", MediumSources(form)},
      {"the spectra", LightSources(form)},
      {"radius, diameter and size parameter", SizeMeasures(form)},
      {"the paths of surface waves", {&form.mnuSWBoth, &form.mnuSWShort, &form.mnuSWLong}},
      {"the kinds of illumination", {&form.mnuPlaneWave, &form.mnuGaussian, &form.mnuTopHat}},
  };
  for (const auto& [name, entries] : menus)
    if (std::ranges::count_if(entries, [](const MenuEntry* entry) { return entry->Checked; }) != 1)
      return "one of " + std::string(name) + " should be chosen";
  return {};
}

/// What the dialogs of materials would not take.
std::string FaultOfMaterials(Session& sheet) {
  const auto& f = sheet.forms;
  const auto& form = sheet.form1;
  const auto within = [](const TextInput& field, double low, double high) {
    return IsNumber(field.Text) && Val(field.Text) >= low && Val(field.Text) <= high;
  };
  const auto water = [&](const auto& dialog) {
    return within(dialog.txtTemp, 0, 100) && IsNumber(dialog.txtDensity.Text) && Val(dialog.txtDensity.Text) > 0;
  };
  constexpr double absoluteZero = -273.15, hottest = 1e4;
  if ((form.mnuRI_IAPWS.Checked && !water(f.dlogTemp)) || (form.mnuRI_IAPWS2.Checked && !water(f.dlogTemp2)))
    return "water of that temperature or density is not known";
  const bool air = form.mnuRI_Air1.Checked || form.mnuRI_Air2.Checked;
  if (air && !within(f.dlogAir.txtAirTemp, absoluteZero, hottest)) return "air of that temperature is not known";
  return {};
}

/// A mode that no run could take, where the run has modes.
std::string FaultOfSizes(Session& sheet) {
  const Form1& form = sheet.form1;
  if (!form.optDisp.Checked || form.cboDistrib.Text != "Multimodal") return {};
  const auto& d = sheet.forms.dlogMultiModal;
  const std::pair<bool, std::vector<const TextInput*>> modes[] = {
      {true, {&d.txtMedian1, &d.txtSpread1, &d.txtFraction1}},
      {d.chkMode2.Checked, {&d.txtMedian2, &d.txtSpread2, &d.txtFraction2}},
      {d.chkMode3.Checked, {&d.txtMedian3, &d.txtSpread3, &d.txtFraction3}},
  };
  for (const auto& [used, fields] : modes)
    for (const TextInput* field : fields)
      if (used && !IsNumber(field->Text)) return "\"" + d.Caption + "\" has a value that it does not take";
  const SizeFailure failure = SamplesOf(ChosenSizes(sheet), RadiusInUse(sheet)).failure;
  return failure == SizeFailure::None ? std::string() : WordsFor(failure);
}

/// A dialog whose fields the run reads, and the event that marks those that it would not take.
struct DialogInUse {
  bool used;
  const Form& dialog;
  std::string_view event;
};

std::string FaultOfDialogs(Session& sheet) {
  const auto& f = sheet.forms;
  const auto& form = sheet.form1;
  const Graph& graph = ChosenGraph(sheet.state);
  const bool debye = sheet.state.CalcMethod == Method::Debye;
  const bool several = Trim(form.cboWave.Text) != "1" && TakesWavelengths(graph);
  const DialogInUse dialogs[] = {
      {InBeam(form), f.dlogGaussianBeam, "OKButton_Click"},
      {InBeam(form) && form.mnuHidden.Checked, f.dlogMmax, "OKButton_Click"},
      {several, f.dlogSpectrumBand, "OKButton_Click"},
      {several && form.mnuSpectrumWernand2.Checked, f.dlogWernand, "txtElevation_Change"},
      {several && form.mnuBlackBody.Checked, f.dlogBlackBody, "txtBlackBody_Change"},
      {graph.InUnitsOfLight(), f.dlogIncident, "OKButton_Click"},
      {form.mnuRI_Perm2.Checked, f.dlogDielectric2, "OKButton_Click"},
      {form.mnuAverage.Checked, f.dlogAverage, "OKButton_Click"},
      {debye, f.dlogPartial, "OKButton_Click"},
      {graph.family == Family::DebyeAnalysis, f.dlogDebyeSeq, "OKButton_Click"},
      {sheet.state.CalcMethod == Method::Burgeroid, f.dlogNonSpherical, "OKButton_Click"},
      {sheet.state.CalcMethod == Method::Heiligenschein, f.dlogHeiligenschein, "OKButton_Click"},
      {form.cboRays.Text == "Multiple" && TraitsOf(sheet.state.CalcMethod).showsP, f.dlogP, "OKButton_Click"},
  };
  const InputState before = PresentInputs(sheet);
  std::string fault;
  for (const DialogInUse& each : dialogs) {
    if (!each.used || !fault.empty()) continue;
    sheet.events.Raise(std::string(each.dialog.Name()) + "." + std::string(each.event));
    if (HasBadInput(each.dialog)) fault = "\"" + each.dialog.Caption + "\" has a value that it does not take";
  }
  RestoreInputs(sheet, before);
  const auto& s = sheet.state;
  if (several && form.mnuBlackBody.Checked && !(s.BlackBodyTemp > 0)) return "a black body of that temperature is none";
  if (graph.InUnitsOfLight() && !(s.IncidentDensity > 0 && s.Distance > 0))
    return "incident light and distance must be positive";
  return fault;
}

}  // namespace

std::string FaultOfInputs(Session& sheet) {
  for (const auto rule : {FaultOfChoices, FaultOfMenus, FaultOfMaterials, FaultOfSizes, FaultOfDialogs})
    if (std::string fault = rule(sheet); !fault.empty()) return fault;
  return {};
}

}  // namespace lumivex
