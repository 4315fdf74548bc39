#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/photograph.h"

namespace lumivex {

class Form;
struct Page;

/// What a file dialog asks for.
struct FileDialog {
  std::string title;
  std::string filter;     ///< "Pictures (*.png *.svg *.pdf)"
  std::string suggested;  ///< a file name to start from, may be empty
};

struct ScreenSize {
  int widthPx = 1280;
  int heightPx = 1024;
};

/// The outside world as the session sees it. One is the window system, one a console, one a script or test.
class Platform {
 public:
  virtual ~Platform() = default;

  /// Shows a message and waits until it is put away. Lines are parted by '\n'.
  virtual void Message(std::string_view title, std::string_view text) = 0;
  /// The same for what is no warning: who the program is.
  virtual void Note(std::string_view title, std::string_view text) { Message(title, text); }
  /// Asks; true is Yes.
  virtual bool Question(std::string_view title, std::string_view text) = 0;
  /// Asks for a file; nothing when the user cancels.
  virtual std::optional<std::string> OpenFileName(const FileDialog& dialog) = 0;
  virtual std::optional<std::string> SaveFileName(const FileDialog& dialog) = 0;
  /// Shows a dialog and waits; true is OK. The dialog's events run while it is open.
  virtual bool ShowModal(Form& form) = 0;
  /// Shows a window and goes on; what the user does in it raises its events.
  virtual void Show(Form& form) = 0;
  /// Lets the event loop paint, and serve Stop and Esc; everything else waits until the run has ended.
  virtual void Yield() = 0;
  /// Seconds since some moment, never running backward.
  virtual double Timer() = 0;
  virtual ScreenSize Screen() = 0;
  /// The decimal symbol that inputs must be typed with; the user is told of one that is not a point.
  virtual char DecimalSymbol() = 0;
  virtual void Beep() = 0;
  /// Opens a slider beside the input that the user is in; without a screen there is none.
  virtual void ShowSlider() {}
  /// Opens the user guide at a page ("" for its start).
  virtual void Help(std::string_view page) = 0;
  /// Brings a window to the front.
  virtual void BringToFront(Form& form) = 0;
  /// Saves the present drawing as a picture file (the ending chooses the kind) or, for an empty path, copies it to the
  /// clipboard. Returns an empty text, or in one sentence what went wrong.
  virtual std::string SavePicture(std::string_view path) = 0;
  /// Writes the drawing of another page as a picture file, as SavePicture does.
  virtual std::string SaveDrawing(const Page&, std::string_view) {
    return "Drawings can be saved only where there is a window system";
  }
  /// Reads a picture file; one that cannot be read tells why.
  virtual OpenedPhotograph OpenPhotograph(std::string_view) {
    OpenedPhotograph none;
    none.failure = "Photographs can be opened only where there is a window system";
    return none;
  }
  /// Draws a page with a photograph in the photograph's size and writes it to the path at the end (whose ending
  /// chooses the kind), with the notes of its camera where the kind takes them; copies it for an empty path. Returns an
  /// empty text, or in one sentence what went wrong.
  virtual std::string SavePhotograph(const Page&, std::string_view, std::string_view) {
    return "Photographs can be saved only where there is a window system";
  }
  /// Puts text on the clipboard.
  virtual void CopyText(std::string_view text) = 0;
  /// Ends the program.
  virtual void Quit() = 0;
  /// Threads that a run may take; 0 for as many as the machine has.
  virtual unsigned Threads() const { return 0; }
};

}  // namespace lumivex
