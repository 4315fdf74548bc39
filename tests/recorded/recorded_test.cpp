#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

#include "pages/build_page.h"
#include "record/layout/menu_tree.h"
#include "recorded/record_keeper.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods.h"
#include "session/session_fixture.h"
#include "source_folder.h"

namespace lumivex {
namespace {

bool IsText(const DrawnOperation& operation) {
  return operation.kind == DrawnOperation::Kind::Text;
}

/// The fields of the record as lines that are compared: numbers and texts, and how long each array is. Clocks, places
/// of files and what rounding alone leaves are others on every machine.
struct FieldLines {
  std::vector<std::string> lines;

  template <class Field>
  void operator()(std::string_view name, const Field& field) {
    const auto tells = [&](std::string_view part) { return name.find(part) != std::string_view::npos; };
    if (tells("Seconds") || tells("Progress") || tells("LoopIndex") || tells("Time") || tells("Folder") ||
        tells("LastFile"))
      return;
    if constexpr (std::is_arithmetic_v<Field>) {
      const auto value = static_cast<double>(field);
      Add(name, "=" + Digits(std::abs(value) < 1e-9 ? 0.0 : value));
    } else if constexpr (std::is_same_v<Field, std::string>) {
      Add(name, "='" + field + "'");
    } else if constexpr (requires { field.Rows(); }) {
      Add(name, " of " + std::to_string(field.Rows()) + " rows");
    } else if constexpr (requires { field.size(); }) {
      Add(name, " of " + std::to_string(field.size()));
    }
  }
  void Add(std::string_view name, const std::string& value) { lines.push_back(std::string(name) + value); }
};

/// A drawing without the lines of its curves but for a few points of each.
/// @param wanted  which of its operations.
template <class Wanted>
std::string Condensed(const RecordingSurface& surface, Wanted wanted) {
  std::string text;
  for (DrawnOperation operation : surface.Operations()) {
    if (!wanted(operation)) continue;
    constexpr std::size_t kept = 12;
    auto& points = operation.points;
    const std::size_t count = points.size();
    if (count > kept) {
      for (std::size_t i = 0; i < kept; ++i) points[i] = points[i * (count - 1) / (kept - 1)];
      points.resize(kept);
    }
    for (auto& point : points) point = {std::round(point.x), std::round(point.y)};
    const bool filled = operation.kind == DrawnOperation::Kind::Circle && operation.fillStyle == 0;
    text += "  " + operation.Describe() + (filled ? " fill=" + std::to_string(operation.fillColour.value) : "") +
            (count > kept ? " of " + std::to_string(count) : "") + "\n";
  }
  return text;
}

/// A table of numbers by its columns: the sum of what is in them, and five rows.
std::string Summary(const std::string& csv) {
  std::istringstream in(csv);
  std::string line;
  std::getline(in, line);
  std::vector<std::string> names;
  std::istringstream heading(line);
  for (std::string name; std::getline(heading, name, ',');) names.push_back(name);
  std::vector<std::vector<double>> columns(names.size());
  while (std::getline(in, line)) {
    std::istringstream cells(line);
    std::string cell;
    for (auto& column : columns)
      if (std::getline(cells, cell, ',')) column.push_back(Val(cell));
  }
  std::string text;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const auto& column = columns[i];
    double sum = 0;
    for (const double value : column) sum += std::abs(value);
    if (sum == 0) continue;
    text += "  " + names[i] + " " + std::to_string(column.size()) + ":";
    for (int part = 0; part <= 4; ++part)
      text += " " + Digits(column[(column.size() - 1) * static_cast<std::size_t>(part) / 4]);
    text += " sum " + Digits(sum) + "\n";
  }
  return text;
}

/// The cells of a map by panels and channels, in fewer digits than single precision has.
std::string Summary(const MapFound& map) {
  const auto digits = [](double value) { return Significant(value, 5); };
  std::string text;
  const auto add = [&](const std::string& name, const std::vector<float>& cells) {
    double sum = 0;
    for (const float cell : cells) sum += std::abs(double{cell});
    if (sum == 0) return;
    text += "  " + name + " " + std::to_string(cells.size()) + ":";
    for (std::size_t part = 0; part <= 4; ++part) text += " " + digits(double{cells[(cells.size() - 1) * part / 4]});
    text += " sum " + digits(sum) + "\n";
  };
  for (std::size_t panel = 0; panel < map.panels.size(); ++panel) {
    const std::string name = "panel " + std::to_string(panel + 1);
    const MapPanel& cells = map.panels[panel];
    add(name, cells.value);
    add(name + " red", cells.red);
    add(name + " green", cells.green);
    add(name + " blue", cells.blue);
  }
  return text;
}

/// What the program shows, answers and draws, as it was when somebody last looked at it and found it right: what no
/// test of one rule or number sees, a change of many small things at once, does not go by unnoticed.
class Recorded : public ScriptedSession {
 protected:
  MainFormState& State() { return runner.Current().state; }

