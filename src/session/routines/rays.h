#pragma once

#include "record/session.h"
#include "session/routines/solver_call.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// Ray optics of the selected p for CalcMethod 6 ("Descartes": intensities are added), 7 ("Young": amplitudes without
/// the quarter waves of the caustics), 8 ("Young mod": with them and the 1/x correction of the reflected ray) and 14
/// ("Young + Airy": Airy's field beside the rainbows). Diffraction is added where its box is ticked, and then Qext and
/// Qsca are those of the disc; otherwise they stay as they were. The arguments are those of BHMIE.
///
/// In an absorbing sphere rays alone have the parallel amplitude with its sign changed, as they always had; a sum with
/// diffraction, or a difference, has the physical sign. See docs/physics_rays.md.
///
/// Without a selection and without diffraction: "No rays selected", PlotMode 4.
void GO(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
        double& Qback, double& g, RunMonitor& monitor);

/// The rays of "Young mod" for the differences from a series: no diffraction, no label, the physical sign.
void GO2(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
         double& Qback, double& g, RunMonitor& monitor);

/// Airy's theory of the rainbows of the selected p >= 2 at every angle; others add nothing.
void Airy(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
          double& Qback, double& g, RunMonitor& monitor);

/// The wavefronts of the selected p by txtAngle rays each, kept in HuygensWaves and drawn beside the graph, and the
/// field that they send far away.
void Huygens(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
             double& Qsca, double& Qback, double& g, RunMonitor& monitor);

}  // namespace lumivex
