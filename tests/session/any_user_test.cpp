#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "pages/build_page.h"
#include "record/catalogue/map_inputs.h"
#include "record/layout/menu_tree.h"
#include "scripts/script_commands.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods.h"
#include "session/page.h"
#include "session/record_snapshot.h"
#include "session/session_fixture.h"
#include "session/user_actions.h"
#include "source_folder.h"

namespace lumivex {
namespace {

/// A user who does anything in any order: graphs and methods are chosen, menus clicked, dialogs edited, nonsense typed,
/// files opened, the window resized and clicked, runs stopped on the way. Now and then what was typed is made good
/// again, so that most runs come to something.
class AnyUser : public ScriptedSession, public ::testing::WithParamInterface<unsigned> {
 protected:
  AnyUser() : random_(GetParam()) {
    folder_ = std::filesystem::temp_directory_path() / ("lumivex_any_user_" + std::to_string(GetParam()));
    std::filesystem::create_directories(folder_);
    // Nobody waits for the longest runs that can be asked for: they are stopped.
    runner.World().onYield = [this] {
      constexpr int patience = 200;
      if (++yields_ > patience || (stopAt_ >= 0 && Now().state.ProgressPercent >= stopAt_)) {
        stopAt_ = -1;
        Now().events.Raise("cmdStop_Click");
      }
    };
  }
  ~AnyUser() override { std::filesystem::remove_all(folder_); }

  Session& Now() { return runner.Current(); }
  std::size_t Pick(std::size_t count) { return static_cast<std::size_t>(random_() % count); }
  bool OneIn(std::size_t count) { return Pick(count) == 0; }
  template <class List>
  const auto& OneOf(const List& list) {
    return list[Pick(list.size())];
  }

  /// One thing that a user does; returns what it was.
  std::string Act() {
    Answer();
    switch (Pick(15)) {
      case 0:
      case 1:
        return ChoosePair();
      case 2:
      case 3:
        return Type(Now().form1);
      case 4:
      case 5:
        return Click(Now().form1);
      case 6:
        return Click(*OneOf(Now().forms.All()));
      case 7:
        return Point();
      default:
        return Heal();
    }
  }

  /// A run or a redraw, maybe stopped; what it does not give anew stands as it was.
  void RunAnything(const std::string& after) {
    Answer();
    stopAt_ = OneIn(4) ? static_cast<double>(Pick(100)) : -1;
    yields_ = 0;
    const char* const command = OneOf(
        std::array{"cmdNewPlot_Click", "cmdNewPlot_Click", "cmdNewPlot_Click", "cmdOverPlot_Click", "cmdReplot_Click"});
    SCOPED_TRACE(after + " | " + command);
    const auto results = Now().state.LastResults;
    const RecordSnapshot before = SnapshotOf(Now().state);
    Now().events.Raise(command);
    ASSERT_EQ(Now().state.PlotMode, 1);
    ASSERT_EQ(Now().state.Busy, 0);
    runs_ += Now().state.LastResults != results ? 1 : 0;
    if (Now().state.LastResults != results) return;
    const RecordSnapshot now = SnapshotOf(Now().state);
    for (const char* name :
         {"S1", "S2", "S1b", "S2b", "S1ofPoint", "S2ofPoint", "Qext", "Qsca", "Qback", "Gsca", "NSTOP", "NANG",
          "XValues", "SizeParameter", "PrevGraphType", "PrevGraphSubType", "LastPoint"})
      ASSERT_EQ(now.at(name), before.at(name)) << name;
  }

  /// The page can be drawn at any size, read and listed.
  void LookAtPage() {
    const Page& page = Now().page;
    RecordingSurface surface(Now().surface->ScaleWidth(), Now().surface->ScaleHeight());
    Paint(page, surface);
    for (const auto& operation : surface.Operations())
      for (const auto& point : operation.points)
        ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y)) << operation.Describe();
    CurveTable(Now());
  }

  int Runs() const { return runs_; }

 private:
  /// Answers for whatever is asked next: questions, dialogs with some field edited, files good, bad and missing.
  void Answer() {
    auto& world = runner.World();
    world.answers.assign(4, OneIn(2));
    world.openPaths.assign(2, AnyPath());
    world.savePaths.assign(2, OneIn(4) ? "/nowhere/at/all.txt" : (folder_ / "written.txt").string());
    world.dialogs.clear();
    for (Form* form : Now().forms.All()) {
      if (!OneIn(2)) continue;
      ScriptedPlatform::DialogAnswer answer{std::string(form->Name()), !OneIn(3), {}};
      for (const Control* control : form->Controls())
        if (control->Kind() == ControlKind::TextInput && OneIn(4))
          answer.fields.emplace_back(std::string(control->Name()), AnyText());
      world.dialogs.push_back(answer);
    }
  }

  std::string AnyPath() {
    static const std::vector<std::string> names = {"crown_glass.rix",
                                                   "fog_classes.dis",
                                                   "fused_silica.yml",
                                                   "mercury_lamp.spe",
                                                   "polystyrene.csv",
                                                   "spray.dis",
                                                   "water_segelstein.rix",
                                                   "white_led.spe",
                                                   "README.md",
                                                   "",
                                                   "no such file.rix",
                                                   "."};
    return SourceFolder() + "/data/examples/" + OneOf(names);
  }

