#include <QLabel>
#include <QStatusBar>
#include <QWheelEvent>

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
  void Wheel(double angle, int steps) {
    const QPoint place = At(angle);
    QWheelEvent event(place, Drawing().mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Drawing(), &event);
  }
  /// Moves the pointer as the window system tells it; a real pointer is not there off the screen.
  void MoveTo(QPoint place, Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent event(QEvent::MouseMove, place, Drawing().mapToGlobal(place), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(&Drawing(), &event);
  }
  double Xmin() { return Val(Form().txtXmin.Text); }
  double Xmax() { return Val(Form().txtXmax.Text); }
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
  EXPECT_EQ(Panel().limits.xmin, Xmin());
  QTest::qWait(400);
  EXPECT_EQ(Now().state.Qsca, -1) << "the stored rows are enough";
  Now().state.Qsca = before;
  QTest::mouseDClick(&Drawing(), Qt::LeftButton, {}, At(90));
  EXPECT_EQ(Xmin(), 0);
  EXPECT_EQ(Xmax(), 180);
}

TEST_F(GraphPointerTest, WhereNothingIsStoredACalculationFollowsWhenTheHandRests) {
  Type(Form().txtXmin, "137");
  Type(Form().txtXmax, "145");
  Press(Form().txtXmax, Qt::Key_Return);
  ASSERT_EQ(Panel().limits.xmin, 137);
  Wheel(141, -6);
  EXPECT_LT(Xmin(), 130);
  EXPECT_GT(Now().state.AngleLow, 1000) << "not yet";
  QTest::qWait(500);
  EXPECT_LE(Now().state.AngleLow, 10 * Xmin() + 2) << "the rows of the new range";
  EXPECT_EQ(messages.size(), 0U);
  QTest::keyClick(&Drawing(), Qt::Key_Home);
  EXPECT_EQ(Xmin(), 137) << "the way back leads to where it began";
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
