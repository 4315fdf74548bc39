#include "pages/phasor_diagram.h"

#include <gtest/gtest.h>

#include "pages/drawing_reader.h"
#include "pages/graph_fixture.h"

namespace lumivex {
namespace {

struct Phasors : testing::Test, GraphSession {
  Phasors() {
    terms.Set(1, 1, 0);
    terms.Set(2, 0, 0.01);
    terms.Set(3, -0.1, 0);
    terms.Set(4, 1e-9, 0);
  }
  AmplitudeTable terms{4};
};

TEST_F(Phasors, StandByModulusAndPhaseWithTheirNumbers) {
  state.PlotMode = 1;
  RecordingSurface wide{24000, 15360};  // enough for the circle at its place
  session.surface = &wide;
  wide.Cls();
  PlotDots(session, terms, 4, 1e-4, 1);
  const DrawingReader drawing(wide);
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

  state.PlotMode = 2;
  wide.Forget();
  PlotDots(session, terms, 4, 1e-4, 1, {DotLabels::Rule::AboveSize, 1});
  EXPECT_TRUE(drawing.All(DrawnOperation::Kind::Circle).empty()) << "an overplot adds dots only";
  EXPECT_EQ(drawing.Text("1"), nullptr);
  EXPECT_NE(drawing.Text("2"), nullptr);
  form.cboPol.Text = "Parallel polarisation";
  wide.Forget();
  PlotDots(session, terms, 4, 1e-4, 1);
  EXPECT_TRUE(wide.Operations().empty());
}

// On a surface of usual width circle and box share what there is.
TEST_F(Phasors, NarrowSurfacesHoldTheWholeCircle) {
  state.PlotMode = 1;
  surface.Cls();
  PlotDots(session, terms, 4, 1e-4, 1);
  const DrawingReader drawing(surface);
  const auto boxes = drawing.All(DrawnOperation::Kind::Box);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_LT(boxes[0].points[1].x, state.PolarCentreX - state.PolarRadius);
  EXPECT_LT(state.PolarCentreX + state.PolarRadius, surface.ScaleWidth());
}

}  // namespace
}  // namespace lumivex
