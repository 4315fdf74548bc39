#include "scripts/compare_commands.h"

#include <charconv>
#include <optional>
#include <vector>

#include "files/measured/open_data.h"
#include "materials/files/readable_text.h"
#include "record/csv_cell.h"
#include "record/number_text.h"
#include "scripts/script_line.h"
#include "scripts/script_printer.h"
#include "session/compare/compare.h"

namespace lumivex {

namespace {

CompareAnswer Failed(std::string why) {
  return {std::move(why), {}};
}

/// A curve by its number in the list.
std::optional<ListedCurve> CurveOfNumber(const Session& session, std::string_view text) {
  const auto curves = CurvesOnPage(session);
  const double number = IsNumber(text) ? Val(text) : 0;
  if (number != Int(number) || number < 1 || number > static_cast<double>(curves.size())) return std::nullopt;
  return curves[static_cast<std::size_t>(number) - 1];
}

CompareAnswer NoCurve(const Session& session, std::string_view text) {
  return Failed("there is no curve " + Readable(text) + ": there are " +
                CountOf(static_cast<double>(CurvesOnPage(session).size()), "curve"));
}

std::optional<Colour> ColourFrom(std::string_view text) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  constexpr std::size_t digits = 6;
  if (text.size() != digits || error != std::errc() || end != text.data() + digits) return std::nullopt;
  return RGB((value >> 16U) & 0xFFU, (value >> 8U) & 0xFFU, value & 0xFFU);
}

std::string TextOfColour(Colour colour) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (const int channel : {colour.Red(), colour.Green(), colour.Blue()}) {
    text += digits[static_cast<std::size_t>(channel / 16)];
    text += digits[static_cast<std::size_t>(channel % 16)];
  }
  return text;
}

/// A name as a cell: one that reads like a number is a name all the same.
std::string Quoted(const std::string& text) {
  return JsonValue(text) == JsonString(text) ? CsvCell(text) : CsvText(text);
}

std::optional<BelowGraph> BelowOf(std::string_view word) {
  if (word == "nothing") return BelowGraph::Nothing;
  if (word == "difference") return BelowGraph::Difference;
  if (word == "ratio") return BelowGraph::Ratio;
  return std::nullopt;
}

/// "data N factor 2.5", "data N fit" and "data N against M".
CompareAnswer ChangeData(Session& session, const ListedCurve& data, std::string_view rest) {
  const std::string what = TakeWord(rest);
  if (what == "fit") {
    ScaleData(session, data.id.data, std::nullopt);
  } else if (what == "factor") {
    if (!IsNumber(rest) || Val(rest) == 0) return Failed("a factor is a number other than 0");
    ScaleData(session, data.id.data, Val(rest));
  } else if (what == "against") {
    const auto other = CurveOfNumber(session, rest);
    if (!other || other->id.data != 0) return Failed("data are held against a curve");
    HoldAgainst(session, data.id.data, other->id);
  } else {
    return Failed("data have: factor, fit, against");
  }
  return {};
}

/// The first part of a text, which may stand in double quotes.
std::string TakeQuoted(std::string_view& rest) {
  rest = Trim(rest);
  const auto close = rest.starts_with('"') ? rest.find('"', 1) : std::string_view::npos;
  if (close == std::string_view::npos) return TakeWord(rest);
  std::string word(rest.substr(1, close - 1));
  rest = Trim(rest.substr(close + 1));
  return word;
}

}  // namespace

CompareAnswer CurveCommand(Session& session, std::string_view rest) {
  const std::string number = TakeWord(rest), what = TakeWord(rest);
  const auto curve = CurveOfNumber(session, number);
  if (!curve) return NoCurve(session, number);
  if (what == "name") {
    NameCurve(session, curve->id, PathIn(rest));
  } else if (what == "hide" || what == "show") {
    ShowCurve(session, curve->id, what == "show");
  } else if (what == "keep" || what == "drop") {
    KeepCurve(session, curve->id, what == "keep");
  } else if (what == "remove") {
    RemoveCurve(session, curve->id);
  } else if (what == "colour") {
    const auto colour = ColourFrom(rest);
    if (!colour && rest != "own") return Failed("a colour has six hexadecimal digits, or is: own");
    ColourCurve(session, curve->id, colour);
  } else {
    return Failed("a curve has: name, hide, show, keep, drop, remove, colour");
  }
  return {};
}

