#include "record/text_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

#include "record/pending_file.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

/// Makes a file that must not be there yet. Whether it was made; errno tells why not.
bool MakeNew(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "wbx");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
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
    if (MakeNew(path)) return path;
    if (errno != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

std::string WriteWholeFile(std::string_view path, std::string_view content) {
  PendingFile file(path);
  if (file.Failure().empty() && file.Append(content)) file.PutInPlace();
  return file.Failure();
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
