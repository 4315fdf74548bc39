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
  EXPECT_EQ(Get("mnuUndo.Enabled"), "false") << "there is nothing left to take back";
  Do("click mnuRedo\nclick mnuRedo");
  EXPECT_EQ(Get("txtRadius"), "12.5");
  EXPECT_EQ(Get("OptLog"), "false");
  EXPECT_EQ(Get("Qext"), Qext);
  Do("set txtRadius 3");
  EXPECT_EQ(Get("mnuRedo.Enabled"), "false") << "a new action leaves nothing to redo";
}

TEST_F(Undo, IsOfferedWhereItDoesSomething) {
  EXPECT_EQ(Get("mnuUndo.Enabled"), "false");
  EXPECT_EQ(Get("mnuRedo.Enabled"), "false");
  // A tick set and taken away, a text typed back, an option that is on already.
  Do("set txtRadius 1\nset txtRadius 10\nclick OptLog\n"
     "dialog dlogSpectrumBand cancel\nclick mnuSpectrumBand");
  EXPECT_EQ(Get("mnuUndo.Enabled"), "false");
  Do("set txtRadius 1\nset txtRadius 12\nclick mnuUndo");
  EXPECT_EQ(Get("txtRadius"), "10") << "typing goes on to be kept";
  EXPECT_EQ(Get("mnuUndo.Enabled"), "false");
  EXPECT_EQ(Get("mnuRedo.Enabled"), "true");
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

// Replot stayed grey with the very inputs of the results.
TEST_F(Undo, OffersReplotWhereTheInputsAreThoseOfTheResults) {
  Do("set cboStep 1\nset txtRadius 12\nclick cmdNewPlot\nclick mnuUndo");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false") << "the results are those of the other radius";
  Do("click mnuRedo");
  EXPECT_EQ(Get("txtRadius"), "12");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  Do("set txtRadius 14");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false");
  Do("click mnuUndo");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  Do("set txtRadius 14\nclick cmdNewPlot\nclick mnuUndo");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false") << "the results of then are gone";
}

}  // namespace
}  // namespace lumivex
