#include "session/recent_files.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "materials/files/readable_text.h"
#include "session/inputs/dialog_use.h"

namespace lumivex {

static_assert(mostRecentFiles == recentEntryNames.size());

std::string_view WordsOf(FileKind kind) {
  constexpr std::array<std::string_view, fileKinds> words = {"results",         "batch",    "index of the sphere",
                                                             "index of medium", "spectrum", "size distribution"};
  return words[static_cast<std::size_t>(kind)];
}

void PutFirst(std::vector<RecentFile>& recent, RecentFile file) {
  std::erase(recent, file);
  recent.insert(recent.begin(), std::move(file));
  if (recent.size() > mostRecentFiles) recent.resize(mostRecentFiles);
}

void NoteFile(Session& session, FileKind kind, const std::string& path) {
  std::error_code error;
  const auto absolute = std::filesystem::absolute(path, error);
  const RecentFile file{kind, error ? path : absolute.lexically_normal().string()};
  auto& settings = session.settings;
  if (session.state.RestoringSettings != 0) return;
  PutFirst(settings.recent, file);
  PutFirst(settings.unsaved.recent, file);
  ShowRecentFiles(session);
  session.events.Raise("Settings_Changed");
}

void ShowRecentFiles(Session& session) {
  const auto& recent = session.settings.recent;
  auto& form = session.form1;
  for (std::size_t i = 0; i < form.recentEntries.list.size(); ++i) {
    MenuEntry& entry = form.recentEntries.list[i];
    entry.Visible = i < recent.size();
    if (!entry.Visible) continue;
    entry.Caption = ReadablePath(FileNameOf(recent[i].path)) + "   (" + std::string(WordsOf(recent[i].kind)) + ")";
    entry.Tip = ReadablePath(recent[i].path);
  }
  form.mnuRecent.Enabled = form.mnuClearRecent.Enabled = !recent.empty();
}

}  // namespace lumivex
