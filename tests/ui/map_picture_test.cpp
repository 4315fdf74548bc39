#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

#include "pages/map_fixture.h"
#include "session/user_actions.h"
#include "ui/page_picture.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

/// A map on paper: each picture one image, however many cells it has.
TEST(MapPictures, AreOneImageEachInVectorFiles) {
  struct Drawn : MapSession {
    Drawn() {
      StoreLee([](int p, int column, double angle) { return Channels{angle - 136 + column, 9.0 - p, 146 - angle}; });
      form.mnuFalseColours.Checked = true;
      Draw();
    }
    using MapSession::page;
  } session;
  const QByteArray svg = PageSvg(session.page, {1200, 960, 1.0 / 16});
  EXPECT_EQ(svg.count("<image"), 4) << "three pictures and the key";
  EXPECT_LT(svg.size(), 600000);
}

/// What stands in the picture of the window stands in that of a file, in the middle of a cell.
TEST(MapPictures, ShowEachCellWhereItBelongs) {
  struct Drawn : MapSession {
    Drawn() {
      StoreLee([](int, int column, double angle) {
        return column == 2 && std::abs(angle - 141) < 0.5 ? Channels{1, 0, 0} : Channels{0, 0, 1};
      });
      Draw();
    }
    using MapSession::page;
  } session;
  constexpr double unitPx = 1.0 / 16;
  const QImage image = PageImage(session.page, {1200, 960, unitPx}, 1);
  const auto at = [&](double x, double y) {
    return image.pixelColor(static_cast<int>(x * unitPx), static_cast<int>(y * unitPx));
  };
  EXPECT_EQ(at(3000, 6600), QColor(255, 0, 0)) << "14.1 um at 141 degrees";
  EXPECT_EQ(at(8000, 6600), QColor(255, 0, 0)) << "in the second picture too";
  EXPECT_EQ(at(2400, 6600), QColor(0, 0, 255)) << "the column before";
  EXPECT_EQ(at(3000, 7200), QColor(0, 0, 255)) << "140.25 degrees";
}

// In a window of 1400 by 900 the lines below the panels lay under its edge, for a graph that keeps its size is
// scrolled.
class MapWindow : public WindowTest {};

TEST_F(MapWindow, HasRoomForTheLinesBelowInEverySize) {
  program.Window().resize(1400, 900);
  const auto act = [this](auto&& action) {
    program.Gate().Do(action);
    QTest::qWait(20);
  };
  act([this] { UserChooses(Now(), Form().cboGraph, "Map: angle v. radius"); });
  act([this] { UserClicks(Now(), Form().cmdNewPlot); });
  const auto* area = program.Window().findChild<QScrollArea*>();
  ASSERT_NE(area, nullptr);
  for (MenuEntry* size : {&Form().mnuLarge, &Form().mnuMedium, &Form().mnuSmall, &Form().mnuVLarge}) {
    act([&] { UserClicks(Now(), *size); });
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << size->Name();
  }
  act([this] { UserChooses(Now(), Form().cboGraph, "Intensity v. scattering angle"); });
  act([this] { UserClicks(Now(), Form().cmdNewPlot); });
  act([this] { UserClicks(Now(), Form().mnuLarge); });
  EXPECT_GT(area->verticalScrollBar()->maximum(), 0) << "a curve keeps its size";
}

}  // namespace
}  // namespace lumivex
