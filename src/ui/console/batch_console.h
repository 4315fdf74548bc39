#pragma once

#include <optional>
#include <string>

namespace lumivex {

/// A batch without a window, in this process.
struct ConsoleBatch {
  std::string file;                   ///< a command file or a list
  std::optional<std::string> output;  ///< of a command file; its own name with ".mut" where there is none
  unsigned threads = 0;               ///< at most so many; 0 for as many as the machine has
};

/// Runs it in a fresh session. Messages go to standard error. An output stands in its place only when all runs of its
/// command file are done; what was finished of others stands beside it, with ".part" after its name.
/// @return whether all went well.
bool RunConsoleBatch(const ConsoleBatch& batch);

}  // namespace lumivex
