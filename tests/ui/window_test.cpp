#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextBrowser>

#include "ui/dialog_view.h"
#include "ui/help/help_window.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

using MainWindowTest = WindowTest;

QByteArray Content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(MainWindowTest, MenuTicksFollowTheEntries) {
  QAction* data = program.Window().ActionOf(Form().mnuDataVisible);
  QAction* radius = program.Window().ActionOf(Form().mnuRadius);
  QAction* diameter = program.Window().ActionOf(Form().mnuDiameter);
  ASSERT_TRUE(data && radius && diameter);
  EXPECT_TRUE(radius->isChecked());
  const bool shown = Form().mnuDataVisible.Checked;
  data->trigger();
  EXPECT_EQ(Form().mnuDataVisible.Checked, !shown);
  EXPECT_EQ(data->isChecked(), !shown);
  diameter->trigger();
  EXPECT_TRUE(diameter->isChecked());
  EXPECT_FALSE(radius->isChecked()) << "the tick of a group moves";
  diameter->trigger();
  EXPECT_TRUE(diameter->isChecked()) << "an entry that stays on keeps its tick when it is chosen again";
}

TEST_F(MainWindowTest, AModelessWindowStaysOpenBesideTheMainOne) {
  auto& form = Now().forms.dlogAverage;
  Now().platform.Show(form);
  Now().platform.Show(form);
  const auto views = program.Window().findChildren<DialogView*>();
  ASSERT_EQ(views.size(), 1) << "one that is open comes to the front";
  EXPECT_FALSE(views[0]->isModal());
  EXPECT_TRUE(form.Visible);
  Form().cmdReplot.Enabled = true;
  Click(Form().cmdReplot);
  EXPECT_TRUE(views[0]->isVisible()) << "the main window goes on beside it";
  views[0]->close();
  EXPECT_FALSE(form.Visible);
}

TEST_F(MainWindowTest, ADialogFromDataSetsItsValuesOnOk) {
  auto& dialog = Now().forms.dlogTemp;
  const auto typeAnd = [](const char* text, QDialogButtonBox::StandardButton button) {
    return [text, button](QDialog& open) {
      auto* edit = open.findChild<QLineEdit*>("txtTemp");
      ASSERT_NE(edit, nullptr);
      edit->selectAll();
      QTest::keyClicks(edit, text);
      QTest::mouseClick(open.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    };
  };
  bool ok = false;
  const auto show = [&] { program.Gate().Do([&] { ok = program.World().ShowModal(dialog); }); };

  dialogs = {typeAnd("20", QDialogButtonBox::Ok)};
  show();
  EXPECT_TRUE(ok);
  EXPECT_EQ(dialog.txtTemp.Text, "20");

  dialogs = {typeAnd("30", QDialogButtonBox::Cancel)};
  show();
  EXPECT_FALSE(ok);
  EXPECT_EQ(dialog.txtTemp.Text, "20") << "Cancel puts back what stood there";

  // Marked as bad, the value keeps the dialog open.
  bool wasOpen = false;
  dialogs = {[&](QDialog& open) {
    dialog.txtTemp.BackColour = colours::BadInput;
    open.accept();
    wasOpen = open.isVisible();
    dialog.txtTemp.BackColour = colours::White;
    open.reject();
  }};
  show();
  EXPECT_TRUE(wasOpen);
}

TEST_F(MainWindowTest, PicturesAreWrittenInAllThreeKinds) {
  QTemporaryDir folder;
  const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
  const float right = Now().state.GraphRight;
  for (const char* name : {"page.png", "page.svg", "page.pdf"})
    EXPECT_EQ(program.World().SavePicture(path(name)), "") << name;
  const QByteArray svg = Content(folder.filePath("page.svg"));
  EXPECT_TRUE(svg.contains(">Scattering angle (deg.)</text>")) << "text is text";
  EXPECT_TRUE(Content(folder.filePath("page.pdf")).startsWith("%PDF"));
  const QImage png(folder.filePath("page.png"));
  EXPECT_EQ(png.size(), program.Window().Drawing().size());

  EXPECT_EQ(program.Window().SavePicture(path("large.png"), 2000, 1000), "");
  EXPECT_EQ(QImage(folder.filePath("large.png")).size(), QSize(2000, 1000));
  EXPECT_EQ(Now().state.GraphRight, right) << "the window's own graph is left as it was";
  EXPECT_EQ(Now().surface, &program.Window().Surface());

  EXPECT_NE(program.World().SavePicture(path("page.bmp")), "");
  EXPECT_NE(program.World().SavePicture("/nowhere/page.png"), "");
  std::filesystem::create_symlink("/dev/full", path("full.png"));
  EXPECT_NE(program.World().SavePicture(path("full.png")).find("No space left"), std::string::npos);
  std::filesystem::remove(path("full.png"));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 4) << "nothing half-written is left behind";
}

