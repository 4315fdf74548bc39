/// lumivex-run: Lumivex without a window, driven by a script.

#include <cstring>
#include <fstream>
#include <iostream>

#include "scripts/script_runner.h"

namespace {

constexpr const char* usage =
    "Usage: lumivex-run FILE\n"
    "Runs the commands of FILE, one a line ('-' is standard input), and prints what they ask for.\n"
    "Messages go to standard error. Exit codes: 0 done, 1 no script, 2 error in the script (the line is told).\n";

int RunFrom(std::istream& script) {
  lumivex::ScriptRunner runner(std::cout, std::cerr);
  runner.Start();
  return runner.Run(script);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 || std::strcmp(argv[1], "--help") == 0) {
    (argc == 2 ? std::cout : std::cerr) << usage;
    return argc == 2 ? 0 : 1;
  }
  if (std::strcmp(argv[1], "-") == 0) return RunFrom(std::cin);
  std::ifstream script(argv[1]);
  if (!script) {
    std::cerr << "lumivex-run: cannot read " << argv[1] << '\n';
    return 1;
  }
  return RunFrom(script);
}
