#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "record/recording_surface.h"
#include "scripts/script_printer.h"
#include "scripts/scripted_platform.h"
#include "session/open_session.h"

namespace lumivex {

/// What only a window can do; empty functions where there is none.
struct ScriptWindow {
  /// Draws the page as a picture file; 0 x 0 is the window's size. Returns empty, or what went wrong.
  std::function<std::string(Form& form, std::string_view path, int widthPx, int heightPx)> picture;
  /// Saves an image of the whole window.
  std::function<std::string(Form& form, std::string_view path)> screenshot;
  std::function<void(Form& form, int widthPx, int heightPx)> resize;
  /// The session was exchanged for a fresh one, which has not been loaded.
  std::function<void(Session&)> reset;
};

/// Runs a script, one command a line, on a session of its own or on a window's.
///
/// Commands: set, choose, click, dialog, answer, open, save, get, table, amplitudes, array, window, drawing, read,
/// mouse, size, stop-at, reset, messages, picture, screenshot (see the README). '#' begins a comment at the start of a
/// word.
class ScriptRunner {
 public:
  /// Exit codes.
  static constexpr int ok = 0, outputLost = 1, scriptError = 2;

  /// @param output  where get, table, array and the rest write.
  /// @param errors  where messages and script errors go.
  ScriptRunner(std::ostream& output, std::ostream& errors);

  /// A session in a window instead of the runner's own, on a surface that the window owns.
  void UseWindow(DrawingSurface& surface, ScriptWindow window);

  /// What the script prints becomes a JSON object a line.
  void PrintJson() { printer_.UseJson(); }

  /// The platform of the session, to be wired to the window before Start.
  ScriptedPlatform& World() { return platform_; }
  Session& Current() { return open_->Get(); }

  /// Opens the session: Form_Load, first plot and all.
  void Start();
  /// Runs the lines; at the first error writes the line's number and what was wrong and returns scriptError, or
  /// outputLost where a file could not be written.
  int Run(std::istream& script);

 private:
  struct Failure {
    std::string what;
    int code = scriptError;
  };
  /// Throws a failure to write, where there is one.
  static void Written(const std::string& failure);
  friend struct ScriptCommands;

  void Execute(int number, const std::string& line);
  void Open();
  void WatchForStop();
  void Write(const std::string& path, const std::string& content);
  /// Into the file, or where none is named printed.
  template <class Printing>
  void Print(const std::string& path, const std::string& content, Printing printed);

  std::ostream& output_;
  ScriptPrinter printer_;
  std::ostream& errors_;
  ScriptedPlatform platform_;
  RecordingSurface recording_;
  DrawingSurface* surface_;
  ScriptWindow window_;
  std::unique_ptr<OpenSession> open_;
  Window* chosen_ = nullptr;  ///< the one that drawing, picture, screenshot, mouse and size mean
  double stopAt_ = -1;        ///< per cent; negative: no stop is waiting
};

}  // namespace lumivex
