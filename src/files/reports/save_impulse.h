#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// The curves of the window of one angle as a text: what they are of, then time and intensities, parted by tabs. With
/// "Save all?" the picture that they are a row of follows, both polarisations and their mean by angle and time.
/// @return empty, or in one sentence what went wrong.
std::string Save_ImpulsePlot2(Session& session, const std::string& path);

/// Asks for a name and saves them.
void ImpulsePlot_mnuSave_Click(Session& session);

}  // namespace lumivex
