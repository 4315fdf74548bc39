#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/settings/ini_text.h"
#include "record/session.h"

namespace lumivex {

/// The inputs of a session as text: every control that a user sets by the names of form and control, the codes of graph
/// and method, the names and settings that follow from them, the captions of the panel, and the paths of the input
/// files in use.
IniText InputsAsText(Session& session);

/// The same back: what the text does not name, or names as nothing that there is, stays as it is in the session.
InputState InputsFromText(Session& session, const IniText& text);

/// Names that follow from what the user did, beside the inputs: those of the record and the menu's of the materials.
void RestoreNames(Session& session, const IniText& text);

/// The path of the input file of that kind; empty for none.
std::string FileIn(const IniText& text, FileKind kind);

/// A text with the sum over all of it at its end, by which a damaged one is told.
std::string Sealed(const IniText& text);
/// Nothing where the sum is missing or another.
std::optional<IniText> Unsealed(std::string_view text);

}  // namespace lumivex
