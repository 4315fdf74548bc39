#pragma once

#include <span>

#include "record/session.h"
#include "session/inputs/methods/debye_menus.h"

namespace lumivex {

/// A plane wave; angles that only a beam is seen at become 0 to 180 degrees.
void mnuPlaneWave_Click(Session& session);
/// A beam, whose place and width are asked for. Cancel leaves the light as it was.
void mnuGaussian_Click(Session& session);
void mnuTopHat_Click(Session& session);
/// Further beams, set and taken away.
void mnuCentralBeam_Click(Session& session);
void mnuMultBeams_Click(Session& session);

/// The running sums of a beam's double series, over L or over |M|.
void mnuMieGConv_Click(Session& session);
void mnuMieGConv2_Click(Session& session);

/// Without Lock's definition the tilt is 90 degrees.
void chkLock_Click(Session& session);

/// Which entries of the light and of a beam's series can be chosen now.
void ShowBeamEntries(Session& session);

/// Shows the dialog of the beam. With a warning its frame is there. Rays of "Young mod" are those of a beam on the
/// axis.
/// @return true for OK.
bool AskBeam(Session& session, std::string_view caption, std::string_view warning = {});

/// Holds the fields of dlogGaussianBeam: numbers, the half-width above 0. A bad one is marked and told.
bool BeamHolds(Session& session);

std::span<const SolverEvent> BeamEvents();

}  // namespace lumivex
