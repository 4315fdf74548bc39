#pragma once

#include "record/session.h"

namespace lumivex {

/// Checks the inputs, calculates and draws a new graph. Bad input ends it with a message and the old graph stays.
void cmdNewPlot_Click(Session& session);
/// The same over the present graph, on its axes.
void cmdOverPlot_Click(Session& session);
/// Draws the stored results again with the present scale, polarisation, colour and size; calls no solver. Where the
/// stored results are not those of the inputs' graph and step, the present drawing is made anew instead.
void cmdReplot_Click(Session& session);
/// Asks whether to stop; Yes ends the run at the next look.
void cmdStop_Click(Session& session);

}  // namespace lumivex
