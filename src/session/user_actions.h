#pragma once

#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// What a user does to a control: its value is set, then its event is raised ("txtRadius_Change" on the main window,
/// "dlogTemp.txtTemp_Change" on a dialog). A control that is disabled or hidden takes nothing: false.

/// Types into an input or a list with a box. A list whose table of events has no Change raises its Click instead.
bool UserTypes(Session& session, Control& control, std::string_view text);

/// Picks an item of a list.
bool UserChooses(Session& session, SelectionList& list, std::string_view item);

/// Clicks a button, menu entry, option or check box; options and check boxes are set first, menu entries by their
/// event.
bool UserClicks(Session& session, Control& control);

/// "txtRadius_Change", with the form's name in front unless it is the main window.
std::string EventName(const Control& control, std::string_view event);

}  // namespace lumivex
