#pragma once

#include "record/session.h"
#include "session/routines/solver_call.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// The Mie series of a homogeneous sphere in a plane wave: fills S1 and S2 (rows 1 to 2 NANG - 1; rows not asked for
/// are 0), Qext, Qsca, Qback and g, and leaves NSTOP, NMX, DANG, NN, Waves and SummedRows in the record. With GraphType
/// 13 the curve arrays take the running sums at SelectedAngleIndex and txtXmax the number of terms. With mnuSize ticked
/// the amplitudes are divided by x before Qext and Qback are formed.
///
/// A sphere beyond the limits (|m x| or NMX of 200000 and more) shows "Error in BHMIE sub-routine", sets PlotMode to 4
/// and leaves everything as it was. A stopped run (PlotMode 4) stores the rows that were done.
void BHMIE(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
           double& Qback, double& g, RunMonitor& monitor);

/// Writes the title of a Mie run; it names the materials unless the graph varies them or the user typed an index.
void WriteMieTitle(Session& session);

}  // namespace lumivex
