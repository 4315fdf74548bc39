#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumivex {

/// Writes a file whole: beside its place first, then renamed, so that a failure leaves the old file as it was.
/// @return empty, or in one sentence what went wrong.
std::string WriteWholeFile(std::string_view path, std::string_view content);

/// The whole content of a file, or nothing where it cannot be read.
std::optional<std::string> ReadWholeFile(std::string_view path);

}  // namespace lumivex
