#pragma once

#include <string>

namespace lumivex {

/// The folder of the user's own data of this program: "lumivex" in $XDG_DATA_HOME, or in ".local/share" of the home
/// folder where that is not set, as desktops on Linux have it. Empty where the system names no home. It need not
/// be there yet.
std::string UserDataFolder();

/// The folder of the user's settings of this program: the same in $XDG_CONFIG_HOME, or in ".config" of the home folder.
std::string UserConfigFolder();

/// Where the running program lies; empty where the system does not tell.
std::string ProgramFolder();

}  // namespace lumivex
