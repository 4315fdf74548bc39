#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// What the rules on inputs before a run take for granted, since lists, options and dialogs see to it while a user is
/// there: a text that a list has, one of several options or ticks that exclude each other, and numbers that the dialogs
/// of the run would take. Inputs that come from a file are held against it. The dialogs of the sheet are asked; what
/// stands in them stays.
/// @return empty, or what no user could have chosen.
std::string FaultOfInputs(Session& sheet);

}  // namespace lumivex
