#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "files/batch/read_batch.h"
#include "record/text_file.h"
#include "session/session_fixture.h"

namespace lumivex {

/// A session with a folder of its own, in which batches run.
class BatchSession : public ScriptedSession {
 protected:
  BatchSession() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder = std::filesystem::temp_directory_path() / (std::string("lumivex_batch_") + test->name());
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  ~BatchSession() override { std::filesystem::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }
  void Put(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }
  std::string Content(const std::string& name) const { return ReadWholeFile(Path(name)).value_or("(none)"); }
  long Files() const { return std::distance(std::filesystem::directory_iterator(folder), {}); }

  /// Runs commands, after their first line, into job.mut.
  BatchEnd Run(const std::string& commands, bool unfinishedInPlace = true) {
    Put("job.min", "Lumivex 4200 batch file\n" + commands);
    return RunBatch(runner.Current(), {Path("job.min"), Path("job.mut"), unfinishedInPlace});
  }

  /// Lines of the output that begin so.
  int Lines(const std::string& name, const std::string& begin) const {
    std::istringstream text(Content(name));
    int count = 0;
    for (std::string line; std::getline(text, line);) count += line.starts_with(begin) ? 1 : 0;
    return count;
  }
  int Blocks(const std::string& name = "job.mut") const { return Lines(name, "Lumivex v4.1"); }

  std::filesystem::path folder;
};

}  // namespace lumivex
