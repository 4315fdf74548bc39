#pragma once

#include <string>

namespace lumivex {

/// Holds a text that the program makes against the one kept in tests/recorded/records/NAME.txt.
///
/// Words stand as they are; numbers of a line may differ by 2e-6 of themselves and by 1e-9 of the largest of the line,
/// so that processors may round as they like. On a difference the test fails with the first few lines that differ.
///
/// With LUMIVEX_RECORD set in the environment the text is kept instead; what it changes is then seen by `git diff`.
void HoldAgainstRecord(const std::string& name, const std::string& text);

/// A number with seven digits; zero where it is none to speak of.
std::string Digits(double value);

}  // namespace lumivex
