#include "materials/files/input_items.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

constexpr std::size_t longestItem = 4096;
constexpr int endOfFile = std::char_traits<char>::eof();

bool IsBlank(int c) {
  return c == ' ' || c == '\t';
}

bool IsLineEnd(int c) {
  return c == '\n' || c == '\r';
}

void Append(std::string& text, int c) {
  if (text.size() < longestItem) text += static_cast<char>(c);
}

/// Whether a file begins as a text in UTF-16 does: with its byte-order mark, or with a plain character of two bytes.
bool IsUtf16(std::istream& file) {
  const int first = file.get(), second = file.get();
  file.clear();
  file.seekg(0);
  const bool mark = (first == 0xFF && second == 0xFE) || (first == 0xFE && second == 0xFF);
  return mark || (first > 0 && second == 0) || (first == 0 && second > 0);
}

}  // namespace

InputItems::InputItems(std::istream& stream) : buffer_(stream.rdbuf()) {
  for (const int mark : {0xEF, 0xBB, 0xBF})
    if (Peek() == mark) Take();
}

int InputItems::Take() {
  return buffer_->sbumpc();
}

void InputItems::TakeLineEnd() {
  const int first = Take();
  if (first == '\r' && Peek() == '\n') Take();
  if (line_ < std::numeric_limits<int>::max()) ++line_;
}

void InputItems::SkipBlanks() {
  while (IsBlank(Peek())) Take();
}

std::string InputItems::Unquoted() {
  std::string text;
  while (Peek() != endOfFile && Peek() != ',' && !IsLineEnd(Peek())) Append(text, Take());
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
  return text;
}

std::string InputItems::Quoted() {
  std::string text;
  Take();
  while (Peek() != endOfFile && Peek() != '"' && !IsLineEnd(Peek())) Append(text, Take());
  if (Peek() == '"') Take();
  while (Peek() != endOfFile && Peek() != ',' && !IsLineEnd(Peek())) Take();
  return text;
}

std::optional<std::string> InputItems::TextIfAny() {
  if (Failed()) return std::nullopt;
  SkipBlanks();
  if (Peek() == endOfFile) return std::nullopt;
  itemLine_ = line_;
  rowLine_ = 0;
  std::string text = Peek() == '"' ? Quoted() : Unquoted();
  if (Peek() == ',')
    Take();
  else if (IsLineEnd(Peek()))
    TakeLineEnd();
  return text;
}

std::string InputItems::Text() {
  auto text = TextIfAny();
  if (text) return std::move(*text);
  itemLine_ = line_;
  Fail("the file ends too early");
  return {};
}

void InputItems::Skip(int items) {
  for (int i = 0; i < items && !Failed(); ++i) Text();
}

void InputItems::EndRow(int numbers) {
  const int begun = std::exchange(rowLine_, 0);
  if (Failed() || line_ != itemLine_) return;
  SkipBlanks();
  if (IsLineEnd(Peek())) {
    TakeLineEnd();
  } else if (Peek() != endOfFile && begun != itemLine_) {
    itemLine_ = begun;
    Fail("a row has " + std::to_string(numbers) + " numbers here");
  } else if (Peek() != endOfFile) {
    Fail("more than " + std::to_string(numbers) + " numbers in a row (decimals need a point)");
  }
}

void InputItems::EndData() {
  constexpr int dosEndOfFile = 0x1A;
  if (Failed()) return;
  while (IsBlank(Peek()) || IsLineEnd(Peek()) || Peek() == dosEndOfFile) {
    if (IsLineEnd(Peek()))
      TakeLineEnd();
    else
      Take();
  }
  itemLine_ = line_;
  if (Peek() != endOfFile) Fail("there is more than the rows that the file announces");
}

std::string InputItems::NumberToken() {
  while (IsBlank(Peek()) || IsLineEnd(Peek())) {
    if (IsBlank(Peek()))
      Take();
    else
      TakeLineEnd();
  }
  itemLine_ = line_;
  std::string token;
  while (Peek() != endOfFile && Peek() != ',' && !IsBlank(Peek()) && !IsLineEnd(Peek())) Append(token, Take());
  SkipBlanks();
  if (Peek() == ',')
    Take();
  else if (IsLineEnd(Peek()))
    TakeLineEnd();
  return token;
}

double InputItems::Number() {
  if (Failed()) return 0;
  const bool more = Peek() != endOfFile;
  const std::string token = NumberToken();
  if (const auto number = NumberOfItem(token)) {
    if (rowLine_ == 0) rowLine_ = itemLine_;
    return *number;
  }
  if (token.empty() && (!more || Peek() == endOfFile)) {
    if (rowLine_ != 0) itemLine_ = rowLine_;  // the row that lacks numbers, not the empty lines below it
    Fail("the file ends too early");
  } else {
    Fail("\"" + Readable(token) + "\" is not a number");
  }
  return 0;
}

float InputItems::Single() {
  const double number = Number();
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
    Fail("a number is too large");
    return 0;
  }
  return static_cast<float>(number);
}

int InputItems::Whole(int lowest, int highest) {
  const double number = std::nearbyint(Number());
  rowLine_ = 0;
  if (Failed()) return lowest;
  if (number >= lowest && number <= highest) return static_cast<int>(number);
  Fail("a number from " + std::to_string(lowest) + " to " + std::to_string(highest) + " is needed");
  return lowest;
}

void InputItems::Fail(std::string_view reason) {
  if (!Failed()) failure_ = "Line " + std::to_string(itemLine_) + ": " + std::string(reason);
}

std::optional<double> NumberOfItem(std::string_view text) {
  std::string clean(text.starts_with('+') ? text.substr(1) : text);
  if (clean.starts_with('+')) return std::nullopt;
  for (char& c : clean)
    if (c == 'd' || c == 'D') c = 'e';
  double value = 0;
  const auto [end, error] = std::from_chars(clean.data(), clean.data() + clean.size(), value);
  if (error != std::errc{} || end != clean.data() + clean.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string OpenInput(std::ifstream& file, const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) return "The file is not there";
  if (std::filesystem::is_directory(status)) return "This is a folder, not a file";
  if (!std::filesystem::is_regular_file(status)) return "This is not a file that can be read";
  file.open(path, std::ios::binary);
  if (!file) return "The file cannot be read";
  if (IsUtf16(file)) return "This file is encoded in UTF-16: please save it as UTF-8";
  return {};
}

}  // namespace lumivex
