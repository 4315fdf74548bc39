#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumivex {

/// Writes a file whole, or leaves the old one as it was: beside its place first, then renamed (see PendingFile, which
/// tells what may be written). Of two programs that write one file at once one has its content there, never a mixture.
/// @return empty, or in one sentence what went wrong, with the system's reason.
std::string WriteWholeFile(std::string_view path, std::string_view content);

/// The whole content of a file, or nothing where it cannot be read.
std::optional<std::string> ReadWholeFile(std::string_view path);

/// A name in that folder which nobody else has: the file is made, empty, and may be written and renamed.
/// @return the path, or nothing where the folder takes no file: errno tells why.
std::optional<std::string> MakeUniqueFile(const std::string& folder);

/// What the system says of an error number: "No space left on device".
std::string ReasonOf(int errorNumber);

}  // namespace lumivex
