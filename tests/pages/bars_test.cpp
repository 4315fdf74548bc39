#include "pages/bars/bar_place.h"

#include <gmock/gmock.h>

#include <array>

#include "colour/wavelength_colour.h"
#include "materials/material_fixture.h"
#include "pages/build_page.h"
#include "pages/drawing_reader.h"
#include "pages/page_table.h"
#include "pages/read_out.h"
#include "session/page.h"

namespace lumivex {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using Kind = DrawnOperation::Kind;

class Bars : public MaterialSession {
 protected:
  const Page& Drawn() { return Now().page; }
  const PageBars& Shown() { return *Now().page.bars; }
  double Channel(std::size_t bar, std::size_t c, std::size_t row) { return Shown().light[bar].channels[c][row]; }
  const Table2D& Table() { return State().SimColourTable; }
  std::vector<DrawnOperation> Images(const Page& page) {
    RecordingSurface surface(page.geometry.surfaceWidth, page.geometry.surfaceHeight);
    Paint(page, surface);
    return DrawingReader(surface).All(Kind::Image);
  }
  /// Red, green and blue light in equal parts on drops of a fixed index.
  void Rainbow() {
    Do("click mnuRI_Fixed1\nset cboWave RGB\nset txtRefractReal 1.333\nset txtRefractImag 0\nclick mnuSpectrumFlat\n"
       "set txtRadius 50\nset txtXmin 137\nset txtXmax 145\nset cboStep 0.05\nclick mnuLarge");
    if (Get("mnuInvWavelength") == "true") Do("click mnuInvWavelength");
    Do("click cmdNewPlot");
    ASSERT_TRUE(ScriptedSession::Shown().empty()) << LastText();
  }
  double BrightestOf(std::size_t bar) {
    double most = 0;
    for (std::size_t i = 1; i < Table().rows; ++i)
      for (std::size_t c = 1; c <= 3; ++c) most = std::max(most, Table().At(i, 3 * bar + c));
    return most;
  }
};

// Sums, scale and colours of a bow whose numbers are known, and the places of its columns.
TEST_F(Bars, HaveTheColoursOfTheirSums) {
  Rainbow();
  // The numbers are of wavelengths in double precision; the list has them in single precision, which at this size is
  // seen in the fifth digit of an intensity.
  EXPECT_NEAR(Number("BarScale"), 378793.366, 0.3);
  EXPECT_EQ(Number("BarScale"), std::max(Number("BarMaximumPerp"), Number("BarMaximumPar")));
  constexpr std::size_t at137 = 2741;
  const std::array sums = {25213.72, 32582.90, 27520.17};
  for (std::size_t c = 0; c < sums.size(); ++c) EXPECT_NEAR(Channel(0, c, at137) / sums[c], 1, 1e-4) << c;
  ASSERT_EQ(Table().rows, 162U);
  ASSERT_EQ(Table().columns, 10U);
  const std::array first = {137.0, 58.0, 68.0, 61.0};
  for (std::size_t c = 0; c < first.size(); ++c) EXPECT_EQ(Table().At(1, c), first[c]) << c;
  EXPECT_EQ(Table().At(161, 0), 145);

  const auto images = Images(Drawn());
  ASSERT_EQ(images.size(), 3U);
  for (const auto& image : images) {
    EXPECT_EQ(image.columns, 161);
    EXPECT_NEAR(image.part.left, 0.5, 1e-9) << "the sample stands on the end of the axis";
    EXPECT_NEAR(image.part.right, 160.5, 1e-9);
    EXPECT_NEAR(image.points[0].x, 1000, 1e-9);
    EXPECT_NEAR(image.points[1].x, 15000, 1e-9);
  }
  EXPECT_EQ(images[0].cells[0], RGB(58, 68, 61));
  const GraphBox box = BarBoxes(Drawn())->front();
  const double y = 0.5 * (box.top + box.bottom);
  for (const auto& [x, column] : {std::pair{1000.0, 0U},
                                  {1043.7, 0U},
                                  {1043.8, 1U},
                                  {2610.0, 18U},
                                  {4456.2, 39U},
                                  {4456.3, 40U},
                                  {14956.2, 159U},
                                  {14956.3, 160U},
                                  {15000.0, 160U}}) {
    const auto found = BarColumnAt(Drawn(), x, y);
    ASSERT_TRUE(found) << x;
    EXPECT_EQ(found->row, at137 + column) << x;
  }
  Do("set cboWave 1\nset txtLambda 0.65\nclick cmdNewPlot");
  EXPECT_NEAR(Channel(0, 0, at137), sums[0], 0.01);
}

TEST_F(Bars, OfOneWavelengthHaveItsColour) {
  Do("set txtLambda 0.6\nset txtRadius 2\nset cboStep 1\nset txtXmin 20\nclick cmdNewPlot");
  const ColourTriple triple = colRGB2(0.6);
  EXPECT_EQ(Number("BarScale"), Number("YAutoMax"));
  for (const std::size_t row : {21U, 90U, 181U}) {
    EXPECT_NEAR(Channel(0, 0, row), State().Iperp[row] * triple.r / 255, 1e-12 * State().Iperp[row]);
    EXPECT_NEAR(Channel(1, 1, row), State().Ipar[row] * triple.g / 255, 1e-12 * State().Ipar[row]);
    EXPECT_NEAR(Channel(2, 1, row), State().Iunpol[row] * triple.g / 255, 1e-12 * State().Iunpol[row]);
    EXPECT_EQ(Channel(0, 2, row), 0) << "no blue in orange";
  }
  EXPECT_EQ(BrightestOf(0), 255);
  const auto peak = Shown().painted[0].front();
  EXPECT_NEAR(peak.Green(), TransferCurve(triple.g * Channel(0, 0, 21) / Number("BarScale")), 1);
  const double scale = Number("BarScale");
  Do("click mnuAmplitude");
  EXPECT_EQ(Number("BarScale"), scale) << "bars show light, and not moduli";
  Do("choose cboPol Unpolarised\nclick cmdReplot\nclick mnuAmplitude");
  EXPECT_EQ(Number("BarScale"), scale) << "whatever curves are drawn";
}

TEST_F(Bars, AddUpTheTriplesOfTheirWavelengths) {
  Do("set cboWave RGB\nset txtRadius 4\nset cboStep 1\nclick cmdNewPlot");
  const std::array<std::size_t, 5> rows = {1, 30, 91, 138, 181};
  std::array<std::array<double, 3>, 5> found{}, sum{};
  std::array<double, 5> most{}, strongest{};
  for (std::size_t r = 0; r < rows.size(); ++r)
    for (std::size_t c = 0; c < 3; ++c) found[r][c] = Channel(2, c, rows[r]);
  const auto wavelength = State().WavelengthList;
  const auto weight = State().SpectrumWeightInUse;
  const PageBars bars = Shown();
  const bool freed = Drawn().kind.invWavelength;
  for (std::size_t i = 1; i <= 3; ++i) {
    Do("set cboWave 1\nset txtLambda " + Exact(wavelength[i]) + "\nclick cmdNewPlot");
    if (Drawn().kind.invWavelength != freed) Do("click mnuInvWavelength");
    const ColourTriple triple = colRGB2(double{wavelength[i]});
    const std::array share = {triple.r / 255, triple.g / 255, triple.b / 255};
    for (std::size_t r = 0; r < rows.size(); ++r) {
      const double light = double{weight[i]} * State().Iunpol[rows[r]];
      for (std::size_t c = 0; c < 3; ++c) sum[r][c] += light * share[c];
      if (light > most[r]) most[r] = light, strongest[r] = 1000 * double{wavelength[i]};
    }
  }
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < 3; ++c) EXPECT_NEAR(found[r][c] / sum[r][c], 1, 1e-9) << rows[r] << " " << c;
    EXPECT_EQ(bars.light[2].strongest[rows[r]], strongest[r]) << rows[r];
  }
}

