#pragma once

#include "record/session.h"

namespace lumivex {

/// Before a run by a series in a beam: warns of a beam that is narrower than its theory, or spreads within the sphere,
/// and shows the limits of the series where diagnostics are on. A batch is not asked.
/// @return false where the user gave up.
bool SettleBeam(Session& session);

}  // namespace lumivex
