#include "files/file_dialogs.h"

#include <array>
#include <filesystem>

#include "files/reports/save_text.h"
#include "files/results/save_data.h"

namespace lumivex {

namespace {

/// Writes a file of its kind. @return empty, or in one sentence what went wrong.
using Writer = std::string (*)(Session& session, const std::string& path);

struct KindRow {
  SaveKind kind;
  std::string_view filter, pattern, title;
  Writer write;  ///< null where the command that asks for the name writes itself
};

constexpr std::array kindRows = {
    KindRow{SaveKind::Results, "Lumivex file(*.lvx)", "*.lvx", "Select a file name for saving data", Save_Data},
    KindRow{SaveKind::TextReport, "Text file(*.txt)", "*.txt",
            "Select a file name for saving numerical data as a text file", Save_Text},
    KindRow{SaveKind::BatchOutput, "Lumivex batch file(*.mut)", "*.mut", "Select a file name for saving batch data",
            nullptr},
    KindRow{SaveKind::VolumeData, "Lumivex vol(*.txt)", "*.txt", "Select a file name for saving batch data", Save_Text},
    KindRow{SaveKind::GaussianConvergence, "Lumivex Gaussian convergence(*.txt)", "*.txt",
            "Select a file name for saving Mie Gaussian Convergence data", Save_Text},
    KindRow{SaveKind::ImpulseData, "Text file(*.txt)", "*.txt",
            "Select a file name for saving impulse plot data as a text file", Save_Text},
};

const KindRow& RowOf(SaveKind kind) {
  for (const auto& row : kindRows)
    if (row.kind == kind) return row;
  return kindRows.front();
}

}  // namespace

std::optional<std::string> apidialogbox(Session& session, std::string_view pattern, std::string_view filter,
                                        std::string_view title, FileUse use, const std::string& suggested) {
  const std::string ending(pattern.substr(1)), name = suggested.empty() ? "lumivex" + ending : suggested;
  const FileDialog dialog{std::string(title), std::string(filter), use == FileUse::Save ? name : ""};
  auto path = use == FileUse::Save ? session.platform.SaveFileName(dialog) : session.platform.OpenFileName(dialog);
  if (!path || path->empty()) {
    session.platform.Note("Lumivex", "No file was selected");
    return std::nullopt;
  }
  // What stands already and what is no place for a file is left as it was given: "/dev/stdout".
  std::error_code ignored;
  const std::filesystem::path given(*path);
  if (use == FileUse::Save && !given.has_extension() && !std::filesystem::exists(given, ignored)) *path += ending;
  return path;
}

std::optional<std::string> cmdSelectOpen_Click(Session& session, std::string_view pattern, std::string_view filter,
                                               std::string_view title) {
  return apidialogbox(session, pattern, filter, title, FileUse::Load);
}

std::optional<std::string> AskSaveName(Session& session, SaveKind kind, const std::string& suggested) {
  const KindRow& row = RowOf(kind);
  return apidialogbox(session, row.pattern, row.filter, row.title, FileUse::Save, suggested);
}

void select_save_filename(Session& session, SaveKind kind) {
  const auto path = AskSaveName(session, kind);
  const Writer write = RowOf(kind).write;
  if (!path || write == nullptr) return;
  if (const std::string failure = write(session, *path); !failure.empty()) session.platform.Message("Error", failure);
}

}  // namespace lumivex
