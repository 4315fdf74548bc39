#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/settings/keep_session.h"
#include "files/settings/save_ini.h"
#include "session/recent_files.h"
#include "session/session_fixture.h"

namespace lumivex {

/// A folder of a test's own, gone with it.
class OwnFolder {
 public:
  OwnFolder() {
    static std::atomic<int> count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("lumivex_settings_" + ThisProgram().process + "_" + std::to_string(++count));
    std::filesystem::create_directories(path_);
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;
  ~OwnFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }

  std::string Path(const std::string& name = "") const {
    return name.empty() ? path_.string() : (path_ / name).string();
  }
  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
  }
  std::string Read(const std::string& name) const { return ReadOwnFile(Path(name)).value_or(""); }
  int Files() const {
    return static_cast<int>(
        std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator()));
  }

 private:
  std::filesystem::path path_;
};

/// A program that keeps its settings in a folder, as the window's does, driven by script lines.
class KeepingProgram {
 public:
  explicit KeepingProgram(const OwnFolder& folder, const std::string& process = "1") : runner(output, errors) {
    runner.Start();
    Now().settings.folder = folder.Path();
    ReadIni(Now());
    ShowRecentFiles(Now());
    // The machine has been started since: whoever is read of does not run any more.
    recovered = BeginSession(Now(), {ThisProgram().host, "another start", process});
  }

  void Do(const std::string& lines) {
    std::istringstream script(lines);
    EXPECT_EQ(runner.Run(script), ScriptRunner::ok) << lines << "\n" << errors.str();
  }
  Session& Now() { return runner.Current(); }
  /// As the window does when it closes.
  void End() {
    Save_ini(Now());
    EndSession(Now());
  }

  std::ostringstream output, errors;
  ScriptRunner runner;
  bool recovered = false;
};

}  // namespace lumivex
