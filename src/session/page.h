#pragma once

#include "record/session.h"

namespace lumivex {

/// Draws the whole page anew on the session's surface, at its present size: frame, every curve since the last frame,
/// title and readings. Calculates nothing.
void DrawPage(Session& session);

}  // namespace lumivex
