#pragma once

#include "record/session.h"

namespace lumivex {

/// Which numbers an input takes.
enum class NumberSign { Any, PositiveOrZero, Positive };

/// The text of an input or a list with a box; null for other controls.
std::string* TextOf(Control& control);

/// Writes a point for the comma of a number where it can only be a decimal mark. A comma that may part thousands turns
/// the control red, and the user is asked for a point.
/// @return false for such a comma.
bool SettleComma(Session& session, Control& control);

/// Cleans the number typed into a control and holds it against its limits.
///
/// The back colour turns white; a leading "+", blanks and needless zeros are taken off, a decimal comma becomes a point
/// and the text is written back. A text that is not one finite number, a value over the upper limit or of the wrong
/// sign turns the control red and is told under the title "Input error".
/// @return whether the value can be used.
bool getval(Session& session, Control& control, double upperLimit, NumberSign sign);

}  // namespace lumivex
