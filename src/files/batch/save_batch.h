#pragma once

#include "record/pending_file.h"
#include "record/session.h"

namespace lumivex {

/// Appends the block of the last run to the output of a batch.
/// @return whether it stands there; the file tells why not.
bool Save_Batch(Session& session, PendingFile& output);

}  // namespace lumivex
