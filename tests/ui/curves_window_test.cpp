#include "ui/curves_window.h"

#include <QClipboard>
#include <algorithm>

#include "pages/curves/curve_key.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

/// The window of curves, and the key under a real pointer.
class CurvesWindowTest : public WindowTest {
 protected:
  Canvas& Drawing() { return program.Window().Drawing(); }
  QPoint PixelOf(double x, double y) { return (QPointF(x, y) * Drawing().Unit()).toPoint(); }
  GraphBox Key() { return KeyBox(Drawing().Surface(), Now().page).value_or(GraphBox()); }
  QPoint MiddleOf(const GraphBox& box) { return PixelOf(0.5 * (box.left + box.right), 0.5 * (box.top + box.bottom)); }
  /// Moves the pointer as the window system tells it; a real pointer is not there off the screen.
  void DragTo(QPoint place) {
    QMouseEvent event(QEvent::MouseMove, place, Drawing().mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&Drawing(), &event);
  }
  CurvesWindow& Open() {
    program.Window().ActionOf(Form().mnuCurves)->trigger();
    EXPECT_NE(program.Window().Curves(), nullptr);
    return *program.Window().Curves();
  }
  QPushButton* ButtonOf(QWidget& window, const QString& text) {
    for (auto* button : window.findChildren<QPushButton*>())
      if (button->text() == text) return button;
    return nullptr;
  }
};

TEST_F(CurvesWindowTest, TheKeyIsDraggedIntoThePlotAndBack) {
  const GraphBox below = Key(), plot = Now().page.panels.front().box;
  ASSERT_GT(below.Width(), 0);
  ASSERT_GT(below.top, plot.bottom);
  const QPoint grip = MiddleOf(below), middle = MiddleOf(plot);
  QTest::mousePress(&Drawing(), Qt::LeftButton, {}, grip);
  DragTo((grip + middle) / 2);
  DragTo(middle);
  QTest::mouseRelease(&Drawing(), Qt::LeftButton, {}, middle);
  ASSERT_TRUE(Now().page.keyAt);
  EXPECT_TRUE(plot.Holds(Key().left, Key().top));
  EXPECT_TRUE(plot.Holds(Key().right, Key().bottom));
  EXPECT_EQ(ViewOf(Now().page), HomeOf(Now().page)) << "the graph was not panned";
  const KeyPlace place = *Now().page.keyAt;
  program.Window().resize(1000, 700);
  program.Window().Settle();
  EXPECT_EQ(*Now().page.keyAt, place) << "a part of the plot, whatever its size";
  EXPECT_TRUE(Now().page.panels.front().box.Holds(Key().left, Key().top));

  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_FALSE(Now().page.keyAt) << "a drag is one step";
  Drawing().setFocus();
  QTest::keyClick(&Drawing(), Qt::Key_Left, Qt::ShiftModifier);
  ASSERT_TRUE(Now().page.keyAt) << "the keyboard moves it too";
  const double before = Now().page.keyAt->x;
  QTest::keyClick(&Drawing(), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_LT(Now().page.keyAt->x, before);
  QTest::mouseDClick(&Drawing(), Qt::LeftButton, {}, MiddleOf(Key()));
  EXPECT_FALSE(Now().page.keyAt);
}

TEST_F(CurvesWindowTest, TicksNamesAndColoursComeToThePage) {
  CurvesWindow& window = Open();
  ASSERT_TRUE(window.isVisible());
  ASSERT_EQ(window.Curves().topLevelItemCount(), 2);
  QTreeWidgetItem* first = window.Curves().topLevelItem(0);
  EXPECT_EQ(first->text(0), "Perpendicular polarisation");
  first->setText(0, "theory");
  EXPECT_EQ(Now().page.curves[1].givenName, "theory");
  window.Curves().topLevelItem(1)->setCheckState(0, Qt::Unchecked);
  ASSERT_EQ(Now().page.curves.size(), 1U);
  EXPECT_EQ(Now().page.curves[0].givenName, "theory");
  window.askColour = [](const QColor&) { return QColor(0, 114, 178); };
  window.Curves().setCurrentItem(first);
  ButtonOf(window, "&Colour ...")->click();
  EXPECT_EQ(Now().page.curves[0].colour, RGB(0, 114, 178));
  first->setCheckState(1, Qt::Checked);
  EXPECT_EQ(Now().comparison.kept.size(), 1U);
  ButtonOf(window, "Ra&tio")->click();
  EXPECT_EQ(Now().page.panels.back().below, BelowGraph::Ratio) << "a hidden curve can be compared with";
  ButtonOf(window, "&Nothing below")->click();
  EXPECT_EQ(Now().page.panels.size(), 1U);
  for (const QWidget* input : window.findChildren<QLineEdit*>()) EXPECT_FALSE(input->accessibleName().isEmpty());
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(CurvesWindowTest, ClicksMarkPointsOnceTheyAreAskedTo) {
  CurvesWindow& window = Open();
  const PagePanel panel = Now().page.panels.front();
  const PanelMap map{panel.box, panel.limits, false, panel.logY};
  const auto& curve = Now().page.curves[0];
  const QPoint place = PixelOf(map.X(curve.x[901]), map.Y(curve.y[901]));
  const auto click = [&] {
    QTest::mouseClick(&Drawing(), Qt::LeftButton, {}, place);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
  };
  click();
  EXPECT_TRUE(Now().comparison.markers.empty()) << "a click reads";
  program.Window().ActionOf(Form().mnuMarkPoints)->trigger();
  click();
  ASSERT_EQ(Now().comparison.markers.size(), 1U);
  EXPECT_NEAR(Now().comparison.markers[0].x, curve.x[901], 0.5);
  ASSERT_EQ(window.Markers().topLevelItemCount(), 1);
  ButtonOf(window, "Cop&y")->click();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("number\tx\tunit of x\tvalue"));
  ButtonOf(window, "C&lear")->click();
  EXPECT_TRUE(Now().comparison.markers.empty());
}

}  // namespace
}  // namespace lumivex
