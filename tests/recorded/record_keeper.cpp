#include "recorded/record_keeper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include "source_folder.h"

namespace lumivex {

namespace {

/// A line as what stands between its numbers, and its numbers.
struct Line {
  std::string words;
  std::vector<double> numbers;
};

bool BeginsNumber(const std::string& text, std::size_t at) {
  const auto digit = [&](std::size_t i) {
    return i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])) != 0;
  };
  // A digit of a name (Label19) or of a colour (#80ffff) is a letter.
  if (at > 0 && (std::isalnum(static_cast<unsigned char>(text[at - 1])) != 0 || text[at - 1] == '#')) return false;
  return digit(at) ||
         ((text[at] == '-' || text[at] == '.') && (digit(at + 1) || (text[at + 1] == '.' && digit(at + 2))));
}

Line Read(const std::string& text) {
  Line line;
  bool inColour = false;
  for (std::size_t i = 0; i < text.size();) {
    inColour = text[i] == '#' || (inColour && std::isalnum(static_cast<unsigned char>(text[i])) != 0);
    if (!inColour && BeginsNumber(text, i)) {
      char* end = nullptr;
      line.numbers.push_back(std::strtod(text.c_str() + i, &end));
      line.words += "?";
      i = static_cast<std::size_t>(end - text.c_str());
    } else {
      line.words += text[i++];
    }
  }
  return line;
}

bool Same(const std::string& a, const std::string& b) {
  if (a == b) return true;
  const Line left = Read(a), right = Read(b);
  if (left.words != right.words || left.numbers.size() != right.numbers.size()) return false;
  double largest = 0;
  for (const double x : right.numbers) largest = std::max(largest, std::abs(x));
  for (std::size_t i = 0; i < left.numbers.size(); ++i)
    if (!(std::abs(left.numbers[i] - right.numbers[i]) <= 2e-6 * std::abs(right.numbers[i]) + 1e-9 * largest))
      return false;
  return true;
}

std::vector<std::string> Lines(std::istream& in) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

}  // namespace

std::string Digits(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", std::abs(value) < 1e-300 ? 0.0 : value);
  return text;
}

void HoldAgainstRecord(const std::string& name, const std::string& text) {
  const std::string path = SourceFolder() + "/tests/recorded/records/" + name + ".txt";
  if (std::getenv("LUMIVEX_RECORD") != nullptr) {
    std::ofstream(path, std::ios::binary) << text;
    return;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << path;
  std::istringstream made(text);
  const auto kept = Lines(file), now = Lines(made);
  constexpr int shown = 8;
  int differing = 0;
  for (std::size_t i = 0; i < std::max(kept.size(), now.size()); ++i) {
    const std::string before = i < kept.size() ? kept[i] : "(no line)", after = i < now.size() ? now[i] : "(no line)";
    if (Same(after, before)) continue;
    if (++differing <= shown) ADD_FAILURE() << path << ":" << i + 1 << "\n  kept " << before << "\n  now  " << after;
  }
  if (differing > shown) ADD_FAILURE() << differing << " lines differ in all";
}

}  // namespace lumivex
