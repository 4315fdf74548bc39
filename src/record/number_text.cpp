#include "record/number_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace lumivex {

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string Printed(double value, std::chars_format format, int precision) {
  std::array<char, 400> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
  return error == std::errc{} ? std::string(buffer.data(), end) : std::string("0");
}

/// Mantissa digits (no point, no sign) and decimal exponent of |value| at a precision.
struct Decimal {
  std::string digits;
  int exponent = 0;  ///< of the first digit
};

Decimal SignificantDecimal(double value, int precision) {
  const std::string text = Printed(std::abs(value), std::chars_format::scientific, precision - 1);
  const auto e = text.find('e');
  Decimal result;
  for (const char c : text.substr(0, e))
    if (IsDigit(c)) result.digits += c;
  const char* first = text.data() + e + 1;
  if (*first == '+') ++first;
  std::from_chars(first, text.data() + text.size(), result.exponent);
  while (result.digits.size() > 1 && result.digits.back() == '0') result.digits.pop_back();
  return result;
}

std::string ExponentText(int exponent, std::size_t width) {
  std::string digits = std::to_string(std::abs(exponent));
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return (exponent < 0 ? "E-" : "E+") + digits;
}

std::string NotFinite(double value) {
  return std::isnan(value) ? "NaN" : value > 0 ? "Infinity" : "-Infinity";
}

/// The digits without a point, placed with the decimal exponent of the first one; no zero before the point.
std::string PlainDecimal(const Decimal& d) {
  if (d.exponent < 0) return "." + std::string(static_cast<std::size_t>(-d.exponent - 1), '0') + d.digits;
  std::string text = d.digits;
  const auto whole = static_cast<std::size_t>(d.exponent) + 1;
  if (text.size() < whole) text.append(whole - text.size(), '0');
  if (text.size() > whole) text.insert(whole, ".");
  return text;
}

std::string GroupThousands(std::string whole) {
  for (auto i = static_cast<std::ptrdiff_t>(whole.size()) - 3; i > 0; i -= 3)
    whole.insert(static_cast<std::size_t>(i), ",");
  return whole;
}

struct Pattern {
  int wholeZeros = 0, decimalZeros = 0, decimals = 0;
  bool grouped = false;
};

Pattern ReadPattern(std::string_view pattern) {
  Pattern result;
  bool afterPoint = false;
  for (const char c : pattern) {
    if (c == '.') afterPoint = true;
    if (c == ',') result.grouped = true;
    if (c != '0' && c != '#') continue;
    if (!afterPoint) {
      result.wholeZeros += c == '0';
    } else {
      ++result.decimals;
      result.decimalZeros += c == '0';
    }
  }
  return result;
}

/// Whether a decimal number that double cannot hold is too small for it, not too large: its first digit that counts
/// stands behind the point once the exponent has moved it.
/// @param text  [sign] digits [point digits] [e exponent].
bool IsTiny(std::string_view text) {
  const std::size_t e = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, e);
  const std::size_t counts = mantissa.find_first_of("123456789"), point = std::min(mantissa.find('.'), mantissa.size());
  if (counts == std::string_view::npos) return true;
  double exponent = 0;
  for (const char c : text.substr(e))
    if (IsDigit(c)) exponent = 10 * exponent + (c - '0');
  if (e + 1 < text.size() && text[e + 1] == '-') exponent = -exponent;
  const double place = static_cast<double>(point) - static_cast<double>(counts);
  return place + exponent < 0;
}

/// Whether the whole text is one finite number with a point for its decimal mark.
bool IsPlainNumber(std::string_view text) {
  text = Trim(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  if (text.empty() || !(IsDigit(text.back()) || text.back() == '.')) return false;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool held =
      error == std::errc{} ? std::isfinite(value) : error == std::errc::result_out_of_range && IsTiny(text);
  return held && end == text.data() + text.size();
}

/// A text with one comma that would be a number with a point in its place.
struct CommaNumber {
  std::string withPoint;
  std::size_t digitsBehind = 0;  ///< the comma
};

std::optional<CommaNumber> ReadComma(std::string_view text) {
  const auto comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  CommaNumber number{std::string(text), 0};
  number.withPoint[comma] = '.';
  if (!IsPlainNumber(number.withPoint)) return std::nullopt;
  while (comma + 1 + number.digitsBehind < text.size() && IsDigit(text[comma + 1 + number.digitsBehind]))
    ++number.digitsBehind;
  return number;
}

constexpr std::size_t digitsOfThousands = 3;

}  // namespace

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

