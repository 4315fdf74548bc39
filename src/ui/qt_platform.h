#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "record/platform.h"
#include "ui/command_gate.h"

namespace lumivex {

class HelpWindow;

/// The window system as the session's outside world.
class QtPlatform final : public Platform {
 public:
  explicit QtPlatform(CommandGate& gate);
  ~QtPlatform() override;

  void Message(std::string_view title, std::string_view text) override;
  void Note(std::string_view title, std::string_view text) override;
  bool Question(std::string_view title, std::string_view text) override;
  std::optional<std::string> OpenFileName(const FileDialog& dialog) override;
  std::optional<std::string> SaveFileName(const FileDialog& dialog) override;
  bool ShowModal(Form& form) override;
  void Show(Form& form) override;
  void Yield() override;
  double Timer() override;
  ScreenSize Screen() override;
  /// The window takes a decimal comma for a point, so that no setting of the system stands in the way of its inputs.
  char DecimalSymbol() override { return '.'; }
  void Beep() override;
  void ShowSlider() override;
  void Help(std::string_view page) override;
  void BringToFront(Form& form) override;
  std::string SavePicture(std::string_view path) override;
  std::string SaveDrawing(const Page& page, std::string_view path) override;
  OpenedPhotograph OpenPhotograph(std::string_view path) override;
  std::string SavePhotograph(const Page& page, std::string_view notes, std::string_view path) override;
  void CopyText(std::string_view text) override;
  void Quit() override;

  // What the main window does for it once it is there.
  QPointer<QWidget> window;              ///< parent of every dialog
  std::function<void(Form&)> show;       ///< modeless
  std::function<bool(Form&)> showModal;  ///< true is OK
  std::function<void(Form&)> bringToFront;
  std::function<void()> showSlider;
  std::function<std::string(std::string_view)> savePicture;  ///< returns a sentence on what went wrong

 private:
  void Tell(QMessageBox::Icon icon, std::string_view title, std::string_view text) const;
  QString InCurrentFolder(const std::string& suggested) const;

  CommandGate& gate_;
  QElapsedTimer clock_;
  QPointer<HelpWindow> help_;
  QString folder_;  ///< of the file that was chosen last, where the next dialog begins; empty before
};

}  // namespace lumivex
