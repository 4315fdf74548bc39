#include "pages/items/phasor_diagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/drawing_reader.h"
#include "pages/graph_fixture.h"
#include "pages/page_table.h"

namespace lumivex {
namespace {

struct Phasors : testing::Test, GraphSession {
  Phasors() {
    DebyeAnalysisFound found;
    found.dots1.Resize(4);
    found.dots2.Resize(4);
    found.dots1.Set(1, 1, 0);
    found.dots1.Set(2, 0, 0.01);
    found.dots1.Set(3, -0.1, 0);
    found.dots1.Set(4, 1e-9, 0);
    found.done = 4;
    results.asked.graph = GraphOf({10, 10});
    results.asked.run = DebyeAnalysisRun{0, 2};
    results.found = found;
    form.cboYmin.Text = "0.0001";
    form.cboYmax.Text = "1";
    form.cboPol.Text = "Perpendicular";
    session.forms.dlogDebyeSeq.chkLabels.Checked = true;
  }
  /// The page on a surface wide enough for the circle at its place.
  DrawingReader Wide() {
    Draw();
    PageGeometry geometry = GeometryOf(session);
    geometry.surfaceWidth = wide.ScaleWidth();
    Paint(PlacePage(page, geometry), wide);
    return DrawingReader(wide);
  }
  RecordingSurface wide{24000, 15360};
};

TEST_F(Phasors, StandByModulusAndPhaseWithTheirNumbers) {
  const DrawingReader drawing = Wide();
  const auto dots = drawing.All(DrawnOperation::Kind::FilledBox);
  ASSERT_EQ(dots.size(), 3U) << "a term below the centre's value is left out";
  const auto centreOf = [](const DrawnOperation& dot) {
    return SurfacePoint{0.5 * (dot.points[0].x + dot.points[1].x), 0.5 * (dot.points[0].y + dot.points[1].y)};
  };
  EXPECT_NEAR(centreOf(dots[0]).y, 7000 - 5000, 1e-6) << "phase 0 is up";
  EXPECT_NEAR(centreOf(dots[1]).x, 18500 + 2500, 1e-6) << "90 degrees is right";
  EXPECT_NEAR(centreOf(dots[2]).y, 7000 + 3750, 1e-6) << "180 degrees is down";
  for (const char* text : {" Mie", "1", "2"}) EXPECT_NE(drawing.Text(text), nullptr) << text;
  EXPECT_EQ(drawing.All(DrawnOperation::Kind::Circle).size(), 4U) << "the rim and 0.1, 0.01, 0.001";

  auto& dialog = session.forms.dlogDebyeSeq;
  dialog.optDecades.Select();
  dialog.txtTerms.Text = "1";
  const DrawingReader fewer = Wide();
  const auto numbers = fewer.TextsIn({13600, 24000, 1600, 11900});
  EXPECT_THAT(numbers, testing::UnorderedElementsAre(" Mie", "2")) << "1 is smaller than a tenth of the top";
  form.cboPol.Text = "Parallel";
  EXPECT_TRUE(Wide().All(DrawnOperation::Kind::FilledBox).empty()) << "none of that polarisation is left";
}

// On a surface of usual width circle and table share what there is.
TEST_F(Phasors, NarrowSurfacesHoldTheWholeCircle) {
  Draw();
  const auto boxes = DrawingReader(surface).All(DrawnOperation::Kind::Box);
  ASSERT_EQ(boxes.size(), 1U);
  const PhasorPlace& place = page.phasors->place;
  EXPECT_LT(boxes[0].points[1].x, place.x - place.radius);
  EXPECT_LT(place.x + place.radius, surface.ScaleWidth());
}

TEST_F(Phasors, LowSurfacesHoldALargeCircleAndTheWholeScale) {
  Draw();
  RecordingSurface low(16800, 8900);
  PageGeometry geometry = GeometryOf(session);
  geometry.surfaceWidth = low.ScaleWidth();
  geometry.surfaceHeight = low.ScaleHeight();
  const Page placed = PlacePage(page, geometry);
  Paint(placed, low);
  EXPECT_THAT(DrawingReader(low).Outside(low.ScaleWidth(), low.ScaleHeight()), testing::IsEmpty());
  EXPECT_GT(placed.phasors->place.radius, 1700);
  EXPECT_GT(placed.phasors->place.y - placed.phasors->place.radius, 3900) << "clear of the title";
}

TEST_F(Phasors, AreReadAndListedTermByTerm) {
  Draw();
  const auto place = DotPlace(*page.phasors, page.phasors->first, 3);
  ASSERT_TRUE(place);
  const auto reading = ReadAt(page, place->x + 20, place->y);
  ASSERT_TRUE(reading);
  EXPECT_THAT(reading->text, testing::HasSubstr("Perpendicular polarisation, - p = 0 to 1: 0.1   180 deg"));
  EXPECT_FALSE(ReadAt(page, 1100, 4100)) << "the table has no scale";
  EXPECT_EQ(TableAsCsv(page),
            "Terms taken away,Perpendicular,phase (deg),Parallel,phase (deg) (2)\n0,1,0,0,90\n1,0.01,90,0,90\n"
            "2,0.1,180,0,90\n3,1e-09,0,0,90\n");
}

}  // namespace
}  // namespace lumivex
