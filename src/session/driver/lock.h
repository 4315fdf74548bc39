#pragma once

#include "record/session.h"

namespace lumivex {

/// Disables the lists and commands that must not act during a run.
void LockON(Session& session);
/// Enables them again; brightness and Lee scale only for graphs that use them.
void LockOFF(Session& session);

}  // namespace lumivex
