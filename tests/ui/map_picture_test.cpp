#include <gtest/gtest.h>

#include "pages/map_fixture.h"
#include "ui/page_picture.h"

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

}  // namespace
}  // namespace lumivex
