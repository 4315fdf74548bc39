#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumivex {

/// As much of a foreign text as a message quotes: its first 40 characters, with a question mark for each that cannot be
/// printed (control characters, bytes that are no UTF-8).
std::string Readable(std::string_view text);

/// Bytes of the UTF-8 character at the start of a text that is not empty; 0 where there is none that can be printed.
std::size_t PrintableLength(std::string_view text);

/// The same of a path, which is told whole.
std::string ReadablePath(std::string_view path);

}  // namespace lumivex
