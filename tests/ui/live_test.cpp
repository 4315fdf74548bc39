/// The graph follows the hands: keys, wheel, lists and the slider, in a real window.

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <cstdlib>
#include <sstream>

#include "scripts/script_runner.h"
#include "session/page.h"
#include "ui/slider_view.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

class LiveTest : public WindowTest {
 protected:
  /// Waits for what the last act brings.
  bool Previews(double radius) {
    return QTest::qWaitFor([&] { return Now().preview && Now().preview->results->asked.particle.radius == radius; });
  }
  void Turn(const Control& control, int steps) {
    QWidget* widget = WidgetOf(control);
    const QPointF at = widget->rect().center();
    QWheelEvent turn(at, widget->mapToGlobal(at), {}, {0, 120 * steps}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(widget, &turn);
  }
  SliderView& OpenSlider() {
    program.Window().ActionOf(Form().mnuSlider)->trigger();
    return *program.Window().Live().Slider();
  }
  QImage Drawn() { return program.Window().Drawing().Surface().Picture().copy(); }
};

TEST_F(LiveTest, TypingDrawsBeforeAnyCommand) {
  const QImage before = Drawn();
  const auto results = Now().state.LastResults;
  Type(Form().txtRadius, "12");
  ASSERT_TRUE(Previews(12));
  EXPECT_NE(Drawn(), before);
  EXPECT_EQ(program.Window().Drawing().Note(), "Live");
  EXPECT_EQ(Now().state.LastResults, results);
  EXPECT_EQ(Now().page.runs.size(), 1U);
  Press(Form().txtRadius, Qt::Key_Escape);
  EXPECT_EQ(Drawn(), before);
  EXPECT_EQ(program.Window().Drawing().Note(), "Inputs changed");
  QTest::keyClick(WidgetOf(Form().txtRadius), Qt::Key_Return);
  EXPECT_EQ(Now().state.LastResults->asked.particle.radius, 12);
  EXPECT_FALSE(Now().preview);
  EXPECT_EQ(program.Window().Drawing().Note(), "");
  EXPECT_TRUE(messages.empty());
}

TEST_F(LiveTest, NothingThatIsTypedDuringARunIsLost) {
  auto* field = WidgetOf<QLineEdit>(Form().txtRadius);
  field->setFocus();
  field->selectAll();
  // With and without time for runs to begin between the keys.
  for (const char key : std::string("12.3456")) {
    QTest::keyClick(field, key);
    if (key == '3') QTest::qWait(3);
  }
  EXPECT_EQ(field->text(), "12.3456");
  EXPECT_TRUE(Previews(12.3456));
  // A field that is emptied is marked while it is empty, and no more.
  field->selectAll();
  QTest::keyClick(field, Qt::Key_Delete);
  EXPECT_EQ(Form().txtRadius.BackColour, colours::BadInput);
  EXPECT_TRUE(Now().preview) << "the graph stays";
  QTest::keyClicks(field, "8");
  EXPECT_TRUE(Previews(8));
  EXPECT_EQ(Form().txtRadius.BackColour, colours::White);
}

TEST_F(LiveTest, TheTickTurnsItOff) {
  QAction* tick = program.Window().ActionOf(Form().mnuLiveGraph);
  ASSERT_TRUE(tick && tick->isChecked());
  tick->trigger();
  EXPECT_FALSE(tick->isChecked());
  Type(Form().txtRadius, "12");
  QTest::qWait(150);
  EXPECT_FALSE(Now().preview);
  EXPECT_EQ(program.Window().Drawing().Note(), "");
  tick->trigger();
  EXPECT_TRUE(Previews(12));
}

TEST_F(LiveTest, KeysAndWheelStepANumberByItsLastDigit) {
  auto* field = WidgetOf<QLineEdit>(Form().txtLambda);
  field->setFocus();
  const std::size_t past = Now().undo.past.size();
  Press(Form().txtLambda, Qt::Key_Up);
  Press(Form().txtLambda, Qt::Key_Up);
  EXPECT_EQ(field->text(), "0.67");
  Turn(Form().txtLambda, -3);
  EXPECT_EQ(Form().txtLambda.Text, "0.64");
  EXPECT_EQ(Now().undo.past.size(), past + 1) << "a gesture is one step back";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Now().preview && Now().preview->results->asked.light.lambda == 0.64; }));
  // Only in the field that has the focus.
  Turn(Form().txtRadius, 1);
  EXPECT_EQ(Form().txtRadius.Text, "10");
  // Lists follow as well.
  auto* step = WidgetOf<QComboBox>(Form().cboType);
  step->setFocus();
  QTest::keyClick(step, Qt::Key_Down);
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return Now().preview && Now().preview->results->asked.method.method != Method::Mie;
  })) << Form().cboType.Text;
}

