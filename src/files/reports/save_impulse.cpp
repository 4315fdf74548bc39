#include "files/reports/save_impulse.h"

#include "files/file_dialogs.h"
#include "files/reports/save_text.h"
#include "pages/page_table.h"
#include "record/text_file.h"
#include "session/impulse/impulse_plot.h"

namespace lumivex {

std::string Save_ImpulsePlot2(Session& session, const std::string& path) {
  std::string text = TextReport(ImpulseWindow(session).page, nullptr);
  const auto& last = session.state.LastResults;
  const bool picture = last && last->asked.graph.family == Family::Impulse && session.page.map;
  if (session.forms.dlogImpulse.chkSave.Checked && picture) text += "\n" + TableAsText(session.page);
  return WriteWholeFile(path, text);
}

void ImpulsePlot_mnuSave_Click(Session& session) {
  if (ImpulseWindow(session).page.Empty()) return;
  const auto path = AskSaveName(session, SaveKind::ImpulseData, "impulse.txt");
  if (!path) return;
  if (const std::string failure = Save_ImpulsePlot2(session, *path); !failure.empty())
    session.platform.Message("Error", failure);
}

}  // namespace lumivex
