#pragma once

#include <string_view>

namespace lumivex {

/// Version of the program, as it tells it; CMakeLists.txt takes it from here for what is installed.
inline constexpr std::string_view programVersion = "1.0";

}  // namespace lumivex
