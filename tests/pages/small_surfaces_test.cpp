#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "pages/curves/curve_path.h"
#include "pages/drawing_reader.h"
#include "pages/free_room.h"
#include "pages/items/readings.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using testing::IsEmpty;

class SmallSurfaces : public ScriptedSession {
 protected:
  const Page& Drawn() { return runner.Current().page; }
  DrawingReader Read() { return DrawingReader(static_cast<const RecordingSurface&>(*runner.Current().surface)); }
  const AxisLimits& Limits() { return Drawn().panels.at(0).limits; }
};

// In a narrow window the readings were cut at its right edge.
TEST_F(SmallSurfaces, ReadingsHaveRoomSomewhere) {
  for (const char* size : {"800x600", "1024x768", "1400x900"})
    for (const char* lines :
         {"set cboStep 1", "set cboStep 1\nset cboWave 3\nchoose cboPol Both",
          "set cboStep 1\nset cboWave 30\nset cboN 20\nclick optDisp", "set cboStep 1\nclick mnuPolarPlot"}) {
      SCOPED_TRACE(std::string(size) + "\n" + lines);
      Do(std::string("reset\nsize ") + size);
      Do(std::string(lines) + "\nclick mnuVLarge\nclick cmdNewPlot\ndrawing");
      const auto& surface = *runner.Current().surface;
      ASSERT_FALSE(Drawn().readings.empty());
      for (const PageLine& line : Drawn().readings) {
        const DrawnOperation* text = Read().Text(line.text);
        if (text == nullptr) text = Read().Text(Trim(line.text));
        ASSERT_NE(text, nullptr) << line.text;
        EXPECT_LE(text->points[0].x + text->width, surface.ScaleWidth()) << line.text;
        EXPECT_LE(text->points[0].y + text->height, surface.ScaleHeight()) << line.text;
      }
      EXPECT_THAT(Read().Overlaps(), IsEmpty());
    }
}

// The circle went on below the window.
TEST_F(SmallSurfaces, ACircleKeepsWithinALowOne) {
  for (const char* size : {"1366x560", "1366x700", "1024x768"}) {
    SCOPED_TRACE(size);
    Do(std::string("reset\nsize ") + size + "\nclick mnuPolarPlot\nset cboStep 1\nclick cmdNewPlot\ndrawing");
    const PolarMap circle = PolarMapOf(Drawn());
    const double height = runner.Current().surface->ScaleHeight();
    EXPECT_LT(circle.centreY + circle.radius, height);
    const DrawnOperation* lowest = Read().Text("90");
    ASSERT_NE(lowest, nullptr);
    EXPECT_LE(lowest->points[0].y + lowest->height, height);
    EXPECT_GE(lowest->points[0].y, circle.centreY + circle.radius);
    EXPECT_THAT(Read().Overlaps(), IsEmpty());
  }
}

// Of water it was a line on the upper edge, over a whole decade of nothing.
TEST_F(SmallSurfaces, AFlatAlbedoIsDrawnOnAScaleOfItsOwn) {
  for (const char* scale : {"OptLog", "optLinear"}) {
    SCOPED_TRACE(scale);
    Do(std::string("reset\nchoose cboGraph Albedo v. radius\nset cboStep 100\nclick ") + scale + "\nclick cmdNewPlot");
    const auto& y = Drawn().curves.at(0).y;
    double low = 1;
    for (std::size_t i = 1; i < y.size(); ++i) low = std::min(low, y[i]);
    EXPECT_EQ(Limits().ymax, 1);
    EXPECT_LE(Limits().ymin, low);
    EXPECT_GT(Limits().ymin, 1 - 1.5 * (1 - low));
    Do("click mnuRI_Fixed1\nset txtRefractImag 0\nclick cmdNewPlot");
    EXPECT_NEAR(Limits().ymax, 1.05, 1e-12) << "a level one stands clear of the edges";
    EXPECT_NEAR(Limits().ymin, 0.95, 1e-12);
    Do("set cboYmin 0.5\nclick cmdReplot");
    EXPECT_EQ(Limits().ymin, 0.5) << "typed";
    Do("set cboYmin Automatic\nset txtRefractImag 0.01\nclick cmdNewPlot");
    EXPECT_LT(Limits().ymin, 0.5) << "one that differs has the scale of other graphs";
  }
  Do("reset\nchoose cboGraph Albedo v. radius\nset cboStep 100\nclick OptLog\nclick cmdNewPlot\ndrawing");
  EXPECT_NE(Read().Text(".9998"), nullptr) << "more than its ends is labelled";
}

