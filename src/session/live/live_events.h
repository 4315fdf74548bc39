#pragma once

#include "record/session.h"

namespace lumivex {

/// Whether the graph follows what is typed; kept for the next start.
void mnuLiveGraph_Click(Session& session);

/// Opens a slider beside the input that the user is in.
void mnuSlider_Click(Session& session);

}  // namespace lumivex
