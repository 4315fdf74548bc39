#include "ui/console/run_arguments.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "files/batch/batch_commands.h"
#include "files/batch/read_batch.h"

namespace lumivex {

namespace {

/// Most processes, and most threads: more than any machine has.
constexpr unsigned most = 4096;

std::optional<unsigned> Count(std::string_view text) {
  unsigned count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (error != std::errc{} || end != text.data() + text.size() || count < 1 || count > most) return std::nullopt;
  return count;
}

}  // namespace

const char* const runUsage =
    "Usage: lumivex-run [--json] FILE\n"
    "       lumivex-run [--threads N] JOB.min [OUT.mut]\n"
    "       lumivex-run --jobs N [--threads N] LIST.min\n"
    "       lumivex-run --entries LIST.min\n"
    "Runs the script FILE, one command a line ('-' is standard input), and prints what it asks for; or the batch file\n"
    "JOB.min (output: JOB.mut), or a list of batch files, each with its own output. A batch file may have any name: "
    "its\n"
    "first line tells.\n"
    "  --json       print what a script asks for as JSON, an object a line\n"
    "  --threads N  use at most N threads\n"
    "  --jobs N     run each file of the list by itself, N at a time\n"
    "  --entries    print the files of the list, one a line\n"
    "  --version    tell the version\n"
    "Messages go to standard error. Exit codes: 0 done, 1 a batch failed, there is no script, or the output could not "
    "be\n"
    "written, 2 error in the script (the line is told).\n";

std::optional<RunArguments> ReadRunArguments(int argc, char** argv) {
  using Task = RunArguments::Task;
  RunArguments arguments;
  std::vector<std::string> names;
  bool options = true, threads = false;
  arguments.task = Task::Script;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (!options || word == "-" || !word.starts_with('-')) {
      names.emplace_back(word);
    } else if (word == "--") {
      options = false;
    } else if ((word == "--help" || word == "--version") && argc == 2) {
      arguments.task = word == "--help" ? Task::Help : Task::Version;
      return arguments;
    } else if (word == "--json") {
      arguments.json = true;
    } else if (word == "--entries") {
      arguments.task = Task::Entries;
    } else if ((word == "--jobs" || word == "--threads") && i + 1 < argc) {
      const auto count = Count(argv[++i]);
      if (!count) return std::nullopt;
      (word == "--jobs" ? arguments.jobs : arguments.threads) = *count;
      threads = true;
      if (word == "--jobs") arguments.task = Task::Jobs;
    } else {
      return std::nullopt;
    }
  }
  if (names.empty() || names.size() > 2) return std::nullopt;
  arguments.file = names[0];
  // Of another name it is known by its first line. What is read from a pipe can be read once.
  const bool batch = BatchOutputOf(arguments.file) || (arguments.file != "-" && IsBatchFile(arguments.file));
  if (batch && arguments.task == Task::Script) arguments.task = Task::Batch;
  if (names.size() == 2) arguments.output = names[1];
  const bool takesOutput = arguments.task == Task::Batch;
  const bool script = arguments.task == Task::Script;
  if ((arguments.output && !takesOutput) || (threads && script) || (arguments.json && !script)) return std::nullopt;
  return arguments;
}

}  // namespace lumivex
