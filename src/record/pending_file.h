#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace lumivex {

/// A file that is being written: it grows under a name of its own beside its place and is put there when it is done, so
/// that no half of it is ever found there. Whoever ends before that leaves what stood in the place as it was.
///
/// Links are followed: the file that a link names is written and the link stays. A file keeps its mode; one that may
/// not be written is not replaced either. What is no regular file is never replaced: a character device, and what is
/// open already ("/dev/stdout", a pipe of the shell), is written through, at once; a folder, a named pipe, which would
/// wait for a reader, and a disk are refused.
class PendingFile {
 public:
  /// Finds the place and opens the file beside it. Failure tells where that did not go well.
  explicit PendingFile(std::string_view path);
  /// What was not put in its place is taken away.
  ~PendingFile();
  PendingFile(const PendingFile&) = delete;
  PendingFile& operator=(const PendingFile&) = delete;

  /// Appends a block: all of it or, on a full disk, nothing. @return whether it stands in the file.
  bool Append(std::string_view block);
  /// Puts the file in its place, with all blocks that were appended. @return whether it stands there.
  bool PutInPlace();
  /// The same under another name in the folder of its place. A file that is written through has no other place: its
  /// blocks stay where they are.
  bool PutBeside(std::string_view ending);

  /// Whether no block has been appended.
  bool Empty() const { return written_ == 0; }
  /// In one sentence what went wrong last, with the system's reason; empty while all is well.
  const std::string& Failure() const { return failure_; }

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  bool Open(const char* mode);
  bool MoveTo(const std::filesystem::path& place);
  bool Fail(const std::string& reason);
  bool Fail(int errorNumber);

  std::string name_;              ///< as the caller knows it
  std::filesystem::path place_;   ///< with links followed
  std::filesystem::path beside_;  ///< empty for a file that is written through, and once it is in its place
  std::unique_ptr<std::FILE, Close> file_;
  std::uintmax_t written_ = 0;  ///< bytes of whole blocks
  std::string failure_;
};

}  // namespace lumivex
