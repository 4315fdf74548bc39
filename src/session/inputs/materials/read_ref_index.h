#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Asks for a file and reads its table of refractive index for the sphere (1) or the medium (2): the format .rix, or a
/// .csv, .txt, .yml or .yaml table of another program (see materials/files/index_import). Then txtLambda_change runs.
///
/// A file that cannot be used is told with its path and, where it is damaged, the line; the table before is kept.
/// @return whether a table was read; false when the user cancelled.
bool ReadRefIndex1(Session& session);
bool ReadRefIndex2(Session& session);

/// The same for a given file.
bool ReadRefIndex1(Session& session, const std::string& path);
bool ReadRefIndex2(Session& session, const std::string& path);

}  // namespace lumivex
