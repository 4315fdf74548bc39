#pragma once

#include "record/session.h"

namespace lumivex {

/// Writes the tips of the inputs whose meaning follows the graph, the method and the way in which a size is given.
void WriteTips(Session& session);

}  // namespace lumivex
