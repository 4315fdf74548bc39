#pragma once

#include <span>
#include <string>

#include "record/session.h"

namespace lumivex {

/// Opens a file as its kind wants it: results take the place of the page, a batch file or a list, also
/// of another name, is run (the output is asked for), a table of indices, a spectrum and a size distribution are read
/// and put to use. Any other file is told. One step of undo.
/// @return whether it is a file of a kind that can be opened and, of results, was read.
bool OpenFile(Session& session, const std::string& path);

/// Files that a user drops on the window: one is opened, several at once are told.
void OpenDroppedFiles(Session& session, std::span<const std::string> paths);

}  // namespace lumivex
