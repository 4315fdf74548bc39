#pragma once

#include <string>
#include <string_view>

namespace lumivex {

/// As much of a foreign text as a message quotes: its first 40 characters, with a question mark for each that cannot be
/// printed (control characters, bytes that are no UTF-8).
std::string Readable(std::string_view text);

/// The same of a path, which is told whole.
std::string ReadablePath(std::string_view path);

}  // namespace lumivex
