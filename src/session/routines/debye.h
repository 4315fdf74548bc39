#pragma once

#include "record/session.h"
#include "session/routines/solver_call.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// The Debye series of a homogeneous sphere in a plane wave: the terms p that are selected, in the same form as BHMIE.
/// Leaves NSTOP, NMX, Waves, SummedRows, PartialWaveFirst and PartialWaveLast in the record.
///
/// Where txtRefractImag reads 0, Qext = 4 Re S(0)/x^2 of the selected terms and Qsca = Qext; otherwise both stay as
/// they were. Qback and g are those of the selected terms. With p = 0 alone and x mIm above 700 the Mie series takes
/// over, for it is that term then.
///
/// Without a selection, or beyond the limits of the series, a message is shown, PlotMode is 4 and everything stays.
/// With mnuSWsub ticked the rays of GO2 are subtracted.
void DebyeSeries(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                 double& Qsca, double& Qback, double& g, RunMonitor& monitor);

/// The Debye series or, with mnuMieDebye or mnuGODebye ticked, the Mie series (into S1b, S2b) or the rays less the
/// series: what the selected terms leave out.
void DebyeDifference(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                     double& Qsca, double& Qback, double& g, RunMonitor& monitor);

}  // namespace lumivex
