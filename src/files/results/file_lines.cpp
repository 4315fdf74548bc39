#include "files/results/file_lines.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "materials/files/readable_text.h"
#include "record/number_text.h"

namespace lumivex {

void FileLines::Refuse(std::string_view why) const {
  throw BadFile{std::string(why)};
}

void FileLines::Whole(int& value, int lowest, int highest) {
  double number = value;
  Number(number);
  if (!Reading()) return;
  if (!(number >= lowest && number <= highest)) Refuse("a number that cannot stand there");
  value = static_cast<int>(std::lround(number));
}

void FileLines::Field(std::string_view name, std::string& value) {
  Named(name, value);
}

void FileLines::Field(std::string_view name, double& value) {
  std::string text = Shortest(value);
  Named(name, text);
  if (!Reading()) return;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end || !std::isfinite(value)) Refuse("a number should stand there");
}

void FileLines::Field(std::string_view name, float& value) {
  double wide = double{value};
  Field(name, wide);
  value = static_cast<float>(wide);
}

void FileLines::Field(std::string_view name, int& value) {
  double wide = value;
  Field(name, wide);
  constexpr double most = std::numeric_limits<int>::max();
  if (std::abs(wide) > most || wide != std::floor(wide)) Refuse("a whole number should stand there");
  value = static_cast<int>(wide);
}

void FileLines::Field(std::string_view name, bool& value) {
  int number = value ? 1 : 0;
  Field(name, number);
  value = number != 0;
}

template <class Value>
void FileLines::List(std::string_view name, std::vector<Value>& list) {
  constexpr std::size_t perLine = 8, reserved = 65536;
  int count = static_cast<int>(list.size());
  Field(name, count);
  if (count < 0 || count > mostFieldElements) Refuse("that many values cannot stand there");
  const auto size = static_cast<std::size_t>(count);
  if (Reading()) {
    list.clear();
    list.reserve(std::min(size, reserved));  // more only as lines come
  }
  std::array<Value, perLine> row{};
  for (std::size_t first = 0; first < size; first += perLine) {
    const std::size_t length = std::min(perLine, size - first);
    const auto part = std::span(row).first(length);
    if (!Reading()) std::copy_n(list.begin() + static_cast<std::ptrdiff_t>(first), length, row.begin());
    if constexpr (std::is_same_v<Value, double>)
      Numbers(part);
    else
      Singles(part);
    if (Reading()) list.insert(list.end(), part.begin(), part.end());
  }
}

void FileLines::Field(std::string_view name, std::vector<double>& list) {
  List(name, list);
}

void FileLines::Field(std::string_view name, std::vector<float>& list) {
  List(name, list);
}

void FileLines::Field(std::string_view name, std::vector<std::uint16_t>& list) {
  std::vector<float> wide(list.begin(), list.end());
  List(name, wide);
  if (!Reading()) return;
  const auto fits = [](float v) { return v >= 0 && v <= std::numeric_limits<std::uint16_t>::max(); };
  if (!std::ranges::all_of(wide, fits)) Refuse("a number that cannot stand there");
  list.assign(wide.size(), 0);
  std::ranges::transform(wide, list.begin(), [](float v) { return static_cast<std::uint16_t>(v); });
}

// Writing.

namespace {

/// Readers take no longer line: what does not fit is left out, character by character.
std::string_view Fitting(std::string_view line, bool latin) {
  if (line.size() <= longestFileLine) return line;
  std::size_t size = longestFileLine;
  while (!latin && size > 0 && (static_cast<unsigned char>(line[size]) & 0xC0) == 0x80) --size;
  return line.substr(0, size);
}

}  // namespace

void WrittenLines::Text(std::string& text) {
  const std::string line = OnOneLine(text), written = exact_ ? line : ToFileText(line);
  content_ += Fitting(written, written != line);
  content_ += '\n';
}

void WrittenLines::Named(std::string_view name, std::string& value) {
  std::string line = std::string(name) + " " + value;
  Text(line);
}

