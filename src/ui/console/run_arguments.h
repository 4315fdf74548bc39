#pragma once

#include <optional>
#include <string>

namespace lumivex {

/// What lumivex-run is asked for on its command line.
struct RunArguments {
  enum class Task { Help, Version, Script, Batch, Jobs, Entries };
  Task task = Task::Help;
  std::string file;
  std::optional<std::string> output;  ///< of a batch
  unsigned threads = 0, jobs = 1;
  bool json = false;  ///< a script prints JSON
};

/// How it is called, in lines.
extern const char* const runUsage;

/// Nothing for a command line that cannot be.
std::optional<RunArguments> ReadRunArguments(int argc, char** argv);

}  // namespace lumivex
