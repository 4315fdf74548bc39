#include "record/text_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "record/file_lock.h"

namespace lumivex {
namespace {

namespace fs = std::filesystem;

class TextFile : public ::testing::Test {
 protected:
  TextFile() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::temp_directory_path() / (std::string("lumivex_text_") + test->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~TextFile() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  long Files() const { return std::distance(fs::directory_iterator(folder_), {}); }

  fs::path folder_;
};

TEST_F(TextFile, LinksModesAndNeighboursStay) {
  fs::create_directory(Path("store"));
  ASSERT_EQ(WriteWholeFile(Path("store/real.csv"), "old"), "");
  fs::permissions(Path("store/real.csv"), fs::perms(0640));
  fs::create_symlink("store/real.csv", Path("link.csv"));
  fs::create_symlink("store/later.csv", Path("dangling.csv"));
  std::ofstream(Path("link.csv.part")) << "a user's own";
  EXPECT_EQ(WriteWholeFile(Path("link.csv"), "new"), "");
  EXPECT_EQ(WriteWholeFile(Path("dangling.csv"), "later"), "");
  EXPECT_TRUE(fs::is_symlink(Path("link.csv")));
  EXPECT_TRUE(fs::is_symlink(Path("dangling.csv")));
  EXPECT_EQ(ReadWholeFile(Path("store/real.csv")), "new");
  EXPECT_EQ(ReadWholeFile(Path("store/later.csv")), "later");
  EXPECT_EQ(fs::status(Path("store/real.csv")).permissions(), fs::perms(0640));
  EXPECT_EQ(ReadWholeFile(Path("link.csv.part")), "a user's own");
  EXPECT_EQ(Files(), 4) << "nothing is left beside";
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "store"), {}), 2);
  const std::string longest(255, 'x');
  EXPECT_EQ(WriteWholeFile(Path(longest), "long"), "");
  EXPECT_EQ(ReadWholeFile(Path(longest)), "long");
}

TEST_F(TextFile, WhatIsNoFileIsNeverReplaced) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(WriteWholeFile(Path("pipe"), "x"),
            "The file " + Path("pipe") + " could not be written: it is a pipe, a socket or a disk");
  EXPECT_TRUE(fs::is_fifo(Path("pipe")));
  fs::create_symlink("round", Path("round"));
  const std::pair<std::string, std::string> refusals[] = {
      {folder_.string(), "Is a directory"},
      {Path("none/x.csv"), "No such file or directory"},
      {Path(std::string(256, 'x')), "File name too long"},
      {Path("round"), "Too many levels of symbolic links"},
      {"", "No such file or directory"},
  };
  for (const auto& [path, reason] : refusals)
    EXPECT_EQ(WriteWholeFile(path, "x"), "The file " + path + " could not be written: " + reason);
  EXPECT_EQ(Files(), 2);
  if (!fs::exists("/dev/full")) return;
  EXPECT_EQ(WriteWholeFile("/dev/full", "x"), "The file /dev/full could not be written: No space left on device");
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  fs::create_symlink("/dev/null", Path("nowhere"));
  EXPECT_EQ(WriteWholeFile(Path("nowhere"), "x"), "");
  EXPECT_TRUE(fs::is_symlink(Path("nowhere")));
}

TEST_F(TextFile, OfTwoWritersOneHasItsContentThere) {
  std::string failures;
  const auto write = [&](const std::string& text) {
    for (int i = 0; i < 200; ++i) failures += WriteWholeFile(Path("both.csv"), text);
  };
  const std::string one(20000, '1'), two(30000, '2');
  std::thread other([&] {
    for (int i = 0; i < 200; ++i) WriteWholeFile(Path("both.csv"), two);
  });
  write(one);
  other.join();
  EXPECT_EQ(failures, "");
  const auto text = ReadWholeFile(Path("both.csv"));
  EXPECT_TRUE(text == one || text == two);
  EXPECT_EQ(Files(), 1);
}

TEST_F(TextFile, UnderALockNoChangeIsLost) {
  const std::string path = Path("counter");
  ASSERT_EQ(WriteWholeFile(path, ""), "");
  const auto count = [&path] {
    for (int i = 0; i < 50; ++i) {
      const FileLock lock(path);
      if (lock.Failure().empty()) WriteWholeFile(path, ReadWholeFile(path).value() + "x");
    }
  };
  std::thread other(count);
  count();
  other.join();
  EXPECT_EQ(ReadWholeFile(path)->size(), 100U);
  EXPECT_EQ(Files(), 1) << "the lock is taken away";
  // A lock whose program ended in the middle keeps nobody out.
  std::ofstream(path + ".lock") << "";
  fs::last_write_time(path + ".lock", fs::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_EQ(FileLock(path).Failure(), "");
  EXPECT_NE(FileLock(Path("none/counter")).Failure().find("No such file or directory"), std::string::npos);
}

}  // namespace
}  // namespace lumivex