  /// Rays of flattened drops are the same every time: two thousand tell as much as millions.
  const std::string fewRays = "\nset dlogNonSpherical.cboRayCount 2000\n";

  /// Every method by every graph that is offered.
  template <class Visit>
  void EachPair(Visit visit) {
    for (const auto& graph : OfferedGraphs())
      for (const auto& row : MethodTable()) {
        if (!IsAvailable(row.feature)) continue;
        Do("reset" + fewRays + "choose cboGraph " + graph + "\nchoose cboType " + std::string(row.text));
        runner.World().messages.clear();
        visit(graph + " by " + std::string(row.text));
      }
  }

  bool IsMap() { return GraphOf({State().GraphType, State().GraphSubType}).InColour(); }

  /// Few points are enough to see whether they are right.
  void TakeFewPoints() {
    if (IsMap()) return Do(State().GraphType < 26 ? "set cboStep 0.5" : "set cboStep 4\nset txtF9_step 3");
    if (State().GraphType < 10) Do("set cboStep 2");
    if (State().GraphType >= 10) Do("set cboStep " + std::string(Get("mnuXStepLog") == "true" ? "10" : "5"));
    if (State().GraphType == 12) Do("set cboStep 0.02");
    if (State().GraphType == 18)
      Do("set cboStep " + std::string(Number("txtXmax") > 100 ? "50" : "5") + "\nset txtF9_step 10");
  }

  /// What is wanted of the page as it is painted on a surface of another size, or of its own (0).
  template <class Wanted>
  std::string Painted(double width, double height, Wanted wanted) {
    const auto& window = runner.Current().windows.front();
    PageGeometry geometry = window.page.geometry;
    RecordingSurface surface(window.surface->ScaleWidth(), window.surface->ScaleHeight());
    if (width > 0) {
      // As an export places it: a page of the size of its window keeps its proportion to it.
      if (window.page.style.size == GraphSize::VeryLarge) {
        geometry.box.right *= width / geometry.surfaceWidth;
        geometry.box.bottom *= height / geometry.surfaceHeight;
        geometry.panelWidth *= width / geometry.surfaceWidth;
      }
      geometry.surfaceWidth = width;
      geometry.surfaceHeight = height;
      surface.Resize(width, height);
    }
    Paint(PlacePage(window.page, geometry), surface);
    return Condensed(surface, wanted);
  }

  /// A new plot by its table and readings; where it is refused by what is said.
  std::string NumbersOfARun() {
    Do("click cmdNewPlot");
    const std::string said = Messages();
    if (State().PrevGraphType != State().GraphType || State().PrevGraphSubType != State().GraphSubType) return said;
    std::string text = said;
    if (const auto* map = State().LastResults->Find<MapFound>()) {
      text += Summary(*map);
    } else {
      output.str("");
      Do("table");
      text += Summary(output.str());
    }
    for (const auto& line : runner.Current().page.readings) {
      // Nothing is absorbed where k = 0, and what rounding leaves of that is another number on every machine.
      constexpr std::string_view absorbed = "Qabs = ";
      if (line.text.starts_with(absorbed) && Val(line.text.substr(absorbed.size())) < 1e-9) continue;
      text += "  " + line.text + "\n";
    }
    return text;
  }

