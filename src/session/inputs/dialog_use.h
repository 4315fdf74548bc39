#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Shows a dialog unless settings are being restored, which takes what stands in its fields. A dialog that is closed
/// with a red field is shown again; a second time it counts as cancelled.
/// @return true for OK.
bool AskIn(Session& session, Form& dialog);

/// Whether an input of the form is marked as bad.
bool HasBadInput(const Form& form);

/// Marks an input and tells why.
void RefuseInput(Session& session, Control& control, const std::string& text);

/// What a menu of materials or light leaves behind: the results must be calculated anew.
void RaiseInputsChanged(Session& session);

/// The last part of a path.
std::string FileNameOf(const std::string& path);

/// Whether a path ends so, whatever the case: ".rix".
bool EndsWith(const std::string& path, std::string_view ending);

}  // namespace lumivex
