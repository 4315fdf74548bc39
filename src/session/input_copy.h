#pragma once

#include <string>
#include <vector>

#include "record/recording_surface.h"
#include "session/open_session.h"

namespace lumivex {

/// An outside world without a user: every question is a no, every dialog is cancelled, and what is told is kept.
class SilentPlatform final : public Platform {
 public:
  void Message(std::string_view, std::string_view text) override { told.emplace_back(text); }
  bool Question(std::string_view, std::string_view) override { return Refuse(); }
  std::optional<std::string> OpenFileName(const FileDialog&) override { return std::nullopt; }
  std::optional<std::string> SaveFileName(const FileDialog&) override { return std::nullopt; }
  bool ShowModal(Form&) override { return Refuse(); }
  void Show(Form&) override {}
  void Yield() override {}
  double Timer() override { return 0; }
  ScreenSize Screen() override { return {}; }
  char DecimalSymbol() override { return '.'; }
  void Beep() override {}
  void Help(std::string_view) override {}
  void BringToFront(Form&) override {}
  std::string SavePicture(std::string_view) override { return {}; }
  void CopyText(std::string_view) override {}
  void Quit() override {}

  std::vector<std::string> told;
  int asked = 0;  ///< questions and dialogs

 private:
  bool Refuse() {
    ++asked;
    return false;
  }
};

/// A session of its own with the inputs of another: forms, menus and the parts of the record that inputs put there. It
/// has no user, no page and no results; what is done to it is nothing to the session that it was copied from, and it
/// may be handed to another thread.
class InputCopy {
 public:
  /// A session as it is before it is loaded, of the size of the other one.
  explicit InputCopy(const Session& session);

  /// Takes the inputs over. Dialogs are held back from then on, as while settings are restored, and nothing is drawn.
  void Take(Session& session);

  Session& Inputs() { return open_.Get(); }
  SilentPlatform& World() { return platform_; }

 private:
  SilentPlatform platform_;
  RecordingSurface surface_;
  OpenSession open_;
};

/// What a snapshot of a form's values leaves out: what its lists hold, which controls are there, captions of menus.
void CopyLooks(const Form& from, const Form& to);

}  // namespace lumivex
