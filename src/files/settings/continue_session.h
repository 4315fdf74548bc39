#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Puts the inputs of a session that was kept in a file, and its tables of input files, in the place of the present
/// ones and runs New plot. A file of a session that is missing or damaged is told and changes nothing.
/// @return whether the session was continued.
bool ContinueSession(Session& session, const std::string& path);

/// File, Continue last session.
void mnuContinueSession_Click(Session& session);

}  // namespace lumivex
