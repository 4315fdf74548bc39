#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Reads an input file that was dropped on the window and puts it to use, by its ending: .rix, .csv, .yml and .yaml as
/// the sphere's index, .spe as the light's spectrum, .dis as the distribution of sizes, which turns "Disperse" on.
/// @return false for an ending that is none of these: the file is somebody else's.
bool ReadDroppedFile(Session& session, const std::string& path);

/// Whether a file with that name is one of those.
bool TakesDroppedFile(const std::string& path);

}  // namespace lumivex
