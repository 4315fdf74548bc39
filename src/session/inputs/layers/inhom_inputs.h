#pragma once

#include <span>

#include "record/session.h"
#include "session/inputs/layers/layer_event.h"

namespace lumivex {

/// Shows the dialog of the inhomogeneous sphere with the frame of its equation and the drawing of the profile.
/// @return true for OK.
bool AskInhomSphere(Session& session);

/// Whether the profile has an index above 0 in every layer. Otherwise the field of its parameter, and the label of the
/// sphere, are marked, and the field's tip tells where; nothing is said aloud.
bool ProfileHolds(Session& session);

/// Write the equation of the chosen profile into its frame, mark what is wrong with it and draw it: for any of them,
/// and for the exponential, the polynomial, the modified Luneburg lens and the Luneburg lens.
void Equation(Session& session);
void Equation1(Session& session);
void Equation2(Session& session);
void Equation3(Session& session);
void Equation4(Session& session);

/// Draws the profile in its dialog, where "Graph update" is ticked.
void GraphPlot(Session& session);

/// What a dialog with OK goes on to: a run of the profile where the graph is one against angle, over the last curves
/// unless they are to be overwritten.
void RunProfile(Session& session);

/// Events of the dialog.
std::span<const LayerEvent> InhomSphereEvents();

}  // namespace lumivex
