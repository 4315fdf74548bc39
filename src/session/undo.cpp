#include "session/undo.h"

#include "session/graph_types.h"
#include "session/input_events.h"

namespace lumivex {

namespace {

/// Visits the captions that follow from the inputs.
template <class Visitor>
void ForEachCaption(Form1& form, Visitor&& visit) {
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::Label) visit(static_cast<Label*>(control)->Caption);
    if (control->Kind() == ControlKind::Frame) visit(static_cast<Frame*>(control)->Caption);
  }
}

InputState Present(Session& session) {
  const auto& s = session.state;
  InputState state{{}, s.GraphType, s.GraphSubType, s.CalcMethod, s.SphereName, s.MediumName, {}};
  for (const Form* form : session.forms.All()) state.forms.push_back(form->Snapshot());
  ForEachCaption(session.form1, [&](const std::string& caption) { state.captions.push_back(caption); });
  return state;
}

void Restore(Session& session, const InputState& state) {
  auto& s = session.state;
  s.LoadingFlag = 1;
  const auto forms = session.forms.All();
  for (std::size_t i = 0; i < forms.size() && i < state.forms.size(); ++i) forms[i]->Restore(state.forms[i]);
  s.GraphType = state.graphType;
  s.GraphSubType = state.graphSubType;
  s.CalcMethod = state.calcMethod;
  s.SphereName = state.sphereName;
  s.MediumName = state.mediumName;
  ShowFamilyInputs(session);
  std::size_t i = 0;
  ForEachCaption(session.form1, [&](std::string& caption) {
    if (i < state.captions.size()) caption = state.captions[i++];
  });
  for (Control* control : session.form1.Controls()) control->BackColour = colours::White;
  s.LoadingFlag = 0;
  Inputs_Changed(session);
}

/// Moves one state over: the present one onto `to`, the last of `from` into the inputs.
void Step(Session& session, std::vector<InputState>& from, std::vector<InputState>& to) {
  if (from.empty()) return;
  to.push_back(Present(session));
  const InputState state = std::move(from.back());
  from.pop_back();
  Restore(session, state);
  session.undo.typedInto.clear();
}

}  // namespace

void RememberInputs(Session& session, std::string_view typedInto) {
  auto& undo = session.undo;
  if (undo.held || session.state.LoadingFlag != 0) return;
  const bool goesOn = !typedInto.empty() && undo.typedInto == typedInto;
  undo.typedInto = typedInto;
  if (goesOn) return;
  undo.past.push_back(Present(session));
  if (undo.past.size() > mostUndoSteps) undo.past.erase(undo.past.begin());
  undo.future.clear();
}

void mnuUndo_Click(Session& session) {
  Step(session, session.undo.past, session.undo.future);
}

void mnuRedo_Click(Session& session) {
  Step(session, session.undo.future, session.undo.past);
}

}  // namespace lumivex
