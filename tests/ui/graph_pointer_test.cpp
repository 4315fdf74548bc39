#include <QLabel>
#include <QStatusBar>
#include <QWheelEvent>
#include <cmath>

#include "pages/zoom.h"
#include "record/number_text.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

/// Real wheels, drags and keys on the drawing.
class GraphPointerTest : public WindowTest {
 protected:
  Canvas& Drawing() { return program.Window().Drawing(); }
  const PagePanel& Panel() { return Now().page.panels.front(); }
  /// The pixel where an angle stands, half way up the graph.
  QPoint At(double angle) {
    const GraphBox& box = Panel().box;
    const PanelMap map{box, Panel().limits, false, true};
    return (QPointF(map.X(angle), 0.5 * (box.top + box.bottom)) * Drawing().Unit()).toPoint();
  }
  void WheelAt(QPoint place, int steps, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QWheelEvent event(place, Drawing().mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, keys, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&Drawing(), &event);
  }
  /// The horizontal axis alone.
  void Wheel(double angle, int steps) { WheelAt(At(angle), steps, Qt::ShiftModifier); }
  /// Moves the pointer as the window system tells it; a real pointer is not there off the screen.
  void MoveTo(QPoint place, Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent event(QEvent::MouseMove, place, Drawing().mapToGlobal(place), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(&Drawing(), &event);
  }
  double Xmin() { return Panel().limits.xmin; }
  double Xmax() { return Panel().limits.xmax; }
  double Decades() { return std::log10(Panel().limits.ymax / Panel().limits.ymin); }
  QString Status() {
    QString all;
    for (auto* label : program.Window().statusBar()->findChildren<QLabel*>()) all += label->text();
    return all;
  }
  QString Reading() {
    for (auto* label : program.Window().statusBar()->findChildren<QLabel*>())
      if (label->accessibleName() == "Reading of the graph") return label->text();
    return {};
  }
};

TEST_F(GraphPointerTest, TheWheelZoomsAtThePointerWithoutCalculating) {
  const double before = Now().state.Qsca;
  Now().state.Qsca = -1;  // a run would write it
  Wheel(90, 3);
  EXPECT_NEAR(Xmax() - Xmin(), 180 * 0.512, 1);
  EXPECT_NEAR(0.5 * (Xmin() + Xmax()), 90, 1) << "what is under the pointer stays there";
  EXPECT_EQ(Form().txtXmin.Text, "0") << "the inputs are the user's";
  EXPECT_FALSE(Form().mnuUndo.Enabled) << "a zoom is no matter of undo";
  QTest::qWait(400);
  EXPECT_EQ(Now().state.Qsca, -1) << "the stored rows are enough";
  Now().state.Qsca = before;
  QTest::mouseDClick(&Drawing(), Qt::LeftButton, {}, At(90));
  EXPECT_EQ(Xmin(), 0);
  EXPECT_EQ(Xmax(), 180);
}

TEST_F(GraphPointerTest, TheWheelZoomsWhatItIsOver) {
  const GraphBox box = Panel().box;
  const double decades = Decades(), unit = Drawing().Unit();
  const double middle = 0.5 * (box.top + box.bottom);
  WheelAt((QPointF(0.5 * (box.left + box.right), box.bottom + 300) * unit).toPoint(), 2);
  EXPECT_NEAR(Xmax() - Xmin(), 180 * 0.64, 1) << "below the plot the horizontal axis";
  EXPECT_FALSE(Now().page.zoomedY);
  const double width = Xmax() - Xmin();
  WheelAt((QPointF(0.5 * box.left, middle) * unit).toPoint(), 2);
  EXPECT_EQ(Xmax() - Xmin(), width) << "beside it the vertical one";
  EXPECT_LT(Decades(), 0.75 * decades);
  const double zoomed = Decades();
  WheelAt(At(90), 1);
  EXPECT_LT(Xmax() - Xmin(), width);
  EXPECT_LT(Decades(), zoomed);
  WheelAt(At(90), -20);
  EXPECT_EQ(Xmax() - Xmin(), 180);
  EXPECT_NEAR(Decades(), decades, 1e-9);
  EXPECT_FALSE(Now().page.zoomedY) << "back at the whole the axis follows the curves again";
}

TEST_F(GraphPointerTest, ARowOfTurnsIsOneStepBack) {
  Drawing().setFocus();
  Wheel(90, 1);
  Wheel(90, 1);
  const double first = Xmin();
  QTest::qWait(700);
  Wheel(90, 2);
  ASSERT_NE(Xmin(), first);
  QTest::keyClick(&Drawing(), Qt::Key_Backspace);
  EXPECT_EQ(Xmin(), first);
  QTest::keyClick(&Drawing(), Qt::Key_Backspace);
  EXPECT_EQ(Xmin(), 0);
  QTest::keyClick(&Drawing(), Qt::Key_Backspace);
  EXPECT_EQ(Xmax(), 180);
}

TEST_F(GraphPointerTest, EnterCalculatesAViewOfFewPoints) {
  Wheel(140, 10);
  ASSERT_GT(PointsInView(Now().page), 50);
  EXPECT_FALSE(Status().contains("Enter")) << Status().toStdString();
  Wheel(140, 8);
  const int points = PointsInView(Now().page);
  ASSERT_LT(points, 50);
  EXPECT_TRUE(Status().contains(QString::number(points) + " points in view")) << Status().toStdString();
  const double low = Xmin(), high = Xmax();
  // Wherever the focus is: the zoom was the last thing done.
  Press(Form().txtRadius, Qt::Key_Return);
  EXPECT_NEAR(Val(Form().txtXmin.Text), low, 0.02);
  EXPECT_NEAR(Val(Form().txtXmax.Text), high, 0.02);
  EXPECT_LE(Now().state.Xstep, 0.01);
  EXPECT_GE(PointsInView(Now().page), 400);
  EXPECT_FALSE(Status().contains("Enter"));
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_EQ(Form().txtXmin.Text, "0");
  EXPECT_EQ(Form().cboStep.Text, "0.1") << "one step";
  EXPECT_EQ(messages.size(), 0U);
}

TEST_F(GraphPointerTest, EnterIsThatOfAnInputOnceSomethingIsTyped) {
  Wheel(140, 18);
  const double low = Xmin();
  Type(Form().txtRadius, "5");
  EXPECT_FALSE(Status().contains("Enter"));
  Press(Form().txtRadius, Qt::Key_Return);
  EXPECT_EQ(Form().txtXmin.Text, "0");
  EXPECT_EQ(Now().state.Radius, 5);
  EXPECT_EQ(Xmin(), low) << "another radius is no reason to leave the view";
  // Limits that are typed are.
  Type(Form().txtXmax, "90");
  Press(Form().txtXmax, Qt::Key_Return);
  EXPECT_EQ(Xmin(), 0);
  EXPECT_EQ(Xmax(), 90);
}

TEST_F(GraphPointerTest, WhatWasNeverCalculatedIsOfferedAndNotBegun) {
  Type(Form().txtXmin, "137");
  Type(Form().txtXmax, "145");
  Press(Form().txtXmax, Qt::Key_Return);
  ASSERT_EQ(Xmin(), 137);
  Wheel(141, -6);
  EXPECT_LT(Xmin(), 130);
  QTest::qWait(600);
  EXPECT_GT(Now().state.AngleLow, 1000);
  EXPECT_TRUE(Status().contains("Enter")) << Status().toStdString();
  QTest::keyClick(&Drawing(), Qt::Key_Return);
  EXPECT_LE(Now().state.AngleLow, Xmin() / Now().state.Xstep + 2) << "the rows of the new range";
}

TEST_F(GraphPointerTest, ADragPansAndAClickDoesNot) {
  Wheel(90, 4);
  const double width = Xmax() - Xmin(), from = Xmin();
  QTest::mousePress(&Drawing(), Qt::LeftButton, {}, At(90));
  const QPoint to = At(100);
  MoveTo(to, Qt::LeftButton);
  QTest::mouseRelease(&Drawing(), Qt::LeftButton, {}, to);
  EXPECT_NEAR(from - Xmin(), 10, 0.5);
  EXPECT_NEAR(Xmax() - Xmin(), width, 0.1);
  EXPECT_FALSE(Now().page.zoomedY);
  const double after = Xmin();
  QTest::mouseClick(&Drawing(), Qt::LeftButton, {}, At(90));
  EXPECT_EQ(Xmin(), after);
}

TEST_F(GraphPointerTest, OverplotsStayThroughAZoom) {
  Type(Form().txtRadius, "5");
  Click(Form().cmdOverPlot);
  ASSERT_EQ(Now().page.curves.size(), 4U);
  Wheel(60, 2);
  EXPECT_EQ(Now().page.curves.size(), 4U);
}

TEST_F(GraphPointerTest, TheKeyboardDoesAllOfIt) {
  Drawing().setFocus();
  QTest::keyClick(&Drawing(), Qt::Key_Plus);
  EXPECT_NEAR(Xmax() - Xmin(), 144, 0.5);
  QTest::keyClick(&Drawing(), Qt::Key_Right);
  EXPECT_NEAR(Xmin(), 18 + 14.4, 0.5);
  QTest::keyClick(&Drawing(), Qt::Key_Minus);
  QTest::keyClick(&Drawing(), Qt::Key_Home);
  EXPECT_EQ(Xmin(), 0);
  EXPECT_EQ(Xmax(), 180);
  QTest::keyClick(&Drawing(), Qt::Key_Right, Qt::ControlModifier);
  ASSERT_TRUE(Drawing().Mark());
  const QString first = Reading();
  EXPECT_TRUE(first.contains("polarisation: ")) << first.toStdString();
  QTest::keyClick(&Drawing(), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_NE(Reading(), first);
  const double x = Drawing().Mark()->x;
  QTest::keyClick(&Drawing(), Qt::Key_PageDown);
  EXPECT_NEAR(Drawing().Mark()->x, x, 1) << "the other curve at the same angle";
}

TEST_F(GraphPointerTest, TheReadingFollowsThePointer) {
  MoveTo(At(90));
  EXPECT_TRUE(Reading().contains(" deg   ")) << Reading().toStdString();
  ASSERT_TRUE(Drawing().Mark());
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Drawing(), &leave);
  EXPECT_EQ(Reading(), "");
  EXPECT_FALSE(Drawing().Mark());
}

}  // namespace
}  // namespace lumivex
