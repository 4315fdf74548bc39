#pragma once

#include "record/session.h"

namespace lumivex {

/// The run itself, New plot's and Overplot's: reads the inputs into the record, loops over what the graph asks for,
/// calls the solvers, stores the curves and draws them. PlotMode 1 on entry draws a new frame, 2 keeps it and its
/// limits; PlotMode is 1 at the end. A run that is refused leaves the old results and drawing; a stopped one stores
/// what was done, for Replot to draw.
void Overplot(Session& session);

}  // namespace lumivex
