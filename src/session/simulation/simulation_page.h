#pragma once

#include "record/session.h"

namespace lumivex {

/// The simulation window as a page: the picture, the lines and marks over it, and a preview of the light.

/// Its window; the first call makes it, with the default landscape in it.
Window& SimulationWindow(Session& session);

/// Makes the page anew of the controls and the pictures, and draws it; zoom and place of the view stay.
void ShowSimulation(Session& session);

/// Draws the page as it is on its surface, which may have another size than before.
void DrawSimulation(Session& session);

/// A photograph in the place of the one before, with nothing painted on it: measures it, and puts the point where it
/// can be seen.
/// @param name  of its file, without folder.
void TakePhotograph(Session& session, Bitmap picture, const std::string& name);

/// The landscape of the start.
void TakeDefaultLandscape(Session& session);

/// The boxes as a kind of point begins with them.
void PlacePoint(Session& session);

/// Shows the circles' state on their button, and takes them away.
void HideCircles(Session& session);

}  // namespace lumivex
