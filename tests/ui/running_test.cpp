#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

#include "runs/results.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

/// A run of some seconds, watched from inside: `during` is called once, from a timer that fires in a yield.
class RunningTest : public WindowTest {
 protected:
  void RunLong(const std::function<void()>& during) {
    Now().state.CalibrationState = 3;  // no question about the duration
    Type(Form().txtRadius, "8000");
    program.Gate().Do([this] { Form().cboStep.Text = "0.01"; });
    QTimer::singleShot(0, &program.Window(), [this, during] {
      wasRunning = program.Gate().Running();
      during();
    });
    Press(Form().txtRadius, Qt::Key_Return);
    EXPECT_TRUE(wasRunning) << "the run was over before the window was served";
    EXPECT_FALSE(program.Gate().Running());
  }
  bool wasRunning = false;
};

TEST_F(RunningTest, OnlyStopActsAndOtherClicksWait) {
  bool optionDuring = true, menuDuring = true, progressShown = false;
  const bool dataShown = Form().mnuDataVisible.Checked;
  int plots = 0;
  RunLong([&] {
    progressShown = !program.Window().findChild<QProgressBar*>()->isHidden();
    Click(Form().optLinear);
    program.Window().ActionOf(Form().mnuDataVisible)->trigger();
    Click(Form().cmdNewPlot);  // switched off during a run: a click on it is no wish for later
    QTest::keyClick(WidgetOf(Form().txtXmin), Qt::Key_5);
    optionDuring = Form().optLinear.Checked;
    menuDuring = Form().mnuDataVisible.Checked != dataShown;
    ++plots;
    ASSERT_TRUE(WidgetOf(Form().cmdStop)->isVisible());
    Click(Form().cmdStop);
  });
  EXPECT_TRUE(progressShown);
  EXPECT_FALSE(optionDuring);
  EXPECT_FALSE(menuDuring);
  ASSERT_FALSE(messages.empty());
  EXPECT_NE(messages.front().find("Do you want to stop the calculation?"), std::string::npos);
  EXPECT_EQ(Now().state.PlotMode, 1);
  const double seconds = Now().state.LastRunSeconds;

  QTest::qWait(50);
  EXPECT_TRUE(Form().optLinear.Checked) << "the click was kept for the end of the run";
  EXPECT_NE(Form().txtXmin.Text.find('5'), std::string::npos) << "and so was the key";
  EXPECT_EQ(Now().state.LastRunSeconds, seconds) << "the click on New plot started another run";
}

TEST_F(RunningTest, EscStopsAndAnsweredNoTheRunGoesOn) {
  answer = QMessageBox::No;
  double stopped = -1;
  RunLong([&] {
    QTest::keyClick(&program.Window(), Qt::Key_Escape);
    stopped = Now().state.PlotMode;
  });
  EXPECT_EQ(messages.size(), 1U);
  EXPECT_NE(stopped, 4);
  EXPECT_EQ(Now().state.StopAnswer, 0);
  EXPECT_EQ(Now().state.Radius, 8000);

  answer = QMessageBox::Yes;
  messages.clear();
  RunLong([&] { QTest::keyClick(&program.Window(), Qt::Key_Escape); });
  EXPECT_EQ(messages.size(), 1U);
}

TEST_F(RunningTest, EnterTypedBeforeAStopStartsNoOtherRun) {
  RunLong([&] {
    Press(Form().txtXmin, Qt::Key_Return);
    QTest::keyClick(&program.Window(), Qt::Key_Escape);
  });
  const double seconds = Now().state.LastRunSeconds;
  QTest::qWait(50);
  EXPECT_EQ(messages.size(), 1U) << "another run would have been stopped by nobody";
  EXPECT_EQ(Now().state.LastRunSeconds, seconds);
}

TEST_F(RunningTest, AThemeChosenDuringARunIsTakenUpAtItsEnd) {
  const QPalette before = QApplication::palette();
  RunLong([&] {
    QApplication::setPalette(QPalette(QColor(60, 60, 64), QColor(45, 45, 48)));
    QApplication::sendPostedEvents();
    Click(Form().cmdStop);
  });
  EXPECT_TRUE(program.Window().Drawing().IsNight());
  EXPECT_EQ(WidgetOf(Form().txtRadius)->palette().color(QPalette::Window), QColor(45, 45, 48));
  QApplication::setPalette(before);
}

TEST_F(RunningTest, ClosingAndResizingWaitForTheEnd) {
  const double width = Now().surface->ScaleWidth();
  bool closedDuring = true;
  double widthDuring = 0;
  RunLong([&] {
    program.Window().resize(1600, 850);
    program.Window().close();
    closedDuring = !program.Window().isVisible();
    QTest::qWait(60);
    widthDuring = Now().surface->ScaleWidth();
    Click(Form().cmdStop);
  });
  EXPECT_FALSE(closedDuring);
  EXPECT_EQ(widthDuring, width);
  EXPECT_GT(Now().surface->ScaleWidth(), width) << "taken up at the end";
  QTest::qWait(50);
  EXPECT_FALSE(program.Window().isVisible());
}

// What is typed, chosen and dropped while a run is under way is none of that run.
TEST_F(RunningTest, InputsAndFilesOfTheMeantimeAreNotTheRuns) {
  QMimeData file;
  file.setUrls({QUrl::fromLocalFile("/tmp/table.rix")});
  bool taken = true;
  std::string during;
  RunLong([&] {
    for (const Control* input : {static_cast<Control*>(&Form().txtRadius), static_cast<Control*>(&Form().txtLambda)}) {
      QTest::keyClick(WidgetOf(*input), Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(WidgetOf(*input), "0.5");
    }
    QTest::keyClick(WidgetOf(Form().cboPol), Qt::Key_Down);
    QTest::keyClick(WidgetOf(Form().txtRadius), Qt::Key_Z, Qt::ControlModifier);
    QDragEnterEvent enter(QPoint(300, 500), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&program.Window(), &enter);
    QDropEvent drop(QPoint(300, 500), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&program.Window(), &drop);
    taken = drop.isAccepted() || Form().mnuRI_File1.Checked;
    during = Form().txtRadius.Text + " " + Form().txtLambda.Text + " " + Form().cboPol.Text;
    Click(Form().cmdStop);
  });
  EXPECT_FALSE(taken);
  EXPECT_EQ(during, "8000 0.65 Both");
  ASSERT_TRUE(Now().state.LastResults == nullptr || Now().state.LastResults->asked.particle.radius != 0.5);
  QTest::qWait(50);
  Form().cboStep.Text = "10";
  Type(Form().txtRadius, "2");
  Press(Form().txtRadius, Qt::Key_Return);
  ASSERT_NE(Now().state.LastResults, nullptr);
  EXPECT_EQ(Now().state.LastResults->asked.particle.radius, 2);
  EXPECT_EQ(messages.size(), 1U) << "the question of the Stop";
}

}  // namespace
}  // namespace lumivex