TEST_F(Bars, AreSeenWithTheDiscOfTheSun) {
  Do("set cboWave RGB\nset txtRadius 20\nset cboStep 0.1\nset txtXmin 0\nset txtXmax 20\nclick cmdNewPlot");
  const SharedValues point = Shown().light[0].channels[1];
  Do("click optSun");
  const SharedValues& disc = Shown().light[0].channels[1];
  const double near = std::sqrt(1 - 0.16), far = std::sqrt(1 - 0.64), total = 1 + 2 * (near + far);
  const auto seen = [&](std::size_t j, std::size_t below1, std::size_t below2) {
    return (point[j] + near * (point[j + 1] + point[below1]) + far * (point[j + 2] + point[below2])) / total;
  };
  EXPECT_NEAR(disc[101] / seen(101, 100, 99), 1, 1e-12);
  EXPECT_NEAR(disc[1] / seen(1, 2, 3), 1, 1e-12) << "the disc is seen on both sides of straight on";
  double most = 0;
  for (const std::size_t bar : {0U, 1U})
    for (std::size_t c = 0; c < 3; ++c)
      for (std::size_t j = 1; j <= 201; ++j) most = std::max(most, Channel(bar, c, j));
  EXPECT_EQ(Number("BarScale"), most);
}

TEST_F(Bars, FollowTheView) {
  Rainbow();
  const double whole = Number("BarScale");
  ShowView(Now(), {{140.01, 141.02}});
  ASSERT_EQ(Shown().firstShown, 2801U) << "the column of 140 degrees reaches to 140.025";
  ASSERT_EQ(Shown().lastShown, 2821U);
  EXPECT_NEAR(Shown().part.left, 0.7, 1e-6);
  EXPECT_NEAR(Shown().part.right, 20.9, 1e-6);
  EXPECT_EQ(Table().rows, 22U);
  EXPECT_LT(Number("BarScale"), whole);
  EXPECT_EQ(BrightestOf(0), 255) << "full brightness is that of what is in view";
  ShowView(Now(), {{100, 137.5}});
  EXPECT_NEAR(Shown().covered.xmax, 137.5, 1e-9);
  EXPECT_GT(Shown().covered.xmin, 130) << "nothing was calculated before";
  EXPECT_GT(Images(Drawn())[0].points[0].x, 13000);
  ShowView(Now(), {{20, 30}});
  EXPECT_THAT(Images(Drawn()), IsEmpty());
  EXPECT_FALSE(ReadAt(Drawn(), 5000, BarBoxes(Drawn())->front().top + 10));
  ShowView(Now(), {{140.001, 140.002}});
  EXPECT_EQ(Shown().painted[0].size(), 1U) << "within one column";
  ShowView(Now(), HomeOf(Drawn()));
  EXPECT_EQ(Number("BarScale"), whole);
}