CompareAnswer CurvesCommand(Session& session, std::string_view) {
  std::string text = "number,name,shown,kept,colour,fit\n";
  int number = 0;
  for (const ListedCurve& curve : CurvesOnPage(session))
    text += std::to_string(++number) + "," + Quoted(curve.name) + "," + (curve.shown ? "true" : "false") + "," +
            (curve.kept ? "true" : "false") + "," + Quoted(TextOfColour(curve.colour)) + "," + Quoted(curve.words) +
            "\n";
  return {{}, text};
}

CompareAnswer BelowCommand(Session& session, std::string_view rest) {
  const std::string word = TakeWord(rest);
  const auto how = BelowOf(word);
  if (!how) return Failed("below takes difference, ratio or nothing");
  if (rest.empty()) {
    ShowBelow(session, *how);
    return {};
  }
  const std::string one = TakeWord(rest);
  const auto first = CurveOfNumber(session, one), second = CurveOfNumber(session, rest);
  if (!first) return NoCurve(session, one);
  if (!second) return NoCurve(session, rest);
  if (first->id == second->id || *how == BelowGraph::Nothing) return Failed("two curves are compared");
  ComparePair(session, first->id, second->id, *how);
  return {};
}

CompareAnswer DataCommand(Session& session, std::string_view rest) {
  const std::string file = TakeQuoted(rest);
  if (IsNumber(file)) {
    const auto curve = CurveOfNumber(session, file);
    if (!curve || curve->id.data == 0) return Failed("curve " + file + " is no measured data");
    return ChangeData(session, *curve, rest);
  }
  if (file.empty()) return Failed("data needs the name of a file");
  DataColumns columns;
  std::string name;
  while (!rest.empty()) {
    const std::string word = TakeWord(rest);
    const auto equals = word.find('=');
    const std::string key = word.substr(0, equals), value = equals == std::string::npos ? "" : word.substr(equals + 1);
    if (key == "name") {
      name = PathIn(value + (rest.empty() ? "" : " " + std::string(rest)));
      break;
    }
    if (!IsNumber(value) || (key != "x" && key != "y" && key != "error"))
      return Failed("data FILE takes x=, y= and error= with the number of a column, and last name=");
    (key == "x" ? columns.x : key == "y" ? columns.y : columns.error) = ToWhole(Val(value));
    columns.said = true;
  }
  if (columns.said && columns.x == 0) columns.x = 1;
  if (columns.said && columns.y == 0) columns.y = 2;
  return Failed(OpenMeasured(session, file, columns, name));
}

CompareAnswer MarkCommand(Session& session, std::string_view rest) {
  const std::string x = TakeWord(rest);
  if (!IsNumber(x) || !IsNumber(rest)) return Failed("mark takes X and Y in surface units");
  return Failed(MarkPoint(session, Val(x), Val(rest)) ? "" : "there is no curve at that place");
}

CompareAnswer MarkerCommand(Session& session, std::string_view rest) {
  const std::string number = TakeWord(rest);
  bool there = false;
  for (const Marker& marker : session.comparison.markers) there = there || std::to_string(marker.number) == number;
  if (!there || rest != "delete") return Failed("marker takes the number of a marker, and delete");
  DeleteMarker(session, ToWhole(Val(number)));
  return {};
}

CompareAnswer MarkersCommand(Session& session, std::string_view rest) {
  if (rest == "clear") {
    ClearMarkers(session);
    return {};
  }
  return {{}, MarkersAsText(session.comparison, ',')};
}

CompareAnswer KeyCommand(Session& session, std::string_view rest) {
  if (rest == "below") {
    MoveKey(session, std::nullopt);
    return {};
  }
  const std::string x = TakeWord(rest);
  const auto isPart = [](std::string_view text) { return IsNumber(text) && Val(text) >= 0 && Val(text) <= 1; };
  if (!isPart(x) || !isPart(rest)) return Failed("key takes its place as parts of the plot, 0 to 1, or: below");
  MoveKey(session, KeyPlace{Val(x), Val(rest)});
  return {};
}

}  // namespace lumivex
