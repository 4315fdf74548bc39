#include "files/settings/program_identity.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "record/number_text.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

std::string FirstLine(const char* path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return std::string(Trim(line));
}

/// The name of a process as the system keeps it; empty where there is no such process.
std::string NameOf(const std::string& process) {
  return FirstLine(("/proc/" + process + "/comm").c_str());
}

}  // namespace

ProgramIdentity ThisProgram() {
  std::error_code error;
  const auto self = fs::read_symlink("/proc/self", error);
  return {FirstLine("/proc/sys/kernel/hostname"), FirstLine("/proc/sys/kernel/random/boot_id"),
          error ? std::string() : self.string()};
}

bool MayRun(const ProgramIdentity& program) {
  const ProgramIdentity here = ThisProgram();
  if (here.process.empty() || program.host != here.host) return true;
  if (program.boot != here.boot) return false;
  const std::string name = NameOf(program.process);
  return !name.empty() && name == NameOf(here.process);
}

}  // namespace lumivex
