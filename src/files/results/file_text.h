#pragma once

#include <span>
#include <string>
#include <string_view>

namespace lumivex {

/// A text without what would end its line or is no character: blanks in the place of control characters.
std::string OnOneLine(std::string_view text);

/// A text of the program (UTF-8) as a results file holds it: in Latin-1, unless that lacks one of its characters or
/// would itself read as UTF-8; then as it is.
std::string ToFileText(std::string_view text);

/// The same back: UTF-8 as it is, anything else as Latin-1.
std::string FromFileText(std::string_view line);

/// Appends numbers as a line: each with a blank or a sign before it and a blank behind, up to 15 digits (singles: as
/// many as keep the value), no zero before the point; the next one begins at the next column that 14 divides.
void AppendPrintedRow(std::string& text, std::span<const double> row);
void AppendPrintedRow(std::string& text, std::span<const float> row);

/// Appends numbers as a line, parted by blanks, in the shortest form that reads back as the same bits; "nan" too.
void AppendExactRow(std::string& text, std::span<const double> row);
void AppendExactRow(std::string& text, std::span<const float> row);

/// Whether a line of numbers may hold some that were not calculated: "nan".
enum class Missing { Refused, Allowed };

/// Reads a line of exactly as many numbers, parted by blanks, tabs or commas, with an exponent after e, E, d or D.
/// @return whether that is what the line holds.
bool ParseRow(std::string_view line, std::span<double> row, Missing missing = Missing::Refused);
bool ParseRow(std::string_view line, std::span<float> row, Missing missing = Missing::Refused);

}  // namespace lumivex
