#include "scripts/script_printer.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>

#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

/// Whether a text is a number as JSON writes them: a sign only before a negative one, digits on both sides of a point.
bool IsJsonNumber(std::string_view text) {
  std::size_t i = 0;
  const auto digits = [&] {
    const std::size_t first = i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i;
    return i - first;
  };
  if (i < text.size() && text[i] == '-') ++i;
  const std::size_t whole = i, count = digits();
  if (count == 0 || (count > 1 && text[whole] == '0')) return false;
  if (i < text.size() && text[i] == '.') {
    ++i;
    if (digits() == 0) return false;
  }
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    if (digits() == 0) return false;
  }
  return i == text.size();
}

struct Cell {
  std::string text;
  bool quoted = false;  ///< and so a text, whatever it looks like
};

/// The cells of a row of CSV. Within quotes a comma is a comma and two quotes are one.
std::vector<Cell> CellsOf(std::string_view row) {
  std::vector<Cell> cells(1);
  bool quoted = false;
  for (std::size_t i = 0; i < row.size(); ++i) {
    const char c = row[i];
    if (c == '"' && quoted && i + 1 < row.size() && row[i + 1] == '"') {
      cells.back().text += row[++i];
    } else if (c == '"') {
      quoted = !quoted;
      cells.back().quoted = true;
    } else if (c == ',' && !quoted) {
      cells.emplace_back();
    } else {
      cells.back().text += c;
    }
  }
  return cells;
}

template <class Item, class Write>
std::string ListOf(const std::vector<Item>& items, Write write) {
  std::string list = "[";
  for (const auto& item : items) list += (list.size() > 1 ? "," : "") + write(item);
  return list + "]";
}

std::string JsonText(const Cell& cell) {
  return JsonString(cell.text);
}

std::string JsonOf(const Cell& cell) {
  return cell.quoted ? JsonString(cell.text) : JsonValue(cell.text);
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string RowsOf(const std::vector<std::string_view>& lines, std::size_t first) {
  std::string rows = "[";
  for (std::size_t i = first; i < lines.size(); ++i) rows += (i > first ? "," : "") + ListOf(CellsOf(lines[i]), JsonOf);
  return rows + "]";
}

}  // namespace

std::string JsonString(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    const char c = text.front();
    const std::size_t length = PrintableLength(text);
    if (c == '"' || c == '\\') {
      quoted += std::string{'\\', c};
    } else if (length > 0) {
      quoted += text.substr(0, length);
    } else if (const auto code = static_cast<unsigned char>(c); code < 0x80) {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u%04x", code);
      quoted += escape.data();
    } else {
      quoted += "\\ufffd";
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return quoted + '"';
}

std::string JsonValue(std::string_view text) {
  if (text == "true" || text == "false" || IsJsonNumber(text)) return std::string(text);
  for (const std::string_view none : {"nan", "-nan", "inf", "-inf"})
    if (text == none) return "null";
  return JsonString(text);
}

void ScriptPrinter::Begin(int line, std::string_view command) {
  line_ = line;
  command_ = command;
}

void ScriptPrinter::Open() {
  output_ << "{\"line\":" << line_ << ",\"command\":" << JsonString(command_);
}

void ScriptPrinter::Value(std::string_view name, std::string_view value) {
  if (!json_) {
    output_ << name << " = " << value << '\n';
    return;
  }
  Open();
  output_ << ",\"name\":" << JsonString(name) << ",\"value\":" << JsonValue(value) << "}\n";
}

void ScriptPrinter::Table(std::string_view csv) {
  if (!json_) {
    output_ << csv;
    return;
  }
  // Tables of a map stand under each other, a line "# name" over each.
  std::vector<std::string_view> table;
  std::string_view name;
  const auto print = [&] {
    if (table.empty()) return;
    Open();
    if (!name.empty()) output_ << ",\"name\":" << JsonString(name);
    output_ << ",\"columns\":" << ListOf(CellsOf(table[0]), JsonText) << ",\"rows\":" << RowsOf(table, 1) << "}\n";
    table.clear();
  };
  for (const std::string_view line : LinesOf(csv)) {
    if (line.starts_with("# ")) {
      print();
      name = line.substr(2);
    } else if (!line.empty()) {
      table.push_back(line);
    }
  }
  print();
}

void ScriptPrinter::Array(std::string_view name, std::string_view csv) {
  if (!json_) {
    output_ << csv;
    return;
  }
  Open();
  output_ << ",\"name\":" << JsonString(name) << ",\"rows\":" << RowsOf(LinesOf(csv), 0) << "}\n";
}

void ScriptPrinter::Lines(std::string_view text) {
  if (!json_) {
    output_ << text;
    return;
  }
  Open();
  output_ << ",\"lines\":" << ListOf(LinesOf(text), JsonString) << "}\n";
}

void ScriptPrinter::Messages(const std::vector<std::pair<std::string, std::string>>& messages) {
  std::string list;
  for (const auto& [title, text] : messages) {
    if (!json_) output_ << title << ": " << text << '\n';
    list += (list.empty() ? "" : ",") + ("{\"title\":" + JsonString(title) + ",\"text\":" + JsonString(text) + "}");
  }
  if (!json_) return;
  Open();
  output_ << ",\"messages\":[" << list << "]}\n";
}

void ScriptPrinter::Failure(std::string_view what) {
  if (!json_) return;
  Open();
  output_ << ",\"error\":" << JsonString(what) << "}\n";
}

}  // namespace lumivex
