#include "materials/files/readable_text.h"

#include <algorithm>

namespace lumivex {

namespace {

constexpr std::size_t longestQuote = 40;

std::string FirstReadable(std::string_view text, std::size_t longest) {
  std::string readable;
  for (std::size_t count = 0; count < longest && !text.empty(); ++count) {
    const std::size_t length = PrintableLength(text);
    readable += length == 0 ? "?" : text.substr(0, length);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return readable;
}

}  // namespace

std::size_t PrintableLength(std::string_view text) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return first >= 0x20 && first != 0x7F ? 1 : 0;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  const bool control = first == 0xC2 && byte(1) < 0xA0;
  const bool direction = first == 0xE2 && byte(1) == 0x80 && (byte(2) >= 0xA8 || (byte(2) >= 0x8B && byte(2) <= 0x8F));
  const bool surrogateOrLong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xED && byte(1) >= 0xA0) ||
                               (first == 0xF0 && byte(1) < 0x90) || (first == 0xF4 && byte(1) >= 0x90);
  return control || direction || surrogateOrLong ? 0 : length;
}

std::string Readable(std::string_view text) {
  return FirstReadable(text, longestQuote);
}

std::string ReadablePath(std::string_view path) {
  return FirstReadable(path, path.size());
}

}  // namespace lumivex
