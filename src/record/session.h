#pragma once

#include "record/drawing_surface.h"
#include "record/events.h"
#include "record/forms/dialogs.h"
#include "record/main_form_state.h"
#include "record/platform.h"
#include "record/undo_history.h"

namespace lumivex {

/// What every routine acts on: the record, the forms, the outside world, the surface of the graph and the events.
/// Plain data; OpenSession (session/session_start) ties one together and starts it.
struct Session {
  Session(Platform& outsideWorld, DrawingSurface& graphSurface, Events& eventTable)
      : platform(outsideWorld), surface(&graphSurface), events(eventTable) {}
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  MainFormState state;
  Forms forms;
  Form1& form1 = forms.form1;
  Platform& platform;
  DrawingSurface* surface;  ///< never null; exchanged while a picture is drawn anew on another surface
  Events& events;
  UndoHistory undo;
};

}  // namespace lumivex
