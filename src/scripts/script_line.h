#pragma once

#include <string>
#include <string_view>

namespace lumivex {

/// How a line of a script is taken apart.

/// The line without its comment: a '#' at the start of a word begins one, but not between double quotes.
std::string_view WithoutComment(std::string_view line);

/// Takes the first word off a text, and the blanks around it.
std::string TakeWord(std::string_view& text);

/// The path that a text is: without the double quotes around it, which let it hold a '#' after a blank.
std::string PathIn(std::string_view text);

}  // namespace lumivex
