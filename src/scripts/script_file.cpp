#include "scripts/script_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "record/text_file.h"

namespace lumivex {

std::string OpenScript(std::ifstream& script, const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) return path + " is a folder, not a script";
  errno = 0;
  script.open(path, std::ios::binary);
  return script ? std::string() : path + " cannot be read: " + ReasonOf(errno);
}

bool OutputWasWritten(std::ostream& output, std::ostream& errors, std::string_view program) {
  errno = 0;
  output.flush();
  if (output) return true;
  errors << program << ": the output could not be written" << (errno == 0 ? "" : ": " + ReasonOf(errno)) << std::endl;
  return false;
}

}  // namespace lumivex
