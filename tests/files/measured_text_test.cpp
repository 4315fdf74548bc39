#include "files/measured/measured_text.h"

#include <gtest/gtest.h>

namespace lumivex {
namespace {

using Numbers = std::vector<double>;

struct TextCase {
  const char* text;
  const char* why;
};

TEST(MeasuredText, IsReadHoweverItsColumnsAreParted) {
  const TextCase cases[] = {
      {"angle,value\n10,0.5\n20,1.5\n", "commas under a header"},
      {"\xEF\xBB\xBFWinkel;Wert\r\n10;0,5\r\n20;1,5\r\n", "semicolons, decimal commas, a mark of the encoding"},
      {"# made by hand\n10\t0,5\n\n20\t1,5", "tabs, a comment, an empty line, no end of the last one"},
      {"  10   0.5\n  20   1.5  \n", "blanks"},
      {"10 0.5\r20 1.5\r", "carriage returns alone"},
      {"\"angle, in degrees\",\"value\"\n\"10\",\"0.5\"\n20,1.5,\n", "quotes, and a separator at the end of a line"},
      {"20,1.5\n10,5e-1\n", "falling, with an exponent"},
  };
  for (const TextCase& each : cases) {
    const ColumnText text = ReadColumns(each.text);
    ASSERT_EQ(text.failure, "") << each.why;
    const ReadPoints read = PointsFrom(text, 0, 1, -1);
    EXPECT_EQ(read.faults.size(), 0U) << each.why;
    EXPECT_EQ(read.points->x, (Numbers{10, 20})) << each.why;
    EXPECT_EQ(read.points->y, (Numbers{0.5, 1.5})) << each.why;
    EXPECT_TRUE(read.points->error.empty());
  }
}

TEST(MeasuredText, TellsDamagedLinesAndTakesTheOthers) {
  const ColumnText text = ReadColumns(
      "# angle, intensity, "
      "error\nangle,I,sd\n10,1,0.1\n20,abc,0.1\n30\n40,4,0\n50,5,0.5\n60,6,-1\n70,nan,1\n80,8,0.8\n");
  ASSERT_EQ(text.failure, "");
  EXPECT_EQ(text.names, (std::vector<std::string>{"angle", "I", "sd"}));
  EXPECT_EQ(text.firstLines.size(), 5U);
  const ReadPoints read = PointsFrom(text, 0, 1, 2);
  EXPECT_EQ(read.points->x, (Numbers{10, 50, 80}));
  EXPECT_EQ(read.points->error, (Numbers{0.1, 0.5, 0.8}));
  EXPECT_EQ(read.faults,
            (std::vector<std::string>{"line 4: \"abc\" in column 2 is no number", "line 5: column 2 is empty",
                                      "line 6: an error has to be above 0", "line 8: an error has to be above 0",
                                      "line 9: \"nan\" in column 2 is no number"}));
  // A comma is no decimal mark where it parts columns, and none where blanks do.
  EXPECT_EQ(PointsFrom(ReadColumns("1 2\n3 4\n5 6\n7 8\n9 10\n11 1,5\n"), 0, 1, -1).faults.size(), 1U);
}

TEST(MeasuredText, RefusesWhatHoldsNoColumns) {
  const std::string wide(2 * 1001, ',');
  const TextCase cases[] = {
      {"", "There is no line with data in it."},
      {"# only\n% comments\n\n", "There is no line with data in it."},
      {"words\nand words\n", "There is no line with a number in it."},
      {"1\n2\n3\n", "There is only one column: a horizontal axis and values are needed."},
      {wide.c_str(), "Line 1 has more than 1000 columns."},
  };
  for (const TextCase& each : cases) EXPECT_EQ(ReadColumns(each.text).failure, each.why) << each.text;
  EXPECT_EQ(ReadColumns(std::string_view("1,2\0\n", 5)).failure, "It is no text.");
  EXPECT_EQ(ReadColumns(std::string(64'000'001, '1')).failure, "It is longer than 64 MB.");
}

}  // namespace
}  // namespace lumivex
