#pragma once

#include <span>

#include "record/session.h"
#include "session/inputs/layers/layer_event.h"

namespace lumivex {

/// Fills the lists of ways through a coated sphere.
void FillPathLists(DlogCoatedSphere& dialog);

/// Shows the dialog of the coated sphere, with what its choices allow enabled.
/// @return true for OK.
bool AskCoatedSphere(Session& session);

/// Whether radii, indices and the selection of ways make a sphere that can be calculated; otherwise what is wrong is
/// marked and told.
bool CoatedSphereHolds(Session& session);

/// Writes the number of ways in different order that have the numbers N, A, B into txtDegen. Numbers of which there is
/// one way, or none, leave it as it stands; with N = 2 and A = 4 it is 2 whatever B.
void Degeneracy(Session& session);

/// Events of the dialog.
std::span<const LayerEvent> CoatedSphereEvents();

}  // namespace lumivex
