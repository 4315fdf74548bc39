#pragma once

#include <span>
#include <string_view>

#include "session/event_table.h"

namespace lumivex {

struct ImpulseEvent {
  std::string_view name;
  EventTable::Handler handler;
};

/// The events of dlogImpulse, dlogTimePlot and the window ImpulsePlot, and those that show them. That which writes a
/// text file stands among those of files.
std::span<const ImpulseEvent> ImpulseEvents();

/// Repeats the last picture of angle and time as its correlation with the pulse, or takes the correlation away.
void CCF(Session& session);

/// Marks rays, and surface waves, over the picture of angle and time; tells where there is none.
void TimePlot(Session& session);
void TimePlotSW(Session& session);

/// A click on the picture of angle and time (surface units) shows the response at its angle.
/// @return whether the place is within the picture.
bool ClickOnPicture(Session& session, double x, double y);

}  // namespace lumivex
