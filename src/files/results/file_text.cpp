#include "files/results/file_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace lumivex {

namespace {

/// Whether a line has characters beyond ASCII and all of them are UTF-8 of two bytes or more.
bool IsUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto first = static_cast<unsigned char>(text[i]);
    if (first < 0x80) continue;
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || i + more >= text.size()) return false;
    for (std::size_t k = 1; k <= more; ++k)
      if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
    i += more;
  }
  return true;
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](unsigned char c) { return c < 0x80; });
}

using Digits = std::array<char, 40>;

std::string_view Printed(double value, Digits& digits) {
  constexpr int most = 15;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, most);
  return {digits.data(), end.ptr};
}

std::string_view Printed(float value, Digits& digits) {
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), end.ptr};
}

template <class Value>
void AppendPrinted(std::string& text, std::size_t lineStart, Value value) {
  constexpr std::size_t zone = 14;
  if (const std::size_t column = (text.size() - lineStart) % zone; column != 0) text.append(zone - column, ' ');
  Digits digits{};
  std::string_view number = Printed(value, digits);
  const bool negative = number.starts_with('-');
  if (negative) number.remove_prefix(1);
  text += negative ? '-' : ' ';
  if (number.starts_with("0.")) number.remove_prefix(1);
  for (const char c : number) text += c == 'e' ? 'E' : c;
  text += ' ';
}

template <class Value>
void AppendPrintedValues(std::string& text, std::span<const Value> row) {
  const std::size_t start = text.size();
  for (const Value value : row) AppendPrinted(text, start, value);
  text += '\n';
}

template <class Value>
void AppendExactValues(std::string& text, std::span<const Value> row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (i > 0) text += ' ';
    Digits digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), row[i]);
    text.append(digits.data(), end.ptr);
  }
  text += '\n';
}

bool Parts(char c) {
  return c == ' ' || c == '\t' || c == ',';
}

template <class Value>
bool ParseNumber(std::string_view token, Value& value, Missing missing) {
  if (token.starts_with('+')) token.remove_prefix(1);
  auto parsed = std::from_chars(token.data(), token.data() + token.size(), value);
  Digits plain{};
  if (parsed.ptr != token.data() + token.size() && token.size() < plain.size()) {
    // An exponent after a D.
    std::ranges::transform(token, plain.begin(), [](char c) { return c == 'D' || c == 'd' ? 'E' : c; });
    parsed = std::from_chars(plain.data(), plain.data() + token.size(), value);
    if (parsed.ptr != plain.data() + token.size()) return false;
  } else if (parsed.ptr != token.data() + token.size()) {
    return false;
  }
  return parsed.ec == std::errc() && (std::isfinite(value) || (missing == Missing::Allowed && std::isnan(value)));
}

template <class Value>
bool ParseValues(std::string_view line, std::span<Value> row, Missing missing) {
  std::size_t at = 0;
  for (Value& value : row) {
    while (at < line.size() && Parts(line[at])) ++at;
    const std::size_t start = at;
    while (at < line.size() && !Parts(line[at])) ++at;
    if (start == at || !ParseNumber(line.substr(start, at - start), value, missing)) return false;
  }
  while (at < line.size() && Parts(line[at])) ++at;
  return at == line.size();
}

}  // namespace

std::string OnOneLine(std::string_view text) {
  std::string line(text);
  for (char& c : line)
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  return line;
}

std::string ToFileText(std::string_view text) {
  if (IsAscii(text) || !IsUtf8(text)) return std::string(text);
  std::string latin;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto first = static_cast<unsigned char>(text[i]);
    if (first < 0x80) {
      latin += text[i];
    } else if (first <= 0xC3) {
      latin += static_cast<char>(((first & 0x03) << 6) | (static_cast<unsigned char>(text[++i]) & 0x3F));
    } else {
      return std::string(text);
    }
  }
  return IsUtf8(latin) ? std::string(text) : latin;
}

std::string FromFileText(std::string_view line) {
  if (IsUtf8(line)) return std::string(line);
  std::string text;
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 | (byte >> 6));
      text += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return text;
}

void AppendPrintedRow(std::string& text, std::span<const double> row) {
  AppendPrintedValues(text, row);
}

void AppendPrintedRow(std::string& text, std::span<const float> row) {
  AppendPrintedValues(text, row);
}

void AppendExactRow(std::string& text, std::span<const double> row) {
  AppendExactValues(text, row);
}

void AppendExactRow(std::string& text, std::span<const float> row) {
  AppendExactValues(text, row);
}

bool ParseRow(std::string_view line, std::span<double> row, Missing missing) {
  return ParseValues(line, row, missing);
}

bool ParseRow(std::string_view line, std::span<float> row, Missing missing) {
  return ParseValues(line, row, missing);
}

}  // namespace lumivex
