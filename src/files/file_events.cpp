#include "files/file_events.h"

#include <array>

#include "files/batch/read_batch.h"
#include "files/examples/example_events.h"
#include "files/examples/gallery.h"
#include "files/measured/open_data.h"
#include "files/reports/save_impulse.h"
#include "files/reports/save_text.h"
#include "files/results/read_file.h"
#include "files/results/save_data.h"
#include "files/settings/settings_events.h"
#include "session/recent_files.h"
#include "session/user_folder.h"

namespace lumivex {

namespace {

struct EventRow {
  std::string_view name;
  EventTable::Handler handler;
};

/// Whether S1 and S2 are written with the numbers: into results, reports and the output of batches.
void TickAmplitudes(Session& session) {
  auto& entry = session.form1.mnuS1S2;
  entry.Checked = !entry.Checked;
}

constexpr std::array fileEventRows = {
    EventRow{"mnuRead_Click", mnuRead_Click},         EventRow{"mnuSave_Click", mnuSave_Click},
    EventRow{"mnuOverplot_Click", mnuOverplot_Click}, EventRow{"mnuOpenData_Click", mnuOpenData_Click},
    EventRow{"mnuS1S2_Click", TickAmplitudes},        EventRow{"mnuBatchFile_Click", mnuBatchFile_Click},
    EventRow{"mnuSaveText_Click", mnuSaveText_Click}, EventRow{"ImpulsePlot.mnuSave_Click", ImpulsePlot_mnuSave_Click},
};

/// The menus of files are filled once the session stands.
void Session_Loaded(Session& session) {
  ShowRecentFiles(session);
  if (session.settings.examplesFolder.empty()) session.settings.examplesFolder = FindGallery(ProgramFolder());
  ShowExamples(session);
}

}  // namespace

void AddFileEvents(OpenSession& open) {
  for (const auto& row : fileEventRows) open.Table().Add(row.name, row.handler);
  for (const auto& row : SettingsEvents()) open.Table().Add(row.name, row.handler);
  for (const auto& row : ExampleEvents()) open.Table().Add(row.name, row.handler);
  open.Table().Add("Session_Loaded", Session_Loaded);
}

}  // namespace lumivex
