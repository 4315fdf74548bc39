#include "record/text_file.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>
#include <utility>

namespace lumivex {

namespace {

namespace fs = std::filesystem;

/// A file of the C library: it tells the reason of a failure, and can make a file that must not be there yet.
class OutputFile {
 public:
  OutputFile(const std::string& path, const char* mode) : file_(std::fopen(path.c_str(), mode)) {}
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile() {
    if (file_ != nullptr) std::fclose(file_);
  }
  bool IsOpen() const { return file_ != nullptr; }
  /// Writes and closes. 0, or the error's number.
  int Finish(std::string_view content) {
    int error = 0;
    if (std::fwrite(content.data(), 1, content.size(), file_) != content.size() || std::fflush(file_) != 0)
      error = errno;
    if (std::fclose(std::exchange(file_, nullptr)) != 0 && error == 0) error = errno;
    return error;
  }

 private:
  std::FILE* file_;
};

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

/// Beside the place first. `there` says whether a file stands in the place, whose mode is then kept.
int Replace(const fs::path& place, bool there, fs::perms mode, std::string_view content) {
  if (there && !OutputFile(place.string(), "r+b").IsOpen()) return errno;
  const auto beside = MakeUniqueFile(place.parent_path().string());
  if (!beside) return errno;
  std::error_code ignored, failure;
  if (there) fs::permissions(*beside, mode & fs::perms::all, ignored);
  OutputFile file(*beside, "wb");
  int error = file.IsOpen() ? file.Finish(content) : errno;
  if (error == 0) {
    fs::rename(*beside, place, failure);
    error = failure.value();
  }
  if (error != 0) fs::remove(*beside, ignored);
  return error;
}

int WriteThrough(const std::string& path, std::string_view content) {
  OutputFile file(path, "ab");
  return file.IsOpen() ? file.Finish(content) : errno;
}

}  // namespace

std::string ReasonOf(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

std::optional<std::string> MakeUniqueFile(const std::string& folder) {
  constexpr int attempts = 100;
  std::random_device chance;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    std::array<char, 32> name{};
    // Short whatever the file is called, so that a name of the greatest length has room.
    std::snprintf(name.data(), name.size(), ".lumivex-%08x%08x.part", chance(), chance());
    const std::string path = (fs::path(folder) / name.data()).string();
    if (OutputFile(path, "wbx").IsOpen()) return path;
    if (errno != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

std::string WriteWholeFile(std::string_view path, std::string_view content) {
  const std::string name(path);
  const auto failure = [&](const std::string& reason) {
    return "The file " + name + " could not be written: " + reason;
  };
  if (name.empty()) return failure(ReasonOf(ENOENT));
  const Target target = Resolve(name);
  if (target.error != 0) return failure(ReasonOf(target.error));
  std::error_code error;
  const fs::file_status status = fs::status(target.ofSystem ? fs::path(name) : target.path, error);
  const bool throughPipe = target.ofSystem && (fs::is_fifo(status) || fs::is_regular_file(status));
  int number = 0;
  if (fs::is_character_file(status) || throughPipe) {
    number = WriteThrough(name, content);
  } else if (fs::is_directory(status)) {
    number = EISDIR;
  } else if (fs::is_regular_file(status) || status.type() == fs::file_type::not_found) {
    number = Replace(target.path, fs::exists(status), status.permissions(), content);
  } else if (status.type() == fs::file_type::none) {
    number = error.value();
  } else {
    return failure("it is a pipe, a socket or a disk");
  }
  return number == 0 ? std::string() : failure(ReasonOf(number));
}

std::optional<std::string> ReadWholeFile(std::string_view path) {
  std::ifstream file{std::string(path), std::ios::binary};
  if (!file) return std::nullopt;
  std::ostringstream text;
  text << file.rdbuf();
  if (file.bad()) return std::nullopt;
  return text.str();
}

}  // namespace lumivex
