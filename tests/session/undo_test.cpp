#include <gtest/gtest.h>

#include <random>

#include "session/session_fixture.h"
#include "session/undo.h"
#include "session/user_actions.h"

namespace lumivex {
namespace {

class Undo : public ScriptedSession {};

TEST_F(Undo, GoesBackActionByActionWithTypingMerged) {
  Do("set txtRadius 1\nset txtRadius 12\nset txtRadius 12.5\nclick optLinear\nset txtLambda 0.5");
  const std::string Qext = Get("Qext");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtLambda"), "0.65");
  Do("click mnuUndo");
  EXPECT_EQ(Get("OptLog"), "true");
  EXPECT_EQ(Get("optLinear"), "false");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10");
  Do("click mnuRedo\nclick mnuRedo");
  EXPECT_EQ(Get("txtRadius"), "12.5");
  EXPECT_EQ(Get("OptLog"), "false");
  EXPECT_EQ(Get("Qext"), Qext);
  Do("set txtRadius 3\nclick mnuRedo");
  EXPECT_EQ(Get("txtLambda"), "0.65") << "a new action leaves nothing to redo";
}

TEST_F(Undo, TakesBackAGraphWithItsCaptionsAndRanges) {
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nclick mnuUndo");
  EXPECT_EQ(Get("GraphType"), "1");
  EXPECT_EQ(Get("txtXmax"), "180");
  EXPECT_EQ(Get("txtRadius.Visible"), "true");
  Do("click cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  Do("dialog dlogTemp ok txtTemp=20\nclick mnuRI_IAPWS\nclick mnuUndo\nclick cmdNewPlot");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
}

TEST_F(Undo, TakesAnAcceptedDialogAsOneStep) {
  auto& state = runner.Current().state;
  Do("dialog dlogSpectrumBand ok txtSpectrumMin=400 txtSpectrumMax=500\nclick mnuSpectrumBand\nset txtRadius 3");
  EXPECT_FLOAT_EQ(state.SpectrumMax, 0.5F);
  Do("click mnuUndo\nclick mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10");
  EXPECT_EQ(Get("dlogSpectrumBand.txtSpectrumMin"), "380");
  EXPECT_EQ(Get("dlogSpectrumBand.txtSpectrumMax"), "700");
  EXPECT_FLOAT_EQ(state.SpectrumMax, 0.7F) << "a run uses what stands in the dialog";
  Do("click mnuRedo");
  EXPECT_EQ(Get("dlogSpectrumBand.txtSpectrumMax"), "500");
  EXPECT_FLOAT_EQ(state.SpectrumMax, 0.5F);
  // The dialogs belong to the choice that opened them.
  Do("dialog dlogIncident ok txtIncidentPD=7\nchoose cboGraph Watts/sq. m. v. scattering angle\nclick mnuUndo");
  EXPECT_EQ(state.GraphSubType, 1);
  EXPECT_EQ(state.IncidentDensity, 100);
}

TEST_F(Undo, PassesOverADialogThatWasCancelled) {
  Do("set txtRadius 5\ndialog dlogSpectrumBand cancel txtSpectrumMin=400\nclick mnuSpectrumBand");
  EXPECT_EQ(Get("dlogSpectrumBand.txtSpectrumMin"), "380");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10");
}

TEST_F(Undo, InAnOpenDialogIsTheDialogs) {
  Session& session = runner.Current();
  auto& dialog = session.forms.dlogSpectrumBand;
  Do("set txtRadius 5");
  {
    const DialogScope open(session, dialog);
    UserTypes(session, dialog.txtSpectrumMin, "4");
    UserTypes(session, dialog.txtSpectrumMin, "400");
    UserTypes(session, dialog.txtSpectrumMax, "650");
    session.events.Raise("mnuUndo_Click");
    EXPECT_EQ(dialog.txtSpectrumMax.Text, "700");
    session.events.Raise("mnuUndo_Click");
    session.events.Raise("mnuUndo_Click");
    EXPECT_EQ(dialog.txtSpectrumMin.Text, "380");
    EXPECT_EQ(session.form1.txtRadius.Text, "5") << "the main window is behind the dialog";
    session.events.Raise("mnuRedo_Click");
    EXPECT_EQ(dialog.txtSpectrumMin.Text, "400");
  }
  // A command opened it: its change is a step of its own.
  Do("click mnuUndo");
  EXPECT_EQ(dialog.txtSpectrumMin.Text, "380");
  EXPECT_EQ(Get("txtRadius"), "5");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10");
}

/// A user who clicks, types and runs anything in any order breaks nothing.
TEST(AnyUser, DoesNoHarm) {
  std::ostringstream output, errors;
  ScriptRunner runner(output, errors);
  runner.Start();
  std::mt19937 random(20240229);
  // Nobody waits for the longest runs that can be asked for: they are stopped.
  int yields = 0;
  runner.World().onYield = [&] {
    constexpr int patience = 3000;
    if (++yields > patience) runner.Current().events.Raise("cmdStop_Click");
  };
  const auto pick = [&](std::size_t count) { return static_cast<std::size_t>(random() % count); };
  const std::vector<std::string> texts = {"",    "3",    "30",  "High", "0",   "-1",        "1e999", "nan",
                                          "abc", "0.1",  "1",   "1,5",  "180", "90",        "0.5",   "10",
                                          "100", "1e-9", "5e5", "   ",  "RGB", "Automatic", "1.33",  "0.01"};
  for (int step = 0; step < 1500; ++step) {
    Session& session = runner.Current();
    runner.World().answers.assign(4, random() % 2 == 0);
    const auto forms = session.forms.All();
    const auto& controls = forms[pick(4) == 0 ? pick(forms.size()) : 0]->Controls();
    Control& control = *controls[pick(controls.size())];
    if (control.Kind() == ControlKind::SelectionList && pick(2) == 0) {
      auto& list = static_cast<SelectionList&>(control);
      if (!list.Items.empty()) UserChooses(session, list, list.Items[pick(list.Items.size())]);
    } else if (control.Kind() == ControlKind::TextInput ||
               (control.Kind() == ControlKind::SelectionList && static_cast<SelectionList&>(control).Editable)) {
      UserTypes(session, control, texts[pick(texts.size())]);
    } else {
      UserClicks(session, control);
    }
    yields = 0;
    if (step % 5 == 0) session.events.Raise("cmdNewPlot_Click");
    if (step % 97 == 0) session.events.Raise("mnuUndo_Click");
    ASSERT_EQ(session.state.PlotMode, 1) << step << " " << control.Name();
    ASSERT_EQ(session.state.Busy, 0) << step << " " << control.Name();
  }
  std::ostringstream freshOutput, freshErrors;
  ScriptRunner fresh(freshOutput, freshErrors);
  fresh.Start();
  EXPECT_EQ(fresh.Current().state.NSTOP, 135);
}

TEST_F(Undo, ALookThatIsTakenBackIsDrawnAtOnce) {
  const auto left = [this] { return runner.Current().page.geometry.box.right; };
  const double before = left();
  Do("click mnuMedium\nclick cmdNewPlot");
  ASSERT_NE(left(), before);
  Do("click mnuUndo");
  EXPECT_EQ(left(), before);
  const Colour ground = runner.Current().page.style.ground;
  Do("click mnuBlack\nclick mnuUndo");
  EXPECT_EQ(runner.Current().page.style.ground, ground);
}

}  // namespace
}  // namespace lumivex