TEST_F(LiveTest, TheSliderIsReachedAndNamed) {
  WidgetOf(Form().txtLambda)->setFocus();
  SliderView& view = OpenSlider();
  ASSERT_TRUE(view.isVisible());
  auto* slider = view.findChild<QSlider*>();
  EXPECT_TRUE(QTest::qWaitFor([&] { return slider->hasFocus(); }));
  EXPECT_EQ(slider->accessibleName().toStdString(), Form().Label6.Caption);
  for (auto* child : view.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if ((child->focusPolicy() & Qt::TabFocus) == 0) continue;
    const auto* access = QAccessible::queryAccessibleInterface(child);
    EXPECT_FALSE(access->text(QAccessible::Name).isEmpty()) << child->metaObject()->className();
  }
  // The menu of a field leads there as well.
  QContextMenuEvent asks(QContextMenuEvent::Mouse, {4, 4}, WidgetOf(Form().txtRefractReal)->mapToGlobal(QPoint(4, 4)));
  QApplication::sendEvent(WidgetOf(Form().txtRefractReal), &asks);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->actions().back()->trigger();
  menu->close();
  EXPECT_EQ(slider->accessibleName(), "Refractive index");
  WidgetOf(Form().txtLambda)->setFocus();
  OpenSlider();
  QTest::keyClick(slider, Qt::Key_Right);
  EXPECT_NE(Form().txtLambda.Text, "0.65");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Now().preview.has_value(); }));
  QTest::keyClick(slider, Qt::Key_Escape);
  EXPECT_FALSE(view.isVisible());
}

TEST(LiveWindow, AWindowThatRunsAScriptDoesNotFollow) {
  CommandGate gate;
  MainWindow window(gate);
  std::ostringstream ignored;
  ScriptRunner runner(ignored, ignored);
  runner.UseWindow(window.Surface(), {.picture = {}, .screenshot = {}, .resize = {}, .reset = [&](Session& session) {
                                        window.Attach(session);
                                      }});
  runner.Start();
  std::istringstream script("set txtRadius 12\nset txtXmax 90");
  EXPECT_EQ(runner.Run(script), ScriptRunner::ok);
  QTest::qWait(100);
  EXPECT_EQ(window.Live().Graph(), nullptr);
  EXPECT_FALSE(runner.Current().preview);
}

TEST_F(LiveTest, ThePictureOfTheGuide) {
  // No script shows a preview: its picture is made here, and kept where a folder is named for it.
  const QTemporaryDir otherwise;
  const QString folder = qEnvironmentVariable("LUMIVEX_PICTURES", otherwise.path());
  program.Window().resize(1400, 900);
  program.Window().Settle();
  Type(Form().txtRadius, "12");
  ASSERT_TRUE(Previews(12));
  OpenSlider();
  const QString picture = folder + "/live-graph.png";
  EXPECT_EQ(program.Window().SaveScreenshot(picture.toStdString()), "");
  EXPECT_EQ(QImage(picture).width(), 1400);
}

TEST_F(LiveTest, AFilmIsASeriesOfWholePictures) {
  const QTemporaryDir folder;
  SliderView& view = OpenSlider();
  view.findChild<QSpinBox*>()->setValue(4);
  auto* save = view.findChild<QPushButton*>("SaveFilm");
  ASSERT_NE(save, nullptr);
  const auto saveAs = [&](const QString& name) {
    dialogs = {[name](QDialog& open) {
      auto& files = static_cast<QFileDialog&>(open);
      files.findChild<QLineEdit*>()->setText(name);
      open.accept();
    }};
    save->click();
  };
  saveAs(folder.filePath("bow.png"));
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return QFile::exists(folder.filePath("bow_0004.png")) && save->text() != "Stop film";
  })) << QDir(folder.path()).entryList().join(' ').toStdString();
  const QImage first(folder.filePath("bow_0001.png")), last(folder.filePath("bow_0004.png"));
  EXPECT_FALSE(first.isNull() || last.isNull());
  EXPECT_NE(first, last);
  EXPECT_FALSE(QFile::exists(folder.filePath("bow_0005.png")));
  EXPECT_EQ(Form().txtRadius.Text, "10") << "the input is what it was";
  // A film that is stopped leaves the pictures that it has, whole.
  view.findChild<QSpinBox*>()->setValue(2000);
  saveAs(folder.filePath("stopped.png"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(folder.filePath("stopped_0002.png")); }));
  save->click();
  QTest::qWait(50);
  const QStringList pictures = QDir(folder.path()).entryList({"stopped_*"});
  EXPECT_LT(pictures.size(), 2000);
  for (const QString& picture : pictures)
    EXPECT_FALSE(QImage(folder.filePath(picture)).isNull()) << picture.toStdString();
  EXPECT_EQ(Form().txtRadius.Text, "10");
  // A name that cannot be written tells why, and the program goes on.
  saveAs("/nowhere/bow.png");
  EXPECT_TRUE(QTest::qWaitFor([&] { return messages.size() == 1; }));
  saveAs(folder.filePath("bow.gif"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return messages.size() == 2; }));
}

TEST_F(LiveTest, AFilmOnTheScreenCanBePausedAndEndsItself) {
  SliderView& view = OpenSlider();
  auto* play = view.findChild<QPushButton*>("Play");
  play->click();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Now().preview.has_value(); }));
  EXPECT_EQ(play->text(), "Pause");
  play->click();
  const std::string paused = Form().txtRadius.Text;
  QTest::qWait(100);
  EXPECT_EQ(Form().txtRadius.Text, paused);
  EXPECT_NE(paused, "10");
}

}  // namespace
}  // namespace lumivex
