#include "session/user_folder.h"

#include <cstdlib>
#include <filesystem>

namespace lumivex {

namespace {

/// A folder that the environment names; relative ones count for nothing.
std::filesystem::path Named(const char* variable) {
  const char* value = std::getenv(variable);
  const std::filesystem::path folder(value == nullptr ? "" : value);
  return folder.is_absolute() ? folder : std::filesystem::path();
}

}  // namespace

std::string UserDataFolder() {
  if (const auto data = Named("XDG_DATA_HOME"); !data.empty()) return (data / "lumivex").string();
  const auto home = Named("HOME");
  return home.empty() ? std::string() : (home / ".local" / "share" / "lumivex").string();
}

}  // namespace lumivex
