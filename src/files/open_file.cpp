#include "files/open_file.h"

#include <optional>

#include "files/batch/read_batch.h"
#include "files/results/read_file.h"
#include "session/dropped_files.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/dropped_file.h"
#include "session/recent_files.h"
#include "session/undo.h"

namespace lumivex {

bool OpenFile(Session& session, const std::string& path) {
  const bool known = IsResultsPath(path) || TakesDroppedFile(path);
  const bool batch = EndsWith(path, ".min") || (!known && IsBatchFile(path));
  if (!batch && !IsResultsPath(path)) {
    DropFiles(session, std::span(&path, 1));
    return TakesDroppedFile(path);
  }
  RememberInputs(session, "");
  const bool read = batch ? IsBatchFile(path) : ReadResultsFile(session, path, Onto::FreshPage);
  if (batch) RunBatch(session, {path, std::nullopt, true});
  if (read) NoteFile(session, batch ? FileKind::Batch : FileKind::Results, path);
  OfferHistory(session);
  return read;
}

void OpenDroppedFiles(Session& session, std::span<const std::string> paths) {
  if (paths.size() == 1)
    OpenFile(session, paths.front());
  else
    DropFiles(session, paths);
}

}  // namespace lumivex
