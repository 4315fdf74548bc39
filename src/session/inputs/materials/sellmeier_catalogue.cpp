#include "session/inputs/materials/sellmeier_catalogue.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

#include "materials/files/catalogue_file.h"
#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"
#include "record/file_lock.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "session/inputs/dialog_use.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

constexpr const char* catalogueName = "Dispersion.rxi";
constexpr const char* backupName = "DispersionBackup.rxi";

using Entries = std::vector<CatalogueEntry>;

std::string In(const std::string& folder, const char* name) {
  return (fs::path(folder) / name).string();
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool HoldsCatalogue(const std::string& folder) {
  return !folder.empty() && Exists(fs::path(folder) / catalogueName);
}

/// The user's own catalogue, once there is one, else the delivered one; empty where there is none.
std::string PresentCatalogue(const MaterialState& s) {
  if (HoldsCatalogue(s.CatalogueUserFolder)) return In(s.CatalogueUserFolder, catalogueName);
  return HoldsCatalogue(s.CatalogueFolder) ? In(s.CatalogueFolder, catalogueName) : std::string();
}

/// The entries of a catalogue file; nothing, and a message, where it cannot be used.
std::optional<Entries> ReadEntries(Session& session, const std::string& path) {
  std::ifstream file;
  Catalogue catalogue;
  catalogue.failure = OpenInput(file, path);
  if (catalogue.failure.empty()) catalogue = ReadCatalogueFile(file);
  if (catalogue.failure.empty()) return std::move(catalogue.entries);
  session.platform.Message("Error", "Error in data file: " + ReadablePath(path) + "\n" + catalogue.failure);
  session.forms.dlogRI_Formula.cmdSave.Enabled = false;
  return std::nullopt;
}

/// The present entries; none where there is no file.
std::optional<Entries> ReadPresent(Session& session) {
  const std::string path = PresentCatalogue(session.state);
  return path.empty() ? Entries() : ReadEntries(session, path);
}

/// What is done to the entries; false where there is nothing to do.
using Edit = std::function<bool(Entries&)>;

struct Edited {
  std::optional<Entries> stored;  ///< the entries as the file holds them now; nothing where it was left alone
  std::string failure;            ///< why it could not be written
};

/// Changes the entries while no other program does, so that what others have added meanwhile stays, and puts them into
/// the file of that folder.
Edited EditIn(Session& session, const std::string& folder, const Edit& edit) {
  std::error_code ignored;
  if (folder == session.state.CatalogueUserFolder) fs::create_directories(folder, ignored);
  const std::string path = In(folder, catalogueName);
  const FileLock lock(path);
  if (!lock.Failure().empty()) return {std::nullopt, lock.Failure()};
  auto entries = ReadPresent(session);
  if (!entries || !edit(*entries)) return {};
  const std::string text = CatalogueText(*entries);
  std::istringstream written(text);
  Catalogue stored = ReadCatalogueFile(written);
  // What could not be read again would take all materials along.
  std::string failure = stored.failure.empty() ? WriteWholeFile(path, text) : path + ": " + stored.failure;
  if (!failure.empty()) return {std::nullopt, std::move(failure)};
  return {std::move(stored.entries), {}};
}

/// Changes the catalogue beside the program or, where that cannot be written or the user has one already, the user's.
std::optional<Entries> EditCatalogue(Session& session, const Edit& edit) {
  const auto& s = session.state;
  std::string failure = "There is no folder for the catalogue of materials";
  const std::string delivered = HoldsCatalogue(s.CatalogueUserFolder) ? std::string() : s.CatalogueFolder;
  for (const std::string& folder : {delivered, s.CatalogueUserFolder}) {
    if (folder.empty()) continue;
    Edited edited = EditIn(session, folder, edit);
    if (edited.failure.empty()) return std::move(edited.stored);
    failure = std::move(edited.failure);
  }
  session.platform.Message("Error", failure);
  return std::nullopt;
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

/// Where an entry stands: at its place of before if it is still there, else where its name is; -1 for nowhere.
int FindEntry(const Entries& entries, const std::string& name, int place) {
  const auto at = static_cast<std::size_t>(place);
  if (at < entries.size() && entries[at].name == name) return place;
  const auto found = std::ranges::find(entries, name, &CatalogueEntry::name);
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

/// The list of names with that entry picked.
void FillList(Session& session, const Entries& entries, int place) {
  auto& list = session.forms.dlogRI_Formula.cboMaterial;
  list.Items.clear();
  for (const auto& entry : entries) list.Items.push_back(entry.name);
  list.Picked = session.state.CatalogueIndex = place;
}

void Show(Session& session, const Entries& entries, int place) {
  auto& dialog = session.forms.dlogRI_Formula;
  FillList(session, entries, place);
  if (place < 0 || place >= static_cast<int>(entries.size())) return;
  const CatalogueEntry& entry = entries[static_cast<std::size_t>(place)];
  dialog.cboMaterial.Text = entry.name;
  const auto fields = Fields(dialog);
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i]->Text = entry.numbers[i];
  AllowRange(dialog, !(dialog.txtLambdaMin.Text == "0" && dialog.txtLambdaMax.Text == "0"));
}

/// The material in the fields; nothing where a name or a number is wanting.
std::optional<CatalogueEntry> EntryInFields(DlogRI_Formula& dialog) {
  CatalogueEntry entry{std::string(Trim(dialog.cboMaterial.Text)), {}};
  const auto fields = Fields(dialog);
  bool good = !entry.name.empty();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string typed(Trim(fields[i]->Text));
    const std::string text = PointForComma(typed).value_or(typed);
    const bool limit = i >= 6;
    good = good && ((limit && text.empty()) || NumberOfItem(text).has_value());
    entry.numbers[i] = text.empty() ? "0" : text;
  }
  return good ? std::optional(std::move(entry)) : std::nullopt;
}

}  // namespace

