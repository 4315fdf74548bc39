#pragma once

#include <cstddef>

#include "record/session.h"

namespace lumivex {

/// Opens the recent file of that place, from 0, as when it was chosen first. One that is not there any more is told by
/// its reader and stays in the menu: a disk may come back.
void OpenRecentFile(Session& session, std::size_t place);

/// File, Recent files: an entry by its place.
template <std::size_t place>
void mnuRecent_Click(Session& session) {
  OpenRecentFile(session, place);
}

/// Empties the menu of recent files, and the list that is kept.
void mnuClearRecent_Click(Session& session);

}  // namespace lumivex
