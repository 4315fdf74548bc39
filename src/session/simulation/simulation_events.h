#pragma once

#include <span>
#include <string_view>

#include "session/event_table.h"

namespace lumivex {

struct SimulationEvent {
  std::string_view name;
  EventTable::Handler handler;
};

/// The events of the simulation window, and those that show it.
std::span<const SimulationEvent> SimulationEvents();

/// A click on the picture (surface units of its window): moves the point there, or marks a point of the arc. Where the
/// boxes hold degrees it changes nothing.
void picture1_mousedown(Session& session, double x, double y);
/// The pointer is over the picture: tells its pixel, altitude, azimuth and scattering angle.
void picture1_mousemove(Session& session, double x, double y);

/// The point is dragged: the picture follows. `begins` with the first place of a drag, so that Undo takes the whole of
/// it back.
void DragPoint(Session& session, double x, double y, bool begins);

/// The point goes by so many pixels, as the arrow keys move it. Does nothing where it has no pixel.
void NudgePoint(Session& session, double right, double down);

/// Opens a picture file in the window.
void OpenPicture(Session& session, const std::string& path);

}  // namespace lumivex
