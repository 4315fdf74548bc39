#pragma once

#include "record/session.h"
#include "session/routines/solver_call.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// The methods in closed form, each with the arguments of BHMIE.

/// Diffraction of the sphere's disc, by DiffractionVariant: 0 the plain form, 1 the sum over partial waves. Where
/// txtRefractImag reads 0, Qext = Qsca = 4 S(0)/x^2.
void Diffraction(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                 double& Qsca, double& Qback, double& g, RunMonitor& monitor);

/// A sphere much smaller than the wavelength, without absorption. Qsca comes from the integral over the angles where
/// the rows cover all of them, otherwise from its closed form; Qext = Qsca, but |4 S1(0)/x^2| with mnuHidden ticked.
void Rayleigh(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
              double& Qsca, double& Qback, double& g, RunMonitor& monitor);

/// The field of txtAngle strips across an aperture as wide as the sphere.
void Aperture(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
              double& Qsca, double& Qback, double& g, RunMonitor& monitor);

/// The glory of a ring with the amplitudes cboQmin and cboQmax, near 180 degrees.
void vdh(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
         double& Qback, double& g, RunMonitor& monitor);

}  // namespace lumivex
