/// What scripts print for other programs.

#include <gtest/gtest.h>

#include <sstream>

#include "scripts/script_printer.h"
#include "scripts/script_runner.h"

namespace lumivex {
namespace {

TEST(JsonLines, ValuesAreNumbersWhereOtherProgramsReadThemAsSuch) {
  struct Case {
    const char *text, *json;
  };
  for (const Case& c : {Case{"1.33", "1.33"},
                        {"-2.5e-07", "-2.5e-07"},
                        {"0", "0"},
                        {"true", "true"},
                        {"nan", "null"},
                        {"-inf", "null"},
                        {"", "\"\""},
                        {".5", "\".5\""},
                        {"007", "\"007\""},
                        {"+1", "\"+1\""},
                        {"1.", "\"1.\""},
                        {"1e", "\"1e\""},
                        {"0x10", "\"0x10\""},
                        {"Automatic", "\"Automatic\""}})
    EXPECT_EQ(JsonValue(c.text), c.json) << c.text;
}

TEST(JsonLines, TextsOfAnyBytesAreStrings) {
  EXPECT_EQ(JsonString("a \"b\" \\ c"), "\"a \\\"b\\\" \\\\ c\"");
  EXPECT_EQ(JsonString("two\nlines\x7F"), "\"two\\u000alines\\u007f\"");
  EXPECT_EQ(JsonString("10 \u00B5m"), "\"10 \u00B5m\"");
  EXPECT_EQ(JsonString("10 \xB5m \xC3"), "\"10 \\ufffdm \\ufffd\"");
}

TEST(JsonLines, EachCommandThatPrintsIsAnObjectWithItsLine) {
  std::ostringstream output, errors;
  ScriptRunner runner(output, errors);
  runner.PrintJson();
  runner.Start();
  std::istringstream script(
      "# A comment\n"
      "set txtXmin 30\nset txtXmax 30.2\nset txtRadius 1e-3\nclick cmdNewPlot\n"
      "get txtXmin\ntable\nread 0 0\nmessages\nget Nothing\nget txtXmin");
  EXPECT_EQ(runner.Run(script), ScriptRunner::scriptError);
  std::istringstream printed(output.str());
  std::string line;
  const auto expect = [&](const std::string& begin) {
    ASSERT_TRUE(std::getline(printed, line)) << begin;
    EXPECT_EQ(line.substr(0, begin.size()), begin);
    EXPECT_EQ(line.back(), '}');
  };
  expect("{\"line\":6,\"command\":\"get\",\"name\":\"txtXmin\",\"value\":30}");
  expect(
      "{\"line\":7,\"command\":\"table\",\"columns\":[\"x\",\"perpendicular\",\"parallel\",\"unpolarised\",\"extra1\","
      "\"extra2\",\"extra3\"],\"rows\":[[30,");
  expect("{\"line\":8,\"command\":\"read\",\"lines\":[\"nothing\"]}");
  expect("{\"line\":9,\"command\":\"messages\",\"messages\":[");
  expect("{\"line\":10,\"command\":\"get\",\"error\":\"there is nothing named Nothing\"}");
  EXPECT_FALSE(std::getline(printed, line)) << "the script ends at its fault";
}

TEST(JsonLines, TablesOfAMapAreObjectsOfTheirOwn) {
  std::ostringstream output;
  ScriptPrinter printer(output);
  printer.UseJson();
  printer.Begin(1, "table");
  printer.Table("# Perpendicular\nx,\"a,\"\"b\"\"\"\n1,nan\n# Parallel\nx,a\n2,\n");
  EXPECT_EQ(output.str(),
            "{\"line\":1,\"command\":\"table\",\"name\":\"Perpendicular\",\"columns\":[\"x\",\"a,\\\"b\\\"\"],\"rows\":"
            "[[1,null]]}\n"
            "{\"line\":1,\"command\":\"table\",\"name\":\"Parallel\",\"columns\":[\"x\",\"a\"],\"rows\":[[2,\"\"]]}\n");
}

}  // namespace
}  // namespace lumivex
