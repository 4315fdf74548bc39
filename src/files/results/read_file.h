#pragma once

#include <istream>
#include <string>

#include "record/session.h"
#include "session/driver/display_run.h"

namespace lumivex {

/// Reads a results file into the session: its inputs, its results and the look of their page, all at once when the
/// whole file has been read. A file that cannot be read is told of and changes nothing.
/// @param onto  the page on the screen: the results go over it, in its limits and its look, as an overplot does.
/// @return whether the file was read.
bool ReadResultsFile(Session& session, const std::string& path, Onto onto);

/// The same from the content of a file.
bool ReadResults(Session& session, std::istream& stream, Onto onto);

/// Asks for a results file and reads it, over the present page where OverplotFromFile is 1.
void Read_File(Session& session);

/// Reads a results file in the place of the present page.
void mnuRead_Click(Session& session);
/// Reads a results file over the present page; while one is being read it calls that off.
void mnuOverplot_Click(Session& session);

/// Whether a path ends as results files do.
bool IsResultsPath(const std::string& path);

}  // namespace lumivex
