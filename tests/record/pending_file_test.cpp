#include "record/pending_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

#include "files/batch_fixture.h"

namespace lumivex {
namespace {

namespace fs = std::filesystem;

/// A disk that takes so many bytes of a file and no more.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit now = before_;
    now.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class Pending : public BatchSession {};

TEST_F(Pending, ABlockThatADiskDoesNotTakeIsNotThereAtAll) {
  Put("out.mut", "old");
  {
    PendingFile file(Path("out.mut"));
    EXPECT_TRUE(file.Empty());
    ASSERT_TRUE(file.Append("first\n"));
    EXPECT_EQ(Content("out.mut"), "old") << "not before it is done";
    const FullDisk disk(20'000);
    EXPECT_FALSE(file.Append(std::string(100'000, 'x')));
    EXPECT_EQ(file.Failure(), "The file " + Path("out.mut") + " could not be written: File too large");
    EXPECT_FALSE(file.Append("third\n")) << "nothing follows what is missing";
    EXPECT_TRUE(file.PutInPlace());
  }
  EXPECT_EQ(Content("out.mut"), "first\n");
  EXPECT_EQ(Files(), 1);
}

TEST_F(Pending, WhatIsNotPutInPlaceGoesAndAVanishedFolderIsTold) {
  Put("out.mut", "old");
  {
    PendingFile file(Path("out.mut"));
    ASSERT_TRUE(file.Append("new"));
    EXPECT_EQ(Files(), 2);
  }
  EXPECT_EQ(Content("out.mut"), "old");
  EXPECT_EQ(Files(), 1);
  fs::create_directory(Path("away"));
  PendingFile lost(Path("away/out.mut"));
  ASSERT_TRUE(lost.Append("new"));
  fs::remove_all(Path("away"));
  EXPECT_FALSE(lost.PutInPlace());
  EXPECT_EQ(lost.Failure(), "The file " + Path("away/out.mut") + " could not be written: No such file or directory");
  PendingFile beside(Path("out.mut"));
  ASSERT_TRUE(beside.Append("new"));
  EXPECT_TRUE(beside.PutBeside(".part"));
  EXPECT_EQ(Content("out.mut"), "old");
  EXPECT_EQ(Content("out.mut.part"), "new");
}

// Whatever is saved: on a full disk the old file stays, nothing is left beside it, and it is told.
TEST_F(Pending, DataReportsAndBatchesLoseNothingOnAFullDisk) {
  Put("old.csv", "old");
  Put("old.txt", "old");
  Put("job.mut", "old");
  Put("job.min", "Lumivex 4200 batch file\nrun\n");
  const FullDisk disk(1000);
  for (const auto& [click, name] : {std::pair{"mnuSaveData", "old.csv"}, std::pair{"mnuSaveText", "old.txt"}}) {
    Do("save " + Path(name) + "\nclick " + click);
    EXPECT_EQ(LastText(), "The file " + Path(name) + " could not be written: File too large");
    EXPECT_EQ(Content(name), "old");
  }
  EXPECT_EQ(RunBatch(runner.Current(), {Path("job.min"), Path("job.mut")}), BatchEnd::Failed);
  EXPECT_EQ(LastText(), "The file " + Path("job.mut") + " could not be written: File too large");
  EXPECT_EQ(Content("job.mut"), "old");
  EXPECT_EQ(Files(), 4);
}

TEST_F(Pending, FoldersThatTakeNoFileAreTold) {
  const auto save = [&](const std::string& path) {
    Do("save " + path + "\nclick mnuSaveText");
    const std::string text = LastText();
    EXPECT_EQ(RunBatch(runner.Current(), {Path("job.min"), path}), BatchEnd::Failed);
    EXPECT_EQ(LastText(), text);
    return text;
  };
  Put("job.min", "Lumivex 4200 batch file\nrun\n");
  EXPECT_EQ(save(Path("none/x.txt")),
            "The file " + Path("none/x.txt") + " could not be written: No such file or directory");
  fs::create_directory(Path("shut"));
  EXPECT_EQ(save(Path("shut")), "The file " + Path("shut") + " could not be written: Is a directory");
  fs::permissions(Path("shut"), fs::perms::owner_read | fs::perms::owner_exec);
  if (access(Path("shut").c_str(), W_OK) != 0) {
    EXPECT_EQ(save(Path("shut/x.txt")), "The file " + Path("shut/x.txt") + " could not be written: Permission denied");
  }
}

}  // namespace
}  // namespace lumivex
