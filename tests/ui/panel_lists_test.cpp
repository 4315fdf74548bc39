/// What the panel offers beyond its fields: lists in groups, materials, meanings of readings, the Sun's colours.

#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QToolButton>

#include "pages/items/readings.h"
#include "ui/menu_button.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

using PanelListsTest = WindowTest;

TEST_F(PanelListsTest, GraphsStandInGroupsWhoseHeadingsCannotBeChosen) {
  auto* box = WidgetOf<QComboBox>(Form().cboGraph);
  ASSERT_NE(box, nullptr);
  QStringList headings, items;
  for (int row = 0; row < box->count(); ++row) {
    const bool heading = !(box->model()->flags(box->model()->index(row, 0)) & Qt::ItemIsSelectable);
    (heading ? headings : items) << box->itemText(row);
  }
  EXPECT_EQ(items.size(), static_cast<int>(Form().cboGraph.Items.size()));
  EXPECT_GT(headings.size(), 6);
  EXPECT_EQ(headings.removeDuplicates(), 0) << "a group stands together";
  EXPECT_EQ(box->itemText(0), "Against the scattering angle");
  EXPECT_EQ(box->currentText(), "Intensity v. scattering angle");
  // One that is chosen is that of the form's list, which has no headings.
  const int row = box->findText("Lee diagram: radius");
  ASSERT_GT(row, 0);
  box->setCurrentIndex(row);
  emit box->activated(row);
  EXPECT_EQ(Form().cboGraph.Text, "Lee diagram: radius");
  EXPECT_EQ(Form().cboGraph.Items[static_cast<std::size_t>(Form().cboGraph.Picked)], "Lee diagram: radius");
  EXPECT_EQ(box->currentText(), "Lee diagram: radius");
  // By key from the first of a group to the last of the one before.
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(Form().cboGraph.Text, "Intensity v. refractive index");
}

TEST_F(PanelListsTest, MaterialsAreChosenBesideWhatIsToldOfThem) {
  const auto choose = [&](const Label& control, const char* entry) {
    auto* button = WidgetOf(control)->findChild<MenuButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_LE(button->geometry().right(), WidgetOf(control)->width());
    for (QAction* action : button->menu()->actions())
      if (action->objectName() == entry) action->trigger();
  };
  choose(Form().lblSphere, "mnuRI_Fixed1");
  EXPECT_TRUE(Form().mnuRI_Fixed1.Checked);
  choose(Form().lblRI_Medium, "mnuRI_Fixed2");
  EXPECT_TRUE(Form().mnuRI_Fixed2.Checked);
}

TEST_F(PanelListsTest, ReadingsTellWhatTheyMean) {
  auto& canvas = program.Window().Drawing();
  QStringList told;
  for (double y = 500; y < 2600; y += 50)
    if (const auto words = MeaningOfReadingAt(canvas.Surface(), Now().page, 12100, y); !words.empty())
      told << QString::fromStdString(words);
  told.removeDuplicates();
  ASSERT_GE(told.size(), 6);
  EXPECT_TRUE(told[0].startsWith("Scattering efficiency"));
  EXPECT_EQ(MeaningOfReadingAt(canvas.Surface(), Now().page, 6000, 5000), "") << "on the graph";
  program.Window().ActionOf(Form().mnuDataVisible)->trigger();
  EXPECT_EQ(MeaningOfReadingAt(canvas.Surface(), Now().page, 12100, 700), "") << "hidden ones";
}

TEST_F(PanelListsTest, TheSunInOneWavelengthOffersItsColours) {
  QToolButton* offer = nullptr;
  for (auto* button : program.Window().findChildren<QToolButton*>())
    if (button->text().startsWith("The Sun in")) offer = button;
  ASSERT_NE(offer, nullptr);
  EXPECT_FALSE(offer->isVisible());
  QTest::mouseClick(WidgetOf(Form().optSun), Qt::LeftButton, {}, {8, WidgetOf(Form().optSun)->height() / 2});
  ASSERT_TRUE(offer->isVisible());
  offer->click();
  EXPECT_EQ(Form().cboWave.Text, "30");
  EXPECT_FALSE(offer->isVisible());
}

}  // namespace
}  // namespace lumivex
