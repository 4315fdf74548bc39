/// lumivex-run: Lumivex without a window, driven by a script.

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <iostream>

#include "scripts/script_file.h"
#include "scripts/script_runner.h"

namespace {

constexpr const char* usage =
    "Usage: lumivex-run FILE\n"
    "Runs the commands of FILE, one a line ('-' is standard input), and prints what they ask for.\n"
    "Messages go to standard error. Exit codes: 0 done, 1 no script, or the output could not be written, 2 error in "
    "the\n"
    "script (the line is told).\n";

constexpr int failed = 1;

/// Where a standard stream is closed, the next file that is opened would take its number, and what is printed would go
/// into that file. A stand-in that cannot be written makes printing fail instead.
void HoldClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream)
    if (fcntl(stream, F_GETFD) == -1) static_cast<void>(open("/dev/null", O_RDONLY));
}

int RunFrom(std::istream& script) {
  lumivex::ScriptRunner runner(std::cout, std::cerr);
  runner.Start();
  return runner.Run(script);
}

int RunArguments(int argc, char** argv) {
  if (argc != 2 || std::strcmp(argv[1], "--help") == 0) {
    (argc == 2 ? std::cout : std::cerr) << usage;
    return argc == 2 ? 0 : failed;
  }
  if (std::strcmp(argv[1], "-") == 0) return RunFrom(std::cin);
  std::ifstream script;
  const std::string failure = lumivex::OpenScript(script, argv[1]);
  if (failure.empty()) return RunFrom(script);
  std::cerr << "lumivex-run: " << failure << '\n';
  return failed;
}

}  // namespace

int main(int argc, char** argv) {
  HoldClosedStreams();
  const int code = RunArguments(argc, argv);
  return lumivex::OutputWasWritten(std::cout, std::cerr, "lumivex-run") || code != 0 ? code : failed;
}