double Val(std::string_view text) {
  text = Trim(text);
  if (const auto withPoint = PointForComma(text)) return Val(*withPoint);
  std::string clean;
  bool point = false, digits = false;
  std::size_t i = 0;
  const auto skipBlanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  };
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    if (text[i] == '-') clean += '-';
    ++i;
  }
  for (skipBlanks(); i < text.size(); ++i, skipBlanks()) {
    if (IsDigit(text[i])) {
      digits = true;
    } else if (text[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
    clean += text[i];
  }
  if (!digits) return 0;
  if (i < text.size() && (std::tolower(text[i]) == 'e' || std::tolower(text[i]) == 'd')) {
    std::size_t k = i + 1;
    std::string exponent = "e";
    if (k < text.size() && (text[k] == '+' || text[k] == '-')) exponent += text[k++];
    if (k < text.size() && IsDigit(text[k])) {
      for (; k < text.size() && IsDigit(text[k]); ++k) exponent += text[k];
      clean += exponent;
    }
  }
  if (const auto plus = clean.find("e+"); plus != std::string::npos) clean.erase(plus + 1, 1);
  double value = 0;
  const auto [end, error] = std::from_chars(clean.data(), clean.data() + clean.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  const double limit = IsTiny(clean) ? 0.0 : std::numeric_limits<double>::max();
  return clean.front() == '-' ? -limit : limit;
}

bool IsNumber(std::string_view text) {
  return IsPlainNumber(text) || PointForComma(text);
}

std::optional<std::string> PointForComma(std::string_view text) {
  auto number = ReadComma(text);
  if (!number || number->digitsBehind == digitsOfThousands) return std::nullopt;
  return std::move(number->withPoint);
}

bool HasDoubtfulComma(std::string_view text) {
  const auto number = ReadComma(text);
  return number && number->digitsBehind == digitsOfThousands;
}

std::string Str(double value) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (value == 0) return " 0";
  constexpr int digitsShown = 15;
  const Decimal d = SignificantDecimal(value, digitsShown);
  const std::string sign = value < 0 ? "-" : " ";
  if (d.exponent >= digitsShown || d.exponent < -4) {
    std::string mantissa = d.digits;
    if (mantissa.size() > 1) mantissa.insert(1, ".");
    return sign + mantissa + ExponentText(d.exponent, 2);
  }
  return sign + PlainDecimal(d);
}

std::string Format(double value, std::string_view pattern) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (SameName(pattern, "Scientific")) {
    std::string text = Printed(value, std::chars_format::scientific, 2);
    const auto e = text.find('e');
    int exponent = 0;
    const char* first = text.data() + e + 1;
    if (*first == '+') ++first;
    std::from_chars(first, text.data() + text.size(), exponent);
    return text.substr(0, e) + ExponentText(exponent, 2);
  }
  const Pattern shape = ReadPattern(pattern);
  // Half away from zero, of the shortest decimal: 0.125 shown with two decimals is 0.13 although the nearest
  // double of many such numbers lies below the half.
  const double scale = std::pow(10.0, shape.decimals);
  const double rounded = std::abs(value) < 1e15 / scale ? std::round(std::abs(value) * scale) / scale : std::abs(value);
  const std::string text = Printed(rounded, std::chars_format::fixed, shape.decimals);
  const auto point = text.find('.');
  std::string whole = text.substr(0, point);
  std::string decimals = point == std::string::npos ? "" : text.substr(point + 1);
  while (static_cast<int>(decimals.size()) > shape.decimalZeros && decimals.back() == '0') decimals.pop_back();
  if (whole == "0" && shape.wholeZeros == 0) whole.clear();
  if (static_cast<int>(whole.size()) < shape.wholeZeros)
    whole.insert(0, static_cast<std::size_t>(shape.wholeZeros) - whole.size(), '0');
  if (shape.grouped) whole = GroupThousands(whole);
  const bool negative = value < 0 && rounded != 0;
  return (negative ? "-" : "") + whole + (decimals.empty() ? "" : "." + decimals);
}

double Int(double x) {
  return std::floor(x);
}

double RoundDecimals(double x, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::floor(x * scale + 0.5) / scale;
}

int ToWhole(double x) {
  if (std::isnan(x)) return 0;
  const double nearest = std::nearbyint(x);
  if (nearest >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (nearest <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(nearest);
}

std::string Shortest(double value) {
  std::array<char, 64> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end};
}

std::string Exact(double value) {
  return Printed(value, std::chars_format::general, 17);
}

std::string CountOf(double count, std::string_view word) {
  return Significant(count, 8) + " " + std::string(word) + (count == 1 ? "" : "s");
}

std::string CountOf(int some, int all, std::string_view word) {
  return (some < all ? std::to_string(some) + " of " : "") + CountOf(all, word);
}

std::string Significant(double value, int digits) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (value == 0) return "0";
  const Decimal d = SignificantDecimal(value, digits);
  const std::string sign = value < 0 ? "-" : "";
  if (d.exponent < -4 || d.exponent >= digits + 3) {
    std::string mantissa = d.digits;
    if (mantissa.size() > 1) mantissa.insert(1, ".");
    return sign + mantissa + ExponentText(d.exponent, 2);
  }
  const std::string text = PlainDecimal(d);
  return sign + (text.front() == '.' ? "0" + text : text);
}

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

}  // namespace lumivex
