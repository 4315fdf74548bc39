#include "session/inputs/dialog_use.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/checks/number_input.h"

namespace lumivex {

bool HasBadInput(const Form& form) {
  return std::ranges::any_of(form.Controls(),
                             [](const Control* c) { return c->Visible && c->BackColour == colours::BadInput; });
}

namespace {

/// Captions and labels show what was typed: with a point.
void SettleCommas(Session& session, Form& dialog) {
  for (Control* control : dialog.Controls())
    if (control->Visible && control->BackColour != colours::BadInput && !SettleComma(session, *control)) return;
}

}  // namespace

bool AskIn(Session& session, Form& dialog) {
  if (session.state.RestoringSettings != 0) return true;
  const FormSnapshot before = dialog.Snapshot();
  for (int showing = 0; showing < 2 && session.platform.ShowModal(dialog); ++showing) {
    SettleCommas(session, dialog);
    if (!HasBadInput(dialog)) return true;
  }
  dialog.Restore(before);
  return false;
}

void RefuseInput(Session& session, Control& control, const std::string& text) {
  control.BackColour = colours::BadInput;
  session.platform.Message("Input error", text);
}

void RaiseInputsChanged(Session& session) {
  session.events.Raise("Inputs_Changed");
}

std::string FileNameOf(const std::string& path) {
  const auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool EndsWith(const std::string& path, std::string_view ending) {
  return path.size() >= ending.size() && SameName(std::string_view(path).substr(path.size() - ending.size()), ending);
}

}  // namespace lumivex
