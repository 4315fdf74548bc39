/// The window for those who hear it and those who have no mouse.

#include <QAccessible>
#include <QComboBox>
#include <QPushButton>
#include <algorithm>

#include "pages/read_out.h"
#include "record/layout/panel_layout.h"
#include "ui/access_keys.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

/// What can be reached by keyboard and has neither a name nor a text that says what it is, as a screen reader finds it.
void CollectNameless(QWidget& widget, QStringList& nameless) {
  for (QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const bool reached = child->isVisibleTo(widget.window()) && (child->focusPolicy() & Qt::TabFocus) != 0;
    // The field within an editable list and the view of one are the list's own.
    const bool part = qobject_cast<QComboBox*>(&widget) != nullptr;
    if (reached && !part) {
      const auto* access = QAccessible::queryAccessibleInterface(child);
      if (access == nullptr || access->text(QAccessible::Name).trimmed().isEmpty())
        nameless << QString(child->metaObject()->className()) + " " + child->objectName();
    }
    if (!part) CollectNameless(*child, nameless);
  }
}

/// The letters that are pressed with Alt, of buttons that are on show and of menus.
QString KeysOf(QWidget& window) {
  QString keys = KeysOfMenus(window);
  for (const auto* button : window.findChildren<QPushButton*>()) {
    if (!button->isVisibleTo(&window)) continue;
    const auto at = button->text().indexOf('&');
    EXPECT_GE(at, 0) << button->text().toStdString() << " has no key";
    if (at >= 0) keys += button->text()[at + 1].toLower();
  }
  return keys;
}

/// Whether no letter stands for two.
bool AreDifferent(const QString& keys) {
  return std::ranges::all_of(keys, [&](QChar key) { return keys.count(key) == 1; });
}

using AccessTest = WindowTest;

TEST_F(AccessTest, NothingThatCanBeReachedIsNameless) {
  QStringList nameless;
  CollectNameless(program.Window(), nameless);
  EXPECT_TRUE(nameless.isEmpty()) << "window: " << nameless.join(", ").toStdString();
  int opened = 0;
  for (const DialogLayout& layout : Dialogs()) {
    lumivex::Form* form = Now().forms.Find(layout.form);
    ASSERT_NE(form, nullptr) << layout.form;
    dialogs = {[&](QDialog& open) {
      ++opened;
      QStringList inDialog;
      CollectNameless(open, inDialog);
      EXPECT_TRUE(AreDifferent(KeysOf(open))) << layout.form << ": " << KeysOf(open).toStdString();
      EXPECT_TRUE(inDialog.isEmpty()) << layout.form << ": " << inDialog.join(", ").toStdString();
      open.reject();
    }};
    program.Window().ShowDialog(*form);
    dialogs.clear();
  }
  EXPECT_EQ(opened, static_cast<int>(Dialogs().size()));
  program.Window().ActionOf(Form().mnuCurves)->trigger();
  QStringList amongCurves;
  CollectNameless(*program.Window().Curves(), amongCurves);
  EXPECT_TRUE(amongCurves.isEmpty()) << "curves: " << amongCurves.join(", ").toStdString();
}

TEST_F(AccessTest, CommandsHaveKeysWhateverHasTheFocus) {
  EXPECT_TRUE(AreDifferent(KeysOf(program.Window()))) << KeysOf(program.Window()).toStdString();
  const auto radius = [&] { return Now().state.LastResults->last.radius; };
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(WidgetOf(Form().txtLambda), key, with);
    QTest::qWait(1);
  };
  Type(Form().txtRadius, "11");
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(radius(), 11);
  Type(Form().txtRadius, "12");
  press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(radius(), 12);
  // What is typed after a key comes too late for it, and no key for the window edits a field.
  Type(Form().txtRadius, "13");
  QTest::keyClick(WidgetOf(Form().txtRadius), Qt::Key_N, Qt::AltModifier);
  QTest::keyClicks(WidgetOf(Form().txtRadius), "5");
  EXPECT_EQ(radius(), 13);
  Type(Form().txtRadius, "12");
  for (const auto key : {Qt::Key_E, Qt::Key_U, Qt::Key_K}) {
    QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    override.ignore();
    QApplication::sendEvent(WidgetOf(Form().txtRadius), &override);
    EXPECT_FALSE(override.isAccepted()) << key;
  }
  press(Qt::Key_N, Qt::ControlModifier);
  // Replot, where it is offered, calculates nothing.
  ASSERT_TRUE(Form().cmdReplot.Enabled);
  const auto results = Now().state.LastResults;
  press(Qt::Key_F5);
  EXPECT_EQ(Now().state.LastResults, results);
  Form().cmdReplot.Enabled = false;
  press(Qt::Key_F5);
  EXPECT_NE(Now().state.LastResults, results);
  const XRange whole = RangeShown(Now().page);
  QTest::keyClick(&program.Window().Drawing(), Qt::Key_Plus);
  EXPECT_FALSE(RangeShown(Now().page) == whole);
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(RangeShown(Now().page), whole);
}

TEST_F(AccessTest, TheGraphTellsItsAxesAndWhereItsCurvesAreHighest) {
  Type(Form().txtXmin, "120");
  Type(Form().txtXmax, "160");
  Type(Form().txtRadius, "50");
  Click(Form().cmdNewPlot);
  const QString words =
      QAccessible::queryAccessibleInterface(&program.Window().Drawing())->text(QAccessible::Description);
  EXPECT_TRUE(words.contains("Mie scattering:")) << words.toStdString();
  EXPECT_TRUE(words.contains("from 120 to 160")) << words.toStdString();
  EXPECT_TRUE(words.contains("Perpendicular polarisation: greatest")) << words.toStdString();
  EXPECT_TRUE(words.contains("further maxima at 13")) << words.toStdString();
}

}  // namespace
}  // namespace lumivex
