#include "session/dropped_files.h"

#include "materials/files/readable_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/dropped_file.h"
#include "session/undo.h"

namespace lumivex {

void DropFiles(Session& session, std::span<const std::string> paths) {
  if (paths.empty()) return;
  if (paths.size() > 1) {
    session.platform.Message("Dropped files", "Please drop one file at a time.");
    return;
  }
  if (TakesDroppedFile(paths.front())) {
    RememberInputs(session, "");
    ReadDroppedFile(session, paths.front());
    OfferHistory(session);
    return;
  }
  session.platform.Message("Dropped files", ReadablePath(FileNameOf(paths.front())) +
                                                " is none of the files that can be dropped here:\n"
                                                "results (.lvx)\n"
                                                "batch (.min)\n"
                                                "refractive indices (.rix, .csv, .yml, .yaml)\n"
                                                "spectrum (.spe)\n"
                                                "size distribution (.dis)");
}

}  // namespace lumivex
