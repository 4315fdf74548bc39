#pragma once

#include "record/session.h"
#include "runs/results.h"
#include "session/driver/display_run.h"

namespace lumivex {

/// The run itself, New plot's and Overplot's: runs the request and keeps and shows what comes of it. A fresh page takes
/// its limits from the inputs, the page on the screen keeps its own. A run that is refused leaves the old results and
/// drawing; of a stopped one what was done is kept and drawn. PlotMode is 1 at the end.
void Overplot(Session& session, const RunRequest& request, Onto onto);

/// Runs a request whose results are for another window: progress, Stop and locks as for any run, but page and last
/// results of the main window stay.
RunEnd RunBeside(Session& session, const RunRequest& request);

/// Keeps results that are whole and draws them.
void ShowResults(Session& session, Results&& results, Onto onto);

}  // namespace lumivex
