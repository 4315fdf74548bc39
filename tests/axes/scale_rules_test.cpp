#include "axes/scale_rules.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

// log10 of a power of ten rounds to either side of it.
TEST(ScaleRules, ADecadeIsTheExponentOfEveryNumber) {
  for (int p = -300; p <= 300; ++p) {
    const double power = std::pow(10.0, p);
    for (const double m : {1.0, 1.0000001, 1.5, 2.0, 4.9, 9.0, 9.999999})
      ASSERT_EQ(DecadeOf(m * power), p) << m << "e" << p;
    // A neighbour below counts with its decade as the quotients round.
    ASSERT_LE(DecadeOf(std::nextafter(power, 0.0)), p);
    ASSERT_GE(DecadeOf(std::nextafter(power, 0.0)), p - 1);
  }
}

TEST(ScaleRules, ATopStandsAboveItsValueByLessThanItsUnit) {
  struct Step {
    double upTo, unit;  // in decades of the value
  };
  constexpr Step steps[] = {{1.5, 0.1}, {3.5, 0.2}, {7, 0.5}, {10, 1}};
  for (const double decade : {1.0, 10.0, 1000.0})
    for (double m = 1.01; m < 9.995; m += 0.01) {
      double unit = 0;
      const double value = m * decade, top = RoundedTop(value, unit);
      for (const Step& step : steps)
        if (m <= step.upTo - 1e-9) {
          ASSERT_NEAR(unit, step.unit * decade, 1e-9 * decade) << value;
          break;
        } else if (m < step.upTo + 1e-9) {
          break;  // rounding decides at the join
        }
      ASSERT_GT(top, value);
      ASSERT_LE(top, value + unit * (1 + 1e-9));
      ASSERT_NEAR(top / unit, std::round(top / unit), 1e-9) << value;
    }
  // Below one a top is of one digit, or of two where that would leave more than a fifth of the graph empty.
  for (double value = 1e-7; value < 0.99; value *= 1.0317) {
    double unit = 7;
    const double top = RoundedTop(value, unit), decade = std::pow(10.0, DecadeOf(value));
    ASSERT_GT(top, value);
    ASSERT_LE(top / value, 1.2 + 1e-9) << value;
    ASSERT_NEAR(10 * top / decade, std::round(10 * top / decade), 1e-6) << value;
    ASSERT_EQ(unit, 7);
  }
  double unit = 0;
  EXPECT_EQ(RoundedTop(10, unit), 11) << "no unit was left by a call before";
  EXPECT_EQ(RoundedTop(-1, unit), 1);
  EXPECT_EQ(RoundedTop(INFINITY, unit), 1);
}

TEST(ScaleRules, TicksOfAVerticalAxisAreSomeFewAtRoundNumbers) {
  EXPECT_EQ(YTickStep(0, 360), 90);
  EXPECT_EQ(YTickStep(0, 1), 0.1);
  struct Row {
    double bottom, top, step;
  };
  for (const Row& row : {Row{0, 1.5, 0.2}, Row{0, 2, 0.2}, Row{0, 2.1, 0.5}, Row{0, 5, 0.5}, Row{0, 5.1, 1},
                         Row{0, 90, 10}, Row{0, 0.9, 0.05}, Row{0, 0.07, 0.005}, Row{0.0699, 0.07, 1e-5}, Row{-5, 0, 1},
                         Row{-5, -1, 1}, Row{1, 3, 0.5}, Row{0, 360.5, 50}, Row{1, 360, 50}})
    EXPECT_NEAR(YTickStep(row.bottom, row.top), row.step, 1e-9 * row.step) << row.bottom << " to " << row.top;
}

TEST(ScaleRules, TicksOfAHorizontalAxisGoByTheLadder) {
  // Between four and fifteen ticks whatever the range.
  for (double range = 1.3e-4; range < 12000; range *= 1.0731) {
    const double step = LadderStep(range), mantissa = step / std::pow(10.0, DecadeOf(step * 1.0000001));
    EXPECT_TRUE(range / step >= 4 - 1e-9 && range / step <= 15 + 1e-9) << range << ", step " << step;
    EXPECT_LT(std::fabs(mantissa - 1) * std::fabs(mantissa - 2) * std::fabs(mantissa - 5), 1e-6) << step;
    // A tick is not rounded away.
    const double tick = 3 * step;
    EXPECT_NEAR(RoundTo(tick, TickDecimals(range, range, step)), tick, 1e-9 * range) << range;
  }
  EXPECT_EQ(LadderStep(20000), 2000);
  EXPECT_EQ(LadderStep(12000), 1000);
  EXPECT_DOUBLE_EQ(LadderStep(1e-4), 1e-5);
  EXPECT_EQ(LadderStep(180), 20);
  EXPECT_EQ(TickDecimals(180, 180, 20), 1);
  EXPECT_EQ(TickDecimals(0.01, 5, 0.002), 3);
  EXPECT_EQ(TickDecimals(0.009, 5, 0.001), 5);
  EXPECT_EQ(TickDecimals(9e-6, 5, 1e-6), 7);
  EXPECT_TRUE(IsOdd(3) && IsOdd(-1) && !IsOdd(0) && !IsOdd(4));
}

TEST(ScaleRules, LogarithmicTicksLieWithinTheLimits) {
  for (const double low : {1e-9, 0.5, 1.0, 2.0, 10.0})
    for (const double high : {20.0, 99.9, 100.0, 100.5, 1e7}) {
      const DecadeRange decades = DecadesBetween(low, high);
      for (int p = decades.first; p <= decades.last; ++p) {
        EXPECT_GE(std::pow(10.0, p), low * 0.9999) << low << " to " << high;
        EXPECT_LE(std::pow(10.0, p), high * 1.003) << low << " to " << high;
      }
      EXPECT_LT(std::pow(10.0, decades.first - 1), low);
      EXPECT_GT(std::pow(10.0, decades.last + 1), high);
    }
  for (const auto& [low, high] : {std::pair{0.0, 1.0}, {-1.0, 1.0}, {2.0, 2.0}, {3.0, 2.0}})
    EXPECT_LT(DecadesBetween(low, high).last, DecadesBetween(low, high).first) << low << " to " << high;
  EXPECT_NEAR(LogOfRatio(1e300, 1e-300), 600 * std::log(10.0), 1e-9);
  EXPECT_NEAR(LogOfRatio(3, 2), std::log(1.5), 1e-15);
}

}  // namespace
}  // namespace lumivex
