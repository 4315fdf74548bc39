#include "files/examples/gallery.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "files/results/read_file.h"
#include "files/settings/ini_text.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

constexpr const char* listName = "Gallery.ini";

/// "a|b"
std::vector<std::string> NamesIn(std::string_view text) {
  std::vector<std::string> names;
  while (!text.empty()) {
    const auto bar = std::min(text.find('|'), text.size());
    if (const auto name = Trim(text.substr(0, bar)); !name.empty()) names.emplace_back(name);
    text.remove_prefix(std::min(bar + 1, text.size()));
  }
  return names;
}

}  // namespace

std::vector<Example> ReadGallery(const std::string& folder) {
  std::vector<Example> gallery;
  const auto content = folder.empty() ? std::nullopt : ReadOwnFile((fs::path(folder) / listName).string());
  if (!content) return gallery;
  const IniText list = IniText::Read(*content);
  for (const auto& section : list.Sections()) {
    const auto value = [&](std::string_view key) { return list.Value(section.name, key).value_or(""); };
    Example example{section.name, NamesIn(value("Files")), NamesIn(value("Lines")), value("Look")};
    if (example.files.empty() || gallery.size() == exampleEntryNames.size()) continue;
    for (auto& file : example.files) file = (fs::path(folder) / file).string();
    gallery.push_back(std::move(example));
  }
  return gallery;
}

std::string FindGallery(const std::string& programFolder) {
  const fs::path program(programFolder);
  std::error_code error;
  for (const auto& folder : {program / "examples", program / "../share/lumivex/examples"})
    if (!programFolder.empty() && fs::is_regular_file(folder / listName, error)) return folder.string();
  return {};
}

void ShowExamples(Session& session) {
  auto& form = session.form1;
  const auto gallery = ReadGallery(session.settings.examplesFolder);
  for (std::size_t i = 0; i < form.exampleEntries.list.size(); ++i) {
    MenuEntry& entry = form.exampleEntries.list[i];
    entry.Visible = i < gallery.size();
    if (!entry.Visible) continue;
    entry.Caption = gallery[i].title;
    entry.Tip = gallery[i].look;
  }
  form.mnuExamples.Enabled = !gallery.empty();
}

void OpenExample(Session& session, std::size_t place) {
  const auto gallery = ReadGallery(session.settings.examplesFolder);
  if (place >= gallery.size()) return;
  const Example& example = gallery[place];
  if (!ReadResultsFile(session, example.files.front(), Onto::FreshPage)) return;
  for (std::size_t i = 1; i < example.files.size(); ++i) {
    // What is drawn over a page takes the pen that is ticked.
    if (i <= example.lines.size()) session.events.Raise(example.lines[i - 1] + "_Click");
    if (!ReadResultsFile(session, example.files[i], Onto::PageOnScreen)) return;
  }
  session.remark = {example.look, session.state.LastResults};
}

}  // namespace lumivex
