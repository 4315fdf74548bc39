/// The simulation window and picture files.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <exiv2/exiv2.hpp>

#include "pages/photograph/photograph_page.h"
#include "record/number_text.h"
#include "session/simulation/simulation_page.h"
#include "session/user_actions.h"
#include "ui/look.h"
#include "ui/photograph_file.h"
#include "ui/photograph_window.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

class PictureFiles : public testing::Test {
 protected:
  std::string PathOf(const char* name) const { return FromQString(folder_.filePath(name)); }

  /// A picture of 60 x 40 as the camera held upright wrote it: lying, with a note of how to turn it.
  std::string TurnedPhotograph() {
    QImage lying(60, 40, QImage::Format_RGB32);
    lying.fill(QColor(10, 20, 200));
    for (int x = 0; x < 60; ++x)
      for (int y = 0; y < 8; ++y) lying.setPixelColor(x, y, QColor(250, 0, 0));
    const std::string path = PathOf("turned.jpg");
    lying.save(ToQString(path), "JPEG", 100);
    const auto file = Exiv2::ImageFactory::open(path);
    file->readMetadata();
    Exiv2::ExifData& notes = file->exifData();
    notes["Exif.Image.Orientation"] = std::uint16_t{6};
    notes["Exif.Image.Model"] = "Pinhole";
    notes["Exif.Photo.FocalLengthIn35mmFilm"] = std::uint16_t{43};
    file->writeMetadata();
    return path;
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(PictureFiles, AreTurnedUprightAndTellTheirFocalLength) {
  const OpenedPhotograph opened = ReadPhotographFile(TurnedPhotograph());
  EXPECT_EQ(opened.failure, "");
  EXPECT_EQ(opened.focal35, 43);
  ASSERT_EQ(opened.picture.width, 40);
  ASSERT_EQ(opened.picture.height, 60);
  EXPECT_GT(ChannelOf(opened.picture.Row(30)[37], 0), 200U) << "the upper edge of the file is the right one";
  EXPECT_LT(ChannelOf(opened.picture.Row(30)[3], 0), 60U);
}

TEST_F(PictureFiles, KeepTheNotesOfTheirCamera) {
  const OpenedPhotograph opened = ReadPhotographFile(TurnedPhotograph());
  Page page;
  page.photograph.emplace();
  page.photograph->picture = page.photograph->photograph = std::make_shared<Bitmap>(opened.picture);
  for (const char* name : {"kept.jpg", "kept.png"}) {
    const std::string path = PathOf(name);
    ASSERT_EQ(WritePhotographFile(page, opened.notes, path), "") << name;
    const OpenedPhotograph again = ReadPhotographFile(path);
    EXPECT_EQ(again.picture.width, 40) << name << ": turned once and not twice";
    EXPECT_EQ(again.focal35, 43) << name;
    const auto file = Exiv2::ImageFactory::open(path);
    file->readMetadata();
    EXPECT_EQ(file->exifData()["Exif.Image.Model"].toString(), "Pinhole") << name;
  }
  EXPECT_EQ(ReadPhotographFile(PathOf("kept.png")).picture.pixels, opened.picture.pixels);
  EXPECT_EQ(WritePhotographFile(page, "", PathOf("kept.gif")),
            "The name of a painted photograph ends in .png or .jpg.");
}

TEST_F(PictureFiles, ThatAreNoneSayWhy) {
  QFile text(ToQString(PathOf("notes.jpg")));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly));
  text.write("no picture at all");
  text.close();
  QFile empty(ToQString(PathOf("empty.png")));
  ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
  empty.close();
  for (const char* name : {"notes.jpg", "empty.png", "missing.png", "."}) {
    const OpenedPhotograph opened = ReadPhotographFile(PathOf(name));
    EXPECT_TRUE(opened.picture.Empty()) << name;
    EXPECT_NE(opened.failure.find(PathOf(name)), std::string::npos) << opened.failure;
  }
}

TEST_F(PictureFiles, CutShortAreShownAndToldOf) {
  const std::string whole = TurnedPhotograph(), cut = PathOf("cut.jpg");
  QFile from(ToQString(whole)), to(ToQString(cut));
  ASSERT_TRUE(from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly));
  const QByteArray bytes = from.readAll();
  to.write(bytes.first(bytes.size() - 40));
  to.close();
  EXPECT_EQ(ReadPhotographFile(whole).remark, "");
  const OpenedPhotograph opened = ReadPhotographFile(cut);
  EXPECT_EQ(opened.failure, "");
  EXPECT_EQ(opened.picture.width, 40);
  EXPECT_EQ(opened.remark, cut + " ends before its picture does: the rest of it is missing");
}

