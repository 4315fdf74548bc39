#pragma once

#include <string>

namespace lumivex {

/// Keeps other programs of ours from changing a file meanwhile: an empty file of its name with ".lock" stands beside it
/// as long as this lives. Whoever finds one waits; one that is older than anybody needs was left by a program that
/// ended in the middle, and is taken away.
class FileLock {
 public:
  /// Waits until the lock is to be had: a few seconds at most.
  explicit FileLock(const std::string& path);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// Empty while the lock is held, or in one sentence why it is not: the folder takes no file.
  const std::string& Failure() const { return failure_; }

 private:
  std::string lock_;
  std::string failure_;
};

}  // namespace lumivex
