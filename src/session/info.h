#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// The parameters of the run that the graph on the screen shows, in words, a line each. What has been chosen since, or
/// what a run calculated that is not drawn yet, is not in them.
std::vector<std::string> RunParameters(const Session& session);

/// Shows the parameters of the run in Frame6, or hides them.
void cmdInfo_Click(Session& session);

/// What the status line begins with while results of a file are on show and their parameters are not.
inline constexpr std::string_view informationOff = "Information OFF";

/// What the status line tells: which run of a batch it is; how far the present run is; between runs the wavelengths
/// that would work, where the chosen axis goes beyond those of a material; otherwise the remark on the results on show,
/// or method, terms and time of the last run.
std::string StatusText(const Session& session);

}  // namespace lumivex
