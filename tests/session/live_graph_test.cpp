#include "session/live/live_graph.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "record_snapshot.h"
#include "session/compare/compare.h"
#include "session/page.h"
#include "session/undo.h"
#include "session/user_actions.h"
#include "session_fixture.h"
#include "source_folder.h"

namespace lumivex {
namespace {

using Standing = LiveGraph::Standing;
using testing::HasSubstr;
using testing::IsEmpty;

/// A session as a window drives it: each act between Pause and Follow, with a queue in place of the event loop.
class LiveGraphTest : public ScriptedSession {
 protected:
  LiveGraphTest() { Begin(); }
  ~LiveGraphTest() override { live.reset(); }

  /// A fresh session, as on the first day.
  void Restart() {
    live.reset();
    Do("reset");
    Begin();
  }

  Session& Now() { return runner.Current(); }
  Form1& Form() { return Now().form1; }

  /// Script lines as acts of a user in a window.
  void Act(const std::string& lines) {
    live->Pause();
    Do(lines);
    live->Follow();
  }
  void Deliver() {
    std::vector<std::function<void()>> posted;
    {
      const std::lock_guard lock(mutex_);
      posted.swap(posted_);
    }
    for (const auto& action : posted) action();
  }
  /// Acts, and waits for the run that comes of it.
  Standing Settle(const std::string& lines = "") {
    if (!lines.empty()) Act(lines);
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (live->Stands() == Standing::Running && std::chrono::steady_clock::now() < until) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      Deliver();
    }
    return live->Stands();
  }
  /// Everything that a preview must leave alone.
  struct Everything {
    RecordSnapshot record;
    InputState inputs;
    std::shared_ptr<const Results> results;
    std::size_t curves, past;
    double top;
  };
  Everything Look() {
    return {SnapshotOf(Now().state),  PresentInputs(Now()),   Now().state.LastResults,
            Now().page.curves.size(), Now().undo.past.size(), Now().page.panels.front().limits.ymax};
  }

  std::unique_ptr<LiveGraph> live;

 private:
  void Begin() {
    live = std::make_unique<LiveGraph>(Now(), [this](std::function<void()> action) {
      const std::lock_guard lock(mutex_);
      posted_.push_back(std::move(action));
    });
    live->Follow();
  }