void WrittenLines::Numbers(std::span<double> row) {
  if (exact_)
    AppendExactRow(content_, std::span<const double>(row));
  else
    AppendPrintedRow(content_, std::span<const double>(row));
}

void WrittenLines::Singles(std::span<float> row) {
  if (exact_)
    AppendExactRow(content_, std::span<const float>(row));
  else
    AppendPrintedRow(content_, std::span<const float>(row));
}

bool WrittenLines::Word(std::string_view word, bool there) {
  if (there) (content_ += word) += '\n';
  return there;
}

// Reading.

ReadLines::ReadLines(std::istream& stream) : stream_(stream), buffer_(std::size_t{1} << 18) {}

/// The next line, without its end; it stays where it is until the next call.
std::string_view ReadLines::Find() {
  for (std::size_t searched = begin_;;) {
    const void* found = std::memchr(buffer_.data() + searched, '\n', end_ - searched);
    if (found != nullptr || (atEnd_ && begin_ < end_)) {
      const auto stop =
          found == nullptr ? end_ : static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
      std::string_view line(buffer_.data() + begin_, stop - begin_);
      begin_ = std::min(stop + 1, end_);
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (line.size() > longestFileLine) Refuse("a line is longer than any of a results file");
      return line;
    }
    if (end_ - begin_ > longestFileLine + 2) Refuse("a line is longer than any of a results file");
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
              buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
    end_ -= begin_;
    begin_ = 0;
    searched = end_;
    stream_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
    end_ += static_cast<std::size_t>(stream_.gcount());
    if (stream_.gcount() == 0) {
      atEnd_ = true;
      if (begin_ == end_) return {};
    }
  }
}

std::optional<std::string_view> ReadLines::Peek() {
  if (!isPeeked_) {
    peeked_ = Find();
    isPeeked_ = true;
  }
  const bool ended = atEnd_ && begin_ == end_ && peeked_.data() == nullptr;
  return ended ? std::nullopt : std::optional(peeked_);
}

std::string_view ReadLines::Take() {
  const auto line = Peek();
  if (!line) throw BadFile{"The file ends after line " + std::to_string(line_) + ", before it is complete"};
  isPeeked_ = false;
  ++line_;
  return *line;
}

void ReadLines::Refuse(std::string_view why) const {
  throw BadFile{"Line " + std::to_string(line_) + " of the file: " + std::string(why)};
}

void ReadLines::Text(std::string& text) {
  const std::string_view line = Take();
  if (std::ranges::any_of(line, [](unsigned char c) { return c < 0x20 && c != '\t'; }))
    Refuse("this is no text: \"" + Readable(line) + "\"");
  text = FromFileText(line);
}

void ReadLines::Named(std::string_view name, std::string& value) {
  const int expected = line_ + 1;
  const auto refuse = [&] {
    throw BadFile{"Line " + std::to_string(expected) + " of the file: \"" + std::string(name) +
                  "\" should stand there"};
  };
  std::string line;
  for (;;) {
    if (line_ >= expected && !Peek()) refuse();
    Text(line);
    if (line.starts_with(name) && line.size() > name.size() && line[name.size()] == ' ') break;
    if (!passesOver_) refuse();
  }
  value = line.substr(name.size() + 1);
}

bool ReadLines::Word(std::string_view word, bool) {
  if (const auto line = Peek(); !line || *line != word) return false;
  Take();
  return true;
}

template <class Value>
void ReadLines::Row(std::span<Value> row) {
  const std::string_view line = Take();
  if (!ParseRow(line, row, missing_)) {
    const std::string wanted = row.size() == 1 ? "a number" : std::to_string(row.size()) + " numbers";
    Refuse(wanted + " should stand there in place of \"" + Readable(line) + "\"");
  }
}

void ReadLines::Numbers(std::span<double> row) {
  Row(row);
}

void ReadLines::Singles(std::span<float> row) {
  Row(row);
}

void ReadLines::End() {
  while (const auto line = Peek()) {
    Take();
    if (!Trim(*line).empty()) Refuse("the file should end there, and goes on with \"" + Readable(*line) + "\"");
  }
}

}  // namespace lumivex
