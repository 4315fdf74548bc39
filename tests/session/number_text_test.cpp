#include "record/number_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumivex {
namespace {

TEST(NumberText, ValTakesTheNumberThatATextBeginsWith) {
  struct Case {
    const char* text;
    double value;
  };
  for (const auto& c : {Case{"", 0}, Case{"abc", 0}, Case{"12abc", 12}, Case{"  -1.5e3 um", -1500}, Case{"+.5", 0.5},
                        Case{"1,25", 1.25}, Case{"-,5e1", -5}, Case{"1,250", 1}, Case{"1,2,3", 1}, Case{"1,5 um", 1},
                        Case{"1e", 1}, Case{"1e+2", 100}, Case{"2d3", 2000}, Case{"1 000", 1000}, Case{"1.2.3", 1.2},
                        Case{"-", 0}, Case{"nan", 0}, Case{"inf", 0}, Case{"1e-999", 0}})
    EXPECT_DOUBLE_EQ(Val(c.text), c.value) << '"' << c.text << '"';
  EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("-1e999"), -std::numeric_limits<double>::max());
}

// A long row of zeros counted as the largest number.
TEST(NumberText, WhatIsTooSmallForDoubleIsZeroHoweverItIsWritten) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {"0." + zeros + "1", "-." + zeros + "5", "1" + zeros + "e-900", std::string("1E-999"), "0." + zeros + "1e+2"}) {
    EXPECT_EQ(Val(text), 0) << text;
    EXPECT_TRUE(IsNumber(text)) << text;
  }
  EXPECT_EQ(Val("0." + zeros + "1e+401"), 1);
  for (const std::string& text : {"1" + zeros, "1" + zeros + "e-20", "0." + zeros + "1e+900"}) {
    EXPECT_EQ(Val(text), std::numeric_limits<double>::max()) << text;
    EXPECT_FALSE(IsNumber(text)) << text;
  }
}

TEST(NumberText, IsNumberRefusesWhatValWouldGuessAt) {
  for (const char* good : {"0", " 1.5 ", "+2", "-3e-4", "5.", "1,5", "0,6500", "2,"})
    EXPECT_TRUE(IsNumber(good)) << good;
  for (const char* bad :
       {"", " ", "1,500", "1.5,2", "1,2,3", ",", "1e", "abc", "12abc", "nan", "inf", "1e999", "--1", "0x10"})
    EXPECT_FALSE(IsNumber(bad)) << bad;
}

TEST(NumberText, StrLeavesRoomForTheSignAndNoZeroBeforeThePoint) {
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(30), " 30");
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.25), "-.25");
  EXPECT_EQ(Str(0.1 + 0.2), " .3");
  EXPECT_EQ(Str(1.5e-7), " 1.5E-07");
  EXPECT_EQ(Str(1e15), " 1E+15");
}

TEST(NumberText, FormatFollowsThePattern) {
  EXPECT_EQ(Format(12345.678, "Scientific"), "1.23E+04");
  EXPECT_EQ(Format(0, "scientific"), "0.00E+00");
  EXPECT_EQ(Format(1e-120, "Scientific"), "1.00E-120");
  EXPECT_EQ(Format(96.664389, "#,##0.######"), "96.664389");
  EXPECT_EQ(Format(1234567.5, "#,##0.####"), "1,234,567.5");
  EXPECT_EQ(Format(180, "###,##0.#######"), "180");
  EXPECT_EQ(Format(0.065, "#0.##"), "0.07");
  EXPECT_EQ(Format(-0.001, "#0.##"), "0");
  EXPECT_EQ(Format(2, "0.00"), "2.00");
}

TEST(NumberText, WholeNumbersTieToEvenAndIntFloors) {
  EXPECT_EQ(ToWhole(0.5), 0);
  EXPECT_EQ(ToWhole(1.5), 2);
  EXPECT_EQ(ToWhole(2.5), 2);
  EXPECT_EQ(ToWhole(-1.5), -2);
  EXPECT_EQ(ToWhole(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(ToWhole(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(RoundDecimals(-2.5, 0), -2);
  EXPECT_EQ(RoundDecimals(1.33257039999, 7), 1.3325704);
}

TEST(NumberText, SignificantDigitsStayReadable) {
  EXPECT_EQ(Significant(1.993694, 6), "1.99369");
  EXPECT_EQ(Significant(0.5, 6), "0.5");
  EXPECT_EQ(Significant(4.5e-6, 6), "4.5E-06");
  EXPECT_EQ(Significant(-1234567, 3), "-1.23E+06");
  EXPECT_EQ(Significant(123456, 6), "123456");
}

}  // namespace
}  // namespace lumivex