TEST_F(MainWindowTest, AResizeDrawsThePageAnewAtTheNewSize) {
  program.Window().resize(1500, 800);
  QTest::qWait(120);
  const auto& canvas = program.Window().Drawing();
  EXPECT_FALSE(canvas.IsStale());
  EXPECT_NEAR(Now().surface->ScaleWidth(), canvas.width() / canvas.Unit(), 1);
  EXPECT_NEAR(Now().state.GraphRight, 0.97 * Now().surface->ScaleWidth(), 5);
}

TEST_F(MainWindowTest, AboutTellsTheVersionAndWarnsOfNothing) {
  QMessageBox::Icon icon = QMessageBox::Warning;
  QTimer::singleShot(0, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) icon = box->icon();
  });
  program.Window().ActionOf(Form().mnuAbout)->trigger();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages[0].starts_with("About Lumivex: Lumivex 1.0\n")) << messages[0];
  EXPECT_EQ(icon, QMessageBox::NoIcon);
}

TEST_F(MainWindowTest, AClickOnTheDebyeAnalysisChoosesItsNumbers) {
  dialogs = {[](QDialog& open) { open.accept(); }};
  program.Window().ActionOf(Form().mnuDebyeSequence)->trigger();
  Click(Form().cmdNewPlot);
  ASSERT_TRUE(Now().page.phasors);
  ASSERT_EQ(Now().page.phasors->labels.number, 5);
  dialogs = {[](QDialog& open) {
    auto* terms = open.findChild<QLineEdit*>("txtTerms");
    ASSERT_NE(terms, nullptr);
    terms->selectAll();
    QTest::keyClicks(terms, "9");
    open.accept();
  }};
  const PhasorPlace& place = Now().page.phasors->place;
  const QPoint centre = (QPointF(place.x, place.y) * program.Window().Drawing().Unit()).toPoint();
  QTest::mouseClick(&program.Window().Drawing(), Qt::LeftButton, {}, centre);
  EXPECT_TRUE(dialogs.empty()) << "the dialog was not opened";
  EXPECT_EQ(Now().page.phasors->labels.number, 9);
  EXPECT_TRUE(messages.empty()) << messages.front();
}

TEST_F(MainWindowTest, TheStatusLineTellsHowFarNumbersCanBeTrusted) {
  const auto trust = [&]() -> QLabel* {
    for (auto* label : program.Window().statusBar()->findChildren<QLabel*>())
      if (label->accessibleName() == "Trust in the numbers") return label;
    return nullptr;
  };
  ASSERT_NE(trust(), nullptr);
  EXPECT_TRUE(trust()->text().contains("\u2714 exact")) << trust()->text().toStdString();
  EXPECT_TRUE(trust()->toolTip().contains("optical theorem"));
  Type(Form().txtRadius, "100");
  Click(Form().cmdNewPlot);
  EXPECT_TRUE(trust()->text().contains("\u2716 steps miss ripples")) << trust()->text().toStdString();
}

TEST_F(MainWindowTest, F1OpensTheGuideAndWithShiftWhatItSaysOfTheInput) {
  QAction* help = program.Window().ActionOf(Form().mnuHelpContents);
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(help->shortcut(), QKeySequence("F1"));
  help->trigger();
  auto* guide = program.Window().findChild<HelpWindow*>();
  ASSERT_NE(guide, nullptr);
  EXPECT_TRUE(guide->isVisible());
  auto* page = guide->findChild<QTextBrowser*>();
  EXPECT_TRUE(page->toPlainText().contains("New plot"));
  EXPECT_FALSE(page->loadResource(QTextDocument::ImageResource, QUrl("images/overplot.png")).isNull());

  const auto titleFor = [&](const Control& input) {
    QWidget* widget = program.Window().WidgetOf(input);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_F1, Qt::ShiftModifier);
    return guide->windowTitle();
  };
  EXPECT_EQ(titleFor(Form().cboType), "Lumivex - Mie");
  EXPECT_EQ(titleFor(Form().cboGraph), "Lumivex - Intensity v. scattering angle");
  EXPECT_EQ(titleFor(Form().txtRadius), "Lumivex - Size");
  // Whatever can be pointed at leads somewhere.
  for (const Control* control : Form().Controls()) {
    const QWidget* shown = program.Window().WidgetOf(*control);
    if (shown == nullptr || !shown->isVisible() || shown->focusPolicy() == Qt::NoFocus) continue;
    EXPECT_LT(TopicNamed(guide->Topics(), HelpNameOf(*control)), guide->Topics().size())
        << control->Name() << ": " << HelpNameOf(*control);
  }
}

}  // namespace
}  // namespace lumivex
