#include "files/settings/session_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "record/catalogue/graph_texts.h"
#include "record/catalogue/method_texts.h"
#include "record/number_text.h"
#include "record/version.h"
#include "session/undo.h"

namespace lumivex {

namespace {

constexpr std::string_view inputs = "Inputs", settings = "Settings", captions = "Captions", menu = "Menu",
                           names = "Names", files = "Files", formPrefix = "Form ", sumOpening = "\n[Seal]\nSum=";

/// One list for writing and reading: visit(key, field) for every setting of the dialogs.
template <class Settings, class Visitor>
void ForEachSetting(Settings& s, Visitor&& visit) {
  visit("SpectrumMin", s.spectrumMin);
  visit("SpectrumMax", s.spectrumMax);
  visit("BlackBodyTemp", s.blackBodyTemp);
  visit("IncidentDensity", s.incidentDensity);
  visit("Distance", s.distance);
  visit("RIUserEdited", s.indexUserEdited);
  visit("SphereIndexTyped", s.sphereIndexTyped);
  visit("SphereIndexVaries", s.sphereIndexVaries);
  visit("MediumIndexTyped", s.mediumIndexTyped);
  visit("CatalogueIndex", s.catalogueIndex);
  visit("PickedLineColour", s.pickedLineColour.value);
  visit("BarReference", s.barReference);
  visit("BarReferencePerWaveNumber", s.barReferencePerWaveNumber);
  visit("BarReferenceWeighted", s.barReferenceWeighted);
  visit("MapReference", s.mapReference);
  visit("MapReferenceThird", s.mapReferenceThird);
  visit("MapReferenceKind", s.mapReferenceKind);
  visit("SellmeierName", s.sellmeier.name);
  visit("SellmeierB1", s.sellmeier.terms.B1);
  visit("SellmeierB2", s.sellmeier.terms.B2);
  visit("SellmeierB3", s.sellmeier.terms.B3);
  visit("SellmeierC1", s.sellmeier.terms.C1);
  visit("SellmeierC2", s.sellmeier.terms.C2);
  visit("SellmeierC3", s.sellmeier.terms.C3);
  visit("SellmeierMin", s.sellmeier.lowest);
  visit("SellmeierMax", s.sellmeier.highest);
  visit("SellmeierQuiet", s.sellmeier.quiet);
}

/// Strings of the record that no control holds.
template <class State, class Visitor>
void ForEachKeptName(State& s, Visitor&& visit) {
  visit("KeptSphereLabel", s.KeptSphereLabel);
  visit("KeptSphereName", s.KeptSphereName);
  visit("KeptMediumLabel", s.KeptMediumLabel);
  visit("KeptAngle", s.KeptAngle);
  visit("KeptRadius", s.KeptRadius);
  visit("SphereCaptionBefore", s.SphereCaptionBefore);
  visit("DistribInUse", s.DistribInUse);
}

template <class Field>
std::string TextOfField(const Field& field) {
  if constexpr (std::is_same_v<Field, std::string>) {
    return field;
  } else {
    return Exact(static_cast<double>(field));
  }
}

template <class Field>
void ReadField(const IniText& text, std::string_view section, std::string_view key, Field& field) {
  if constexpr (std::is_same_v<Field, std::string>) {
    if (auto value = text.Value(section, key)) field = std::move(*value);
  } else if constexpr (std::is_same_v<Field, bool>) {
    if (const auto value = text.Number(section, key)) field = *value != 0;
  } else if constexpr (std::is_integral_v<Field>) {
    constexpr double largest = 16777215;  // a colour; codes and marks are far below
    if (const auto value = text.Number(section, key)) field = static_cast<Field>(std::clamp(*value, 0.0, largest));
  } else {
    if (const auto value = text.Number(section, key)) field = static_cast<Field>(*value);
  }
}

bool IsTicked(ControlKind kind) {
  return kind == ControlKind::OptionButton || kind == ControlKind::CheckBox || kind == ControlKind::MenuEntry;
}

bool HasText(ControlKind kind) {
  return kind == ControlKind::TextInput || kind == ControlKind::SelectionList;
}

std::string SectionOf(const Form& form) {
  return std::string(formPrefix) + std::string(form.Name());
}

void WriteForm(IniText& text, const Form& form) {
  const std::string section = SectionOf(form);
  for (const Control* control : form.Controls()) {
    const ControlValue value = control->Value();
    if (HasText(control->Kind())) text.Set(section, control->Name(), value.text);
    if (IsTicked(control->Kind())) text.Set(section, control->Name(), value.checked ? "on" : "off");
  }
}

void ReadForm(const IniText& text, const Form& form, FormSnapshot& snapshot) {
  for (const auto& [name, value] : text.Values(SectionOf(form))) {
    const Control* control = form.Find(name);
    if (control == nullptr) continue;
    const auto held =
        std::ranges::find_if(snapshot, [&](const auto& entry) { return SameName(entry.first, control->Name()); });
    if (HasText(control->Kind())) held->second.text = value;
    if (IsTicked(control->Kind())) held->second.checked = value == "on";
  }
}

std::string& TextIn(FormSnapshot& snapshot, const Control& control) {
  return std::ranges::find_if(snapshot, [&](const auto& entry) { return SameName(entry.first, control.Name()); })
      ->second.text;
}

/// Method and graph are known by their texts, and the codes beside them tell sub-types; a text that names none, from a
/// program that knows more, leaves what is chosen.
void ReadMethodAndGraph(Session& session, const IniText& text, InputState& state) {
  auto& form = session.form1;
  std::string& method = TextIn(state.forms.front(), form.cboType);
  if (FindMethod(method) == nullptr) method = form.cboType.Text;
  if (const MethodRow* row = FindMethod(method)) state.method = row->method;
  std::string& graph = TextIn(state.forms.front(), form.cboGraph);
  if (FindGraph(graph) == nullptr) graph = form.cboGraph.Text;
  const GraphRow* row = FindGraph(graph);
  if (row == nullptr) return;
  GraphCode code;
  ReadField(text, inputs, "GraphType", code.type);
  ReadField(text, inputs, "GraphSubType", code.subType);
  state.graph = GraphOf(code) == GraphOf(row->code) ? code : row->code;
}

/// Materials are named in the menu after what was chosen in their dialogs.
template <class Visitor>
void ForEachMaterialEntry(Form1& form, Visitor&& visit) {
  for (Control* control : form.Controls())
    if (control->Kind() == ControlKind::MenuEntry && control->Name().starts_with("mnuRI_"))
      visit(static_cast<MenuEntry&>(*control));
}

/// Whether a file is one that the inputs need: a spectrum that was read and is not chosen is none of them.
bool Needs(const Form1& form, FileKind kind) {
  switch (kind) {
    case FileKind::SphereIndex:
      // How far a cubic of the medium's table reaches is told by the rows of the sphere's.
      return form.mnuRI_File1.Checked || form.mnuRI_File2.Checked;
    case FileKind::MediumIndex:
      return form.mnuRI_File2.Checked;
    case FileKind::Spectrum:
      return form.mnuSpectrumFile.Checked;
    case FileKind::Sizes:
      return form.cboDistrib.Text == "Special";
    default:
      return false;
  }
}

/// FNV-1a: damage is told by it, no forgery.
std::string SumOf(std::string_view text) {
  std::uint64_t sum = 14695981039346656037U;
  for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sum, 16);
  return {digits.data(), end.ptr};
}

constexpr std::array<std::string_view, fileKinds> kindKeys = {"Results",     "Batch",    "SphereIndex",
                                                              "MediumIndex", "Spectrum", "Sizes"};

}  // namespace

