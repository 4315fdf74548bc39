#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Asks in dlogDistOption what the results shall stand for, then for a size file (.dis), and reads it into the
/// SizeTable fields of the record.
///
/// A file that cannot be used is told ("Error in radius distribution file: ", its path and, where it is damaged, the
/// line); the table before is kept. A cancelled file dialog puts cboDistrib back to "Log-normal".
/// @return whether a table was read.
bool ReadSizeDist(Session& session);

/// The same for a given file.
bool ReadSizeDist(Session& session, const std::string& path);

}  // namespace lumivex
