#include "scripts/script_line.h"

#include <algorithm>

#include "record/number_text.h"

namespace lumivex {

std::string_view WithoutComment(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') {
      // A quote that nothing closes is a character like any other: an inch.
      const auto close = line.find('"', i + 1);
      if (close != line.npos) i = close;
    } else if (line[i] == '#' && (i == 0 || line[i - 1] == ' ' || line[i - 1] == '\t')) {
      return line.substr(0, i);
    }
  }
  return line;
}

std::string TakeWord(std::string_view& text) {
  text = Trim(text);
  const auto end = std::min(text.find_first_of(" \t"), text.size());
  std::string word(text.substr(0, end));
  text = Trim(text.substr(end));
  return word;
}

std::string PathIn(std::string_view text) {
  text = Trim(text);
  if (text.size() > 1 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
  return std::string(text);
}

}  // namespace lumivex
