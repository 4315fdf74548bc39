#pragma once

#include <string>

namespace lumivex {

/// The folder of the sources, where tables and examples stand that tests read.
std::string SourceFolder();

}  // namespace lumivex