TEST_F(PictureFiles, TooLargeAreRefusedBeforeTheyAreRead) {
  // The head of a picture of 400 million pixels.
  const std::string path = PathOf("vast.png");
  const QByteArray head = QByteArray::fromHex(
      "89504e470d0a1a0a0000000d4948445200004e2000004e2008020000006c12d16e"
      "000003e849444154");
  QFile file(ToQString(path));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(head);
  file.close();
  EXPECT_EQ(ReadPhotographFile(path).failure,
            path + " is too large: 20000 x 20000 pixels; a picture may have 268 million");
}

class PhotographWindowTest : public WindowTest {
 protected:
  Form2& Sim() { return Now().forms.form2; }
  PhotographWindow& Second() { return *program.Window().Photograph(); }

  void OpenIt() {
    program.Gate().Do([this] {
      UserChooses(Now(), Form().cboWave, "3");
      UserTypes(Now(), Form().txtRadius, "100");
      UserTypes(Now(), Form().cboStep, "0.5");
      UserClicks(Now(), Form().cmdNewPlot);
      Now().events.Raise("cmdSimulation_Click");
    });
    QTest::qWait(50);
  }
  QPoint PlaceOfPoint() {
    const Page& page = SimulationWindow(Now()).page;
    const PictureWindow window = WindowOf(*page.photograph, page.geometry.surfaceWidth, page.geometry.surfaceHeight);
    const SurfacePoint at =
        lumivex::PlaceOfPoint(*page.photograph, window, {Val(Sim().txtX1.Text), Val(Sim().txtY1.Text)});
    return QPointF(at.x / 15, at.y / 15).toPoint();
  }
};

TEST_F(PhotographWindowTest, ADragMovesThePointAndTheLightFollows) {
  OpenIt();
  ASSERT_NE(program.Window().Photograph(), nullptr);
  EXPECT_TRUE(Second().isVisible());
  EXPECT_TRUE(SimulationWindow(Now()).page.photograph->preview);
  Canvas& canvas = Second().Drawing();
  const QImage before = canvas.Surface().Picture().copy();
  const QPoint from(400, 300), to(460, 380);
  QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
  QTest::mouseMove(&canvas, from + QPoint(5, 5));
  for (int i = 1; i <= 4; ++i) {
    QMouseEvent moved(QEvent::MouseMove, from + i * (to - from) / 4, canvas.mapToGlobal(to), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &moved);
  }
  QTest::mouseRelease(&canvas, Qt::LeftButton, {}, to);
  QTest::qWait(20);
  EXPECT_LT((PlaceOfPoint() - to).manhattanLength(), 4);
  EXPECT_NE(canvas.Surface().Picture(), before);
  program.Gate().Do([this] { UserClicks(Now(), Form().mnuUndo); });
  EXPECT_EQ(Sim().txtX1.Text, "900") << "one step takes the whole drag back";
  QTest::keyClick(&canvas, Qt::Key_Right);
  QTest::keyClick(&canvas, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Sim().txtX1.Text + " " + Sim().txtY1.Text, "901 1130");
  QTest::keyClick(&canvas, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Sim().txtX1.Text + " " + Sim().txtY1.Text, "900 1140");
}

TEST_F(PhotographWindowTest, ExitAndClosingHideItAndItComesBack) {
  OpenIt();
  QTest::mouseClick(Second().WidgetOf(Sim().cmdExit2), Qt::LeftButton);
  EXPECT_FALSE(Second().isVisible());
  program.Gate().Do([this] { Now().events.Raise("mnuWindowSimulation_Click"); });
  EXPECT_TRUE(Second().isVisible());
  Second().close();
  QTest::qWait(20);
  EXPECT_FALSE(Second().isVisible());
  EXPECT_FALSE(Sim().Visible);
  EXPECT_TRUE(program.Window().isVisible());
}

TEST_F(PhotographWindowTest, EnterPaintsAndThePaintingStands) {
  OpenIt();
  QTest::keyClick(&Second().Drawing(), Qt::Key_Return);
  QTest::qWait(20);
  EXPECT_NE(Now().simulation.picture, Now().simulation.photograph);
  EXPECT_TRUE(Sim().cmdSimPlot.Enabled);
  EXPECT_FALSE(Sim().cmdStopSim.Enabled);
}

}  // namespace
}  // namespace lumivex
