#include "ui/windowed_session.h"

#include <QTimer>

#include "files/file_events.h"
#include "files/settings/continue_session.h"
#include "files/settings/keep_session.h"
#include "files/settings/save_ini.h"
#include "session/start_up.h"

namespace lumivex {

WindowedSession::WindowedSession() : platform_(gate_), window_(gate_), open_(platform_, window_.Surface()) {
  platform_.window = &window_;
  platform_.show = [this](Form& form) { window_.Show(form); };
  platform_.showModal = [this](Form& form) { return window_.ShowDialog(form); };
  platform_.bringToFront = [this](Form& form) { window_.BringToFront(form); };
  platform_.savePicture = [this](std::string_view path) { return window_.SavePicture(path); };
  platform_.showSlider = [this] { window_.ShowSlider(); };
  AddFileEvents(open_);
  window_.Attach(open_.Get());
  window_.FollowInputs();
}

void WindowedSession::Load() {
  gate_.Do([this] { Form_Load(open_.Get()); });
}

void WindowedSession::UseSettings(const std::string& folder) {
  auto& settings = open_.Get().settings;
  settings.folder = folder;
  ReadIni(open_.Get());
  window_.TakePlace(settings.windowPlace);
}

void WindowedSession::KeepSession(bool ask) {
  if (!BeginSession(open_.Get(), ThisProgram()) || !ask) return;
  // Not here: a question in front of a window that is not there yet would be all that is seen.
  QTimer::singleShot(0, &window_, [this] {
    gate_.Do([this] {
      Session& session = open_.Get();
      const bool wanted = session.platform.Question(
          "Continue last session", "The last session did not end as it should.\n\nDo you want to continue it?");
      if (wanted) ContinueSession(session, session.settings.lastSessionFile);
    });
  });
}

void WindowedSession::End() {
  auto& settings = open_.Get().settings;
  const std::string place = window_.Place();
  settings.unsaved.window = place != settings.windowPlace;
  settings.windowPlace = place;
  // Undo may have taken the tick back.
  settings.unsaved.liveGraph |= Current().form1.mnuLiveGraph.Checked != settings.liveGraph;
  Save_ini(open_.Get());
  EndSession(open_.Get());
}

}  // namespace lumivex
