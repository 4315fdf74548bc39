#include <QComboBox>

#include "window_fixture.h"

namespace lumivex {
namespace {

using UndoKeysTest = WindowTest;

TEST_F(UndoKeysTest, InAFieldTheyUndoWhatTheSessionKnows) {
  Type(Form().txtRadius, "12");
  Click(Form().optLinear);
  Type(Form().txtLambda, "0.5");
  const auto keys = [&](Qt::Key key) { QTest::keyClick(WidgetOf(Form().txtLambda), key, Qt::ControlModifier); };
  keys(Qt::Key_Z);
  EXPECT_EQ(Form().txtLambda.Text, "0.65");
  EXPECT_EQ(WidgetOf<QLineEdit>(Form().txtLambda)->text(), "0.65");
  keys(Qt::Key_Z);
  EXPECT_TRUE(Form().OptLog.Checked);
  keys(Qt::Key_Z);
  EXPECT_EQ(Form().txtRadius.Text, "10");
  keys(Qt::Key_Y);
  EXPECT_EQ(WidgetOf<QLineEdit>(Form().txtRadius)->text(), "12");
  QTest::keyClick(WidgetOf(Form().txtLambda), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Form().optLinear.Checked);
}

TEST_F(UndoKeysTest, InAListWithABoxToo) {
  Type(Form().txtRadius, "12");
  auto* box = WidgetOf<QComboBox>(Form().cboStep);
  ASSERT_TRUE(box && box->lineEdit());
  box->setFocus();
  box->lineEdit()->selectAll();
  QTest::keyClicks(box, "0.25");
  EXPECT_EQ(Form().cboStep.Text, "0.25");
  QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Form().cboStep.Text, "0.1");
  QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Form().txtRadius.Text, "10");
}

TEST_F(UndoKeysTest, InADialogTheyAreTheDialogs) {
  Type(Form().txtRadius, "12");
  auto& dialog = Now().forms.dlogSpectrumBand;
  dialogs = {[&](QDialog& open) {
    auto* low = open.findChild<QLineEdit*>("txtSpectrumMin");
    auto* high = open.findChild<QLineEdit*>("txtSpectrumMax");
    ASSERT_TRUE(low && high);
    low->selectAll();
    QTest::keyClicks(low, "400");
    high->selectAll();
    QTest::keyClicks(high, "600");
    QTest::keyClick(high, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(high->text(), "700");
    QTest::keyClick(&open, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(low->text(), "380");
    QTest::keyClick(&open, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(low, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(low->text(), "400");
    open.accept();
  }};
  Form().mnuSpectrumBand.Visible = true;
  program.Gate().Do([&] { Now().events.Raise("mnuSpectrumBand_Click"); });
  EXPECT_EQ(dialog.txtSpectrumMin.Text, "400");
  EXPECT_EQ(Form().txtRadius.Text, "12");
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_EQ(dialog.txtSpectrumMin.Text, "380");
  EXPECT_EQ(Form().txtRadius.Text, "12");
}

}  // namespace
}  // namespace lumivex
