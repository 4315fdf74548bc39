#include "session/input_copy.h"

#include "session/undo.h"

namespace lumivex {

namespace {

/// The parts of the record that inputs put there, and those that say how the inputs are read.
void CopyInputParts(const MainFormState& from, MainFormState& to) {
  static_cast<RunState&>(to) = from;
  static_cast<OpticalState&>(to) = from;
  static_cast<AxisState&>(to) = from;
  static_cast<MaterialState&>(to) = from;
  static_cast<LightState&>(to) = from;
  static_cast<SizeState&>(to) = from;
  static_cast<ColourState&>(to) = from;
  static_cast<GraphState&>(to) = from;
  static_cast<RayState&>(to) = from;
}

}  // namespace

InputCopy::InputCopy(const Session& session)
    : surface_(session.surface->ScaleWidth(), session.surface->ScaleHeight()), open_(platform_, surface_) {}

void InputCopy::Take(Session& session) {
  Session& copy = open_.Get();
  CopyInputParts(session.state, copy.state);
  copy.state.Busy = 1;
  copy.state.RestoringSettings = 1;
  copy.state.PlotMode = 1;
  const auto from = session.forms.All(), to = copy.forms.All();
  for (std::size_t i = 0; i < from.size(); ++i) CopyLooks(*from[i], *to[i]);
  RestoreInputs(copy, PresentInputs(session));
}

void CopyLooks(const Form& from, const Form& to) {
  for (std::size_t i = 0; i < from.Controls().size(); ++i) {
    const Control& source = *from.Controls()[i];
    Control& target = *to.Controls()[i];
    target.Visible = source.Visible;
    target.Enabled = source.Enabled;
    if (source.Kind() == ControlKind::SelectionList)
      static_cast<SelectionList&>(target).Items = static_cast<const SelectionList&>(source).Items;
    if (source.Kind() == ControlKind::MenuEntry)
      static_cast<MenuEntry&>(target).Caption = static_cast<const MenuEntry&>(source).Caption;
  }
}

}  // namespace lumivex