// Where numbers had run out the curve was a line beside the axis, which ended where the smallest number began.
TEST_F(SmallSurfaces, NothingIsDrawnAlongTheFloorOfALogarithmicScale) {
  Do("choose cboType Airy\nset txtRefractImag 0\nset cboRays 2\nset txtRadius 1000\nclick cmdNewPlot\ndrawing");
  const double floor = Drawn().panels.at(0).box.bottom;
  ASSERT_FALSE(Read().Curves().empty());
  for (const DrawnOperation& curve : Read().Curves())
    for (std::size_t i = 1; i < curve.points.size(); ++i)
      EXPECT_FALSE(curve.points[i - 1].y >= floor && curve.points[i].y >= floor) << i;
}

// The row under the pointer was looked for among all rows at each of its moves.
TEST_F(SmallSurfaces, TheNearestRowIsTheNearestOfAll) {
  Do("set cboStep 0.5\nclick cmdNewPlot");
  std::mt19937 random(5);
  for (const bool averaged : {false, true}) {
    Page page = Drawn();
    page.curves[0].averageRows = averaged ? 7 : 0;
    std::vector<double> y = page.curves[0].y;
    y[100] = std::nan("");
    page.curves[0].y = y;
    ASSERT_TRUE(page.curves[0].x.Rise());
    const GraphBox& box = page.panels[0].box;
    for (int i = 0; i < 300; ++i) {
      const SurfacePoint to{std::uniform_real_distribution(box.left, box.right)(random),
                            std::uniform_real_distribution(box.top, box.bottom)(random)};
      const auto found = NearestRow(page, page.panels[0], page.curves[0], to);
      ASSERT_TRUE(found);
      const auto distance = [&](const PlacedRow& row) { return std::hypot(row.point.x - to.x, row.point.y - to.y); };
      for (const PlacedRow& row : PlacedRows(page, page.panels[0], page.curves[0]))
        EXPECT_FALSE(distance(row) < distance(*found)) << row.row;
      EXPECT_EQ(found->value, DrawnValues(page.curves[0], {1, 361})[found->row]);
    }
  }
  const SharedValues x(std::vector<double>{0, 1, 2, 4, 8});
  EXPECT_EQ(RowsWithin(x, {2, 4}).first, 2U);
  EXPECT_EQ(RowsWithin(x, {2, 4}).last, 3U);
  EXPECT_TRUE(RowsWithin(x, {5, 7}).Empty());
  EXPECT_TRUE(RowsWithin(x, {9, 12}).Empty());
  EXPECT_FALSE(SharedValues(std::vector<double>{0, 1, std::nan(""), 3}).Rise());
}

// It looked at the corners only, and at no curve of very many rows.
TEST_F(SmallSurfaces, ANoteFindsThePlaceBetweenCurves) {
  Do("size 1400x900\nset cboStep 1\nchoose cboPol Unpolarised\nclick cmdNewPlot");
  for (const std::size_t rows : {1801U, 900001U}) {
    Page page = Drawn();
    std::vector<double> x(rows + 1), y(rows + 1);
    for (std::size_t i = 1; i <= rows; ++i) {
      x[i] = 180.0 * static_cast<double>(i - 1) / static_cast<double>(rows - 1);
      const bool atSide = std::abs(x[i] - 90) > 45;
      y[i] = atSide && i % 2 == 0 ? Limits().ymin * 1.01 : Limits().ymax * 0.99;
    }
    page.curves[0].x = x;
    page.curves[0].y = y;
    page.panels[0].limits.xmin = rows > 10000 ? 80 : 0;  // zoomed, fewer rows are in view
    page.panels[0].limits.xmax = rows > 10000 ? 90 : 180;
    const GraphBox& box = page.panels[0].box;
    const SurfacePoint at = FreeRoom(page, 2500, 2000, 11760, 14000);
    EXPECT_GT(at.y, box.top + 100) << rows;
    if (rows > 10000) continue;
    EXPECT_GT(at.x, box.left + box.Width() * 45 / 180);
    EXPECT_LT(at.x + 2500, box.left + box.Width() * 135 / 180);
  }
}

}  // namespace
}  // namespace lumivex
