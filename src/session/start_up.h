#pragma once

#include "record/session.h"

namespace lumivex {

/// Opens a session: fills the lists, sets the defaults, places the graph and runs the first plot, so that the program
/// opens on a finished Mie calculation. Runs once.
void Form_Load(Session& session);

/// Restores the parameters of the start (band, water at 5 C in vacuum, one wavelength of 0.65 um, radius 10 um, true
/// colours, both polarisations). The graph already drawn stays.
void cmdDefault_Click(Session& session);

}  // namespace lumivex
