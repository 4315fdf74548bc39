#pragma once

#include "session/record/session.h"

namespace lumivex {

/// Calls the solver of CalcMethod for the size, index and rows that stand in the record; it fills S1, S2 and the
/// efficiencies. A method without a solver does nothing.
void CallSolver(Session& session, int rowLow, int rowHigh);

}  // namespace lumivex
