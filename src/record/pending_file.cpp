#include "record/pending_file.h"

#include <cerrno>
#include <system_error>

#include "record/text_file.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

/// What a path stands for when its links are followed.
struct Target {
  fs::path path;
  bool ofSystem = false;  ///< an open file of a program ("/dev/stdout"), not a place
  int error = 0;
};

bool IsOfSystem(const fs::path& path) {
  const std::string text = path.lexically_normal().string();
  return text.starts_with("/dev/fd/") || text.starts_with("/proc/");
}

Target Resolve(const fs::path& path) {
  constexpr int mostLinks = 40;
  Target target{path, IsOfSystem(path), 0};
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(target.path, error)); ++links) {
    const fs::path next = fs::read_symlink(target.path, error);
    if (error || links == mostLinks) return {path, false, error ? error.value() : ELOOP};
    target.path = target.path.parent_path() / next;  // an absolute link takes the place of all before it
    target.ofSystem = target.ofSystem || IsOfSystem(target.path);
  }
  return target;
}

/// 0 where a file may be written, or why not.
int MayNotWrite(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (file == nullptr) return errno;
  std::fclose(file);
  return 0;
}

}  // namespace

PendingFile::PendingFile(std::string_view path) : name_(path) {
  if (name_.empty()) {
    Fail(ENOENT);
    return;
  }
  const Target target = Resolve(name_);
  if (target.error != 0) {
    Fail(target.error);
    return;
  }
  place_ = target.path;
  std::error_code error;
  const fs::file_status status = fs::status(target.ofSystem ? fs::path(name_) : place_, error);
  const bool throughPipe = target.ofSystem && (fs::is_fifo(status) || fs::is_regular_file(status));
  if (fs::is_character_file(status) || throughPipe) {
    place_ = name_;
    Open("ab");
  } else if (fs::is_directory(status)) {
    Fail(EISDIR);
  } else if (fs::is_regular_file(status) || status.type() == fs::file_type::not_found) {
    const bool there = fs::exists(status);
    const int refused = there ? MayNotWrite(place_.string()) : 0;
    const auto beside = refused == 0 ? MakeUniqueFile(place_.parent_path().string()) : std::nullopt;
    if (!beside) {
      Fail(refused != 0 ? refused : errno);
      return;
    }
    beside_ = *beside;
    if (there) fs::permissions(beside_, status.permissions() & fs::perms::all, error);
    Open("wb");
  } else if (status.type() == fs::file_type::none) {
    Fail(error.value());
  } else {
    Fail("it is a pipe, a socket or a disk");
  }
}

PendingFile::~PendingFile() {
  file_.reset();
  std::error_code ignored;
  if (!beside_.empty()) fs::remove(beside_, ignored);
}

bool PendingFile::Open(const char* mode) {
  const std::string path = (beside_.empty() ? place_ : beside_).string();
  file_.reset(std::fopen(path.c_str(), mode));
  return file_ != nullptr || Fail(errno);
}

bool PendingFile::Append(std::string_view block) {
  if (file_ == nullptr) return false;
  if (std::fwrite(block.data(), 1, block.size(), file_.get()) == block.size() && std::fflush(file_.get()) == 0) {
    written_ += block.size();
    return true;
  }
  const int error = errno;
  file_.reset();
  // What the disk still took of it goes.
  std::error_code ignored;
  if (!beside_.empty()) fs::resize_file(beside_, written_, ignored);
  return Fail(error);
}

bool PendingFile::PutInPlace() {
  return MoveTo(place_);
}

bool PendingFile::PutBeside(std::string_view ending) {
  fs::path place = place_;
  place += ending;
  return MoveTo(place);
}

bool PendingFile::MoveTo(const fs::path& place) {
  if (std::FILE* file = file_.release(); file != nullptr && std::fclose(file) != 0) return Fail(errno);
  if (beside_.empty()) return failure_.empty() || !Empty();
  std::error_code error;
  fs::rename(beside_, place, error);
  if (error) return Fail(error.value());
  beside_.clear();
  return true;
}

bool PendingFile::Fail(const std::string& reason) {
  failure_ = "The file " + name_ + " could not be written: " + reason;
  return false;
}

bool PendingFile::Fail(int errorNumber) {
  return Fail(ReasonOf(errorNumber));
}

}  // namespace lumivex
