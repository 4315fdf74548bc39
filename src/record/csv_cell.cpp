#include "record/csv_cell.h"

namespace lumivex {

std::string CsvCell(std::string_view text, char separator) {
  const bool plain = text.find(separator) == text.npos && text.find_first_of("\"\r\n") == text.npos;
  return plain ? std::string(text) : CsvText(text);
}

std::string CsvText(std::string_view text) {
  std::string cell = "\"";
  for (const char c : text) cell += c == '"' ? "\"\"" : std::string(1, c);
  return cell + '"';
}

}  // namespace lumivex
