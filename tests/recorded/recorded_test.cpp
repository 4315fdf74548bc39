#include <algorithm>
#include <cmath>
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

/// What the program shows, answers and draws, as it was when somebody last looked at it and found it right: what no
/// test of one rule or number sees, a change of many small things at once, does not go by unnoticed.
class Recorded : public ScriptedSession {
 protected:
  MainFormState& State() { return runner.Current().state; }

  /// Every method by every graph that is offered.
  template <class Visit>
  void EachPair(Visit visit) {
    for (const auto& graph : OfferedGraphs())
      for (const auto& row : MethodTable()) {
        if (!IsAvailable(row.feature)) continue;
        Do("reset\nchoose cboGraph " + graph + "\nchoose cboType " + std::string(row.text));
        runner.World().messages.clear();
        visit(graph + " by " + std::string(row.text));
      }
  }

  std::string Messages() {
    std::string text;
    for (const auto& shown : Shown()) text += "  message " + shown.title + ": " + shown.text + "\n";
    std::ranges::replace(text, '\r', ' ');
    runner.World().messages.clear();
    return text;
  }
};

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

/// A drawing without the lines of its curves but for a few points of each.
std::string Condensed(const RecordingSurface& surface) {
  std::string text;
  for (DrawnOperation operation : surface.Operations()) {
    constexpr std::size_t kept = 12;
    auto& points = operation.points;
    const std::size_t count = points.size();
    if (count > kept) {
      for (std::size_t i = 0; i < kept; ++i) points[i] = points[i * (count - 1) / (kept - 1)];
      points.resize(kept);
    }
    for (auto& point : points) point = {std::round(point.x), std::round(point.y)};
    text += "  " + operation.Describe() + (count > kept ? " of " + std::to_string(count) : "") + "\n";
  }
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
    Do("set txtRadius 3\nset txtRefractImag 0.001");
    // Few points are enough to see whether they are right.
    if (State().GraphType < 10) Do("set cboStep 2");
    if (State().GraphType >= 10) Do("set cboStep " + std::string(Get("mnuXStepLog") == "true" ? "10" : "5"));
    if (State().GraphType == 12) Do("set cboStep 0.02");
    if (State().GraphType == 18) Do("set cboStep 20\nset txtF9_step 10");
    Do("click cmdNewPlot");
    text += pair + "\n" + Messages();
    if (State().PrevGraphType != State().GraphType || State().PrevGraphSubType != State().GraphSubType) return;
    output.str("");
    Do("table");
    text += Summary(output.str());
    for (const auto& line : runner.Current().page.readings) text += "  " + line.text + "\n";
  });
  HoldAgainstRecord("numbers", text);
}

TEST_F(Recorded, Pages) {
  std::ifstream scripts(SourceFolder() + "/tests/recorded/pages.txt");
  std::string text;
  const auto draw = [&](const std::string& heading, const std::string& script) {
    if (heading.empty()) return;
    Do("reset");
    runner.World().messages.clear();
    Do(script);
    const auto& window = runner.Current().windows.front();
    RecordingSurface surface(window.surface->ScaleWidth(), window.surface->ScaleHeight());
    Paint(window.page, surface);
    text += heading + "\n" + Messages() + Condensed(surface);
  };
  std::string heading, script;
  for (std::string line; std::getline(scripts, line);) {
    if (line.starts_with("== ")) {
      draw(heading, script);
      heading = line;
      script.clear();
    } else {
      script += line + "\n";
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
