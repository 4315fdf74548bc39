#pragma once

#include <string>

namespace lumivex {

/// The files of a list as processes side by side.
struct BatchJobs {
  std::string program;   ///< to be started for each: this one
  std::string list;      ///< a list of command files, or one of them
  unsigned jobs = 1;     ///< at most so many at a time
  unsigned threads = 0;  ///< of each; 0 shares those of the machine out among them
};

/// Runs each file of the list as a run of its own, in a process of its own: none sees what another has set. A file that
/// fails is told, and the others go on; a process that dies by a signal is started once more. After an interrupt no
/// further one begins, and those that run are asked to stop.
/// @return whether all went well.
bool RunBatchJobs(const BatchJobs& batch);

}  // namespace lumivex