TEST_F(Bars, LieInTheLogarithmOnALogarithmicAxis) {
  Do("set txtXmin 0.5\nset cboStep 0.5\nclick optXLog\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().kind.logX);
  const auto images = Images(Drawn());
  ASSERT_EQ(images.size(), 3U);
  const GraphBox box = BarBoxes(Drawn())->front();
  for (const std::size_t row : {2U, 5U, 21U, 121U}) {
    const double angle = (static_cast<double>(row) - 1) * 0.5;
    const double x = box.left + box.Width() * std::log(angle / 0.5) / std::log(180 / 0.5);
    const auto column = static_cast<std::size_t>((x - box.left) / box.Width() * images[0].columns);
    EXPECT_EQ(images[0].cells[column], Shown().painted[0][row - Shown().firstShown]) << angle;
    EXPECT_EQ(BarColumnAt(Drawn(), x, box.top)->row, row);
  }
}

TEST_F(Bars, AreDrawnAnewFromTheSumsOfTheRun) {
  Rainbow();
  const auto results = State().LastResults;
  std::vector<double> before = Table().cells;
  for (const char* action : {"click mnuGammaNone", "click mnuGammaB", "set cboBright 3", "click mnuFreeze",
                             "click mnuPeakWhite", "choose cboBright 0.5", "click mnuSaturated", "click mnuUndo"}) {
    Do(action);
    EXPECT_NE(Table().cells, before) << action;
    before = Table().cells;
  }
  EXPECT_EQ(State().LastResults, results);
  EXPECT_EQ(Get("cboBright"), "0.5") << "the brightness comes back with the tick that had set it to 1";
  Do("click mnuSaturated");
  EXPECT_EQ(Get("cboBright"), "1");
  for (std::size_t i = 1; i < Table().rows; ++i)
    EXPECT_EQ(std::max({Table().At(i, 1), Table().At(i, 2), Table().At(i, 3)}), 255) << i;
}

// A brightness left from a run of several wavelengths made the bars of one black; violet had a reference of its own.
TEST_F(Bars, OfOneWavelengthAreAsBrightAsItsIntensity) {
  Do("set cboWave RGB\nset cboBright 0\nclick cmdNewPlot\nset cboWave 1\nset txtLambda 0.6\nclick cmdNewPlot");
  EXPECT_EQ(Get("cboBright.Visible"), "false");
  EXPECT_EQ(BrightestOf(0), 255);
  Do("set txtLambda 0.35\nset txtRadius 3\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_EQ(Number("BarScale"), Number("YAutoMax"));
}

// With a second panel the sum was drawn in the colour of one wavelength.
TEST_F(Bars, StandBelowCurvesInTrueColourAlsoWithASecondPanel) {
  Do("click mnuIntPol\nset cboWave 30\nset txtRadius 20\nset cboStep 0.5\nclick cmdNewPlot");
  for (const PageCurve& curve : Drawn().curves) EXPECT_EQ(curve.colours.empty(), Drawn().panels[curve.panel].second);
}

TEST_F(Bars, CanBeNormalised) {
  Rainbow();
  const double scale = Number("BarScale");
  EXPECT_LT(BrightestOf(2), 255);
  Do("click mnuNormalised");
  EXPECT_EQ(BrightestOf(2), 255);
  EXPECT_EQ(BrightestOf(0), 255);
  Do("click mnuSetNormal\nset txtRadius 30\nclick cmdNewPlot");
  EXPECT_EQ(Number("BarScale"), scale) << "later runs keep the scale of the page on which it was set";
  EXPECT_LT(BrightestOf(0), 255);
  RecordingSurface surface(19200, 15360);
  Paint(Drawn(), surface);
  EXPECT_NE(
      DrawingReader(surface).Text("Set normalisation: full brightness at " + std::string(Trim(Significant(scale, 6))) +
                                  "; unpolarised bar normalised by itself"),
      nullptr)
      << surface.Operations().size();
  Do("click mnuInvWavelength");
  EXPECT_NE(Number("BarScale"), scale) << "per square of the wave number is another unit";
  EXPECT_EQ(BrightestOf(0), 255);
  Do("click mnuInvWavelength");
  EXPECT_EQ(Number("BarScale"), scale);
  Do("click mnuRestoreDefaults");
  EXPECT_EQ(Get("mnuNormalised"), "false");
  Do("click mnuSetNormal");
  EXPECT_EQ(Get("mnuSetNormal"), "false");
  EXPECT_EQ(BrightestOf(0), 255);
}

// A sum weighed by the light source was taken for the scale of one wavelength, which nothing weighs.
TEST_F(Bars, ANormalisationHoldsForSumsOrForOneWavelength) {
  Rainbow();
  const double sums = Number("BarScale");
  Do("click mnuSetNormal\nset cboWave 1\nclick cmdNewPlot");
  if (Get("mnuInvWavelength") == "true") Do("click mnuInvWavelength\nclick cmdNewPlot");
  EXPECT_EQ(Number("BarReference"), sums);
  EXPECT_NE(Number("BarScale"), sums);
  EXPECT_EQ(BrightestOf(0), 255);
  RecordingSurface surface(19200, 15360);
  Paint(Drawn(), surface);
  EXPECT_NE(DrawingReader(surface).Text("Set normalisation is of intensities in another unit: own scale"), nullptr);
  Do("click mnuSetNormal\nclick mnuSetNormal");
  const double one = Number("BarReference");
  EXPECT_EQ(Number("BarScale"), one);
  Do("set txtRadius 40\nclick cmdNewPlot");
  EXPECT_EQ(Number("BarScale"), one) << "another run of one wavelength";
  Do("click mnuUndo\nclick mnuUndo\nclick mnuUndo");
  EXPECT_EQ(Number("BarReference"), sums);
  EXPECT_EQ(Number("BarReferenceWeighted"), 1);
}

// Blank paper looked like white light.
TEST_F(Bars, AreHatchedWhereNothingWasCalculated) {
  Rainbow();
  const auto hatch = [&](double from, double to) {
    RecordingSurface surface(Drawn().geometry.surfaceWidth, Drawn().geometry.surfaceHeight);
    Paint(Drawn(), surface);
    int lines = 0;
    const auto boxes = *BarBoxes(Drawn());
    const auto all = DrawingReader(surface).All(Kind::Line);
    for (const GraphBox& box : boxes)
      for (const auto& line : all) {
        const auto &a = line.points[0], &b = line.points[1];
        if (a.x == b.x || a.y == b.y || std::min(a.y, b.y) < box.top - 1 || std::max(a.y, b.y) > box.bottom + 1)
          continue;
        ++lines;
        EXPECT_GE(std::min(a.x, b.x), from - 1);
        EXPECT_LE(std::max(a.x, b.x), to + 1);
        EXPECT_NEAR(std::abs(a.x - b.x), std::abs(a.y - b.y), 1e-6);
      }
    return lines;
  };
  const GraphBox bar = BarBoxes(Drawn())->front();
  EXPECT_EQ(hatch(0, 0), 0);
  Do("set txtXmin 129\nclick cmdReplot");
  const double middle = 0.5 * (bar.left + bar.right);
  EXPECT_GT(hatch(bar.left, middle), 30) << "down to 137 degrees";
  Do("set txtXmin 137\nset txtXmax 153\nclick cmdReplot");
  EXPECT_GT(hatch(middle, bar.right), 30);
  Do("set txtXmin 20\nset txtXmax 30\nclick cmdReplot");
  EXPECT_GT(hatch(bar.left, bar.right), 60);
}

TEST_F(Bars, TheFirstOnesSetANormalisationThatFoundNone) {
  Do("choose cboGraph Phase function\nset cboStep 1\nclick cmdNewPlot\nclick mnuSetNormal");
  EXPECT_FALSE(Drawn().bars);
  EXPECT_EQ(Number("BarReference"), 0);
  Do("choose cboGraph Intensity v. scattering angle\nclick cmdNewPlot");
  const double first = Number("BarScale");
  EXPECT_GT(first, 0);
  Do("set txtRadius 3\nclick cmdNewPlot");
  EXPECT_EQ(Number("BarScale"), first);
}

TEST_F(Bars, TakeNoBrightnessThatIsNoNumber) {
  Rainbow();
  const auto before = Table().cells;
  const auto results = State().LastResults;
  Do("set cboBright much");
  EXPECT_EQ(Get("cboBright.BackColour"), "255");
  EXPECT_EQ(Table().cells, before);
  EXPECT_THAT(ScriptedSession::Shown(), IsEmpty()) << "nobody is interrupted while typing";
  Do("click cmdNewPlot");
  EXPECT_THAT(LastText(), HasSubstr("The red highlighted data entry is incorrect."));
  EXPECT_EQ(State().LastResults, results);
  Do("set cboBright -2");
  EXPECT_NE(Get("cboBright.BackColour"), "255");
  const auto negative = Table().cells;
  EXPECT_NE(negative, before);
  Do("set cboBright 2");
  EXPECT_EQ(Table().cells, negative) << "a brightness counts by its magnitude";
  const auto two = Table().cells;
  Do("set cboBright 1,5");
  EXPECT_NE(Get("cboBright.BackColour"), "255") << "a comma that can only be a decimal mark";
  const auto withComma = Table().cells;
  EXPECT_NE(withComma, two);
  Do("set cboBright 1.5");
  EXPECT_EQ(Table().cells, withComma);
  Do("set cboBright 1,500");
  EXPECT_EQ(Get("cboBright.BackColour"), "255") << "one that may part thousands";
  // On one wavelength it is not on the screen, and stops no run.
  Do("set cboBright much\nset cboWave 1\nclick cmdNewPlot");
  EXPECT_NE(State().LastResults, results);
}

/// Texts that stand on a bar.
std::vector<std::string> TextsOnBars(const RecordingSurface& surface, const Page& page) {
  std::vector<std::string> found;
  const auto boxes = BarBoxes(page);
  if (!boxes) return found;
  for (const auto& text : DrawingReader(surface).All(Kind::Text))
    for (const GraphBox& box : *boxes)
      if (text.points[0].x < box.right && text.points[0].x + text.width > box.left && text.points[0].y < box.bottom &&
          text.points[0].y + text.height > box.top)
        found.push_back(text.text);
  return found;
}

TEST_F(Bars, HaveTheirRoomOnEverySurface) {
  Do("set cboWave RGB\nset cboStep 1\nclick cmdNewPlot\nclick mnuSetNormal");
  for (const bool twoPanels : {false, true}) {
    if (twoPanels) Do("click mnuIntPol");
    for (const char* size : {"mnuSmall", "mnuMedium", "mnuLarge", "mnuVLarge"}) {
      Do(std::string("click ") + size);
      for (const bool slide : {false, true}) {
        for (const double height : {15360.0, 11000.0, 9500.0, 8000.0, 6500.0, 5000.0}) {
          Page page = Drawn();
          page.style.special = slide;
          PageGeometry geometry = page.geometry;
          geometry.surfaceHeight = height;
          page = PlacePage(page, geometry);
          RecordingSurface surface(geometry.surfaceWidth, height);
          Paint(page, surface);
          const std::string where = std::string(size) + " " + std::to_string(height) + (slide ? " slide" : "");
          EXPECT_THAT(TextsOnBars(surface, page), IsEmpty()) << where;
          const auto boxes = BarBoxes(page);
          EXPECT_EQ(boxes.has_value(), !DrawingReader(surface).All(Kind::Image).empty()) << where;
          if (height >= 8000) {
            EXPECT_TRUE(boxes) << where;
            EXPECT_THAT(DrawingReader(surface).Overlaps(), IsEmpty()) << where;
          }
          EXPECT_TRUE(!boxes || boxes->back().bottom < height) << where;
        }
      }
    }
  }
}

TEST_F(Bars, BelongToIntensitiesAgainstAngleAlone) {
  Do("set cboStep 1\nclick cmdNewPlot");
  EXPECT_TRUE(BarBoxes(Drawn()));
  Do("click mnuPolarPlot");
  EXPECT_FALSE(Drawn().bars) << "angles of a polar plot run round a circle";
  EXPECT_EQ(Table().rows, 0U);
  Do("click mnuPolarPlot\nclick mnuAmpPhase");
  EXPECT_TRUE(BarBoxes(Drawn()));
  for (const char* graph : {"Phase function", "Scattering matrix", "CPDF"}) {
    Do(std::string("choose cboGraph ") + graph + "\nclick cmdNewPlot");
    EXPECT_FALSE(Drawn().bars) << graph;
  }
}

TEST_F(Bars, AreReadAndSavedWithTheirSums) {
  Rainbow();
  const GraphBox box = BarBoxes(Drawn())->front();
  const auto reading = ReadAt(Drawn(), 1000, 0.5 * (box.top + box.bottom));
  ASSERT_TRUE(reading);
  EXPECT_FALSE(reading->onCurve);
  EXPECT_EQ(reading->x, 137);
  EXPECT_THAT(reading->text, HasSubstr("137 deg      Perpendicular: red 25215.2   green 32582.6   blue 27520.4"));
  EXPECT_THAT(reading->text, HasSubstr("drawn 58, 68, 61"));
  EXPECT_THAT(reading->text, HasSubstr("most at 510 nm"));
  std::size_t columns = 0;
  for (const auto& column : TableOf(Drawn())) {
    EXPECT_EQ(column.cells.size(), 161U) << column.name;
    if (column.name.find(" bar: ") == std::string::npos) continue;
    const std::size_t bar = columns / 3, c = columns % 3;
    const std::string channel = c == 0 ? "red" : c == 1 ? "green" : "blue";
    EXPECT_EQ(column.name, std::string(BarTitle(bar)) + " bar: " + channel);
    EXPECT_EQ(Val(column.cells[7]), Channel(bar, c, 2748)) << column.name;
    ++columns;
  }
  EXPECT_EQ(columns, 9U);
  Do("set cboWave 1\nclick cmdNewPlot");
  EXPECT_EQ(TableOf(Drawn()).size(), 3U) << "of one wavelength they are the intensities once more";
}

TEST_F(Bars, OfAnOverplotAreThoseOfTheLastRun) {
  Do("set cboStep 1\nclick cmdNewPlot");
  const auto first = Table().cells;
  Do("set txtRadius 3\nclick cmdOverPlot");
  EXPECT_EQ(Shown().run, 1U);
  EXPECT_NE(Table().cells, first);
  EXPECT_EQ(Images(Drawn()).size(), 3U);
}

/// Scattering angle (degrees) of the brightest light of the rainbow of p - 1 reflections: that of Descartes, and how
/// far the first maximum of Airy's integral lies from it at a size.
double BowAngle(int p, double n, double x) {
  const double p2 = p * p, n2 = n * n, degree = 180 / 3.14159265358979;
  const double cosI = std::sqrt((n2 - 1) / (p2 - 1)), i = std::acos(cosI), r = std::asin(std::sin(i) / n);
  const double turned = (p - 1) * 180 + (2 * i - 2 * p * r) * degree;
  const double h = (p2 - 1) * (p2 - 1) / p2 * std::sqrt((p2 - n2) / std::pow(n2 - 1, 3));
  const double shift = 1.0188 * std::cbrt(h / (x * x)) * degree;
  return p == 2 ? turned + shift : 360 - turned - shift;
}

// Both bows of large drops in sunlight: red stands outside in the primary, violet in the secondary, and between them
// the sky is dark.
TEST_F(Bars, ShowTheBowsWhereTheSkyHasThem) {
  struct Peak {
    double angle, light;
  };
  const auto peak = [&](std::size_t c, double low, double high) {
    std::size_t best = static_cast<std::size_t>(low / 0.05);
    for (std::size_t j = best; j <= static_cast<std::size_t>(high / 0.05); ++j)
      if (Channel(2, c, j) > Channel(2, c, best)) best = j;
    return Peak{Shown().angle[best], Channel(2, c, best)};
  };
  Do("set txtRadius 500\nset txtXmin 120\nset txtXmax 145\nset cboStep 0.05\nclick optSun");
  for (const auto& [lambda, channel] : {std::pair{"0.65", 0U}, {"0.42", 2U}}) {
    Do(std::string("set txtLambda ") + lambda + "\nclick cmdNewPlot");
    const double n = Number("SphereRIReal"), x = Number("SizeParameter");
    EXPECT_NEAR(peak(channel, 132, 145).angle, BowAngle(2, n, x), 0.3) << lambda;
    EXPECT_NEAR(peak(channel, 122, 132).angle, BowAngle(3, n, x), 0.3) << lambda;
    EXPECT_NEAR(BowAngle(2, n, x), channel == 0 ? 138.2 : 139.6, 0.2) << "42 and 40.5 degrees from opposite the sun";
    EXPECT_NEAR(BowAngle(3, n, x), channel == 0 ? 128.9 : 126.2, 0.3);
  }
  Do("set cboWave 60\nclick cmdNewPlot");
  const Peak red = peak(0, 132, 145), violet = peak(2, 132, 145), green = peak(1, 132, 145);
  const Peak red2 = peak(0, 122, 132), violet2 = peak(2, 122, 132), green2 = peak(1, 122, 132);
  EXPECT_GT(violet.angle, red.angle + 1) << "red is the outer colour of the primary bow";
  EXPECT_GT(red2.angle, violet2.angle + 1.5) << "and the inner one of the secondary bow";
  EXPECT_LT(red2.light, 0.3 * red.light);
  constexpr std::size_t at134 = 2681;
  EXPECT_LT(Channel(2, 1, at134), 0.03 * green.light) << "Alexander's band";
  EXPECT_LT(Channel(2, 1, at134), 0.2 * green2.light);
}

// The panel of the inputs ends at 2800, and the large numbers of slides reach up to the title.
TEST_F(Bars, TheirAxisHasItsWholeTitleOnSlides) {
  Do("set cboWave 3\nset cboStep 1\nclick cmdNewPlot");
  for (const char* size : {"mnuLarge", "mnuSizeSpecial", "mnuSmall"}) {
    SCOPED_TRACE(size);
    Do(std::string("click ") + size);
    RecordingSurface surface(Drawn().geometry.surfaceWidth, Drawn().geometry.surfaceHeight);
    Paint(Drawn(), surface);
    const DrawingReader read(surface);
    const auto *upper = read.Text("Weighted"), *lower = read.Text("intensity");
    ASSERT_TRUE(upper != nullptr && lower != nullptr);
    EXPECT_GE(upper->points[0].y, 2800 - 20) << "but for the air over its letters";
    EXPECT_GE(lower->points[0].y, upper->points[0].y + upper->height - 1);
    EXPECT_EQ(upper->fontSize, lower->fontSize);
    EXPECT_LE(lower->points[0].y + lower->height, Drawn().panels[0].box.top);
  }
}

}  // namespace
}  // namespace lumivex
