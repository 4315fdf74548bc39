#include "session/user_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace lumivex {

namespace {

/// A folder that the environment names; relative ones count for nothing.
std::filesystem::path Named(const char* variable) {
  const char* value = std::getenv(variable);
  const std::filesystem::path folder(value == nullptr ? "" : value);
  return folder.is_absolute() ? folder : std::filesystem::path();
}

/// "lumivex" in the folder that a variable names, else in one of the home folder.
std::string UserFolder(const char* variable, const std::filesystem::path& inHome) {
  if (const auto named = Named(variable); !named.empty()) return (named / "lumivex").string();
  const auto home = Named("HOME");
  return home.empty() ? std::string() : (home / inHome / "lumivex").string();
}

}  // namespace

std::string UserDataFolder() {
  return UserFolder("XDG_DATA_HOME", std::filesystem::path(".local") / "share");
}

std::string UserConfigFolder() {
  return UserFolder("XDG_CONFIG_HOME", ".config");
}

std::string ProgramFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : program.parent_path().string();
}

}  // namespace lumivex
