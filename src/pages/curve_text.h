#pragma once

#include <span>
#include <string>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// The numbers behind the picture, as far as it shows them: x once for curves that share it, then a column a curve,
/// with a line of names above. Values that were not computed are empty. Numbers read back as the same values.

/// Parted by tabs, as a spreadsheet takes them from the clipboard; empty without a curve.
std::string CurvesAsText(const Session& session);

/// Parted by commas, after the header lines, each made a comment with "# ".
std::string CurvesAsCsv(const Session& session, std::span<const std::string> headerLines);

}  // namespace lumivex
