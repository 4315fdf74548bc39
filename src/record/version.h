#pragma once

#include <string_view>

namespace lumivex {

/// Version of the program, as it tells it; the same as that of the project in CMakeLists.txt.
inline constexpr std::string_view programVersion = "1.0";

}  // namespace lumivex
