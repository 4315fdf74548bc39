#pragma once

#include <functional>
#include <string>

#include "files/settings/ini_text.h"
#include "record/session.h"

namespace lumivex {

/// The configuration's file: windows, recent files and the speed of the machine, whatever outlives the program.
inline constexpr const char* iniName = "Lumivex.ini";

/// The folder that the configuration is kept in: the program's own where its file may be written, else the user's,
/// which is made. Empty where neither takes a file.
std::string SettingsFolder(const std::string& programFolder, const std::string& userFolder);

/// Takes over what the configuration says (session.settings and the calibration); what cannot be read of it stays as it
/// is. Without a folder there is nothing to read.
void ReadIni(Session& session);

/// Writes what has changed in this program (session.settings.unsaved) and leaves the rest as it stands in the file,
/// where another program may have put it meanwhile. Nothing is said of a failure: what was not written is tried again
/// with the next change.
void Save_ini(Session& session);

/// Reads a configuration, has it changed and writes it, while no other program of ours may.
/// @return empty, or in one sentence what went wrong; the file is then as it was.
std::string iniFileUpdate(const std::string& path, const std::function<void(IniText&)>& change);

}  // namespace lumivex
