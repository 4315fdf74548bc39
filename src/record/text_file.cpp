#include "record/text_file.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace lumivex {

std::string WriteWholeFile(std::string_view path, std::string_view content) {
  const std::filesystem::path target{std::string(path)};
  std::filesystem::path beside = target;
  beside += ".part";
  const auto failure = [&] {
    std::error_code ignored;
    std::filesystem::remove(beside, ignored);
    return "The file " + target.string() + " could not be written";
  };
  {
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    if (!file) return failure();
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.flush();
    if (!file) return failure();
  }
  std::error_code error;
  std::filesystem::rename(beside, target, error);
  return error ? failure() : std::string();
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
