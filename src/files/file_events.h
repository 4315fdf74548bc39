#pragma once

#include "session/open_session.h"

namespace lumivex {

/// Adds the events of the entries and dialogs that read and write files to a session that is being opened. Whoever
/// opens one calls it before Form_Load: the window, and the runner of scripts, which serves the console and tests.
void AddFileEvents(OpenSession& open);

}  // namespace lumivex
