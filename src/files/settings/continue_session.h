#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Puts the inputs of a session that was kept in a file in the place of the present ones, reads its input files again
/// and runs New plot. An input file that is not to be had any more is told, and its use goes back to the start's:
/// water, sunlight, log-normal sizes. A file of a session that is missing or damaged is told and changes nothing.
/// @return whether the session was continued.
bool ContinueSession(Session& session, const std::string& path);

/// File, Continue last session.
void mnuContinueSession_Click(Session& session);

}  // namespace lumivex
