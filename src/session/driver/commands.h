#pragma once

#include "record/session.h"
#include "runs/request.h"
#include "session/driver/display_run.h"

namespace lumivex {

/// Checks the inputs, calculates and draws a new graph. Bad input ends it with a message and the old graph stays.
void cmdNewPlot_Click(Session& session);
/// Runs a request that was made of the last results in place of the inputs, and draws a new graph.
void RunAgain(Session& session, const RunRequest& request);
/// The same over the present graph, on its axes.
void cmdOverPlot_Click(Session& session);
/// Draws the stored results again with the present scale, polarisation, colour and size; calls no solver. Where the
/// stored results are not those of the inputs' graph and step, the present drawing is made anew instead.
void cmdReplot_Click(Session& session);
/// Reads the wavelength list and the method and holds the inputs against the rules, as the commands do before a run: a
/// fault is marked and told. The limits of the results stay.
bool InputsHold(Session& session);
/// Keeps and shows results that no run of this session made, in place of its last ones, and offers the commands that
/// go with them. Inputs are the caller's.
void TakeResults(Session& session, Results&& results, Onto onto);
/// Asks whether to stop; Yes ends the run at the next look.
void cmdStop_Click(Session& session);

}  // namespace lumivex
