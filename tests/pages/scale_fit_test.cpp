#include "pages/compare/scale_fit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lumivex {
namespace {

constexpr double gap = std::numeric_limits<double>::quiet_NaN();

PageCurve CurveOf(std::vector<double> x, std::vector<double> y) {
  PageCurve curve;
  x.insert(x.begin(), 0);
  y.insert(y.begin(), 0);
  curve.x = std::move(x);
  curve.y = std::move(y);
  return curve;
}

MeasuredData DataOf(std::vector<double> x, std::vector<double> y, std::vector<double> error = {}) {
  MeasuredData data;
  data.points = std::make_shared<const MeasuredPoints>(MeasuredPoints{std::move(x), std::move(y), std::move(error)});
  return data;
}

TEST(CurveBetweenItsPoints, IsStraightAndEndsWithThem) {
  const CurveValues values(CurveOf({10, 20, 40, 50, 60}, {1, 3, 7, gap, 2}));
  EXPECT_EQ(values.At(20), 3);
  EXPECT_EQ(values.At(12.5), 1.5);
  EXPECT_EQ(values.At(30), 5);
  EXPECT_EQ(values.At(60), 2);
  for (const double x : {9.999, 60.001, 45.0, 50.0, 55.0}) EXPECT_TRUE(std::isnan(values.At(x))) << x;
  // Some axes fall, as those of frequencies of wavelengths.
  EXPECT_EQ(CurveValues(CurveOf({40, 20, 10}, {7, 3, 1})).At(30), 5);
}

TEST(CurvesCompared, StandAtThePointsOfTheFirst) {
  const PageCurve first = CurveOf({0, 5, 10, 15, 20, 25}, {4, 6, 8, 10, 12, 14});
  const PageCurve second = CurveOf({2, 8, 12, 20}, {2, 4, 0, 8});
  const auto difference = ComparedValues(first, second, BelowGraph::Difference);
  const auto ratio = ComparedValues(first, second, BelowGraph::Ratio);
  ASSERT_EQ(difference.size(), 7U);
  EXPECT_TRUE(std::isnan(difference[1])) << "before the second begins";
  EXPECT_DOUBLE_EQ(difference[2], 6 - 3);
  EXPECT_DOUBLE_EQ(difference[3], 8 - 2);
  EXPECT_DOUBLE_EQ(difference[4], 10 - 3);
  EXPECT_DOUBLE_EQ(ratio[2], 2);
  EXPECT_DOUBLE_EQ(ratio[5], 1.5);
  EXPECT_TRUE(std::isnan(ratio[6])) << "after it has ended";
  const auto overNothing = ComparedValues(CurveOf({12}, {5}), second, BelowGraph::Ratio);
  EXPECT_TRUE(std::isnan(overNothing[1])) << "nothing over 0";
}

// 100 x 6.1 x 2 + 25 x 12.4 x 4 + 6.25 x 23.2 x 8 = 3620 and 100 x 4 + 25 x 16 + 6.25 x 64 = 1200.
TEST(ScaleOfMeasuredData, IsTheWeightedLeastSquare) {
  const PageCurve curve = CurveOf({0, 10, 20}, {2, 4, 8});
  const ScaleFit fit = FitOf(DataOf({0, 10, 20, 30}, {6.1, 12.4, 23.2, 1}, {0.1, 0.2, 0.4, 0.1}), curve);
  const double f = 3620.0 / 1200;
  EXPECT_TRUE(fit.good);
  EXPECT_DOUBLE_EQ(fit.factor, f);
  EXPECT_DOUBLE_EQ(fit.factorError, 1 / std::sqrt(1200.0));
  EXPECT_EQ(fit.points, 3);
  EXPECT_EQ(fit.without, 1) << "beyond the curve";
  const double r1 = 6.1 - 2 * f, r2 = 12.4 - 4 * f, r3 = 23.2 - 8 * f;
  ASSERT_TRUE(fit.chi);
  EXPECT_NEAR(*fit.chi, (100 * r1 * r1 + 25 * r2 * r2 + 6.25 * r3 * r3) / 2, 1e-12);
  EXPECT_NEAR(fit.rms, std::sqrt((r1 * r1 + r2 * r2 + r3 * r3) / 3) / f, 1e-12);
  EXPECT_EQ(WordsOf(fit, true),
            "f = 3.0167 \u00B1 0.029 (fitted), \u03C7\u00B2 per degree of freedom 4.333, rms of residuals 0.1901, "
            "3 points, 1 without a value of the curve");
}

TEST(ScaleOfMeasuredData, HasEqualWeightsWithoutErrorsAndTakesATypedOne) {
  const PageCurve curve = CurveOf({0, 10, 20}, {2, 4, 8});
  MeasuredData data = DataOf({0, 10, 20}, {6.1, 12.4, 23.2});
  EXPECT_DOUBLE_EQ(FitOf(data, curve).factor, (6.1 * 2 + 12.4 * 4 + 23.2 * 8) / 84);
  EXPECT_FALSE(FitOf(data, curve).chi);
  data.fitted = false;
  data.factor = 2;
  const ScaleFit typed = FitOf(data, curve);
  EXPECT_EQ(typed.factor, 2);
  EXPECT_EQ(typed.factorError, 0);
  EXPECT_NEAR(typed.rms, std::sqrt((1.05 * 1.05 + 2.2 * 2.2 + 3.6 * 3.6) / 3), 1e-12);
}

TEST(ScaleOfMeasuredData, SaysWhereNothingFits) {
  const MeasuredData data = DataOf({100, 110}, {1, 2});
  EXPECT_EQ(WordsOf(FitOf(data, CurveOf({0, 10}, {2, 4})), true), "no point has a value of the curve beside it");
  const ScaleFit dark = FitOf(DataOf({0, 10}, {1, 2}), CurveOf({0, 10}, {0, 0}));
  EXPECT_FALSE(dark.good);
  EXPECT_EQ(dark.factor, 1) << "the points are drawn as they were read";
}

}  // namespace
}  // namespace lumivex
