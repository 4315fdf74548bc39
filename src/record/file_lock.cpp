#include "record/file_lock.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>

#include "record/text_file.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto longestHold = 3s;  ///< reading and writing a small file takes milliseconds
constexpr auto longestWait = 10s;
constexpr auto pause = 5ms;

/// 0, or the error's number: EEXIST where somebody has the lock.
int Make(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "wbx");
  if (file == nullptr) return errno;
  std::fclose(file);
  return 0;
}

/// Takes a lock away that nobody holds any more. It is renamed first: of two that do so one alone finds it, and a lock
/// that was made meanwhile is put back.
void TakeAwayIfLeft(const std::string& path) {
  std::error_code error;
  const auto made = fs::last_write_time(path, error);
  if (error || fs::file_time_type::clock::now() - made < longestHold) return;
  const auto aside = MakeUniqueFile(fs::path(path).parent_path().string());
  if (!aside) return;
  fs::rename(path, *aside, error);
  if (!error && fs::last_write_time(*aside, error) != made) return fs::rename(*aside, path, error);
  fs::remove(*aside, error);
}

}  // namespace

FileLock::FileLock(const std::string& path) : lock_(path + ".lock") {
  const auto end = std::chrono::steady_clock::now() + longestWait;
  int error = Make(lock_);
  for (; error == EEXIST && std::chrono::steady_clock::now() < end; error = Make(lock_)) {
    TakeAwayIfLeft(lock_);
    std::this_thread::sleep_for(pause);
  }
  if (error == 0) return;
  failure_ = "The file " + path +
             " could not be written: " + (error == EEXIST ? "another program keeps it locked" : ReasonOf(error));
  lock_.clear();
}

FileLock::~FileLock() {
  std::error_code ignored;
  if (!lock_.empty()) fs::remove(lock_, ignored);
}

}  // namespace lumivex
