#pragma once

#include "session/open_session.h"
#include "ui/command_gate.h"
#include "ui/main_window.h"
#include "ui/qt_platform.h"

namespace lumivex {

/// The program as a user sees it: a session in a window, with the window system as its outside world.
class WindowedSession {
 public:
  WindowedSession();

  /// Opens the session, as far as its first plot; the window is not shown by it.
  void Load();

  /// Keeps settings in that folder from now on, and takes over those that are there; to be called before Load. Without
  /// it, or with an empty name, the program begins as on its first day and leaves nothing behind.
  void UseSettings(const std::string& folder);
  /// After Load: keeps the session too. One that was left by a crash is offered to the user as soon as the window is on
  /// the screen, unless it is not to be asked about: who opens a file wants that.
  void KeepSession(bool ask = true);
  /// The program ends: writes the settings and the session.
  void End();

  CommandGate& Gate() { return gate_; }
  QtPlatform& World() { return platform_; }
  MainWindow& Window() { return window_; }
  Session& Current() { return open_.Get(); }

 private:
  CommandGate gate_;
  QtPlatform platform_;
  MainWindow window_;
  OpenSession open_;
};

}  // namespace lumivex
