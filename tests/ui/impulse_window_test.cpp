/// The window of the answer at one angle, and the dialog of the pulse.

#include "ui/impulse_window.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QStatusBar>

#include "axes/panel_map.h"
#include "session/impulse/impulse_plot.h"
#include "session/user_actions.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

class ImpulseWindowTest : public WindowTest {
 protected:
  /// A picture of few rows; the dialog of the pulse is accepted as it stands.
  void Picture() {
    dialogs = {[](QDialog& dialog) { dialog.accept(); }};
    program.Gate().Do([this] {
      UserChooses(Now(), Form().cboGraph, "Impulse response");
      UserTypes(Now(), Form().cboStep, "10");
      UserTypes(Now(), Form().txtF9_max, "300");
      UserClicks(Now(), Form().cmdNewPlot);
    });
    ASSERT_TRUE(messages.empty()) << messages.back();
    ASSERT_TRUE(Now().page.map);
  }
  QPoint At(double angle, double time) {
    const PagePanel& panel = Now().page.panels.front();
    const PanelMap map{panel.box, panel.limits, false, false};
    return (QPointF(map.X(time), map.Y(angle)) * program.Window().Drawing().Unit()).toPoint();
  }
  void WaitForClick() { QTest::qWait(QApplication::doubleClickInterval() + 50); }
};

TEST_F(ImpulseWindowTest, AClickOpensItAndADragDoesNot) {
  Picture();
  Canvas& drawing = program.Window().Drawing();
  // Two clicks bring the whole picture back, and a drag moves it.
  QTest::mouseDClick(&drawing, Qt::LeftButton, {}, At(90, 150));
  QTest::mousePress(&drawing, Qt::LeftButton, {}, At(90, 150));
  QMouseEvent move(QEvent::MouseMove, At(60, 100), drawing.mapToGlobal(At(60, 100)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&drawing, &move);
  QTest::mouseRelease(&drawing, Qt::LeftButton, {}, At(60, 100));
  WaitForClick();
  EXPECT_EQ(program.Window().Impulse(), nullptr);

  QTest::mouseClick(&drawing, Qt::LeftButton, {}, At(90, 150));
  WaitForClick();
  ASSERT_NE(program.Window().Impulse(), nullptr);
  ImpulseWindowView& window = *program.Window().Impulse();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(Now().forms.impulsePlot.cboTheta.Text, "90");
  ASSERT_FALSE(ImpulseWindow(Now()).page.curves.empty());
  EXPECT_FALSE(window.WidgetOf(Now().forms.impulsePlot.cmdReplot)->isEnabled());

  // A click on the curves reads them at the foot.
  const GraphBox& box = ImpulseWindow(Now()).page.panels.front().box;
  const QPoint middle =
      (QPointF((box.left + box.right) / 2, (box.top + box.bottom) / 2) * window.Drawing().Unit()).toPoint();
  QTest::mouseClick(&window.Drawing(), Qt::LeftButton, {}, middle);
  QString foot;
  for (auto* label : window.statusBar()->findChildren<QLabel*>()) foot += label->text();
  EXPECT_TRUE(foot.contains("Time = 150") && foot.contains("Intensity 2 = ")) << foot.toStdString();

  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(Now().forms.impulsePlot.Visible);
}

}  // namespace
}  // namespace lumivex
