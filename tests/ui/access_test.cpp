/// The window for those who hear it and those who have no mouse.

#include <QAccessible>
#include <QComboBox>

#include "record/layout/panel_layout.h"
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
      EXPECT_TRUE(inDialog.isEmpty()) << layout.form << ": " << inDialog.join(", ").toStdString();
      open.reject();
    }};
    program.Window().ShowDialog(*form);
    dialogs.clear();
  }
  EXPECT_EQ(opened, static_cast<int>(Dialogs().size()));
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
