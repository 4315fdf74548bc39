/// The storeys of the house: includes point down only.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
const fs::path sourceRoot = fs::path(LUMIVEX_SOURCE_DIR) / "src";

/// Height of a file by its folder, from the bottom: numerics, record, routines, session, scripts and files, window.
int Storey(const std::string& file) {
  const std::string path = "/" + file;
  if (path.find("/kernel/") != std::string::npos || path.find("/tables/") != std::string::npos) return 0;
  if (file.starts_with("session/record/") || file == "session/main_form_state.h") return 1;
  if (file.starts_with("ui/")) return 5;
  if (file.starts_with("scripts/") || file.starts_with("files/")) return 4;
  if (file.starts_with("session/")) return 3;
  return 2;
}

struct Include {
  std::string from, what;
  bool quoted;
};

/// What a line includes: the delimiter and the name, or nothing.
std::optional<std::pair<char, std::string>> ReadInclude(const std::string& line) {
  const auto word = line.find("#include");
  if (word == std::string::npos || line.find_first_not_of(" \t") != word) return std::nullopt;
  const auto open = line.find_first_of("<\"", word);
  if (open == std::string::npos) return std::nullopt;
  const auto close = line.find_first_of(">\"", open + 1);
  return std::pair{line[open], line.substr(open + 1, close - open - 1)};
}

std::vector<Include> AllIncludes() {
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(sourceRoot)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    std::ifstream file(entry.path());
    for (std::string text; std::getline(file, text);)
      if (const auto include = ReadInclude(text))
        includes.push_back(
            {fs::relative(entry.path(), sourceRoot).generic_string(), include->second, include->first == '"'});
  }
  return includes;
}

TEST(Architecture, IncludesPointDown) {
  int seen = 0;
  for (const auto& include : AllIncludes()) {
    if (!include.quoted) continue;
    ++seen;
    EXPECT_TRUE(fs::exists(sourceRoot / include.what)) << include.from << " includes " << include.what;
    EXPECT_GE(Storey(include.from), Storey(include.what)) << include.from << " includes " << include.what;
  }
  EXPECT_GT(seen, 100);
}

TEST(Architecture, OnlyTheWindowKnowsTheWindowSystem) {
  for (const auto& include : AllIncludes()) {
    if (include.quoted || include.from.starts_with("ui/")) continue;
    const bool standard = include.what.find_first_of("/.") == std::string::npos && include.what[0] != 'Q';
    EXPECT_TRUE(standard) << include.from << " includes <" << include.what << ">";
  }
}

TEST(Architecture, TheConsoleProgramKnowsNoWindowSystem) {
  for (const auto& include : AllIncludes())
    if (include.from.starts_with("ui/console/") && include.quoted) {
      EXPECT_LT(Storey(include.what), 5) << include.from << " includes " << include.what;
    }
}

}  // namespace
