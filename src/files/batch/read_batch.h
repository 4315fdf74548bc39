#pragma once

#include <optional>
#include <string>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// Batch files: a command file (.min) sets inputs line by line and runs them, and the block of each run is appended to
/// an output file (.mut); or it is a list of such files.
///
/// What the file does not name stays as it stands. The first error ends the batch: a line that is no command, a run
/// that is refused, an output that cannot be written. A Stop ends it too. The runs that were finished are kept.

/// How a batch has ended.
enum class BatchEnd { Done, Stopped, Failed };

/// What is run.
struct BatchJob {
  std::string file;
  /// Where the blocks go; without it the user is asked. A list has outputs of its own: beside each of its files, with
  /// ".mut" in place of ".min".
  std::optional<std::string> output;
  /// Whether the output of a batch that did not come to its end is put in its place. Otherwise it stands beside it,
  /// with ".part" after its name, and what stood in the place stays: whoever finds an output there finds all of it.
  bool unfinishedInPlace = true;
};

/// Runs a command file or a list of them. Failures are told as messages.
BatchEnd RunBatch(Session& session, const BatchJob& job);

/// Whether a file can be read and begins as a command file or a list of them does, whatever its name.
bool IsBatchFile(const std::string& file);

/// Whether a file can be read and is a list of command files.
bool IsBatchList(const std::string& file);

/// The files of a list, as far as they can be used, each where it stands; a command file is a list of itself.
struct BatchEntries {
  std::vector<std::string> files;
  std::vector<std::string> failures;  ///< an entry that is no name of a command file; a list that cannot be read
};
BatchEntries EntriesOfBatch(const std::string& file);

/// Asks for a command file and runs it.
void Read_Batch(Session& session);

/// Ticks the entry and runs a batch; the tick goes at its end.
void mnuBatchFile_Click(Session& session);

}  // namespace lumivex
