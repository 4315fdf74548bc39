#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <string>
#include <string_view>

#include "files/open_file.h"
#include "files/settings/save_ini.h"
#include "record/version.h"
#include "session/user_folder.h"
#include "ui/look.h"
#include "ui/process_clock.h"
#include "ui/script_window.h"
#include "ui/windowed_session.h"

namespace {

using namespace lumivex;

constexpr int usageError = 2, noDisplay = 3;

constexpr char usage[] =
    "Usage: lumivex [--fresh] [--timing] [--script FILE] [FILE]\n"
    "  FILE           open it at the start: a results file (.lvx), a batch file (.min), which asks for its output and\n"
    "                 runs, or an input file (.rix, .csv, .yml, .yaml, .spe, .dis)\n"
    "  --fresh        begin as on the first day: read no settings, and keep neither settings nor session\n"
    "  --timing       tell how long the first picture took, and end\n"
    "  --script FILE  run a script in the window, and end; without a display in one that is not shown\n"
    "  --version      tell the version, and end\n"
    "  --help         this text\n";

struct Arguments {
  bool fresh = false, timing = false, help = false, version = false;
  std::string script, file;
  std::string unknown;
};

Arguments Read(int argc, char** argv) {
  Arguments arguments;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--fresh") {
      arguments.fresh = true;
    } else if (argument == "--timing") {
      arguments.timing = true;
    } else if (argument == "--help" || argument == "-h") {
      arguments.help = true;
    } else if (argument == "--version") {
      arguments.version = true;
    } else if (argument == "--script" && i + 1 < argc) {
      arguments.script = argv[++i];
    } else if (argument == "-platform" || argument == "-style") {
      ++i;  // the window system's own
    } else if (arguments.file.empty() && !argument.starts_with('-')) {
      arguments.file = argument;
    } else {
      arguments.unknown = argument;
    }
  }
  return arguments;
}

/// Whether there is a display to open a window on, or the user has named another kind of output.
bool HasDisplay() {
#if defined(Q_OS_LINUX) || defined(Q_OS_BSD4)
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
  return true;
#endif
}

int RunWindow(const Arguments& arguments) {
  WindowedSession program;
  // A measurement leaves nothing behind.
  const bool keeps = !arguments.fresh && !arguments.timing;
  if (keeps) program.UseSettings(SettingsFolder(ProgramFolder(), UserConfigFolder()));
  program.Load();
  if (arguments.timing) {
    program.Window().Drawing().firstPainted = [] {
      std::printf("first picture after %.0f ms\n", MillisecondsSinceStart());
      QCoreApplication::exit(0);
    };
  }
  program.Window().show();
  if (!arguments.file.empty())
    QTimer::singleShot(0, &program.Window(),
                       [&] { program.Gate().Do([&] { OpenFile(program.Current(), arguments.file); }); });
  if (keeps) program.KeepSession(arguments.file.empty());
  const int code = QApplication::exec();
  if (keeps) program.End();
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  const Arguments arguments = Read(argc, argv);
  if (!arguments.unknown.empty()) {
    std::fprintf(stderr, "lumivex: %s is not known\n%s", arguments.unknown.c_str(), usage);
    return usageError;
  }
  if (arguments.help || arguments.version) {
    std::printf("%s", arguments.help ? usage : ("Lumivex " + std::string(programVersion) + "\n").c_str());
    return 0;
  }
  if (!HasDisplay()) {
    if (arguments.script.empty()) {
      std::fprintf(stderr,
                   "lumivex: there is no display to open a window on (neither DISPLAY nor WAYLAND_DISPLAY is set).\n"
                   "Scripts run without one: lumivex --script FILE, or lumivex-run.\n");
      return noDisplay;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication::setStyle("Fusion");
  QApplication::setApplicationName("Lumivex");
  QApplication::setApplicationVersion(ToQString(programVersion));
  QApplication application(argc, argv);
  return arguments.script.empty() ? RunWindow(arguments) : RunScript(arguments.script);
}
