#include "files/examples/gallery.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "files/results/read_file.h"
#include "files/settings/settings_fixture.h"
#include "pages/page_table.h"
#include "session/info.h"
#include "session/session_fixture.h"
#include "source_folder.h"

namespace lumivex {
namespace {

const std::string galleryFolder = SourceFolder() + "/data/examples/gallery";

std::vector<double> NumbersIn(const std::string& table) {
  std::vector<double> numbers;
  std::istringstream words(table);
  for (std::string word; words >> word;)
    if (IsNumber(word)) numbers.push_back(Val(word));
  return numbers;
}

std::vector<std::string> FilesOfGallery() {
  std::set<std::string> files;
  for (const auto& example : ReadGallery(galleryFolder)) files.insert(example.files.begin(), example.files.end());
  return {files.begin(), files.end()};
}

class Gallery : public ScriptedSession {
 protected:
  Gallery() {
    runner.Current().settings.examplesFolder = galleryFolder;
    ShowExamples(runner.Current());
  }
};

class EveryExample : public ScriptedSession, public ::testing::WithParamInterface<std::string> {};

// An example that nobody has made anew shows numbers that the program does not calculate any more.
TEST_P(EveryExample, IsWhatTheProgramCalculates) {
  Session& session = runner.Current();
  ASSERT_TRUE(ReadResultsFile(session, GetParam(), Onto::FreshPage)) << LastText();
  const std::vector<double> kept = NumbersIn(TableAsText(session.page));
  const auto results = session.state.LastResults;
  Do("click cmdNewPlot");
  ASSERT_NE(session.state.LastResults, results) << LastText();
  const std::vector<double> now = NumbersIn(TableAsText(session.page));
  ASSERT_EQ(now.size(), kept.size());
  ASSERT_GT(now.size(), 100U);
  double largest = 0;
  for (const double value : now) largest = std::max(largest, std::abs(value));
  // Minima of intensity hang on the last digits; what is 0 by its nature is rounding.
  for (std::size_t i = 0; i < now.size(); ++i)
    ASSERT_NEAR(kept[i], now[i], 1e-6 * std::abs(now[i]) + 1e-12 * largest) << "number " << i;
}

INSTANTIATE_TEST_SUITE_P(Files, EveryExample, ::testing::ValuesIn(FilesOfGallery()), [](const auto& file) {
  std::string name = std::filesystem::path(file.param).stem().string();
  for (char& c : name)
    if (c == '-') c = '_';
  return name;
});

TEST_F(Gallery, TheMenuOpensEachAndSaysWhatToLookAt) {
  const auto gallery = ReadGallery(galleryFolder);
  ASSERT_GE(gallery.size(), 12U);
  for (std::size_t i = 0; i < gallery.size(); ++i) {
    SCOPED_TRACE(gallery[i].title);
    const std::string entry = std::string(exampleEntryNames[i]);
    EXPECT_EQ(Get(entry + ".Caption"), gallery[i].title);
    Do("click " + entry);
    EXPECT_TRUE(Shown().empty()) << LastText();
    EXPECT_EQ(runner.Current().page.runs.size(), gallery[i].files.size());
    EXPECT_EQ(StatusText(runner.Current()), gallery[i].look);
    EXPECT_LE(gallery[i].look.size(), 120U) << "the status line is one line";
  }
  EXPECT_EQ(Get(std::string(exampleEntryNames[gallery.size()]) + ".Visible"), "false");
  Do("set txtRadius 3\nclick cmdNewPlot");
  EXPECT_TRUE(StatusText(runner.Current()).starts_with("Heiligenschein, ")) << "other results, another line";
}

TEST_F(Gallery, AnExampleIsOneStepOfUndo) {
  Do("set txtRadius 3\nclick mnuExample3\nclick mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "3");
}

TEST(GalleryFolder, HoldsNothingThatTheListDoesNotName) {
  std::set<std::string> named;
  for (const auto& file : FilesOfGallery()) named.insert(std::filesystem::path(file).stem().string());
  for (const auto& entry : std::filesystem::directory_iterator(galleryFolder)) {
    const auto ending = entry.path().extension();
    const bool ofExample = ending == ".lvx" || ending == ".script";
    EXPECT_TRUE(!ofExample || named.contains(entry.path().stem().string())) << entry.path();
  }
  for (const auto& name : named) EXPECT_TRUE(std::filesystem::exists(galleryFolder + "/" + name + ".script")) << name;
}

TEST(GalleryFolder, ADamagedListOffersWhatCanBeRead) {
  const OwnFolder folder;
  EXPECT_TRUE(ReadGallery(folder.Path()).empty());
  EXPECT_TRUE(ReadGallery("").empty());
  folder.Write("Gallery.ini", "[Nothing]\nLook=at nothing\n[One]\nFiles= | a.lvx |\n[Two]\nFiles=b.lvx\nno value");
  const auto gallery = ReadGallery(folder.Path());
  ASSERT_EQ(gallery.size(), 2U);
  EXPECT_EQ(gallery[0].files, std::vector<std::string>{folder.Path("a.lvx")});
  std::string many;
  for (int i = 0; i < 100; ++i) many += "[" + std::to_string(i) + "]\nFiles=a.lvx\n";
  folder.Write("Gallery.ini", many);
  EXPECT_EQ(ReadGallery(folder.Path()).size(), exampleEntryNames.size());
}

}  // namespace
}  // namespace lumivex
