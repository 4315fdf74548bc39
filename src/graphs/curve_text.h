#pragma once

#include <string>
#include <vector>

#include "session/record/session.h"

namespace lumivex {

/// The curves of the graph on the screen as tab separated text: a heading line, then a line a point of the first
/// curve's x, with a column a curve. Curves on other x follow as blocks of their own.
std::string CurvesAsText(const Session& session);

/// The same as comma separated values, after the header lines, each behind "# ".
std::string CurvesAsCsv(const Session& session, const std::vector<std::string>& header);

}  // namespace lumivex
