// A distribution of sizes folded into a map of single sizes.

#include "runs/fold_sizes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "runs/map_sums.h"
#include "runs/run_fixture.h"

namespace lumivex {
namespace {

/// Radii from 4 to 9 um.
RunRequest Lee(int steps, int wavelengths) {
  return AngleMapRequest({20, 1}, SweepOf(Swept::Radius, 4, 9, steps, true), wavelengths);
}

const Sweep& RadiiOf(const RunRequest& request) {
  return std::get<AngleMapRun>(request.run).columns;
}

// Columns as close as the ripple needs: the fold is then the mean that a cloud is calculated as.
TEST(FoldSizes, AColumnIsTheCloudAboutItsRadius) {
  for (const int wavelengths : {1, 3}) {
    RunRequest request = Lee(1200, wavelengths);
    // Without resonances, which are narrower than any columns.
    request.particle.sphere = FixedIndex{1.33, 0.01};
    const RunEnd end = RunSilently(request);
    const MapFound& single = *end.results.Find<MapFound>();
    const FoldedMap folded = FoldSizes(single, RadiiOf(request), LogNormal(0.05));
    ASSERT_EQ(folded.failure, SizeFailure::None);
    constexpr int middle = 600;  // 6 um
    RunRequest direct = request;
    direct.sizes = LogNormal(0.05);
    std::get<AngleMapRun>(direct.run).columns = SweepOf(Swept::Radius, 6, 9, 1, true);
    const RunEnd cloud = RunSilently(direct);
    const MapFound& expected = *cloud.results.Find<MapFound>();
    const auto list = wavelengths > 1 ? &MapPanel::green : &MapPanel::value;
    for (std::size_t panel = 0; panel < 2; ++panel) {
      double greatest = 0;
      for (int row = 0; row < single.rows; ++row)
        greatest = std::max(greatest, double{(expected.panels[panel].*list)[expected.At(0, row)]});
      for (int row = 0; row < single.rows; ++row) {
        const double is = double{(folded.found.panels[panel].*list)[single.At(middle, row)]};
        const double should = double{(expected.panels[panel].*list)[expected.At(0, row)]};
        EXPECT_NEAR(is, should, 0.02 * greatest) << "panel " << panel << " row " << row;
      }
    }
  }
}

TEST(FoldSizes, OneSizeChangesNothing) {
  const RunRequest request = Lee(5, 3);
  const RunEnd end = RunSilently(request);
  const MapFound& single = *end.results.Find<MapFound>();
  const FoldedMap folded = FoldSizes(single, RadiiOf(request), LogNormal(1e-9));
  EXPECT_EQ(folded.found.strongest, single.strongest);
  for (std::size_t i = 0; i < single.panels[0].red.size(); ++i)
    EXPECT_NEAR(folded.found.panels[0].red[i], single.panels[0].red[i], 1e-5 * std::abs(single.panels[0].red[i]));
}

// Half of the sizes about the first and the last radius lie beyond them, and more where columns are missing.
TEST(FoldSizes, SizesBeyondTheColumnsAreLeftOutAndTold) {
  const RunRequest request = Lee(40, 1);
  const RunEnd end = RunSilently(request);
  MapFound single = *end.results.Find<MapFound>();
  const double share = FoldSizes(single, RadiiOf(request), LogNormal(0.1)).share;
  EXPECT_GT(share, 0.03);
  EXPECT_LT(share, 0.3);
  for (auto& value : single.panels[0].value) value = 1;
  const FoldedMap folded = FoldSizes(single, RadiiOf(request), LogNormal(0.1));
  for (const float value : folded.found.panels[0].value) EXPECT_NEAR(value, 1, 1e-6) << "the others count for them";
  single.done = 10;
  EXPECT_GT(FoldSizes(single, RadiiOf(request), LogNormal(0.1)).share, share);
  single.done = 1;
  EXPECT_GT(FoldSizes(single, RadiiOf(request), LogNormal(0.1)).share, 0.7);
  // None of these sizes has the radius of the column: it was not calculated, and is not dark.
  const FoldedMap none = FoldSizes(single, RadiiOf(request), NormalSizes{{0, 1, -1}, 0.05, false});
  EXPECT_EQ(none.share, 1);
  for (int row = 0; row < single.rows; ++row) EXPECT_TRUE(std::isnan(none.found.panels[0].value[single.At(0, row)]));
  single.done = 0;
  EXPECT_EQ(FoldSizes(single, RadiiOf(request), LogNormal(0.1)).share, 0);
  single.done = 41;
  EXPECT_EQ(FoldSizes(single, RadiiOf(request), NormalSizes{{0, 1, -1}, 1.5, false}).failure,
            SizeFailure::NegativeRadius);
}

// Radii of 10, 20 and 40 um, and sizes half a step or a whole one above and below each, by hand.
TEST(FoldSizes, SizesBetweenTwoColumnsAreSharedByThem) {
  const Sweep radii{Swept::Radius, 10, 40, 2, true};
  MapFound map = EmptyMap(3, 1, 1, false);
  map.done = 3;
  map.panels[0].value = {1, 10, 100};
  const auto folded = [&](double factor) { return FoldSizes(map, radii, NormalSizes{{0, 1, -1}, factor - 1, true}); };
  const FoldedMap whole = folded(2);
  EXPECT_NEAR(whole.found.panels[0].value[0], 10, 1e-4) << "10 um: only 20 um is there";
  EXPECT_NEAR(whole.found.panels[0].value[1], (1 + 100) / 2.0, 1e-4);
  EXPECT_NEAR(whole.found.panels[0].value[2], 10, 1e-4);
  EXPECT_NEAR(whole.share, 1.0 / 3, 1e-6);
  const FoldedMap half = folded(std::sqrt(2));
  EXPECT_NEAR(half.found.panels[0].value[0], (1 + 10) / 2.0, 1e-4);
  EXPECT_NEAR(half.found.panels[0].value[1], (1 + 2 * 10 + 100) / 4.0, 1e-4);
  EXPECT_NEAR(half.found.panels[0].value[2], (10 + 100) / 2.0, 1e-4);
  EXPECT_NEAR(half.share, 1.0 / 3, 1e-6);
  map.done = 2;
  const FoldedMap stopped = folded(2);
  EXPECT_NEAR(stopped.found.panels[0].value[1], 1, 1e-6) << "40 um is not calculated";
  EXPECT_NEAR(stopped.share, 0.5, 1e-6);
}

}  // namespace
}  // namespace lumivex
