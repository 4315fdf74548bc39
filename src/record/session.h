#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "record/comparison.h"
#include "record/drawing_surface.h"
#include "record/events.h"
#include "record/forms/dialogs.h"
#include "record/main_form_state.h"
#include "record/photograph.h"
#include "record/platform.h"
#include "record/settings.h"
#include "record/undo_history.h"

namespace lumivex {

/// A window with a drawing: its form, what is drawn, and what it is drawn on.
struct Window {
  Form* form = nullptr;
  DrawingSurface* surface = nullptr;  ///< null for a dialog with a picture: whoever shows it paints the page there
  Page page = {};
};

/// What the status line tells of the results on show in place of how they were calculated.
struct Remark {
  std::string text;
  std::weak_ptr<const Results> of;  ///< it is told while these are the last ones
};

/// What the present inputs would draw, on show in the place of the page while nobody has asked for it. It is no part of
/// the record: results, page, tables and files are those of the last run that was asked for.
struct Preview {
  std::shared_ptr<const Results> results;
  Page page;
};

/// What every routine acts on: the record, the forms, the outside world, the windows and the events.
/// Plain data; OpenSession (session/session_start) ties one together and starts it.
struct Session {
  Session(Platform& outsideWorld, DrawingSurface& graphSurface, Events& eventTable);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  MainFormState state;
  Forms forms;
  Form1& form1 = forms.form1;
  Platform& platform;
  std::deque<Window> windows;                          ///< the main one first
  DrawingSurface*& surface = windows.front().surface;  ///< of the main window; never null
  Page& page = windows.front().page;                   ///< of the main window
  Events& events;
  std::optional<Preview> preview;  ///< made in windows alone (session/live); scripts never have one
  UndoHistory undo;
  Comparison comparison;
  Settings settings;
  Remark remark;
  SimulationPictures simulation;
  std::shared_ptr<const Results> impulseResults;      ///< that the window of one angle shows; null before the first
  std::weak_ptr<const Results> impulseSource;         ///< the picture that they are a row of
  std::unique_ptr<DrawingSurface> impulseSurface;     ///< of that window where no window system has one
  std::unique_ptr<DrawingSurface> simulationSurface;  ///< of the simulation window where no window system has one
};

}  // namespace lumivex
