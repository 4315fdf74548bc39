#pragma once

#include <optional>

#include "record/session.h"

namespace lumivex {

/// What the user has set by now.
InputState PresentInputs(Session& session);

/// Puts inputs back as they were. Events are held back, the page and the results stay; Replot is offered where the
/// results on show are those of these inputs.
void RestoreInputs(Session& session, const InputState& state);

/// Visits the captions that follow from the inputs, in the order of InputState::captions: visit(control, caption).
template <class Visitor>
void ForEachCaption(Form1& form, Visitor&& visit) {
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::Label) visit(*control, static_cast<Label*>(control)->Caption);
    if (control->Kind() == ControlKind::Frame) visit(*control, static_cast<Frame*>(control)->Caption);
  }
}

/// Most actions that can be undone.
inline constexpr std::size_t mostUndoSteps = 200;

/// Keeps the present inputs before an action of the user. Typing into the same control again keeps nothing new.
/// @param typedInto  name of the control typed into, or empty for an action that is not typing.
void RememberInputs(Session& session, std::string_view typedInto);

/// An action of the user that RememberInputs has kept, while its event runs.
class ActionScope {
 public:
  explicit ActionScope(UndoHistory& undo) : undo_(undo) { ++undo_.acting; }
  ~ActionScope() { --undo_.acting; }
  ActionScope(const ActionScope&) = delete;
  ActionScope& operator=(const ActionScope&) = delete;

 private:
  UndoHistory& undo_;
};

/// Inputs that are set together within one step of undo.
class UndoHold {
 public:
  explicit UndoHold(UndoHistory& undo) : undo_(undo), before_(undo.held) { undo_.held = true; }
  ~UndoHold() { undo_.held = before_; }
  UndoHold(const UndoHold&) = delete;
  UndoHold& operator=(const UndoHold&) = delete;

 private:
  UndoHistory& undo_;
  bool before_;
};

/// A dialog on the screen. What the user does in it is undone and redone in it alone. When it is closed, all of it is
/// one step of the session's: that of the action which opened it or, where a command did, one of its own.
class DialogScope {
 public:
  DialogScope(Session& session, Form& form);
  ~DialogScope();
  DialogScope(const DialogScope&) = delete;
  DialogScope& operator=(const DialogScope&) = delete;

 private:
  Session& session_;
  std::optional<InputState> before_;
};

/// Puts the inputs of before the present action back where it has chosen another graph, as when that graph's dialog is
/// cancelled. Does nothing outside an action.
void TakeBackGraph(Session& session);

/// Ends an action of the user: a step that changed nothing is forgotten, and Undo and Redo are enabled where they would
/// do something.
void OfferHistory(Session& session);

/// Puts the inputs of before the last action back, or those that were undone last; steps that changed nothing are
/// passed over. Events are held back and the results stay. While a dialog is open it is the dialog's inputs. Does
/// nothing where there is no such state.
void mnuUndo_Click(Session& session);
void mnuRedo_Click(Session& session);

}  // namespace lumivex
