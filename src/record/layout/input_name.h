#pragma once

#include <string>

#include "record/controls.h"

namespace lumivex {

/// What an input is called on the screen now, for messages about it: the label before it in its line or on the line
/// above, of a second input behind one label with its place ("Real part (2)"); its tip where it has no label.
std::string NameOfInput(const Control& input);

}  // namespace lumivex
