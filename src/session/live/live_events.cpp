#include "session/live/live_events.h"

namespace lumivex {

void mnuLiveGraph_Click(Session& session) {
  MenuEntry& entry = session.form1.mnuLiveGraph;
  entry.Checked = !entry.Checked;
  session.settings.unsaved.liveGraph = true;
  session.events.Raise("Settings_Changed");
}

void mnuSlider_Click(Session& session) {
  session.platform.ShowSlider();
}

}  // namespace lumivex