std::string FindCatalogueFolder(const std::string& programFolder) {
  const fs::path program(programFolder);
  for (const auto& folder : {program, program / "../share/lumivex"})
    if (!programFolder.empty() && HoldsCatalogue(folder.string())) return folder.string();
  return {};
}

void LoadCatalogue(Session& session) {
  session.forms.dlogRI_Formula.cmdSave.Enabled = false;  // until a name is typed
  const std::string path = PresentCatalogue(session.state);
  if (path.empty()) return;
  if (const auto entries = ReadEntries(session, path)) FillList(session, *entries, 0);
}

void cboMaterial_Click(Session& session) {
  const auto& list = session.forms.dlogRI_Formula.cboMaterial;
  const std::string name = list.Text;
  const int place = list.PlaceOf(name);
  if (const auto entries = ReadPresent(session)) Show(session, *entries, FindEntry(*entries, name, place));
}

void cboMaterial_Change(Session& session) {
  session.forms.dlogRI_Formula.cmdSave.Enabled = true;
}

void cmdSave_Click(Session& session) {
  auto& dialog = session.forms.dlogRI_Formula;
  const auto entry = EntryInFields(dialog);
  if (!entry) return session.platform.Message("Input error", "A name and six coefficients are needed");
  const auto stored = EditCatalogue(session, [&entry](Entries& entries) {
    entries.push_back(*entry);
    return true;
  });
  if (!stored) return;
  FillList(session, *stored, static_cast<int>(stored->size()) - 1);
  dialog.cboMaterial.Text = stored->back().name;
  dialog.cmdSave.Enabled = false;
}

void cmdRemove_Click(Session& session) {
  const std::string name = session.forms.dlogRI_Formula.cboMaterial.Text;
  const int before = session.state.CatalogueIndex;
  const auto stored = EditCatalogue(session, [&name, before](Entries& entries) {
    const int place = FindEntry(entries, name, before);
    if (place >= 0) entries.erase(entries.begin() + place);
    return place >= 0;
  });
  if (stored) Show(session, *stored, 0);
}

void cmdRestore_Click(Session& session) {
  const auto backup = ReadEntries(session, In(session.state.CatalogueFolder, backupName));
  if (!backup) return;
  const auto stored = EditCatalogue(session, [&backup](Entries& entries) {
    entries = *backup;
    return true;
  });
  if (stored) Show(session, *stored, 0);
}

void Frame1_Click(Session& session) {
  AllowRange(session.forms.dlogRI_Formula, true);
}

}  // namespace lumivex
