#pragma once

#include "files/settings/program_identity.h"
#include "record/session.h"

namespace lumivex {

/// The file of the session that ended last, in the folder of the settings: what Continue last session reads.
inline constexpr const char* lastSessionName = "Lumivex.session";

/// Keeps the inputs of a session that has been loaded from now on: after each run in a file of this program's own, at
/// the end as the last session. What is there already of a program that has ended without saying so becomes the last
/// session. Does nothing where there is no folder for settings.
/// @return whether a program has ended so, and its session may be offered to the user.
bool BeginSession(Session& session, const ProgramIdentity& program);

/// A run has ended: writes the inputs, so that they outlive a crash; not those of a batch. Nothing is said of a
/// failure.
void Run_Ended(Session& session);

/// The program ends: its inputs become the last session, unless they are still those of the start.
void EndSession(Session& session);

}  // namespace lumivex
