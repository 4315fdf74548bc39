/// lumivex-run: Lumivex without a window, driven by a script or a batch file.

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>

#include "files/batch/read_batch.h"
#include "record/version.h"
#include "scripts/script_file.h"
#include "scripts/script_runner.h"
#include "ui/console/batch_console.h"
#include "ui/console/batch_jobs.h"
#include "ui/console/run_arguments.h"

namespace {

constexpr int failed = 1;

/// Where a standard stream is closed, the next file that is opened would take its number, and what is printed would go
/// into that file. A stand-in that cannot be written makes printing fail instead.
void HoldClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream)
    if (fcntl(stream, F_GETFD) == -1) static_cast<void>(open("/dev/null", O_RDONLY));
}

int RunFrom(std::istream& script, bool json) {
  lumivex::ScriptRunner runner(std::cout, std::cerr);
  if (json) runner.PrintJson();
  runner.Start();
  return runner.Run(script);
}

int RunScriptFile(const std::string& file, bool json) {
  if (file == "-") return RunFrom(std::cin, json);
  std::ifstream script;
  const std::string failure = lumivex::OpenScript(script, file);
  if (failure.empty()) return RunFrom(script, json);
  std::cerr << "lumivex-run: " << failure << '\n';
  return failed;
}

int PrintEntries(const std::string& list) {
  const lumivex::BatchEntries entries = lumivex::EntriesOfBatch(list);
  for (const auto& file : entries.files) std::cout << file << '\n';
  for (const auto& failure : entries.failures) std::cerr << "lumivex-run: " << failure << '\n';
  return entries.failures.empty() ? 0 : failed;
}

/// The program itself, to be started once more.
std::string ThisProgram(const char* name) {
  std::error_code error;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(name) : path.string();
}

int Run(const lumivex::RunArguments& asked, const char* name) {
  using Task = lumivex::RunArguments::Task;
  switch (asked.task) {
    case Task::Help:
      std::cout << lumivex::runUsage;
      return 0;
    case Task::Version:
      std::cout << "Lumivex " << lumivex::programVersion << '\n';
      return 0;
    case Task::Batch:
      return lumivex::RunConsoleBatch({asked.file, asked.output, asked.threads}) ? 0 : failed;
    case Task::Jobs:
      return lumivex::RunBatchJobs({ThisProgram(name), asked.file, asked.jobs, asked.threads}) ? 0 : failed;
    case Task::Entries:
      return PrintEntries(asked.file);
    case Task::Script:
      break;
  }
  return RunScriptFile(asked.file, asked.json);
}

}  // namespace

int main(int argc, char** argv) {
  HoldClosedStreams();
  const auto asked = lumivex::ReadRunArguments(argc, argv);
  if (!asked) {
    std::cerr << lumivex::runUsage;
    return failed;
  }
  const int code = Run(*asked, argv[0]);
  return lumivex::OutputWasWritten(std::cout, std::cerr, "lumivex-run") || code != 0 ? code : failed;
}
