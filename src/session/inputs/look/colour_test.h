#pragma once

#include "record/session.h"

namespace lumivex {

/// The false colours that the graph chosen and the brightness ask for: greys where the number in cboBright is not
/// positive; the ramp of ratios for the maps of Q; otherwise the rainbow of a logarithm below zero.
Colour FalseColourOf(const Session& session, double value);

/// Draws the key of the false colours over the graph, from 0 at the left to -7 at the right, in a black box.
void cmdColourTest_Click(Session& session);

}  // namespace lumivex
