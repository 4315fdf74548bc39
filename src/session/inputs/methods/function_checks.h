#pragma once

#include "record/session.h"

namespace lumivex {

/// Checks of the special functions for whoever works on the program: their numbers stand in place of the graph and take
/// no part in a calculation. The next plot, or a replot of what was calculated, takes their place.

/// The round trip from polar to rectangular and back for 10 to 360 degrees, then J and Y of orders 0 and 1 with their
/// derivatives at x = txtRadius.
void cmdBessel_Click(Session& session);

/// Ai and Ai' from -15 to 10.
void cmdAiry_Click(Session& session);

/// Reads a table of Bessel functions: "Bessel" on the first line, then up to 1001 numbers, into BesselDiffTable. A file
/// that begins otherwise, cannot be read or holds no number where one should be is told, and the table stays.
void read_Diff_file(Session& session);

}  // namespace lumivex
