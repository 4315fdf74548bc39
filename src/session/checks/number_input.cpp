#include "session/checks/number_input.h"

#include <string>
#include <utility>

#include "record/layout/input_name.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// Takes off what may be typed before a number and means nothing.
std::string Normalised(std::string_view typed) {
  std::string text(Trim(typed));
  std::string sign;
  if (text.starts_with('+')) text.erase(0, 1);
  text = Trim(text);
  if (text.starts_with('-')) {
    sign = "-";
    text = Trim(text.substr(1));
  }
  while (text.size() > 1 && text[0] == '0' && (text[1] == '0' || (text[1] >= '1' && text[1] <= '9'))) text.erase(0, 1);
  return sign + text;
}

bool Refuse(Session& session, Control& control, const std::string& text) {
  control.BackColour = colours::BadInput;
  session.platform.Message("Input error", text);
  return false;
}

}  // namespace

std::string* TextOf(Control& control) {
  if (control.Kind() == ControlKind::TextInput) return &static_cast<TextInput&>(control).Text;
  if (control.Kind() == ControlKind::SelectionList) return &static_cast<SelectionList&>(control).Text;
  return nullptr;
}

bool SettleComma(Session& session, Control& control) {
  std::string* text = TextOf(control);
  if (text == nullptr) return true;
  if (auto withPoint = PointForComma(*text)) *text = std::move(*withPoint);
  if (!HasDoubtfulComma(*text)) return true;
  return Refuse(session, control,
                NameOfInput(control) + ": use a point as the decimal mark, and nothing between thousands");
}

bool getval(Session& session, Control& control, double upperLimit, NumberSign sign) {
  control.BackColour = colours::White;
  std::string* text = TextOf(control);
  if (text == nullptr || !SettleComma(session, control)) return false;
  const std::string clean = Normalised(*text);
  if (!IsNumber(clean)) return Refuse(session, control, "    The red highlighted data entry is incorrect.    ");
  *text = clean;
  const double value = Val(clean);
  if (value > upperLimit)
    return Refuse(session, control, "Value must not be greater than " + Significant(upperLimit, 15));
  if (sign == NumberSign::PositiveOrZero && value < 0)
    return Refuse(session, control, "Value must be positive or zero");
  if (sign == NumberSign::Positive && value <= 0) return Refuse(session, control, "Value must be positive");
  return true;
}

}  // namespace lumivex
