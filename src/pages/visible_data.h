#pragma once

#include "record/session.h"

namespace lumivex {

/// Prints the efficiencies and other readings of the last run beside the inputs, at x 12000 of the surface. Prints
/// nothing on a screen of 800 pixels or less, for a Lee diagram, or with mnuDataVisible unticked.
void VisibleData(Session& session);

/// Whether it prints any.
bool ShowsReadings(const Session& session);

/// Prints the title of the run and the label of the method over the graph.
void PrintTitle(Session& session);

}  // namespace lumivex
