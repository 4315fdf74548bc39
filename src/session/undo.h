#pragma once

#include "session/record/session.h"

namespace lumivex {

/// Most actions that can be undone.
inline constexpr std::size_t mostUndoSteps = 200;

/// Keeps the present inputs before an action of the user. Typing into the same control again keeps nothing new.
/// @param typedInto  name of the control typed into, or empty for an action that is not typing.
void RememberInputs(Session& session, std::string_view typedInto);

/// Puts the inputs of before the last action back, or those that were undone last; events are held back and the results
/// stay. Does nothing where there is no such state.
void mnuUndo_Click(Session& session);
void mnuRedo_Click(Session& session);

}  // namespace lumivex
