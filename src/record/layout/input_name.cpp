#include "record/layout/input_name.h"

#include <span>
#include <string_view>

#include "record/form.h"
#include "record/layout/panel_layout.h"

namespace lumivex {

namespace {

bool IsInput(const Control& control) {
  return control.Kind() == ControlKind::TextInput || control.Kind() == ControlKind::SelectionList;
}

/// A label that names what stands behind it. One with a colon tells a value of its own ("Medium: Vacuum"), "+ i" joins
/// two inputs.
bool Names(const Control& label) {
  const std::string_view caption = label.ShownCaption();
  return !caption.empty() && caption.front() != '+' && caption.find(':') == std::string_view::npos;
}

/// The caption that leads to the input in these lines; empty where none does.
std::string NameIn(std::span<const LayoutLine> lines, const Control& input) {
  const Control* above = nullptr;  // a label that has the line above to itself
  for (const LayoutLine& line : lines) {
    const Control* label = above;
    int place = 0, count = 0;
    for (const auto name : line.controls) {
      const Control* control = name.empty() ? nullptr : input.Owner().Find(name);
      if (control == nullptr) continue;
      ++count;
      if (control->Kind() == ControlKind::Label) {
        label = control;
        place = 0;
      }
      if (IsInput(*control)) ++place;
      if (control != &input) continue;
      if (label == nullptr || !Names(*label)) return "";
      const std::string caption(label->ShownCaption());
      return place > 1 ? caption + " (" + std::to_string(place) + ")" : caption;
    }
    above = count == 1 ? label : nullptr;
  }
  return "";
}

}  // namespace

std::string NameOfInput(const Control& input) {
  std::string name;
  if (input.Owner().Name() == "Form1")
    for (const FrameLayout& frame : MainPanel())
      if (name.empty()) name = NameIn(frame.lines, input);
  for (const DialogLayout& dialog : Dialogs())
    if (name.empty() && dialog.form == input.Owner().Name()) name = NameIn(dialog.lines, input);
  if (name.empty()) name = input.Tip.empty() ? std::string(input.Name()) : input.Tip;
  return name;
}

}  // namespace lumivex
