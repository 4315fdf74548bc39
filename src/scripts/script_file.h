#pragma once

#include <fstream>
#include <ostream>
#include <string>
#include <string_view>

namespace lumivex {

/// What the programs that run scripts have in common at their start and end.

/// Opens a script: a file, or a pipe of the shell.
/// @return empty, or in one sentence why it cannot be read: a folder is none.
std::string OpenScript(std::ifstream& script, const std::string& path);

/// Whether all that was printed has reached its place (a disk may be full, a stream closed); else it is told.
bool OutputWasWritten(std::ostream& output, std::ostream& errors, std::string_view program);

}  // namespace lumivex
