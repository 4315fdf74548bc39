#pragma once

#include <optional>

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// All that a run is asked, read from the controls and dialogs once, after the range check: the one way from texts to
/// numbers. The record is read where a dialog has put its numbers there (light and distance, tables of files), and
/// stays as it is.
///
/// Three inputs are put right on the way, as a user would: steps of a spectrum finer than 0.01 degrees become 0.01,
/// "RGB" ticks chkComponents, a Lee diagram of a size distribution is told of and chooses "Mono".
///
/// @return nothing after a refusal that was told: an input of the two-angle chart.
std::optional<RunRequest> ReadRun(Session& session);

}  // namespace lumivex
