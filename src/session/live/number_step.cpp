#include "session/live/number_step.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "record/number_text.h"
#include "session/inputs/beams/read_beam.h"

namespace lumivex {

namespace {

constexpr double none = std::numeric_limits<double>::infinity();

/// What an input takes.
struct Limits {
  double low = -none, high = none;
  bool aboveLow = false;  ///< the lower limit itself is none of the values
  bool Hold(double value) const { return (aboveLow ? value > low : value >= low) && value <= high; }
};

struct LimitsRow {
  TextInput Form1Inputs::*input;
  Limits limits;
};
constexpr std::array limitsOfInputs = {
    LimitsRow{&Form1Inputs::txtRadius, {0, none, true}},
    LimitsRow{&Form1Inputs::txtRmax, {0, none, true}},
    LimitsRow{&Form1Inputs::txtRstep, {1, none}},
    LimitsRow{&Form1Inputs::txtLambda, {0, none, true}},
    LimitsRow{&Form1Inputs::txtRefractReal, {0, none, true}},
    LimitsRow{&Form1Inputs::txtRefractImag, {0, none}},
    LimitsRow{&Form1Inputs::txtRefractMedium, {0, none, true}},
    LimitsRow{&Form1Inputs::txtAngle, {0, 180}},
    LimitsRow{&Form1Inputs::txtF9_step, {1, none}},
};

Limits LimitsOf(const Session& session, const TextInput& input) {
  const Form1& form = session.form1;
  for (const LimitsRow& row : limitsOfInputs)
    if (&(form.*row.input) == &input) return row.limits;
  if (&input != &form.txtXmin && &input != &form.txtXmax) return {};
  if (!ChosenGraph(session.state).AgainstAngle()) return {0, none};
  return InBeam(form) ? Limits{} : Limits{0, 180};
}

}  // namespace

std::optional<std::string> StepLastDigit(std::string_view text, int steps) {
  constexpr std::size_t mostDigits = 15;
  const std::string withPoint = PointForComma(text).value_or(std::string(text));
  const std::string_view number = Trim(withPoint);
  if (!IsNumber(number)) return std::nullopt;
  const std::size_t exponent = std::min(number.find_first_of("eEdD"), number.size());
  const std::string_view mantissa = number.substr(0, exponent);
  std::string digits;
  std::size_t decimals = 0;
  bool behindPoint = false;
  for (const char c : mantissa) {
    if (c == '.') behindPoint = true;
    if (c < '0' || c > '9') continue;
    digits += c;
    if (behindPoint) ++decimals;
  }
  if (digits.empty() || digits.size() > mostDigits) return std::nullopt;
  long long value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (mantissa.front() == '-') value = -value;
  value += steps;
  std::string whole = std::to_string(std::llabs(value));
  if (whole.size() <= decimals) whole.insert(0, decimals + 1 - whole.size(), '0');
  if (decimals > 0) whole.insert(whole.size() - decimals, ".");
  return (value < 0 ? "-" : "") + whole + std::string(number.substr(exponent));
}

std::optional<std::string> SteppedText(const Session& session, const TextInput& input, int steps) {
  auto stepped = StepLastDigit(input.Text, steps);
  if (!stepped || !LimitsOf(session, input).Hold(Val(*stepped))) return std::nullopt;
  return stepped;
}

}  // namespace lumivex
