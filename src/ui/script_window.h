#pragma once

#include <string>

namespace lumivex {

/// Runs a script in a window: everything that lumivex-run does, and pictures and screenshots besides. Its output goes
/// to the standard streams.
/// @param path  the script; "-" is the standard input.
/// @return the exit code of the program.
int RunScript(const std::string& path);

}  // namespace lumivex
