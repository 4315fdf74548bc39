#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "session/session_fixture.h"
#include "source_folder.h"

namespace lumivex {

inline const std::string exampleFolder = SourceFolder() + "/data/examples/";

/// A session with a folder of its own for files.
class MaterialSession : public ScriptedSession {
 protected:
  MaterialSession() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() /
              ("lumivex_" + std::string(test->test_suite_name()) + "_" + test->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~MaterialSession() override { std::filesystem::remove_all(folder_); }

  Session& Now() { return runner.Current(); }
  MainFormState& State() { return Now().state; }
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  std::string Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
  }

  std::filesystem::path folder_;
};

/// A .rix file of `rows` rows: wavelengths 1, 2, ... um, n = 1 + row / 100, k = row / 1000.
inline std::string IndexFileText(int rows, const std::string& unit = "um", const std::string& type = "Complex") {
  std::ostringstream text;
  text << "Lumivex 300\n";
  for (int i = 0; i < 11; ++i) text << "free text\n";
  text << "Testite\n" << unit << "\n" << type << "\n " << rows << "\n";
  for (int i = 1; i <= rows; ++i) {
    text << i << ", " << 1 + i / 100.0;
    if (type == "Complex") text << ", " << i / 1000.0;
    text << "\n";
  }
  return text.str();
}

}  // namespace lumivex
