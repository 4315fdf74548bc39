#include "record/form.h"

#include <algorithm>

#include "record/number_text.h"

namespace lumivex {

Control* Form::Find(std::string_view name) const {
  const auto found = std::ranges::find_if(controls_, [name](const Control* c) { return SameName(c->Name(), name); });
  return found == controls_.end() ? nullptr : *found;
}

FormSnapshot Form::Snapshot() const {
  FormSnapshot snapshot;
  for (const Control* control : controls_) snapshot.emplace_back(control->Name(), control->Value());
  return snapshot;
}

void Form::Restore(const FormSnapshot& snapshot) {
  for (const auto& [name, value] : snapshot)
    if (Control* control = Find(name); control && control->Value() != value) {
      control->SetValue(value);
      // The mark belonged to what stood there.
      if (control->BackColour == colours::BadInput) control->BackColour = colours::White;
    }
}

}  // namespace lumivex
