#pragma once

#include <string>
#include <vector>

#include "session/record/session.h"

namespace lumivex {

/// The parameters of the last run in words, a line each.
std::vector<std::string> RunParameters(const Session& session);

/// Shows the parameters of the run in Frame6, or hides them.
void cmdInfo_Click(Session& session);

/// What the status line tells: method, terms and time of the last run, or how far the present one is.
std::string StatusText(const Session& session);

}  // namespace lumivex
