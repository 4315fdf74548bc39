#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// A number as text, stepped by its own last digit: "0.65" and 1 step give "0.66", "10" gives "11", "1.3330" gives
/// "1.3331", "1e-3" gives "2e-3". Nothing where the text is no such number, or has more digits than a number holds.
std::optional<std::string> StepLastDigit(std::string_view text, int steps);

/// What an input of the main window holds after so many steps; nothing where it is no number, or where a step would
/// lead out of what the input can hold: a radius stays above 0, a scattering angle between 0 and 180 degrees.
std::optional<std::string> SteppedText(const Session& session, const TextInput& input, int steps);

}  // namespace lumivex
