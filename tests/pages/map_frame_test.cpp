#include "pages/maps/lee_frame.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/map_fixture.h"
#include "pages/zoom.h"

namespace lumivex {
namespace {

class MapFrames : public ::testing::Test, protected MapSession {
 protected:
  void DrawLee() {
    StoreLee([](int p, int column, double angle) { return Channels{angle - 136 + column, 9.0 - p, 146 - angle}; });
    Draw();
  }
};

/// Left edges of the cells of a block, or upper ones, with the last edge behind them.
std::vector<double> Edges(double from, double to, double first, double last, int cells) {
  std::vector<double> edges;
  for (int cell = 0; cell <= cells; ++cell)
    edges.push_back(from + (to - from) * (std::clamp(static_cast<double>(cell), first, last) - first) / (last - first));
  return edges;
}

TEST_F(MapFrames, HaveTheirCellsWhereTheAxesHaveTheirValues) {
  DrawLee();
  ASSERT_EQ(page.panels.size(), 3U);
  const auto block = CellsIn(page, page.panels[0]);
  ASSERT_TRUE(block);
  const CellPart part = block->Part();
  EXPECT_THAT(Edges(block->left, block->right, part.left, part.right, 5),
              ::testing::Pointwise(::testing::DoubleNear(1e-6), {1000., 1500., 2500., 3500., 4500., 5000.}));
  const auto rows = Edges(block->bottom, block->top, 161 - part.bottom, 161 - part.top, 161);
  EXPECT_NEAR(rows[1], 9780, 1e-6) << "137 degrees: half a cell at the bottom";
  EXPECT_NEAR(rows[19], 9800 - 18.5 * 40, 1e-6);
  EXPECT_NEAR(rows[160], 3420, 1e-6);
  EXPECT_EQ(block->rows, 161) << "the neighbours of the sun's disc are not shown";

  const auto images = Images();
  ASSERT_EQ(images.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(images[i].points[0].x, 1000 + 5000.0 * static_cast<double>(i), 1e-6);
    EXPECT_NEAR(images[i].points[1].x, 5000 + 5000.0 * static_cast<double>(i), 1e-6);
    EXPECT_NEAR(images[i].points[0].y, 3400, 1e-6);
    EXPECT_NEAR(images[i].points[1].y, 9800, 1e-6);
  }
}

TEST_F(MapFrames, ShowOfOneColumnOrOneRowAllOverTheBox) {
  StoreValues({24, 1}, {Swept::Radius, 10, 10, 0}, [](int, int, double) { return 1; });
  Draw();
  const auto block = CellsIn(page, page.panels[0]);
  ASSERT_TRUE(block);
  EXPECT_NEAR(block->left, 1000, 1e-6);
  EXPECT_NEAR(block->right, 5000, 1e-6);
  EXPECT_EQ(block->Part().right - block->Part().left, 1);
}

TEST_F(MapFrames, AreCutWhereTheAxisGoesBeyondTheSamples) {
  DrawLee();
  ShowRange("143", "147");
  Draw();
  const auto block = CellsIn(page, page.panels[0]);
  ASSERT_TRUE(block);
  EXPECT_NEAR(block->bottom, 9800, 1e-6);
  EXPECT_NEAR(block->top, 9800 - 6400 * (145.275 - 143) / 4, 1e-3) << "the rows that the run has besides are shown";
  ShowRange("20", "30");
  Draw();
  EXPECT_TRUE(Images().empty()) << "nothing of it is in view";
}

TEST(LeeTicks, StandAtMultiplesOfTheirStep) {
  struct Case {
    TickRow row;
    std::vector<double> places;
  };
  const Case cases[] = {
      {{1.1, 1.5, 0.2, 1.1, 1.5}, {2000, 4000}},
      {{137, 145, 2, 137, 145}, {1500, 2500, 3500, 4500}},
      {{10, 20, 5, 10, 20, true}, {1000, 3339.850003, 5000}},
      {{0.3, 0.5, 0.1, 0.3, 0.5}, {1000, 3000, 5000}},
      {{0, 1, 0, 0, 1}, {}},
  };
  for (const Case& c : cases) {
    RecordingSurface surface(6000, 1000);
    surface.Cls();
    GridLeeTicks(surface, c.row, 1000, 5000, 500, 75);
    std::vector<double> places;
    for (const auto& op : DrawingReader(surface).All(DrawnOperation::Kind::Line)) {
      places.push_back(op.points[0].x);
      EXPECT_EQ(op.points[1].y, 575);
    }
    EXPECT_THAT(places, ::testing::Pointwise(::testing::DoubleNear(1e-4), c.places)) << c.row.start;
  }
}

TEST_F(MapFrames, HaveTheirNumbersAndTitles) {
  DrawLee();
  const DrawingReader reader(surface);
  EXPECT_THAT(reader.TextsIn({900, 5300, 9900, 10120}), ::testing::ElementsAre("10", "12", "14", "16", "18", "20"));
  EXPECT_THAT(reader.TextsIn({0, 900, 3200, 9900}),
              ::testing::UnorderedElementsAre("137", "138", "139", "140", "141", "142", "143", "144", "145"));
  for (const char* text : {"Perpendicular polarisation", "Parallel polarisation", "Unpolarised", "Radius (\u00B5m)",
                           "Scattering", "angle (deg.)"})
    EXPECT_TRUE(reader.Text(text)) << text;
  EXPECT_EQ(state.LeePanelWidth, 5000);
  EXPECT_FALSE(form.lblLogo.Visible) << "each panel has its own";

  form.mnuSizeSpecial.Checked = true;
  Draw();
  const DrawingReader slide(surface);
  for (const char* text : {"Perpendicular polarization", "Parallel polarization", "Unpolarized"})
    EXPECT_TRUE(slide.Text(text)) << text;
}

// On a slide the numbers of the second and third panel lay over the panel before, the lowest ones were missing and a
// long title left its panel.
TEST_F(MapFrames, OfSlidesKeepToThemselves) {
  form.mnuSizeSpecial.Checked = true;
  form.mnuFalseColours.Checked = true;
  const auto across = [](Swept quantity, double low, double high, bool geometric) {
    return Sweep{quantity, low, high, 4, geometric};
  };
  for (const Sweep& columns : {across(Swept::Radius, 10, 20, true), across(Swept::SphereAbsorption, 0.001, 0.01, false),
                               across(Swept::SphereAbsorption, 1e-7, 1e-5, false)})
    for (const auto& [low, high] : {std::pair{"137", "145"}, std::pair{"139.2", "139.8"}}) {
      StoreValues({23, 1}, columns, [](int, int, double) { return 1; });
      ShowRange(low, high);
      Draw();
      const DrawingReader reader(surface);
      EXPECT_THAT(reader.Overlaps(), ::testing::IsEmpty());
      const double titleWidth = reader.Text(page.map->across.title)->width;
      for (std::size_t i = 0; i < page.panels.size(); ++i) {
        const GraphBox& box = page.panels[i].box;
        EXPECT_LE(titleWidth, box.Width() + 1);
        const double before = i == 0 ? 0 : page.panels[i - 1].box.right + 15;
        const GraphBox margin{before - 400, box.left - 1, box.top - 400, box.bottom + 100};
        double font = 0;
        bool lowest = false;
        for (const auto& op : reader.All(DrawnOperation::Kind::Text)) {
          if (!margin.Holds(op.points[0].x, op.points[0].y) || op.text.find_first_not_of("0123456789.") != op.text.npos)
            continue;
          EXPECT_GE(op.points[0].x, before) << op.text;
          EXPECT_LT(op.points[0].x + op.width, box.left) << op.text;
          EXPECT_TRUE(font == 0 || font == op.fontSize) << op.text;
          font = op.fontSize;
          lowest = lowest || op.text == low;
        }
        EXPECT_TRUE(lowest) << low << " in panel " << i;
      }
      const DrawnOperation* words = reader.Text("decades");
      ASSERT_TRUE(words) << "what the numbers of the key are";
      EXPECT_GE(words->points[0].x, KeyBox(page.panels[2].box).left);
    }
}

// Every second tick of 5 to 8 um had its number as far as there was room: 5.2, 5.6, 6, 6.8 ...
TEST_F(MapFrames, NumberTicksAtEqualDistances) {
  struct Case {
    Sweep columns;
    std::vector<std::string> numbers;
  };
  for (const Case& c : {Case{{Swept::Radius, 5, 8, 4, true}, {"5", "6", "7", "8"}},
                        Case{{Swept::Radius, 10, 15, 4, true}, {"10", "11", "12", "13", "14", "15"}},
                        Case{{Swept::Wavelength, 400, 700, 4}, {"400", "500", "600", "700"}}}) {
    StoreValues({24, 1}, c.columns, [](int, int, double) { return 1; });
    Draw();
    EXPECT_THAT(DrawingReader(surface).TextsIn({800, 5300, 9900, 10120}), ::testing::ElementsAreArray(c.numbers));
  }
}

TEST_F(MapFrames, CountDecadesOnALongAxisOfRadius) {
  MapFound& found = StoreValues({20, 1}, {Swept::Radius, 1, 1000, 30, true}, [](int, int, double) { return 1; });
  ASSERT_EQ(found.columns, 31);
  Draw();
  const auto numbers = DrawingReader(surface).TextsIn({900, 5300, 9900, 10120});
  EXPECT_THAT(numbers, ::testing::ElementsAre("1", "2", "5", "10", "20", "50", "100", "200", "500", "1000"));
  form.mnuLarge.Checked = false;
  form.mnuSmall.Checked = true;
  state.GraphRight = 6000;
  state.GraphBottom = 6800;
  Draw();
  EXPECT_THAT(DrawingReader(surface).TextsIn({900, 3300, 6900, 7120}),
              ::testing::ElementsAre("1", "10", "100", "1000"));
}

TEST_F(MapFrames, FitOnEverySurfaceInEverySize) {
  DrawLee();
  form.mnuFalseColours.Checked = true;
  form.mnuDataVisible.Checked = true;
  form.mnuMapNormalise.Checked = true;
  form.lblLogo.Caption = "www.lumivex.example";
  state.MapReferenceKind = MapValues::Sum;
  for (const char* size : {"mnuSmall_Click", "mnuMedium_Click", "mnuLarge_Click", "mnuVLarge_Click"})
    for (const bool slide : {false, true})
      for (const auto& [width, height] :
           {std::pair{19200, 15360}, std::pair{16000, 10700}, std::pair{15000, 8000}, std::pair{30000, 14000}}) {
        surface.Resize(width, height);
        Click(size);
        form.mnuSizeSpecial.Checked = slide;
        state.MapReference = 1;
        Draw();
        EXPECT_TRUE(DrawingReader(surface).Text(LineAt(MapLine::Place::CurrentMaximum)));
        const DrawingReader reader(surface);
        const std::string where = std::string(size) + (slide ? " slide " : " ") + std::to_string(width);
        EXPECT_THAT(reader.Overlaps(), ::testing::IsEmpty()) << where;
        EXPECT_THAT(reader.Outside(width, height), ::testing::IsEmpty()) << where;
        for (const PagePanel& panel : page.panels) {
          EXPECT_LT(panel.box.left, panel.box.right) << where;
          EXPECT_LE(panel.box.right, width) << where;
          EXPECT_LE(panel.box.bottom, height) << where;
        }
      }
}

TEST_F(MapFrames, PrintTheSiteLineInEachPanel) {
  form.lblLogo.Caption = "www.lumivex.example";
  struct Case {
    MenuEntry Form1Menus::*place;
    int screen;
    double x, y;
  };
  for (const Case& c :
       {Case{&Form1Menus::mnuLogoPositionTL, 1280, 1100, 3500}, Case{&Form1Menus::mnuLogoPositionBL, 1280, 1100, 9300},
        Case{&Form1Menus::mnuLogoPositionTR, 1280, 2300, 3500},
        Case{&Form1Menus::mnuLogoPositionBR, 1024, 2400, 9300}}) {
    for (const auto place : {&Form1Menus::mnuLogoPositionTL, &Form1Menus::mnuLogoPositionBL,
                             &Form1Menus::mnuLogoPositionTR, &Form1Menus::mnuLogoPositionBR})
      (form.*place).Checked = place == c.place;
    form.mnuLarge.Checked = false;
    form.mnuMedium.Checked = true;
    state.ScreenWidthPx = c.screen;
    DrawLee();
    std::vector<DrawnOperation> logos;
    for (const auto& op : DrawingReader(surface).All(DrawnOperation::Kind::Text))
      if (op.text == form.lblLogo.Caption) logos.push_back(op);
    ASSERT_EQ(logos.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(logos[i].points[0].x, c.x + 5000.0 * static_cast<double>(i), 1e-6) << c.screen;
      EXPECT_NEAR(logos[i].points[0].y, c.y, 1e-6);
      EXPECT_EQ(logos[i].fontSize, 10);
      EXPECT_EQ(logos[i].colour, RGB(100, 100, 100));
    }
  }
  form.mnuHideLogo.Checked = true;
  DrawLee();
  EXPECT_FALSE(DrawingReader(surface).Text(form.lblLogo.Caption));
}

TEST_F(MapFrames, ZoomLikeCurvesWithoutOtherColours) {
  DrawLee();
  const auto cells = page.map->pictures[0].cells;
  const Page zoomed = WithView(page, {{12, 18}, XRange{139, 141}}, ReadLook(session));
  const auto block = CellsIn(zoomed, zoomed.panels[2]);
  ASSERT_TRUE(block);
  EXPECT_NEAR(block->Part().left, 0.5 + 4 * std::log2(1.2), 1e-6);
  EXPECT_NEAR(block->Part().bottom, 161 - 40.5, 1e-6);
  EXPECT_EQ(zoomed.map->pictures[0].cells, cells) << "shared";
  const Page home = WithView(zoomed, HomeOf(zoomed), ReadLook(session));
  EXPECT_EQ(home.panels[1].limits, page.panels[1].limits);
  EXPECT_FALSE(IsZoomed(home));
}

}  // namespace
}  // namespace lumivex
