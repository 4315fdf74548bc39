#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Writes the last results, with the inputs that they were asked with and the look of their page, to a results file:
/// beside its place first, then renamed.
/// @return empty, or in one sentence why there is no file.
std::string Save_Data(Session& session, const std::string& path);

/// The whole text of that file; empty, with the reason in `failure`, where there is nothing to save.
std::string ResultsText(Session& session, std::string& failure);

/// The menus of looks (colours, pens, grids, sizes), or with them scales, brightness and polarisation.
enum class LookPart { Menus, Whole };

/// Takes the look of a state over into another.
void TakeLook(const InputState& from, InputState& to, LookPart part);

/// Asks for a name and saves the results under it.
void mnuSave_Click(Session& session);

}  // namespace lumivex
