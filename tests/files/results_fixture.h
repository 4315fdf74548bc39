#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "files/results/save_data.h"
#include "pages/build_page.h"
#include "record/recording_surface.h"
#include "record/text_file.h"
#include "scripts/script_commands.h"
#include "session/record_snapshot.h"
#include "session/session_fixture.h"
#include "session/undo.h"

namespace lumivex {

/// A session whose results are saved in, and read from, a folder of the test's own.
class ResultsFiles : public ScriptedSession {
 protected:
  ResultsFiles() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() / (std::string("lumivex_results_") + test->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~ResultsFiles() override {
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(folder_, ignored);
  }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Content(const std::string& name) const { return ReadWholeFile(Path(name)).value_or("no file"); }
  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
  }

  void Save(const std::string& name) { Do("save-results " + Path(name)); }
  void Load(const std::string& name) { Do("load " + Path(name)); }
  /// Loads a file that must be refused. @return the message.
  std::string Refused(const std::string& name) {
    runner.World().messages.clear();
    std::istringstream script("load " + Path(name));
    EXPECT_EQ(runner.Run(script), ScriptRunner::scriptError) << name;
    return LastTitle() + ": " + LastText();
  }

  /// The page as it is drawn.
  std::string Drawn() { return DrawingLines(runner.Current().windows.front()); }

  /// Everything that a file may change.
  struct Whole {
    RecordSnapshot record;
    InputState inputs;
    std::string drawn;
    const Results* results;
    bool operator==(const Whole& other) const {
      return record == other.record && inputs == other.inputs && drawn == other.drawn && results == other.results;
    }
  };
  Whole Everything() {
    Session& session = runner.Current();
    return {SnapshotOf(session.state), PresentInputs(session), Drawn(), session.state.LastResults.get()};
  }

 private:
  std::filesystem::path folder_;
};

/// The lines of a text.
inline std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

inline std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines) text += line + "\n";
  return text;
}

}  // namespace lumivex
