#pragma once

#include "record/session.h"

namespace lumivex {

/// Calls the solver of CalcMethod for the size, index and rows that stand in the record; it fills S1, S2 and the
/// efficiencies. A method without a solver does nothing.
void CallSolver(Session& session, int rowLow, int rowHigh);

/// The same for one scattering angle (radians) exactly, into row 1 of tables of the caller; S1 and S2 of the record
/// stay.
void CallSolverAt(Session& session, double angle, AmplitudeTable& S1, AmplitudeTable& S2);

}  // namespace lumivex
