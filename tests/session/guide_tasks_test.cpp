/// What the guide promises of common tasks: they take as many clicks as it says, and do what it says.

#include <fstream>
#include <sstream>

#include "session/session_fixture.h"
#include "source_folder.h"

namespace lumivex {
namespace {

class GuideTasks : public ScriptedSession {
 protected:
  /// The clicks that the guide tells of a task; -1 where it does not.
  static int ClicksTold(const std::string& task) {
    std::ifstream guide(SourceFolder() + "/docs/user_guide.md");
    for (std::string line; std::getline(guide, line);)
      if (line.starts_with("| " + task + " |")) return ToWhole(Val(line.substr(line.rfind('|', line.size() - 2) + 1)));
    return -1;
  }
  const Page& Graph() { return runner.Current().page; }
  static bool Coloured(const Colour& colour) {
    return colour.Red() != colour.Blue() && colour.Red() + colour.Blue() > 100;
  }
  /// Degrees between the first and the last angle whose unpolarised bar has a colour.
  double ColouredDegrees() {
    const PageBars& bars = Graph().bars.value();
    std::vector<double> angles;
    for (std::size_t i = 0; i < bars.painted[2].size(); ++i)
      if (Coloured(bars.painted[2][i])) angles.push_back(bars.angle[bars.firstShown + i]);
    return angles.empty() ? 0 : angles.back() - angles.front();
  }
};

TEST_F(GuideTasks, TakeTheClicksThatAreTold) {
  struct Task {
    const char *name, *script;
  };
  const std::vector<Task> tasks = {
      {"Bows of a 0.5 mm drop in sunlight",
       "choose cboWave 30\nset txtRadius 250\nset txtXmin 90\nclick optSun\nclick cmdNewPlot"},
      {"Corona of 5 \u00B5m drops",
       "choose cboWave 30\nset txtRadius 5\nset txtXmax 30\nclick optSun\nset cboBright 30\nclick cmdNewPlot"},
      {"Mie beside Debye p = 2", "choose cboType Debye\nset cboRays 2\nclick cmdOverPlot"},
      {"Qext against x", "choose cboGraph Qext/Qsca/Qabs v. size x\nclick cmdNewPlot"},
      {"Phase function of a cloud", "choose cboGraph Phase function\nclick optDisp\nclick cmdNewPlot"}};
  for (const auto& [name, script] : tasks) {
    Do("reset");
    Do(script);
    const std::string lines = script;
    EXPECT_EQ(std::ranges::count(lines, '\n') + 1, ClicksTold(name)) << name;
    EXPECT_TRUE(Shown().empty()) << name << ": " << LastText();
    if (Graph().bars && Graph().kind.wavelengths > 1) {
      EXPECT_GT(ColouredDegrees(), 5) << name;
    }
    EXPECT_EQ(Graph().runs.size(), name == std::string("Mie beside Debye p = 2") ? 2U : 1U) << name;
  }
  EXPECT_EQ(Get("cboN"), "20") << "a cloud has many sizes without being asked for them";
}

}  // namespace
}  // namespace lumivex
