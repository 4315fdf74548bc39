#pragma once

#include <string_view>

namespace lumivex {

/// Codes of the versions whose layouts differ from those before them.
inline constexpr int oldestFile = 1, newestFile = 4400;

/// The version of a results file by its first line ("Lumivex v4.4.00"): its number, 4400; 0 for any other line.
int FileVersionCode(std::string_view firstLine);

/// The line of a version.
std::string_view FileVersionLine(int code);

/// Whether a line is the first of a results file of this program, of whatever version.
bool IsOfThisProgram(std::string_view firstLine);

}  // namespace lumivex
