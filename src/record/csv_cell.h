#pragma once

#include <string>
#include <string_view>

namespace lumivex {

/// A text as a cell of a table: between quotes where it has the separator, a quote or an end of line in it, its own
/// quotes doubled.
std::string CsvCell(std::string_view text, char separator = ',');

/// The same between quotes in any case: a text that is not to be taken for a number.
std::string CsvText(std::string_view text);

}  // namespace lumivex
