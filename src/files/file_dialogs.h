#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// The kinds of files that can be saved. The values are the codes by which they are known.
enum class SaveKind : int {
  Results = 1,
  TextReport = 2,
  BatchOutput = 3,
  VolumeData = 4,
  GaussianConvergence = 5,
  ImpulseData = 6,
};

/// Whether a file is to be read or written.
enum class FileUse { Load, Save };

/// The one dialog for files: asks for a name and, where the user gives none, says "No file was selected".
/// @param pattern  "*.lvx"
/// @param filter   its name as the dialog offers it: "Lumivex file(*.lvx)".
/// @param suggested  the name that a dialog for saving begins with; empty for "lumivex" with the pattern's ending.
/// @return the path; one to be written that was given without an ending takes the pattern's.
std::optional<std::string> apidialogbox(Session& session, std::string_view pattern, std::string_view filter,
                                        std::string_view title, FileUse use, const std::string& suggested = {});

/// Asks for a file to be read, by the same dialog.
std::optional<std::string> cmdSelectOpen_Click(Session& session, std::string_view pattern, std::string_view filter,
                                               std::string_view title);

/// Asks under which name a file of that kind is to be saved.
/// @param suggested  the name that the dialog begins with; empty for "lumivex" with the ending of the kind.
std::optional<std::string> AskSaveName(Session& session, SaveKind kind, const std::string& suggested = {});

/// Asks for the name and hands it to the kind's writer; a writer's failure is told.
void select_save_filename(Session& session, SaveKind kind);

}  // namespace lumivex
