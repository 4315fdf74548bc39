#include "session/inputs/materials/sellmeier_catalogue.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "materials/files/catalogue_file.h"
#include "materials/files/input_items.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "session/inputs/dialog_use.h"

namespace lumivex {

namespace {

constexpr const char* catalogueName = "Dispersion.rxi";
constexpr const char* backupName = "DispersionBackup.rxi";

std::string PathOf(const Session& session, const char* name) {
  return (std::filesystem::path(session.state.CatalogueFolder) / name).string();
}

/// The entries of a catalogue file; nothing, and a message, where it cannot be used.
std::optional<std::vector<CatalogueEntry>> ReadEntries(Session& session, const char* name) {
  const std::string path = PathOf(session, name);
  std::ifstream file;
  Catalogue catalogue;
  catalogue.failure = OpenInput(file, path);
  if (catalogue.failure.empty()) catalogue = ReadCatalogueFile(file);
  if (catalogue.failure.empty()) return std::move(catalogue.entries);
  session.platform.Message("Error", "Error in data file: " + path + "\n" + catalogue.failure);
  session.forms.dlogRI_Formula.cmdSave.Enabled = false;
  return std::nullopt;
}

bool Write(Session& session, const std::vector<CatalogueEntry>& entries) {
  const std::string failure = WriteWholeFile(PathOf(session, catalogueName), CatalogueText(entries));
  if (!failure.empty()) session.platform.Message("Error", failure);
  return failure.empty();
}

std::array<TextInput*, 8> Fields(DlogRI_Formula& d) {
  return {&d.txtB1, &d.txtB2, &d.txtB3, &d.txtC1, &d.txtC2, &d.txtC3, &d.txtLambdaMin, &d.txtLambdaMax};
}

void AllowRange(DlogRI_Formula& d, bool allowed) {
  for (Control* control :
       {static_cast<Control*>(&d.Frame1), static_cast<Control*>(&d.chkIgnore), static_cast<Control*>(&d.txtLambdaMin),
        static_cast<Control*>(&d.txtLambdaMax), static_cast<Control*>(&d.Label8), static_cast<Control*>(&d.Label9)})
    control->Enabled = allowed;
}

void Show(Session& session, const std::vector<CatalogueEntry>& entries, int index) {
  auto& dialog = session.forms.dlogRI_Formula;
  session.state.CatalogueIndex = index;
  if (index < 0 || index >= static_cast<int>(entries.size())) return;
  const CatalogueEntry& entry = entries[static_cast<std::size_t>(index)];
  dialog.cboMaterial.Text = entry.name;
  const auto fields = Fields(dialog);
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i]->Text = entry.numbers[i];
  AllowRange(dialog, !(dialog.txtLambdaMin.Text == "0" && dialog.txtLambdaMax.Text == "0"));
}

void FillList(Session& session, const std::vector<CatalogueEntry>& entries) {
  auto& items = session.forms.dlogRI_Formula.cboMaterial.Items;
  items.clear();
  for (const auto& entry : entries) items.push_back(entry.name);
}

bool Exists(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

}  // namespace

std::string FindCatalogueFolder(const std::string& programFolder) {
  const std::filesystem::path program(programFolder);
  for (const auto& folder : {program, program / "../share/lumivex", std::filesystem::path("data")})
    if (Exists(folder / catalogueName)) return folder.string();
  return {};
}

void LoadCatalogue(Session& session) {
  session.forms.dlogRI_Formula.cmdSave.Enabled = false;  // until a name is typed
  if (!Exists(PathOf(session, catalogueName))) return;
  if (const auto entries = ReadEntries(session, catalogueName)) FillList(session, *entries);
}

void cboMaterial_Click(Session& session) {
  const auto& list = session.forms.dlogRI_Formula.cboMaterial;
  const auto chosen = std::ranges::find(list.Items, list.Text) - list.Items.begin();
  if (const auto entries = ReadEntries(session, catalogueName)) Show(session, *entries, static_cast<int>(chosen));
}

void cboMaterial_Change(Session& session) {
  session.forms.dlogRI_Formula.cmdSave.Enabled = true;
}

void cmdSave_Click(Session& session) {
  auto& dialog = session.forms.dlogRI_Formula;
  CatalogueEntry entry{std::string(Trim(dialog.cboMaterial.Text)), {}};
  const auto fields = Fields(dialog);
  bool good = !entry.name.empty();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string text(Trim(fields[i]->Text));
    const bool limit = i >= 6;
    good = good && ((limit && text.empty()) || NumberOfItem(text).has_value());
    entry.numbers[i] = text.empty() ? "0" : text;
  }
  if (!good) return session.platform.Message("Input error", "A name and six coefficients are needed");
  std::vector<CatalogueEntry> entries;
  if (Exists(PathOf(session, catalogueName))) {
    auto present = ReadEntries(session, catalogueName);
    if (!present) return;
    entries = std::move(*present);
  }
  entries.push_back(std::move(entry));
  if (!Write(session, entries)) return;
  FillList(session, entries);
  session.state.CatalogueIndex = static_cast<int>(entries.size()) - 1;
  dialog.cmdSave.Enabled = false;
}

void cmdRemove_Click(Session& session) {
  const auto& list = session.forms.dlogRI_Formula.cboMaterial;
  auto entries = ReadEntries(session, catalogueName);
  if (!entries) return;
  const auto at = static_cast<std::size_t>(std::max(session.state.CatalogueIndex, 0));
  const bool present = at < entries->size() && (*entries)[at].name == list.Text;
  const auto place = present ? entries->begin() + static_cast<std::ptrdiff_t>(at)
                             : std::ranges::find(*entries, list.Text, &CatalogueEntry::name);
  if (place == entries->end()) return;
  entries->erase(place);
  if (!Write(session, *entries)) return;
  FillList(session, *entries);
  Show(session, *entries, 0);
}

void cmdRestore_Click(Session& session) {
  const auto entries = ReadEntries(session, backupName);
  if (!entries || !Write(session, *entries)) return;
  FillList(session, *entries);
  Show(session, *entries, 0);
}

void Frame1_Click(Session& session) {
  AllowRange(session.forms.dlogRI_Formula, true);
}

}  // namespace lumivex
