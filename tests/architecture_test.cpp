/// The storeys of the house: includes point down only.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "source_folder.h"

namespace {

namespace fs = std::filesystem;
const fs::path sourceRoot = fs::path(lumivex::SourceFolder()) / "src";

/// Folders from the bottom of the house to its top; what stands in one line stands on one height.
const std::vector<std::vector<std::string>> storeys = {
    {"catalogue/", "axes/", "colour/"},
    {"materials/", "particles/", "solvers/", "timedomain/"},
    {"runs/", "sky/"},
    {"record/"},
    {"pages/"},
    {"session/"},
    {"scripts/", "files/"},
    {"ui/"},
};

/// Height of a file by its folder; above all where no storey has it.
std::size_t Storey(const std::string& file) {
  for (std::size_t height = 0; height < storeys.size(); ++height)
    for (const auto& folder : storeys[height])
      if (file.starts_with(folder)) return height;
  return storeys.size();
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
    EXPECT_LT(Storey(include.from), storeys.size()) << include.from << " stands in no storey";
    EXPECT_GE(Storey(include.from), Storey(include.what)) << include.from << " includes " << include.what;
  }
  EXPECT_GT(seen, 100);
}

/// A page knows its results and its look; whoever reads controls or the record is above it.
TEST(Architecture, PagesKnowNeitherControlsNorRecord) {
  for (const auto& include : AllIncludes()) {
    // These two serve runs.
    const bool ofRuns = include.from.starts_with("pages/spectrum_sums") || include.from.starts_with("pages/sun_disc");
    if (!include.from.starts_with("pages/") || ofRuns) continue;
    const bool above = include.what.starts_with("record/session") || include.what.starts_with("record/forms/") ||
                       include.what.starts_with("record/controls") ||
                       include.what.starts_with("record/main_form_state");
    EXPECT_FALSE(above) << include.from << " includes " << include.what;
  }
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
    if (include.from.starts_with("ui/console/") && include.quoted && !include.what.starts_with("ui/console/")) {
      EXPECT_LT(Storey(include.what), Storey("ui/")) << include.from << " includes " << include.what;
    }
}

}  // namespace