  std::mutex mutex_;
  std::vector<std::function<void()>> posted_;
};

/// Names of the fields in which two records differ, but for those that tell how long something took, or when, and for
/// views of cells.
std::vector<std::string> Differences(const RecordSnapshot& a, const RecordSnapshot& b) {
  constexpr std::array ofTime = {"StartTime",       "EstimateTime",   "LastRunSeconds", "ProgressFraction",
                                 "ProgressPercent", "AngleLoopIndex", "SeriesLoopIndex"};
  std::vector<std::string> names;
  for (const auto& [name, bytes] : a)
    if (bytes != b.at(name) && !name.starts_with("Lee") && std::ranges::find(ofTime, name) == ofTime.end())
      names.push_back(name);
  return names;
}

TEST_F(LiveGraphTest, MeasuredDataAreHeldAgainstThePreview) {
  Settle("choose cboPol Unpolarised\nset cboStep 0.5\nset txtRadius 1.9\nclick cmdNewPlot");
  Settle("data " + SourceFolder() + "/data/examples/goniometer.csv\ncurve 1 keep\ncurve 1 name kept");
  ASSERT_EQ(Settle("set txtRadius 2"), Standing::Preview);
  const Page& shown = Now().preview->page;
  ASSERT_EQ(shown.notes.size(), 1U);
  EXPECT_THAT(shown.notes[0].text, HasSubstr("per degree of freedom 0.9596")) << "of the radius that is tried";
  EXPECT_THAT(Now().page.notes[0].text, testing::Not(HasSubstr("0.9596")));
  EXPECT_EQ(shown.curves[0].givenName, "kept") << "the page below is as it was";
  EXPECT_NE(shown.curves[1].givenName, "kept");
  Settle("curve 1 hide");
  EXPECT_EQ(Now().preview->page.curves[0].givenName, "") << "what is hidden is hidden in both";
  Settle("click cmdNewPlot");
  EXPECT_THAT(Now().page.notes[0].text, HasSubstr("0.9596"));
  EXPECT_EQ(CurvesOnPage(Now()).size(), 3U);
}

TEST_F(LiveGraphTest, APreviewLeavesEverythingAlone) {
  ASSERT_EQ(live->Stands(), Standing::Kept);
  live->Pause();
  Do("set txtRadius 12.5");
  const Everything before = Look();
  live->Follow();
  ASSERT_EQ(Settle(), Standing::Preview);
  const Everything after = Look();
  EXPECT_THAT(Differences(before.record, after.record), IsEmpty());
  EXPECT_TRUE(before.inputs == after.inputs);
  EXPECT_EQ(before.results, after.results);
  EXPECT_EQ(before.curves, after.curves);
  EXPECT_EQ(before.past, after.past);
  EXPECT_EQ(before.top, after.top);
  EXPECT_TRUE(Shown().empty());
  // The page shown has the kept curves and, paler, the new ones.
  const Page& shown = ShownPage(Now());
  ASSERT_EQ(shown.curves.size(), 2 * before.curves);
  EXPECT_EQ(shown.runs.size(), 2U);
  EXPECT_EQ(Now().preview->results->asked.particle.radius, 12.5);
  EXPECT_FALSE(shown.curves.back().colour == Now().page.curves.back().colour);
}

TEST_F(LiveGraphTest, EnterGivesWhatNewPlotGives) {
  for (const std::string act : {"set txtRadius 7", "choose cboType Debye", "set txtXmax 90", "set cboWave 7",
                                "choose cboGraph Phase function", "choose cboGraph Qext/Qsca/Qabs v. size x"}) {
    std::ostringstream ignored;
    ScriptRunner plain(ignored, ignored);
    plain.Start();
    std::istringstream script(act + "\nclick cmdNewPlot");
    ASSERT_EQ(plain.Run(script), ScriptRunner::ok) << act;
    const Page& page = plain.Current().page;

    Restart();
    ASSERT_EQ(Settle(act), Standing::Preview) << act;
    const auto tried = Now().preview->results;
    EXPECT_TRUE(tried->asked.AsksSame(plain.Current().state.LastResults->asked)) << act;
    Act("click cmdNewPlot");
    EXPECT_EQ(live->Stands(), Standing::Kept) << act;
    EXPECT_FALSE(Now().preview) << act;
    EXPECT_THAT(Differences(SnapshotOf(plain.Current().state), SnapshotOf(Now().state)), IsEmpty()) << act;
    ASSERT_EQ(page.curves.size(), Now().page.curves.size()) << act;
    for (std::size_t i = 0; i < page.curves.size(); ++i)
      EXPECT_EQ(BytesOf(page.curves[i].y.All()), BytesOf(Now().page.curves[i].y.All())) << act;
    EXPECT_TRUE(page.homeY == Now().page.homeY) << act;
  }
}

TEST_F(LiveGraphTest, OverplotKeepsBothAndEscDrops) {
  ASSERT_EQ(Settle("set txtRadius 12"), Standing::Preview);
  EXPECT_THAT(live->Words(), HasSubstr("Esc"));
  EXPECT_TRUE(live->Drop());
  EXPECT_FALSE(Now().preview);
  EXPECT_EQ(live->Stands(), Standing::Waiting);
  EXPECT_EQ(Form().txtRadius.Text, "12") << "the input stays";
  EXPECT_FALSE(live->Drop());
  // What was dropped does not come back by itself, but with the next change.
  EXPECT_EQ(Settle("click mnuDataVisible"), Standing::Preview);
  live->Drop();
  ASSERT_EQ(Settle("set txtRadius 13"), Standing::Preview);
  Act("click cmdOverPlot");
  EXPECT_EQ(live->Stands(), Standing::Kept);
  EXPECT_FALSE(Now().preview);
  EXPECT_EQ(Now().page.runs.size(), 2U);
}

TEST_F(LiveGraphTest, InputsOfBeforeAreTheGraphOfBefore) {
  ASSERT_EQ(Settle("set txtRadius 12"), Standing::Preview);
  EXPECT_EQ(Settle("set txtRadius 10"), Standing::Kept);
  EXPECT_FALSE(Now().preview);
  EXPECT_THAT(live->Words(), IsEmpty());
  EXPECT_EQ(Settle("set txtRadius 10.0"), Standing::Kept) << "the same number";
  ASSERT_EQ(Settle("set txtRadius 12"), Standing::Preview);
  EXPECT_EQ(Settle("click mnuUndo"), Standing::Kept);
  // How the graph looks is no matter of a run.
  EXPECT_EQ(Settle("click mnuMinorGridX\nclick mnuBlueLine\nchoose cboPol Parallel"), Standing::Kept);
}

TEST_F(LiveGraphTest, ABadInputIsMarkedAndLeavesTheGraph) {
  ASSERT_EQ(Settle("set txtRadius 12"), Standing::Preview);
  const std::size_t shown = ShownPage(Now()).curves.size();
  for (const char* bad : {"", "x", "-3", "1,234", "1e400"}) {
    EXPECT_EQ(Settle("set txtRadius " + std::string(bad)), Standing::Refused) << bad;
    EXPECT_EQ(Form().txtRadius.BackColour, colours::BadInput) << bad;
    EXPECT_EQ(ShownPage(Now()).curves.size(), shown) << bad;
    EXPECT_TRUE(Shown().empty()) << "a message would stand in the way of typing: " << bad;
  }
  EXPECT_EQ(Settle("set txtRadius 12.1"), Standing::Preview);
  EXPECT_EQ(Form().txtRadius.BackColour, colours::White);
  // Two inputs that do not go together: mending one takes the mark off both.
  EXPECT_EQ(Settle("set txtXmin 100\nset txtXmax 50"), Standing::Refused);
  EXPECT_EQ(Form().txtXmin.BackColour, colours::BadInput);
  EXPECT_EQ(Settle("set txtXmax 150"), Standing::Preview);
  EXPECT_EQ(Form().txtXmin.BackColour, colours::White);
  // A command tells what the mark did not.
  EXPECT_EQ(Settle("set cboStep 7"), Standing::Refused);
  EXPECT_THAT(live->Words(), HasSubstr("sub-multiple"));
  Act("click cmdNewPlot");
  EXPECT_THAT(LastText(), HasSubstr("sub-multiple"));
}

TEST_F(LiveGraphTest, WhatTakesLongWaitsForEnter) {
  EXPECT_EQ(Settle("set cboWave 1000\nset txtRadius 3000\nset cboStep 0.01"), Standing::Waiting);
  EXPECT_FALSE(Now().preview);
  EXPECT_THAT(live->Words(), HasSubstr("Inputs changed"));
  EXPECT_EQ(Settle("set cboWave 1\nset txtRadius 11\nset cboStep 0.1"), Standing::Preview);
  // What New plot would ask first does as well.
  EXPECT_EQ(Settle("dialog dlogGaussianBeam ok txtBeamWo=0.5\nclick mnuGaussian"), Standing::Waiting) << live->Words();
}

TEST_F(LiveGraphTest, WhatIsPutRightIsShownAsNewPlotWould) {
  ASSERT_EQ(Settle("set txtRefractImag -0.1"), Standing::Preview);
  EXPECT_THAT(live->Words(), HasSubstr("NOT be negative"));
  EXPECT_EQ(Form().txtRefractImag.Text, "-0.1") << "the input is the user's";
  const auto tried = Now().preview->results;
  Act("click cmdNewPlot");
  EXPECT_TRUE(tried->asked.AsksSame(Now().state.LastResults->asked));
  EXPECT_EQ(Settle("choose cboType Airy"), Standing::Preview) << live->Words();
}

TEST_F(LiveGraphTest, TheLastOfManyChangesIsShown) {
  for (const char* radius : {"11", "12", "13", "14", "15"}) Act("set txtRadius " + std::string(radius));
  ASSERT_EQ(Settle(), Standing::Preview);
  EXPECT_EQ(Now().preview->results->asked.particle.radius, 15);
  // A command in between that changes nothing does not lose the run.
  Act("set txtRadius 16");
  Act("click mnuMinorGridX");
  ASSERT_EQ(Settle(), Standing::Preview);
  EXPECT_EQ(Now().preview->results->asked.particle.radius, 16);
  // A result that arrives while a command runs is of inputs that may have gone.
  Act("set txtRadius 17");
  live->Pause();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  Deliver();
  EXPECT_EQ(Now().preview->results->asked.particle.radius, 16);
  live->Follow();
  EXPECT_EQ(Settle(), Standing::Preview);
  EXPECT_EQ(Now().preview->results->asked.particle.radius, 17);
}

TEST_F(LiveGraphTest, WithoutTheTickNothingFollows) {
  Act("click mnuLiveGraph");
  EXPECT_EQ(Settle("set txtRadius 12"), Standing::Kept);
  EXPECT_EQ(Settle("set txtRadius x"), Standing::Kept);
  EXPECT_FALSE(Form().txtRadius.BackColour == colours::BadInput);
  Act("set txtRadius 12");
  EXPECT_EQ(Settle("click mnuLiveGraph"), Standing::Preview) << "it catches up";
  EXPECT_EQ(Settle("click mnuLiveGraph"), Standing::Kept);
  EXPECT_FALSE(Now().preview);
}

TEST_F(LiveGraphTest, AnotherRangeHasAPageOfItsOwn) {
  ASSERT_EQ(Settle("set txtXmin 130\nset txtXmax 150"), Standing::Preview);
  EXPECT_EQ(ShownPage(Now()).home.xmin, 130);
  EXPECT_EQ(ShownPage(Now()).runs.size(), 1U);
  ASSERT_EQ(Settle("set txtXmin 0\nset txtXmax 180\nset txtRadius 100"), Standing::Preview);
  // Limits chosen for the curves hold both.
  const Page& both = ShownPage(Now());
  EXPECT_EQ(both.runs.size(), 2U);
  EXPECT_GT(both.panels.front().limits.ymax, Now().page.panels.front().limits.ymax);
  // A zoom is that of both pages.
  live->Pause();
  ShowView(Now(), {{20, 40}, {}});
  live->Follow();
  Settle();
  EXPECT_EQ(ShownPage(Now()).panels.front().limits.xmax, 40);
  EXPECT_EQ(Now().page.panels.front().limits.xmax, 40);
}

TEST_F(LiveGraphTest, WhatNewPlotWasAskedIsWhatTheInputsAsk) {
  // A graph whose request reads differently after its run would be previewed over itself.
  for (const char* graph : {"Intensity v. scattering angle", "Phase function", "Scattering matrix",
                            "Intensity v. wavelength", "Intensity v. radius", "Intensity v. refractive index",
                            "Qext/Qsca/Qabs v. size x", "Convergence of the series"}) {
    Restart();
    const auto& items = Form().cboGraph.Items;
    const bool listed = std::ranges::find(items, graph) != items.end();
    Do(listed ? "choose cboGraph " + std::string(graph) : std::string("click mnuConvergence"));
    if (ChosenGraph(Now().state).AgainstAngle()) Do("set cboStep 1");
    Do("click cmdNewPlot");
    const LiveInputs inputs = ReadLiveInputs(Now());
    ASSERT_TRUE(inputs.request) << graph << inputs.why;
    EXPECT_TRUE(inputs.request->AsksSame(Now().state.LastResults->asked)) << graph;
  }
  for (const char* menu : {"mnuGaussian", "mnuCoatedSphere", "mnuInhomSphere"}) {
    Restart();
    Do("click " + std::string(menu) + "\nset cboStep 1\nclick cmdNewPlot");
    const LiveInputs inputs = ReadLiveInputs(Now());
    ASSERT_TRUE(inputs.request) << menu << inputs.why;
    EXPECT_TRUE(inputs.request->AsksSame(Now().state.LastResults->asked)) << menu;
  }
  const std::vector<std::string> methods = Form().cboType.Items;
  for (const std::string& method : methods) {
    Restart();
    Do("choose cboType " + method + "\nset cboStep 1\nclick cmdNewPlot");
    const LiveInputs inputs = ReadLiveInputs(Now());
    if (!inputs.request) continue;
    EXPECT_TRUE(inputs.request->AsksSame(Now().state.LastResults->asked)) << method;
  }
}

}  // namespace
}  // namespace lumivex
