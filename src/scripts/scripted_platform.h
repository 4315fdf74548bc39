#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "record/platform.h"

namespace lumivex {

/// A message or question that was shown.
struct ShownMessage {
  std::string title, text;
  bool operator==(const ShownMessage&) const = default;
};

/// The outside world of a script or test: messages are recorded (and written to a stream where one is given),
/// questions, dialogs and file dialogs are answered from queues. An empty queue answers Yes, OK with what stands in the
/// dialog, and Cancel for files.
class ScriptedPlatform final : public Platform {
 public:
  /// What the user does in a dialog: fields set in order, then OK or Cancel.
  struct DialogAnswer {
    std::string form;
    bool ok = true;
    std::vector<std::pair<std::string, std::string>> fields;
  };

  explicit ScriptedPlatform(std::ostream* echo = nullptr) : echo_(echo) {}

  // What the next questions are answered.
  std::deque<bool> answers;
  std::deque<std::string> openPaths, savePaths;
  std::deque<DialogAnswer> dialogs;
  // What the world is like.
  ScreenSize screen;
  char decimalSymbol = '.';
  unsigned threads = 0;
  // What was seen.
  std::vector<ShownMessage> messages;
  std::vector<std::string> helpPages;
  std::vector<std::string> shownForms;  ///< modeless windows, by name
  std::string copiedText;
  std::string suggestedName;  ///< by the dialog for saving that was opened last
  int beeps = 0;
  bool quit = false;
  // What happens on a yield, how a dialog's field is set, how a picture is saved.
  std::function<void()> onYield;
  std::function<double()> clock;  ///< what the clock shows; the time since the start where there is none
  std::function<void(Form&, const std::string& field, const std::string& text)> setField;
  std::function<void(Form&)> confirm;  // the OK button of a dialog is pressed
  std::function<std::string(std::string_view path)> savePicture;
  std::function<void(Form&)> showForm;  ///< a modeless window is shown on a screen too
  std::function<OpenedPhotograph(std::string_view path)> openPhotograph;
  std::function<std::string(const Page& page, std::string_view path)> saveDrawing;
  std::function<std::string(const Page& page, std::string_view notes, std::string_view path)> savePhotograph;
  std::function<std::shared_ptr<void>(Form&)> whileOpen;  ///< what a dialog holds while it is on the screen

  void Message(std::string_view title, std::string_view text) override;
  unsigned Threads() const override { return threads; }
  bool Question(std::string_view title, std::string_view text) override;
  std::optional<std::string> OpenFileName(const FileDialog& dialog) override;
  std::optional<std::string> SaveFileName(const FileDialog& dialog) override;
  bool ShowModal(Form& form) override;
  void Show(Form& form) override;
  void Yield() override;
  double Timer() override;
  ScreenSize Screen() override { return screen; }
  char DecimalSymbol() override { return decimalSymbol; }
  void Beep() override { ++beeps; }
  void Help(std::string_view page) override { helpPages.emplace_back(page); }
  void BringToFront(Form&) override {}
  std::string SavePicture(std::string_view path) override;
  OpenedPhotograph OpenPhotograph(std::string_view path) override;
  std::string SaveDrawing(const Page& page, std::string_view path) override;
  std::string SavePhotograph(const Page& page, std::string_view notes, std::string_view path) override;
  void CopyText(std::string_view text) override { copiedText = text; }
  void Quit() override { quit = true; }

 private:
  void Record(std::string_view title, std::string_view text);

  std::ostream* echo_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace lumivex
