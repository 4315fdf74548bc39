#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Columns of a file by number from 1; an error column of 0 for none. Nothing said: the first is the horizontal axis,
/// the second the values and, in a file of three columns or with a name that tells of errors, the next the errors.
struct DataColumns {
  int x = 0, y = 0, error = 0;
  bool said = false;
};

/// Reads a file of measured data over the page, with columns that are said or guessed. What is wrong with lines that
/// were passed over is told in a message, and the other lines are taken.
/// @return empty, or in one sentence why there is nothing to take; then nothing has changed.
std::string OpenMeasured(Session& session, const std::string& path, const DataColumns& columns,
                         const std::string& name);

/// Asks for a file and for its columns.
void mnuOpenData_Click(Session& session);

}  // namespace lumivex
