#pragma once

#include "record/session.h"

namespace lumivex {

/// The Debye analysis: the amplitude of the Mie series at the angle typed, and what is left of it after the terms
/// p = 0, p = 0 and 1, ... up to the limit of dlogDebyeSeq have been taken away, for DebyeDots1 and DebyeDots2. The
/// number in cboRays runs through the terms and comes back. A Stop leaves the terms that were done.
void CalculateDebyeAnalysis(Session& session);

}  // namespace lumivex
