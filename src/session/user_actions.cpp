#include "session/user_actions.h"

#include <string>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/undo.h"

namespace lumivex {

namespace {

bool Takes(const Control& control) {
  return control.Visible && control.Enabled;
}

/// The mark of a bad input belongs to what stood there.
void TakeMarkOff(Control& control) {
  if (control.BackColour == colours::BadInput) control.BackColour = colours::White;
}

/// A size that a method has refused may be good for whatever is changed.
void TakeSizeMarkOff(Session& session) {
  auto& radius = session.form1.txtRadius;
  if (IsNumber(radius.Text) && Val(radius.Text) > 0) TakeMarkOff(radius);
}

void SetByClick(Control& control) {
  if (control.Kind() == ControlKind::OptionButton) static_cast<OptionButton&>(control).Select();
  if (control.Kind() == ControlKind::CheckBox) {
    auto& box = static_cast<CheckBox&>(control);
    box.Checked = !box.Checked;
  }
}

}  // namespace

std::string EventName(const Control& control, std::string_view event) {
  std::string name(control.Owner().Name());
  name = name == "Form1" ? "" : name + ".";
  return name + std::string(control.Name()) + "_" + std::string(event);
}

bool UserTypes(Session& session, Control& control, std::string_view text) {
  std::string* field = TextOf(control);
  if (field == nullptr || !Takes(control)) return false;
  if (*field == text) return true;
  RememberInputs(session, EventName(control, "Change"));
  {
    const ActionScope acting(session.undo);
    *field = text;
    TakeMarkOff(control);
    TakeSizeMarkOff(session);
    if (control.Kind() == ControlKind::SelectionList) static_cast<SelectionList&>(control).Picked = -1;
    if (!session.events.Raise(EventName(control, "Change"))) session.events.Raise(EventName(control, "Click"));
  }
  OfferHistory(session);
  return true;
}

bool UserChooses(Session& session, SelectionList& list, std::string_view item) {
  if (!Takes(list)) return false;
  RememberInputs(session, "");
  {
    const ActionScope acting(session.undo);
    list.Text = item;
    TakeMarkOff(list);
    TakeSizeMarkOff(session);
    list.Picked = list.PlaceOf(item);
    if (!session.events.Raise(EventName(list, "Click"))) session.events.Raise(EventName(list, "Change"));
  }
  OfferHistory(session);
  return true;
}

bool UserClicks(Session& session, Control& control) {
  if (!Takes(control)) return false;
  const bool history = control.Name() == "mnuUndo" || control.Name() == "mnuRedo";
  if (control.Kind() == ControlKind::CommandButton || history) {
    session.events.Raise(EventName(control, "Click"));
  } else {
    RememberInputs(session, "");
    const ActionScope acting(session.undo);
    SetByClick(control);
    TakeSizeMarkOff(session);
    session.events.Raise(EventName(control, "Click"));
  }
  OfferHistory(session);
  return true;
}

}  // namespace lumivex
