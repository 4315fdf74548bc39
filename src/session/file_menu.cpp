#include "session/file_menu.h"

#include "pages/page_table.h"
#include "record/text_file.h"
#include "record/version.h"
#include "session/window_events.h"

namespace lumivex {

namespace {

void Tell(Session& session, const std::string& failure) {
  if (!failure.empty()) session.platform.Message("Error", failure);
}

}  // namespace

void mnuSavePicture_Click(Session& session) {
  const auto path = session.platform.SaveFileName(
      {"Save picture", "PNG picture (*.png);;SVG drawing (*.svg);;PDF page (*.pdf)", "lumivex.png"});
  if (path) Tell(session, session.platform.SavePicture(*path));
}

void mnuCopyPicture_Click(Session& session) {
  Tell(session, session.platform.SavePicture(""));
}

void mnuCopyData_Click(Session& session) {
  session.platform.CopyText(TableAsText(session.page));
}

void mnuSaveData_Click(Session& session) {
  const auto path = session.platform.SaveFileName({"Save data", "Comma separated values (*.csv)", "lumivex.csv"});
  if (path) Tell(session, WriteWholeFile(*path, TableWithHeader(session.page)));
}

void mnuExit_Click(Session& session) {
  Form_Unload(session);
}

void mnuHelpContents_Click(Session& session) {
  session.platform.Help("");
}

void mnuAbout_Click(Session& session) {
  session.platform.Note("About Lumivex",
                        "Lumivex " + std::string(programVersion) +
                            "\nScattering of light by spherical particles:\nMie theory, rainbows, glories, coronae.");
}

}  // namespace lumivex