IniText InputsAsText(Session& session) {
  const InputState state = PresentInputs(session);
  IniText text;
  text.Set(inputs, "Version", programVersion);
  text.Set(inputs, "GraphType", std::to_string(state.graph.type));
  text.Set(inputs, "GraphSubType", std::to_string(state.graph.subType));
  text.Set(inputs, "SphereName", state.sphereName);
  text.Set(inputs, "MediumName", state.mediumName);
  const auto& s = session.state;
  for (std::size_t kind = 0; kind < fileKinds; ++kind) {
    const std::string& path = session.settings.inUse[kind];
    if (!path.empty() && Needs(session.form1, static_cast<FileKind>(kind))) text.Set(files, kindKeys[kind], path);
  }
  ForEachSetting(state.settings, [&](std::string_view key, const auto& f) { text.Set(settings, key, TextOfField(f)); });
  ForEachKeptName(s, [&](std::string_view key, const std::string& name) { text.Set(names, key, name); });
  for (const Form* form : session.forms.All()) WriteForm(text, *form);
  std::size_t i = 0;
  ForEachCaption(session.form1, [&](const Control& control, const std::string&) {
    text.Set(captions, control.Name(), state.captions[i++]);
  });
  ForEachMaterialEntry(session.form1, [&](const MenuEntry& entry) { text.Set(menu, entry.Name(), entry.Caption); });
  return text;
}

InputState InputsFromText(Session& session, const IniText& text) {
  InputState state = PresentInputs(session);
  ReadField(text, inputs, "SphereName", state.sphereName);
  ReadField(text, inputs, "MediumName", state.mediumName);
  ForEachSetting(state.settings, [&](std::string_view key, auto& f) { ReadField(text, settings, key, f); });
  const auto forms = session.forms.All();
  for (std::size_t i = 0; i < forms.size(); ++i) ReadForm(text, *forms[i], state.forms[i]);
  ReadMethodAndGraph(session, text, state);
  std::size_t i = 0;
  ForEachCaption(session.form1, [&](const Control& control, const std::string&) {
    ReadField(text, captions, control.Name(), state.captions[i++]);
  });
  return state;
}

void RestoreNames(Session& session, const IniText& text) {
  ForEachKeptName(session.state, [&](std::string_view key, std::string& name) { ReadField(text, names, key, name); });
  ForEachMaterialEntry(session.form1, [&](MenuEntry& entry) { ReadField(text, menu, entry.Name(), entry.Caption); });
}

std::string FileIn(const IniText& text, FileKind kind) {
  return text.Value(files, kindKeys[static_cast<std::size_t>(kind)]).value_or("");
}

std::string Sealed(const IniText& text) {
  std::string whole = text.Write();
  return whole + std::string(sumOpening) + SumOf(whole) + '\n';
}

std::optional<IniText> Unsealed(std::string_view text) {
  const auto seal = text.rfind(sumOpening);
  if (seal == std::string_view::npos) return std::nullopt;
  const std::string_view sum = Trim(text.substr(seal + sumOpening.size()));
  if (sum != SumOf(text.substr(0, seal))) return std::nullopt;
  return IniText::Read(text.substr(0, seal));
}

}  // namespace lumivex
