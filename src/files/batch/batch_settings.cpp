#include "files/batch/batch_settings.h"

#include <array>
#include <charconv>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods.h"
#include "session/user_actions.h"

namespace lumivex {

namespace {

/// "txtLambda" of the main window, "dlogGaussianBeam.txtBeamXF" of a dialog; null where there is none.
Control* ControlNamed(Session& session, std::string_view name) {
  const auto point = name.find('.');
  if (point == std::string_view::npos) return session.form1.Find(name);
  Form* form = session.forms.Find(name.substr(0, point));
  return form == nullptr ? nullptr : form->Find(name.substr(point + 1));
}

void Raise(Session& session, const Control& control) {
  if (!session.events.Raise(EventName(control, "Change"))) session.events.Raise(EventName(control, "Click"));
}

void TypeInto(Session& session, std::string_view name, const std::string& text) {
  Control* control = ControlNamed(session, name);
  std::string* field = control == nullptr ? nullptr : TextOf(*control);
  if (field == nullptr) return;
  *field = text;
  // The mark of a bad input belongs to what stood there.
  if (control->BackColour == colours::BadInput) control->BackColour = colours::White;
  if (control->Kind() == ControlKind::SelectionList) static_cast<SelectionList*>(control)->Picked = -1;
  Raise(session, *control);
}

void Pick(Session& session, std::string_view name, std::string_view item) {
  Control* control = ControlNamed(session, name);
  if (control == nullptr || control->Kind() != ControlKind::SelectionList) return;
  auto& list = *static_cast<SelectionList*>(control);
  list.Text = item;
  list.Picked = list.PlaceOf(item);
  Raise(session, list);
}

void Click(Session& session, std::string_view name) {
  session.events.Raise(std::string(name) + "_Click");
}

/// The number of samples, where it is one that makes a whole distribution.
std::string Samples(double number) {
  for (const int offered : {5, 10, 20, 50})
    if (number == offered) return std::to_string(offered);
  return "10";
}

/// A value in single precision as briefly as it can be told.
std::string SingleText(float value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end.ptr};
}

}  // namespace

void SetByCommand(Session& session, const BatchCommand& command) {
  const BatchKeyword& keyword = *command.keyword;
  const std::string_view item = keyword.item.empty() ? keyword.text : keyword.item;
  switch (keyword.action) {
    case BatchAction::ChooseMethod:
      return ChooseMethod(session, item);
    case BatchAction::ChooseGraph:
      return ChooseGraph(session, item);
    case BatchAction::Click:
      return Click(session, keyword.control);
    case BatchAction::Pick:
      return Pick(session, keyword.control, item);
    case BatchAction::Type:
      return TypeInto(session, keyword.control, Shortest(command.number));
    case BatchAction::TypeSize:
      Click(session, keyword.control);
      return TypeInto(session, "txtRadius", Shortest(command.number));
    case BatchAction::TypeSamples:
      return TypeInto(session, keyword.control, Samples(command.number));
    case BatchAction::Step:
    case BatchAction::Run:
    case BatchAction::Stop:
      return;
  }
}

void PrepareSteps(Session& session, const BatchStepName& name) {
  if (!name.sizeKind.empty()) Click(session, name.sizeKind);
}

void SetStep(Session& session, const BatchStepName& name, float value) {
  const std::string text =
      name.decimals < 0 ? SingleText(value) : Shortest(RoundDecimals(double{value}, name.decimals));
  TypeInto(session, name.control, text);
}

}  // namespace lumivex
