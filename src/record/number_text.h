#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumivex {

/// Numbers as text and back, the same in every locale: the point is the decimal symbol.
///
/// Users in half of the world type a comma for it. Val and IsNumber read one as the point where only that makes a
/// number of the whole text ("0,65"). With exactly three digits behind it ("1,500") it may as well part thousands: such
/// a text is no number, and whoever checks an input says so.

/// The number that the text begins with: blanks are passed over, a sign, digits, a point and an exponent after e, E, d
/// or D are taken; what follows is ignored. Text without a number gives 0, a number beyond the range of double the
/// largest finite value (or 0).
double Val(std::string_view text);

/// Whether the whole text (but for blanks around it) is one finite number.
bool IsNumber(std::string_view text);

/// The text with a point for its comma, where the comma can only be a decimal mark; nothing for every other text.
std::optional<std::string> PointForComma(std::string_view text);

/// Whether the text is a number but for a comma that may be a decimal mark or part thousands.
bool HasDoubtfulComma(std::string_view text);

/// A number as text with up to 15 significant digits, a leading blank in the sign's place when it is not negative, no
/// zero before the point (" .5"), and an exponent (" 1.5E-07") below 0.0001 and from 1E15 up.
std::string Str(double value);

/// A number after a pattern: "Scientific" or "scientific" ("1.23E+04", two decimals), or groups of '#', '0', ',' and
/// '.' such as "#,##0.####", "###,##0.#######", "#0.##", "0.00": '0' is a digit always shown, '#' one shown when it
/// counts, ',' groups thousands. A decimal point without digits behind it is left out.
std::string Format(double value, std::string_view pattern);

/// Int(x * 10^d + 0.5) / 10^d.
double RoundDecimals(double x, int decimals);

/// The largest whole number not above x.
double Int(double x);

/// A real as a whole number: nearest, ties to even; clamped to the range of int, 0 for what is not a number.
int ToWhole(double x);

/// The shortest text that reads back as the same number ("0.1", "1e-07").
std::string Shortest(double value);

/// 17 significant digits, for files that other programs read.
std::string Exact(double value);

/// `digits` significant digits without trailing zeros, as a reading is shown ("1.99369", "4.5e-06" as "4.5E-06").
std::string Significant(double value, int digits);

/// A number of things: "1 column", "5 columns". The word is that of one.
std::string CountOf(double count, std::string_view word);
/// Some of them: "2 of 5 columns"; all of them as above.
std::string CountOf(int some, int all, std::string_view word);

/// Text without blanks at either end.
std::string_view Trim(std::string_view text);

/// Whether two names are the same but for case.
bool SameName(std::string_view a, std::string_view b);

}  // namespace lumivex