  std::string AnyText() {
    static const std::vector<std::string> texts = {
        "",        "3",    "30",     "High",   "0",      "-1",  "1e999", "nan", "abc", "0.1", "1",         "1,5",
        "1.234,5", "180",  "90",     "0.5",    "10",     "100", "1e-9",  "5e5", "   ", "RGB", "2",         "1.33",
        "4",       "0.01", "\u00B5", "\u4E03", "1e-320", "+7",  "0x10",  ".",   "--3", "1 2", "Automatic", "Multiple"};
    if (OneIn(40)) return std::string(5000, "0123456789e.-"[Pick(13)]);
    return OneOf(texts);
  }

  std::string ChoosePair() {
    std::vector<std::string> methods;
    for (const auto& row : MethodTable())
      if (IsAvailable(row.feature)) methods.emplace_back(row.text);
    const std::string graph = OneOf(OfferedGraphs()), method = OneOf(methods);
    UserChooses(Now(), Now().form1.cboGraph, graph);
    UserChooses(Now(), Now().form1.cboType, method);
    return graph + " by " + method;
  }

  std::string Type(const Form& form) {
    std::vector<Control*> inputs;
    for (Control* control : form.Controls())
      if (control->Visible && control->Enabled &&
          (control->Kind() == ControlKind::TextInput || control->Kind() == ControlKind::SelectionList))
        inputs.push_back(control);
    Control& control = *OneOf(inputs);
    auto* list = control.Kind() == ControlKind::SelectionList ? static_cast<SelectionList*>(&control) : nullptr;
    if (list != nullptr && !list->Items.empty() && (!list->Editable || OneIn(2))) {
      UserChooses(Now(), *list, OneOf(list->Items));
    } else {
      UserTypes(Now(), control, AnyText());
    }
    return std::string(control.Name()) + " = " + control.Value().text.substr(0, 40);
  }

  std::string Click(const Form& form) {
    const auto& controls = form.Controls();
    if (controls.empty()) return "";
    Control& control = *OneOf(controls);
    yields_ = 0;
    UserClicks(Now(), control);
    return "click " + std::string(control.Name());
  }

  std::string Point() {
    const double x = static_cast<double>(Pick(20000)), y = static_cast<double>(Pick(16000));
    if (OneIn(2)) {
      Do("size " + std::to_string(300 + Pick(3000)) + "x" + std::to_string(200 + Pick(2000)));
    } else {
      Do("mouse " + std::to_string(x) + " " + std::to_string(y));
    }
    return "at " + std::to_string(x) + "," + std::to_string(y);
  }

  /// Inputs that give a run; the steps of the graph are few.
  std::string Heal() {
    auto& form = Now().form1;
    const bool logSteps = form.mnuXStepLog.Checked, angles = Now().state.GraphType < 10;
    for (const auto& [name, text] :
         std::initializer_list<std::pair<const char*, const char*>>{{"txtRadius", OneIn(2) ? "2" : "0.1"},
                                                                    {"txtLambda", "0.65"},
                                                                    {"txtRefractReal", "1.33"},
                                                                    {"txtRefractImag", OneIn(2) ? "0" : "0.01"},
                                                                    {"txtAngle", "138"},
                                                                    {"cboRays", OneIn(2) ? "2" : "Multiple"},
                                                                    {"cboWave", OneIn(3) ? "3" : "1"},
                                                                    {"cboN", "4"},
                                                                    {"cboSD", "10"},
                                                                    {"cboYmax", "Automatic"},
                                                                    {"cboYmin", "Automatic"},
                                                                    {"txtF9_min", "10"},
                                                                    {"txtF9_max", "170"},
                                                                    {"txtF9_step", "10"}})
      UserTypes(Now(), *form.Find(name), text);
    if (angles) {
      UserTypes(Now(), form.txtXmin, "0");
      UserTypes(Now(), form.txtXmax, "180");
    }
    // Half of all graphs take one method alone.
    if (OneIn(4)) UserChooses(Now(), form.cboType, "Mie");
    UserTypes(Now(), form.cboStep, angles || logSteps ? "10" : OneIn(2) ? "20" : "0.05");
    if (const MapInputs* map = FindMapInputs(ChosenGraph(Now().state))) HealMap(*map);
    return "heal";
  }

  /// A map with the start values of its graph, and few cells.
  void HealMap(const MapInputs& map) {
    auto& form = Now().form1;
    const Graph& graph = ChosenGraph(Now().state);
    for (const auto rows : {MapStarts(), SweepStarts()})
      for (const ControlText& row : rows)
        if (row.IsOf(graph)) UserTypes(Now(), *form.Find(row.control), row.text);
    UserTypes(Now(), map.further ? form.txtF9_step : form.txtRstep, "3");
    UserTypes(Now(), form.cboStep, graph.ColumnsOfAngles() ? "0.5" : "4");
  }

  std::mt19937 random_;
  std::filesystem::path folder_;
  int yields_ = 0;
  double stopAt_ = -1;
  int runs_ = 0;
};

TEST_P(AnyUser, DoesNoHarm) {
  constexpr int steps = 400;
  for (int step = 0; step < steps; ++step) {
    const std::string did = Act();
    ASSERT_NO_FATAL_FAILURE(RunAnything("step " + std::to_string(step) + ", " + did));
    if (OneIn(10)) Now().events.Raise(OneIn(2) ? "mnuUndo_Click" : "mnuRedo_Click");
    if (OneIn(8)) {
      ASSERT_NO_FATAL_FAILURE(LookAtPage()) << did;
    }
    if (OneIn(60)) Do("reset");
  }
  EXPECT_GT(Runs(), steps / 6) << "runs that came to something";
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyUser, ::testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace lumivex
