#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include "files/results/save_data.h"
#include "session/user_actions.h"
#include "source_folder.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

class DropTest : public WindowTest {
 protected:
  static QString Example(const char* name) {
    return QDir(QString::fromStdString(SourceFolder())).absoluteFilePath(QString("data/examples/") + name);
  }

  /// Drags files over a widget, as the window system would, and lets them go. @return whether they were taken.
  bool Drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    auto& window = program.Window();
    const QPoint place(300, 500);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QTest::qWait(30);
    return drop.isAccepted();
  }
  bool Drop(const QString& path) { return Drop({QUrl::fromLocalFile(path)}); }
};

TEST_F(DropTest, AFileIsReadAndPutToUse) {
  ASSERT_TRUE(Drop(Example("crown_glass.rix")));
  EXPECT_TRUE(Form().mnuRI_File1.Checked);
  // How the numbers of particles count is asked.
  dialogs = {[](QDialog& open) { open.accept(); }};
  ASSERT_TRUE(Drop(Example("spray.dis")));
  EXPECT_TRUE(Form().optDisp.Checked);
  EXPECT_EQ(Form().cboDistrib.Text, "Special");
  ASSERT_TRUE(Drop(Example("white_led.spe")));
  EXPECT_TRUE(Form().mnuSpectrumFile.Checked);
  EXPECT_EQ(Form().cboWave.Text, "Med.") << "one wavelength would go on without the spectrum";
  EXPECT_TRUE(WidgetOf(Form().lblSpectrum)->isVisible());
  EXPECT_TRUE(messages.empty()) << messages.front();
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_FALSE(Form().optDisp.Checked) << "a drop is one step of undo";
}

TEST_F(DropTest, ResultsComeBackAndCanBeUndone) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("run.lvx");
  ASSERT_EQ(Save_Data(Now(), path.toStdString()), "");
  program.Gate().Do([this] { UserTypes(Now(), Form().txtRadius, "3"); });
  EXPECT_FALSE(Form().cmdReplot.Enabled);
  ASSERT_TRUE(Drop(path));
  EXPECT_TRUE(messages.empty()) << messages.front();
  EXPECT_EQ(Form().txtRadius.Text, "10");
  EXPECT_TRUE(Form().cmdReplot.Enabled);
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_EQ(Form().txtRadius.Text, "3");
}

TEST_F(DropTest, ASpectrumWaitsForAGraphOfSeveralWavelengthsAndSaysSo) {
  program.Gate().Do([this] { UserChooses(Now(), Form().cboGraph, "Qext/Qsca/Qabs v. radius"); });
  ASSERT_TRUE(Drop(Example("white_led.spe")));
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_NE(messages.back().find("takes effect in graphs of several wavelengths"), std::string::npos);
  EXPECT_EQ(Form().cboWave.Text, "1");
}

TEST_F(DropTest, OtherFilesAndSeveralAtOnceAreToldAndChangeNothing) {
  ASSERT_TRUE(Drop("/tmp/holiday.jpg"));
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages.back().starts_with("Dropped files: holiday.jpg is none of the files")) << messages.back();
  ASSERT_TRUE(Drop({QUrl::fromLocalFile(Example("crown_glass.rix")), QUrl::fromLocalFile(Example("spray.dis"))}));
  EXPECT_EQ(messages.back(), "Dropped files: Please drop one file at a time.");
  ASSERT_TRUE(Drop("/no/such/table.rix"));
  EXPECT_EQ(messages.size(), 3U);
  EXPECT_FALSE(Drop({QUrl("https://example.org/table.rix")})) << "nothing is fetched";
  EXPECT_FALSE(Form().mnuRI_File1.Checked);
  EXPECT_TRUE(Now().undo.past.size() <= 1);
}

TEST_F(DropTest, AnInputLeavesFilesToTheWindow) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Example("crown_glass.rix"))});
  QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(WidgetOf(Form().txtRadius), &enter);
  EXPECT_TRUE(enter.isAccepted()) << "the window takes it";
  EXPECT_EQ(Form().txtRadius.Text, "10");
}

// Whatever falls onto the window is told and changes nothing.
TEST_F(DropTest, FoldersAndRubbishAreTold) {
  QTemporaryDir folder;
  const auto write = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  };
  ASSERT_TRUE(QDir(folder.path()).mkdir("folder.rix"));
  ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
  const QByteArray noise = QByteArray::fromHex("00ff13fe0a0d80").repeated(3000);
  const QList<QString> paths = {folder.filePath("folder"),   folder.filePath("folder.rix"), write("a.rix", noise),
                                write("a.csv", noise),       write("a.yml", noise),         write("a.spe", noise),
                                write("empty.rix", ""),      write("empty.csv", ""),        write("empty.spe", ""),
                                write("no ending", "1,2,3"), write("two\nlines.txt", "")};
  for (const QString& path : paths) {
    SCOPED_TRACE(path.toStdString());
    messages.clear();
    ASSERT_TRUE(Drop(path));
    EXPECT_EQ(messages.size(), 1U);
    if (!messages.empty()) {
      EXPECT_EQ(messages[0].find(std::string("two\n")), std::string::npos);
    }
  }
  for (const QString& path : {write("a.dis", noise), write("empty.dis", "")}) {
    dialogs = {[](QDialog& open) { open.accept(); }};
    messages.clear();
    ASSERT_TRUE(Drop(path));
    EXPECT_FALSE(messages.empty()) << path.toStdString();
  }
  EXPECT_TRUE(Form().mnuRI_IAPWS.Checked);
  EXPECT_FALSE(Form().optDisp.Checked);
  EXPECT_FALSE(Form().mnuSpectrumFile.Checked);
  EXPECT_EQ(Form().cboDistrib.Text, "Log-normal");
  EXPECT_FALSE(Form().mnuUndo.Enabled);
  Click(Form().cmdNewPlot);
  EXPECT_NE(Now().state.LastResults, nullptr);
}

}  // namespace
}  // namespace lumivex
