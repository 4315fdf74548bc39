#include "ui/windowed_session.h"

#include "files/file_events.h"
#include "session/start_up.h"

namespace lumivex {

WindowedSession::WindowedSession() : platform_(gate_), window_(gate_), open_(platform_, window_.Surface()) {
  platform_.window = &window_;
  platform_.show = [this](Form& form) { window_.Show(form); };
  platform_.showModal = [this](Form& form) { return window_.ShowDialog(form); };
  platform_.savePicture = [this](std::string_view path) { return window_.SavePicture(path); };
  AddFileEvents(open_);
  window_.Attach(open_.Get());
}

void WindowedSession::Load() {
  gate_.Do([this] { Form_Load(open_.Get()); });
}

}  // namespace lumivex
