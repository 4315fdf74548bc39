#include "record/forms/dialogs.h"

#include "record/number_text.h"

namespace lumivex {

Forms::Forms() = default;
Forms::~Forms() = default;

Form* Forms::Find(std::string_view name) {
  for (Form* form : All())
    if (SameName(form->Name(), name)) return form;
  return nullptr;
}

}  // namespace lumivex
