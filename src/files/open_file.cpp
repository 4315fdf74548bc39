#include "files/open_file.h"

#include "files/results/read_file.h"
#include "session/dropped_files.h"
#include "session/inputs/dropped_file.h"
#include "session/undo.h"

namespace lumivex {

bool OpenFile(Session& session, const std::string& path) {
  if (!IsResultsPath(path)) {
    DropFiles(session, std::span(&path, 1));
    return TakesDroppedFile(path);
  }
  RememberInputs(session, "");
  const bool read = ReadResultsFile(session, path, Onto::FreshPage);
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
