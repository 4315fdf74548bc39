#include "record/controls.h"

#include <algorithm>

#include "record/form.h"

namespace lumivex {

Control::Control(Form& owner, std::string_view name, ControlKind kind, std::string_view tip)
    : Tip(tip), owner_(&owner), name_(name), kind_(kind) {
  owner.Register(*this);
}

bool SelectionList::Holds(std::string_view text) const {
  return std::ranges::find(Items, text) != Items.end();
}

int SelectionList::PlaceOf(std::string_view text) const {
  const auto picked = static_cast<std::size_t>(Picked);
  if (picked < Items.size() && Items[picked] == text) return Picked;
  const auto first = std::ranges::find(Items, text);
  return first == Items.end() ? -1 : static_cast<int>(first - Items.begin());
}

void OptionButton::Select() {
  for (Control* other : Owner().Controls()) {
    if (other->Kind() != ControlKind::OptionButton) continue;
    auto& option = static_cast<OptionButton&>(*other);
    if (option.Group == Group) option.Checked = &option == this;
  }
}

}  // namespace lumivex
