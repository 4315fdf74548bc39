#include "pages/page_table.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "session/session_fixture.h"

namespace lumivex {
namespace {

using testing::HasSubstr;
using testing::Not;

class PageTables : public ScriptedSession {
 protected:
  const Page& Drawn() { return runner.Current().page; }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& column : TableOf(Drawn())) names.push_back(column.name);
    return names;
  }
  /// How many columns are the axis of others.
  std::ptrdiff_t Axes(const std::string& title) {
    return std::ranges::count_if(Names(), [&](const std::string& name) { return name.starts_with(title); });
  }
};

// A column of x for each set of points, and none twice: as many rows alone do not make two runs share one.
TEST_F(PageTables, RunsShareAColumnWhereTheirPointsAreTheSame) {
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 20\nclick cmdNewPlot");
  const auto alone = TableOf(Drawn());
  ASSERT_EQ(Axes("Radius"), 1);
  Do("set txtRefractReal 1.5\nclick cmdOverPlot");
  EXPECT_EQ(Axes("Radius"), 1);
  const auto shared = TableOf(Drawn());
  EXPECT_EQ(shared.size(), 2 * alone.size() - 1);
  EXPECT_EQ(shared[0].cells, alone[0].cells);
  Do("set txtXmin 0.02\nclick cmdOverPlot");
  EXPECT_EQ(Axes("Radius"), 2);
  const auto table = TableOf(Drawn());
  const auto second =
      static_cast<std::size_t>(std::ranges::find(table, table[0].name + " (2)", &TableColumn::name) - table.begin());
  ASSERT_EQ(second, shared.size());
  EXPECT_EQ(table[second].cells.size(), table[0].cells.size());
  EXPECT_EQ(table[0].cells[0], "0.01");
  EXPECT_EQ(table[second].cells[0], "0.02");
  EXPECT_EQ(table.size(), second + alone.size());
  for (const auto& column : table) EXPECT_EQ(column.cells.size(), table[0].cells.size()) << column.name;
  // Fewer points: what is beyond their end stays empty.
  Do("set cboStep 10\nclick cmdOverPlot");
  EXPECT_EQ(Axes("Radius"), 3);
  const std::string csv = TableAsCsv(Drawn());
  EXPECT_THAT(csv, HasSubstr(",,,\n"));
  EXPECT_THAT(csv.substr(0, csv.find('\n', csv.find('\n') + 1)), Not(HasSubstr(",,")));
}

TEST_F(PageTables, HeadersTellWhatAllRunsShareAndWhatEachHasOfItsOwn) {
  Do("set cboStep 10\nset txtRadius 2\nclick cmdNewPlot");
  const auto one = HeaderInShort(Drawn());
  EXPECT_EQ(one, Drawn().runs[0].parameters);
  EXPECT_THAT(TableWithHeader(Drawn()), testing::StartsWith("# " + one[0] + "\n# " + one[1] + "\n"));
  Do("set txtRadius 3\nclick cmdOverPlot");
  const auto two = HeaderInShort(Drawn());
  ASSERT_EQ(Drawn().runs.size(), 2U);
  ASSERT_GE(two.size(), 2U);
  const std::string first = two[two.size() - 2], second = two.back();
  EXPECT_THAT(first, testing::StartsWith("Run 1: "));
  EXPECT_THAT(second, testing::StartsWith("Run 2: "));
  EXPECT_NE(first.substr(6), second.substr(6));
  for (auto line = two.begin(); line != two.end() - 2; ++line) EXPECT_THAT(one, testing::Contains(*line));
  EXPECT_THAT(TableWithHeader(Drawn()), HasSubstr("\n# Run 2\n"));
}

}  // namespace
}  // namespace lumivex
