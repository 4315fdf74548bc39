#pragma once

#include "record/session.h"

namespace lumivex {

/// Paints the stored colours into the chosen quadrants of the picture. All inputs are checked before anything is
/// locked; the rows that a Stop leaves out stay as they were.
void cmdSimPlot_Click(Session& session);

/// The same with the column of the Lee diagram on show that is nearest to the drop radius.
void cmdSimLee_Click(Session& session);
/// Takes that column for the light of the window. Tells the user where there is none.
/// @return whether there is one.
bool SimLee(Session& session);

void cmdStopSim_Click(Session& session);

/// Takes the colours of the bars on show for the light of the window, and opens it.
void cmdSimulation_Click(Session& session);

/// Whether Simulation is offered: for a graph of intensity against angle at several wavelengths.
void OfferSimulation(Session& session);

/// The photograph without painting, circles and grid.
void RestorePicture(Session& session);
/// Further painting begins from the picture as it is.
void mnuKeepPicture_Click(Session& session);
void mnuInvert_Click(Session& session);
void mnuSatCol_Click(Session& session);

}  // namespace lumivex
