#pragma once

#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// Notes that the user has read a file: it stands first in the menu of recent files. Raises Settings_Changed. While
/// settings are restored nobody has chosen a file, and the menu stays.
void NoteFile(Session& session, FileKind kind, const std::string& path);

/// Puts the recent files into their menu, which is disabled while there are none.
void ShowRecentFiles(Session& session);

/// Puts a file first; the same one further down goes, and so do those beyond mostRecentFiles.
void PutFirst(std::vector<RecentFile>& recent, RecentFile file);

/// A kind as menus say it: "size distribution".
std::string_view WordsOf(FileKind kind);

}  // namespace lumivex
