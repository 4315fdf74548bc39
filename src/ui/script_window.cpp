#include "ui/script_window.h"

#include <QCoreApplication>
#include <fstream>
#include <iostream>

#include "record/number_text.h"
#include "scripts/script_file.h"
#include "scripts/script_runner.h"
#include "ui/main_window.h"
#include "ui/page_picture.h"
#include "ui/photograph_file.h"

namespace lumivex {

namespace {

ScriptWindow FunctionsOf(MainWindow& window) {
  ScriptWindow functions;
  functions.picture = [&window](Form& form, std::string_view file, int widthPx, int heightPx) {
    if (SameName(form.Name(), "ImpulsePlot") || SameName(form.Name(), "dlogImpulse"))
      return window.SaveDrawingOf(form, file);
    return window.SavePicture(file, widthPx, heightPx);
  };
  const auto photograph = [&window](const Form& form) {
    return SameName(form.Name(), "Form2") ? window.Photograph() : nullptr;
  };
  const auto second = [&window, photograph](const Form& form) -> QWidget* {
    if (SameName(form.Name(), "Curves")) return window.Curves();
    return SameName(form.Name(), "ImpulsePlot") ? static_cast<QWidget*>(window.Impulse()) : photograph(form);
  };
  functions.screenshot = [&window, second](Form& form, std::string_view file) {
    return window.SaveScreenshot(file, second(form));
  };
  functions.resize = [&window, photograph](Form& form, int widthPx, int heightPx) {
    if (auto* picture = photograph(form)) {
      picture->resize(widthPx, heightPx);
      picture->Settle();
      return;
    }
    if (auto* curves = window.Curves(); curves != nullptr && SameName(form.Name(), "Curves")) {
      curves->resize(widthPx, heightPx);
      return;
    }
    if (auto* impulse = window.Impulse(); impulse != nullptr && SameName(form.Name(), "ImpulsePlot")) {
      impulse->resize(widthPx, heightPx);
      impulse->Settle();
      return;
    }
    window.resize(widthPx, heightPx);
    window.Settle();
  };
  functions.reset = [&window](Session& session) { window.Attach(session); };
  return functions;
}

}  // namespace

int RunScript(const std::string& path) {
  const bool fromInput = path == "-";
  std::ifstream file;
  if (const std::string failure = fromInput ? "" : OpenScript(file, path); !failure.empty()) {
    std::cerr << "lumivex: " << failure << '\n';
    return ScriptRunner::scriptError;
  }
  CommandGate gate;
  MainWindow window(gate);
  ScriptRunner runner(std::cout, std::cerr);
  // Dialogs are answered by the script; this window is one to look at.
  runner.World().showForm = [&window](Form& form) {
    for (const std::string_view shown : {"Form2", "ImpulsePlot", "Curves"})
      if (SameName(form.Name(), shown)) window.Show(form);
  };
  runner.World().openPhotograph = ReadPhotographFile;
  runner.World().savePhotograph = WritePhotographFile;
  runner.World().saveDrawing = SaveDrawing;
  runner.UseWindow(window.Surface(), FunctionsOf(window));
  window.show();
  runner.Start();
  const int result = runner.Run(fromInput ? std::cin : file);
  window.hide();
  const bool written = OutputWasWritten(std::cout, std::cerr, "lumivex");
  return written || result != ScriptRunner::ok ? result : ScriptRunner::outputLost;
}

}  // namespace lumivex
