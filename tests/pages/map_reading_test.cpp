#include "pages/maps/map_reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "pages/curves/curve_steps.h"
#include "pages/map_fixture.h"
#include "pages/maps/map_table.h"

namespace lumivex {
namespace {

class MapReadings : public ::testing::Test, protected MapSession {
 protected:
  void DrawLee() {
    StoreLee([](int p, int column, double angle) { return Channels{angle + column, 0.1 * (p + 1), 1e-7 * angle}; });
    Draw();
  }
};

TEST_F(MapReadings, TellTheNearestCellWithItsChannels) {
  DrawLee();
  const auto reading = ReadAt(page, 6000 + 1010, 9800 - 18.4 * 40);
  ASSERT_TRUE(reading);
  EXPECT_TRUE(reading->onCurve);
  EXPECT_EQ(reading->panel, 1U);
  EXPECT_NEAR(reading->curveX, 11.8921, 1e-4);
  EXPECT_NEAR(reading->curveY, 137.9, 1e-9);
  EXPECT_NEAR(reading->place.x, 7000, 1e-6);
  EXPECT_NEAR(reading->place.y, 9800 - 18 * 40, 1e-6);
  EXPECT_EQ(reading->text,
            "11.91 \u00B5m   137.92 deg      Parallel polarisation: 11.89 \u00B5m   137.9 deg   red 138.9  green 0.2  "
            "blue 1.379E-05   most at 510 nm");
  EXPECT_FALSE(ReadAt(page, 5500, 5000)) << "between the panels";

  StoreEfficiencies([](int p, double n, double x) { return n * x + p; });
  Draw();
  EXPECT_EQ(ReadAt(page, 15000, 3400)->text, "1.5   11      Qabs: 1.5   11   18.5");
}

TEST_F(MapReadings, TellTheSidesAloneWhereNothingWasCalculated) {
  DrawLee();
  Map().done = 1;
  Draw();
  const auto reading = ReadAt(page, 5000, 3400);
  ASSERT_TRUE(reading);
  EXPECT_FALSE(reading->onCurve);
  EXPECT_EQ(reading->text, "20 \u00B5m   145 deg");
}

TEST_F(MapReadings, GoFromColumnToColumnAndFromPictureToPicture) {
  DrawLee();
  const auto start = ReadAt(page, 1000, 9800);
  const auto next = StepAlongCurve(page, *start, 1);
  EXPECT_NEAR(next.curveX, 11.8921, 1e-4);
  EXPECT_EQ(StepAlongCurve(page, *start, -1).curveX, 10) << "stays at the end";
  const auto other = NeighbourCurve(page, next, -1);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->panel, 2U);
  EXPECT_NEAR(other->curveX, 11.8921, 1e-4);
}

/// A CSV of a map as a program reads it: the numbers of each table by its name.
struct ReadTable {
  std::string name;
  std::vector<double> columns, rows;
  std::vector<std::vector<float>> cells;
};
std::vector<ReadTable> ReadBack(const std::string& csv) {
  std::vector<ReadTable> tables;
  std::istringstream lines(csv);
  std::string line;
  while (std::getline(lines, line)) {
    if (line.empty()) continue;
    if (line.starts_with("# ")) {
      tables.push_back({line.substr(2), {}, {}, {}});
      continue;
    }
    std::istringstream cells(line);
    std::string cell;
    std::getline(cells, cell, ',');
    const bool names = tables.back().columns.empty();
    if (!names) {
      tables.back().rows.push_back(std::stod(cell));
      tables.back().cells.emplace_back();
    }
    while (std::getline(cells, cell, ','))
      if (names)
        tables.back().columns.push_back(std::stod(cell));
      else
        tables.back().cells.back().push_back(std::stof(cell));
  }
  return tables;
}

TEST_F(MapReadings, AreExportedATableAChannelThatReadsBackTheSame) {
  DrawLee();
  const auto tables = ReadBack(TableAsCsv(page));
  ASSERT_EQ(tables.size(), 9U);
  EXPECT_EQ(tables[0].name, "Perpendicular polarisation: red");
  EXPECT_EQ(tables[8].name, "Unpolarised: blue");
  for (const auto& table : tables) {
    ASSERT_EQ(table.columns.size(), 5U);
    EXPECT_NEAR(table.columns[1], 11.892071, 1e-6);
    ASSERT_EQ(table.rows.size(), 161U);
    EXPECT_EQ(table.rows.front(), 137);
    EXPECT_EQ(table.rows.back(), 145);
    EXPECT_EQ(table.rows[18], 137.9);
  }
  const MapFound& values = Map();
  for (const int row : {0, 77, 160})
    for (const int column : {0, 4}) {
      const std::size_t cell = values.At(column, row + 5);
      const auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(column);
      EXPECT_EQ(tables[0].cells[r][c], values.panels[0].red[cell]);
      EXPECT_EQ(tables[5].cells[r][c], values.panels[1].blue[cell]);
      EXPECT_FLOAT_EQ(tables[7].cells[r][c], 0.15F) << "the mean";
    }
  EXPECT_TRUE(TableAsText(page).starts_with(
      "Perpendicular polarisation: red\nScattering angle (deg) \\ Radius (\u00B5m)\t10\t"));
  EXPECT_TRUE(TableWithHeader(page).starts_with("# Method:"));

  StoreEfficiencies([](int p, double n, double x) { return n * x + p; });
  Map().done = 2;
  Draw();
  const auto efficiencies = ReadBack(TableAsCsv(page));
  ASSERT_EQ(efficiencies.size(), 3U);
  EXPECT_EQ(efficiencies[2].name, "Qabs");
  EXPECT_EQ(efficiencies[2].columns.size(), 2U) << "columns that were calculated";
  EXPECT_EQ(TableOf(page)[0].name, "Size parameter x \\ Refractive index");
}

}  // namespace
}  // namespace lumivex
