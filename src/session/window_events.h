#pragma once

#include "record/session.h"

namespace lumivex {

/// The surface has a new size: places the graph box and draws the page anew. Does nothing during a run.
void Form_Resize(Session& session);

/// A click on the surface, in surface units. Does nothing during a run.
void Form_MouseDown(Session& session, double x, double y);

/// The window closes: ends the program.
void Form_Unload(Session& session);

/// Left edge of the run's parameters for a form of that width (surface units).
double InfoLeft(double formWidth);

}  // namespace lumivex
