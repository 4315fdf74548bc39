#include "files/settings/ini_text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "record/number_text.h"
#include "record/text_file.h"

namespace lumivex {

namespace {

constexpr std::uintmax_t largestFile = 1U << 24U;
/// Far more than there are; a file of nothing but sections is damaged.
constexpr std::size_t mostSections = 1000;

std::string Escaped(std::string_view value) {
  std::string text;
  for (const char c : value) {
    if (c == '\n') {
      text += "\\n";
    } else if (c == '\r') {
      text += "\\r";
    } else if (c == '\\') {
      text += "\\\\";
    } else {
      text += c;
    }
  }
  return text;
}

/// A key that began with a bracket would make its line a section.
std::string EscapedKey(std::string_view key) {
  return (key.starts_with('[') ? "\\" : "") + Escaped(key);
}

std::string Unescaped(std::string_view text) {
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      value += text[i];
      continue;
    }
    const char c = text[++i];
    value += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
  }
  return value;
}

std::string_view TakeLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  // A file that went through a system of other line ends.
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

IniText IniText::Read(std::string_view text) {
  IniText ini;
  Section* section = nullptr;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.size() > 2 && line.front() == '[' && line.back() == ']') {
      if (ini.sections_.size() == mostSections) break;
      section = &ini.At(Unescaped(line.substr(1, line.size() - 2)));
      continue;
    }
    const auto equals = line.find('=');
    if (section == nullptr || equals == std::string_view::npos || equals == 0) continue;
    section->values.emplace_back(Unescaped(line.substr(0, equals)), Unescaped(line.substr(equals + 1)));
  }
  return ini;
}

std::optional<std::string> IniText::Value(std::string_view section, std::string_view key) const {
  const auto& values = Values(section);
  const auto found = std::find_if(values.rbegin(), values.rend(), [&](const auto& pair) { return pair.first == key; });
  return found == values.rend() ? std::nullopt : std::optional(found->second);
}

std::optional<double> IniText::Number(std::string_view section, std::string_view key) const {
  const auto value = Value(section, key);
  return value && IsNumber(*value) ? std::optional(Val(*value)) : std::nullopt;
}

const std::vector<std::pair<std::string, std::string>>& IniText::Values(std::string_view section) const {
  static const std::vector<std::pair<std::string, std::string>> none;
  const auto found = std::ranges::find(sections_, section, &Section::name);
  return found == sections_.end() ? none : found->values;
}

void IniText::Set(std::string_view section, std::string_view key, std::string_view value) {
  auto& values = At(section).values;
  const auto found = std::find_if(values.rbegin(), values.rend(), [&](const auto& pair) { return pair.first == key; });
  if (found == values.rend()) {
    values.emplace_back(key, value);
  } else {
    found->second = value;
  }
}

void IniText::Remove(std::string_view section) {
  std::erase_if(sections_, [&](const Section& s) { return s.name == section; });
}

std::string IniText::Write() const {
  std::string text = std::string(machineGenerated) + '\n';
  for (const auto& section : sections_) {
    text += "\n[" + Escaped(section.name) + "]\n";
    for (const auto& [key, value] : section.values) text += EscapedKey(key) + '=' + Escaped(value) + '\n';
  }
  return text;
}

IniText::Section& IniText::At(std::string_view name) {
  const auto found = std::ranges::find(sections_, name, &Section::name);
  if (found != sections_.end()) return *found;
  sections_.push_back({std::string(name), {}});
  return sections_.back();
}

std::optional<std::string> ReadOwnFile(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  const auto size = std::filesystem::file_size(path, error);
  return error || size > largestFile ? std::nullopt : ReadWholeFile(path);
}

}  // namespace lumivex
