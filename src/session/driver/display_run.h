#pragma once

#include "record/session.h"
#include "runs/results.h"

namespace lumivex {

/// Where results are drawn: on a page of their own, or over the one on the screen, in its limits.
enum class Onto { FreshPage, PageOnScreen };

/// Shows the last results, a curve read from a file always over the page on the screen. Yields first; where that
/// brings a Stop, the old page stays.
void DisplayRun(Session& session, Onto onto);

/// The same without a yield: also what a Stop has left.
void ShowLastResults(Session& session, Onto onto);

/// Makes the page of the last results anew where it is a map, with the look that is asked for now; any other page has
/// its look renewed.
void RedrawMap(Session& session);

/// Shows results on a page of their own, without a yield: those of the part of a run that is done.
void DrawResults(Session& session, const Results& results);

}  // namespace lumivex
