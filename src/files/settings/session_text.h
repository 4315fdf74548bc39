#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// The inputs of a session as the text of a file: who keeps it, every control that a user sets, what follows from them,
/// and the tables of the input files in use, so that nobody needs these again. The same lines as those of the inputs in
/// a results file (files/results/own_block.h).
/// @param keeper  the program that keeps it while it runs; without a process for a session that has ended.
std::string SessionText(Session& session, const ProgramIdentity& keeper);

/// The program that keeps a session; nothing where the text is none of a session.
std::optional<ProgramIdentity> KeeperOf(const std::string& text);

/// Puts the inputs of a text in the place of the session's. Events are held back, the page and the results stay.
/// @return empty, or in a few words why nothing was changed.
std::string TakeSession(Session& session, const std::string& text);

/// A text with the sum over all of it at its end, by which a damaged one is told.
std::string Sealed(std::string text);
/// The text without its seal; nothing where the sum is missing or another.
std::optional<std::string> Unsealed(std::string_view text);

}  // namespace lumivex