  /// What is another in the record than when it was looked at before, as it is now.
  std::string FieldsSince(std::vector<std::string>& before) {
    FieldLines now;
    ForEachStateField(std::as_const(State()), now);
    std::string text;
    for (const auto& line : now.lines)
      if (std::ranges::find(before, line) == before.end()) text += "  " + line + "\n";
    before = now.lines;
    return text;
  }

  std::string Messages() {
    std::string text;
    for (const auto& shown : Shown()) text += "  message " + shown.title + ": " + shown.text + "\n";
    std::ranges::replace(text, '\r', ' ');
    runner.World().messages.clear();
    return text;
  }
};

/// What a list offers, in a line of its own: it stays while what stands in the box goes.
std::string Offered(const SelectionList& list) {
  std::string text;
  for (const auto& item : list.Items) text += (text.empty() ? "" : " | ") + item;
  return std::string(list.Name()) + " offers " + text;
}

/// The controls that are seen, a line each, with what stands on them; of menu entries those that are ticked or off.
std::vector<std::string> Seen(const Form& form) {
  std::vector<std::string> lines;
  for (const Control* control : form.Controls()) {
    const bool entry = control->Kind() == ControlKind::MenuEntry;
    const auto [text, checked] = control->Value();
    if (!control->Visible || (entry && control->Enabled && !checked)) continue;
    std::string line(control->Name());
    if (!text.empty()) line += "=" + text;
    if (checked) line += " ticked";
    if (!control->Enabled) line += " off";
    if (!entry && !control->ShownCaption().empty()) line += " '" + std::string(control->ShownCaption()) + "'";
    if (control->BackColour == colours::BadInput) line += " marked";
    lines.push_back(line);
    if (control->Kind() == ControlKind::SelectionList)
      lines.push_back(Offered(static_cast<const SelectionList&>(*control)));
  }
  return lines;
}

/// What went from one list and what came to it.
std::string Changes(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  std::string text;
  for (const auto& line : before)
    if (std::ranges::find(after, line) == after.end()) text += "  -" + line + "\n";
  for (const auto& line : after)
    if (std::ranges::find(before, line) == before.end()) text += "  +" + line + "\n";
  return text;
}

TEST_F(Recorded, ControlsOfEveryGraphAndMethod) {
  std::string text;
  std::vector<std::string> before;
  EachPair([&](const std::string& pair) {
    const auto seen = Seen(runner.Current().form1);
    text += pair + "\n" + Changes(before, seen) + Messages();
    before = seen;
  });
  HoldAgainstRecord("controls", text);
}

TEST_F(Recorded, NumbersOfEveryGraphAndMethod) {
  std::string text;
  EachPair([&](const std::string& pair) {
    if (!IsMap()) Do("set txtRadius 3\nset txtRefractImag 0.001");
    TakeFewPoints();
    text += pair + "\n" + NumbersOfARun();
  });
  HoldAgainstRecord("numbers", text);
}

/// Every method where its formulas go other ways than those of a drop of water in air.
TEST_F(Recorded, NumbersOfEveryMethodInOtherRegimes) {
  const std::pair<const char*, const char*> regimes[] = {
      {"a bubble", "set txtRefractReal 0.75\nset txtRefractImag 0\nset txtRadius 5\nset cboRays 1"},
      {"a bubble, reflected inside", "set txtRefractReal 0.75\nset txtRefractImag 0\nset txtRadius 5\nset cboRays 3"},
      {"glass in water", "set txtRefractReal 1.6\nset txtRefractImag 0\nset txtRefractMedium 1.333\nset cboRays 2"},
      {"a metal", "set txtRefractReal 0.3\nset txtRefractImag 3\nset txtRadius 1\nset cboRays 0"},
      {"the second bow", "set txtRefractImag 0\nset txtRadius 50\nset cboRays 3"},
      {"a haze", "set txtRefractImag 0\nset txtRadius 0.05\nset cboRays 0"},
      {"a cloud", "click optDisp\nset cboN 5\nset txtRadius 4\nset cboRays 2"},
      {"stopped half way", "set txtRefractImag 0\nset txtRadius 30\nset cboRays 2\nset cboStep 0.2\nstop-at 50"},
      {"three wavelengths", "set cboWave 3\nset txtRadius 4\nset cboRays 2"},
  };
  std::string text, fields;
  std::vector<std::string> before;
  for (const auto& row : MethodTable()) {
    if (!IsAvailable(row.feature)) continue;
    for (const auto& [regime, lines] : regimes) {
      Do("reset" + fewRays + "choose cboType " + std::string(row.text) + "\nset cboStep 2\n" + lines);
      runner.World().messages.clear();
      const std::string heading = std::string(row.text) + ", " + regime + "\n";
      text += heading + NumbersOfARun();
      fields += heading + FieldsSince(before);
    }
  }
  HoldAgainstRecord("regimes", text);
  HoldAgainstRecord("fields_of_methods", fields);
}

/// Titles, units and numbers of the axes, in every letter and place.
TEST_F(Recorded, TextsOfEveryGraph) {
  std::string text, fields;
  std::vector<std::string> before;
  for (const auto& graph : OfferedGraphs())
    for (const char* look : {"click OptLog", "click mnuSizeSpecial\nclick optLinear"}) {
      Do("reset\ndialog dlogIncident ok\nchoose cboGraph " + graph);
      runner.World().messages.clear();
      TakeFewPoints();
      // Pictures have no vertical scale.
      Do(IsMap() ? Get("mnuFalseColours") == "true" ? "click cmdNewPlot" : "click mnuFalseColours\nclick cmdNewPlot"
                 : std::string(look) + "\nset txtRefractImag 0.001\nclick cmdNewPlot");
      fields += graph + "\n" + FieldsSince(before);
      text += graph + "\n" + Messages() + Painted(0, 0, IsText);
    }
  HoldAgainstRecord("texts", text);
  HoldAgainstRecord("fields_of_graphs", fields);
}

TEST_F(Recorded, Pages) {
  std::ifstream scripts(SourceFolder() + "/tests/recorded/pages.txt");
  std::string text;
  const auto draw = [&](const std::string& heading, const std::string& script) {
    if (heading.empty()) return;
    Do("reset");
    runner.World().messages.clear();
    Do(script);
    double width = 0, height = 0;
    const auto place = heading.find(" on ");
    if (place != std::string::npos) std::sscanf(heading.c_str() + place, " on %lf x %lf", &width, &height);
    text += heading + "\n" + Messages() + Painted(width, height, [](const auto&) { return true; });
  };
  std::string heading, script;
  for (std::string line; std::getline(scripts, line);) {
    if (line.starts_with("== ")) {
      draw(heading, script);
      heading = line;
      script.clear();
    } else {
      // Files of the source folder, wherever that is.
      constexpr std::string_view read = "data ";
      const bool isRead = line.starts_with(read);
      script += (isRead ? std::string(read) + SourceFolder() + "/" + line.substr(read.size()) : line) + "\n";
    }
  }
  draw(heading, script);
  HoldAgainstRecord("pages", text);
}

TEST_F(Recorded, IndicesOfEveryMaterial) {
  std::string text;
  std::vector<std::string> entries;
  for (const MenuRow& row : OfferedMenu())
    if (row.entry.starts_with("mnuRI_") && row.entry.find("File") == std::string::npos) entries.emplace_back(row.entry);
  for (const auto& name : entries) {
    text += name + "\n";
    for (const char* lambda :
         {"0.2", "0.25", "0.385", "0.4005", "0.55", "0.6501", "0.695", "1.3", "1.93", "12", "5000"}) {
      Do(std::string("reset\nset txtLambda ") + lambda + "\ndialog dlogTemp ok txtTemp=12.5\nclick " + name);
      text += std::string("  ") + lambda + ": " + Get("txtRefractReal") + " " + Get("txtRefractImag") + " in " +
              Get("txtRefractMedium") + " " + runner.Current().form1.lblSphere.Caption + "\n" + Messages();
    }
  }
  HoldAgainstRecord("materials", text);
}

}  // namespace
}  // namespace lumivex
