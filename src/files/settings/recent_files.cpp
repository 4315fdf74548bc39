#include "files/settings/recent_files.h"

#include "files/open_file.h"
#include "session/inputs/materials/material_menus.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/recent_files.h"

namespace lumivex {

void OpenRecentFile(Session& session, std::size_t place) {
  if (place >= session.settings.recent.size()) return;
  const RecentFile file = session.settings.recent[place];
  // What a file is read for is told by its kind but for indices, which are the sphere's or the medium's.
  if (file.kind == FileKind::SphereIndex) {
    if (ReadRefIndex1(session, file.path)) UseFileTable1(session);
  } else if (file.kind == FileKind::MediumIndex) {
    if (ReadRefIndex2(session, file.path)) UseFileTable2(session);
  } else {
    OpenFile(session, file.path);
  }
}

void mnuClearRecent_Click(Session& session) {
  session.settings.recent.clear();
  session.settings.unsaved.recent.clear();
  session.settings.unsaved.recentCleared = true;
  ShowRecentFiles(session);
  session.events.Raise("Settings_Changed");
}

}  // namespace lumivex
