#pragma once

#include "record/session.h"
#include "runs/results.h"

namespace lumivex {

/// Keeps the results of a run: the record's last results, and all that scripts and files find of them under the names
/// of the record (amplitudes, efficiencies, light, sphere, rows, axis and curves). The one place that writes those
/// fields; a run that is refused, or stopped before anything was whole, does not come here and changes none of them.
void KeepResults(Session& session, Results&& results);

}  // namespace lumivex
