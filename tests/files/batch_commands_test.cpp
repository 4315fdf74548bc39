#include "files/batch/batch_commands.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace lumivex {
namespace {

using Kind = BatchCommand::Kind;

std::vector<BatchCommand> CommandsOf(const std::string& text) {
  std::istringstream stream("Lumivex 4100 batch file\n" + text);
  BatchCommands commands(stream);
  EXPECT_EQ(commands.Version(), 4100);
  std::vector<BatchCommand> all;
  do all.push_back(commands.Next());
  while (all.back().kind == Kind::Keyword);
  return all;
}

TEST(BatchCommands, LinesAreReadWhateverEndsThemAndEmptyOnesArePassedOver) {
  for (const std::string end : {"\n", "\r\n", "\r"}) {
    std::string text;
    for (const char* line :
         {"\xEF\xBB\xBFLumivex 3403 batch file", "", "Radius", "", "  ", "0.5 ", "run", "Stop", "run"})
      text += line + end;
    std::istringstream stream(text);
    BatchCommands commands(stream);
    EXPECT_EQ(commands.Version(), 3403);
    const BatchCommand radius = commands.Next(), run = commands.Next();
    ASSERT_EQ(radius.kind, Kind::Keyword);
    EXPECT_EQ(radius.keyword->text, "Radius");
    EXPECT_EQ(radius.number, 0.5);
    ASSERT_EQ(run.kind, Kind::Keyword);
    EXPECT_EQ(run.keyword->action, BatchAction::Run);
    EXPECT_EQ(commands.Next().kind, Kind::End);
  }
  EXPECT_EQ(CommandsOf("run").back().kind, Kind::End) << "the end of the file ends the commands";
}

TEST(BatchCommands, OnlyTheSpellingsOfTheTableAreAccepted) {
  for (const char* line : {"mie", "RUN", "Run", "Xmin", "rimedium", "disperse", "n", "sd", "STOP", "FileNames",
                           "Phase function", "Lee diagram: radius", "\x01\xFF", "Radius 5"}) {
    const auto commands = CommandsOf(std::string(line) + "\n5\n");
    ASSERT_EQ(commands.size(), 1U) << line;
    EXPECT_EQ(commands[0].kind, Kind::Unknown) << line;
    EXPECT_EQ(commands[0].line, line);
  }
  for (const auto& keyword : BatchKeywords()) {
    const std::string further = keyword.action == BatchAction::Step ? "\nRadius\n1 2 1\n" : "\n1\n";
    EXPECT_NE(CommandsOf(std::string(keyword.text) + further)[0].kind, Kind::Unknown) << keyword.text;
  }
}

TEST(BatchCommands, AValueIsOneFiniteNumber) {
  struct Case {
    const char* lines;
    const char* quoted;
  };
  for (const Case c :
       {Case{"Radius\nten\n", "ten"}, Case{"SD\nnan\n", "nan"}, Case{"xmin\n1e999\n", "1e999"},
        Case{"Radius\nrun\n", "run"}, Case{"P\n1 2\n", "1 2"}, Case{"Wavelength\n", "Wavelength"},
        Case{"Step\nxmin\n1 2 1\n", "xmin"}, Case{"Step\nRadius\n1 2\n", "1 2"}, Case{"Step\nRadius\n1 2 0\n", "1 2 0"},
        Case{"Step\nRadius\n1 2 nan\n", "1 2 nan"}, Case{"Step\nRadius\n1 2 1e-400\n", "1 2 1e-400"},
        Case{"Step\nRadius\n1 2 3 4\n", "1 2 3 4"}, Case{"Step\n", "Step"}}) {
    const auto commands = CommandsOf(c.lines);
    EXPECT_EQ(commands[0].kind, Kind::Unknown) << c.lines;
    EXPECT_EQ(commands[0].line, c.quoted) << c.lines;
  }
}

TEST(BatchCommands, StepsEndHalfAStepBeyondTheLastValue) {
  struct Case {
    const char* line;
    double count;
    float last;
  };
  for (const Case c : {Case{"1 2 0.1", 11, 2.0F}, Case{"1, 2, 0.1", 11, 2.0F}, Case{"1\t2 ,0.3", 4, 1.9F},
                       Case{"1 2 0.4", 4, 2.2F}, Case{"0.4 0.7 0.001", 301, 0.7F}, Case{"5 1 -1", 5, 1.0F},
                       Case{"3 3 1", 1, 3.0F}, Case{"0 1e6 1", 1000001, 1e6F}}) {
    const auto steps = ReadBatchSteps(c.line);
    ASSERT_TRUE(steps) << c.line;
    EXPECT_EQ(steps->Count(), c.count) << c.line;
    EXPECT_EQ(steps->At(c.count - 1), c.last) << c.line;
  }
  // No error adds up: each value is the one that a user would type.
  EXPECT_EQ(ReadBatchSteps("0.4 0.7 0.001")->At(123), 0.523F);
}

TEST(BatchCommands, AHugeLineIsReadInBoundedMemoryAndIsNoCommand) {
  std::istringstream zeros(std::string(10'000'000, '\0') + "\nrun\n");
  BatchCommands commands(zeros);
  EXPECT_EQ(commands.Version(), 0);
  EXPECT_FALSE(commands.IsList());
  const auto bad = CommandsOf(std::string(10'000'000, 'x'));
  EXPECT_EQ(bad[0].kind, Kind::Unknown);
  EXPECT_LT(bad[0].line.size(), 100'000U);
}

TEST(BatchCommands, OutputsAndEntriesOfAListStandBesideIt) {
  EXPECT_EQ(BatchOutputOf("a/job.min"), "a/job.mut");
  EXPECT_EQ(BatchOutputOf("job.MIN"), std::nullopt);
  EXPECT_EQ(BatchOutputOf("min"), std::nullopt);
  EXPECT_EQ(BatchEntryPath("/lists/all.min", "one.min"), "/lists/one.min");
  EXPECT_EQ(BatchEntryPath("all.min", "one.min"), "one.min");
  EXPECT_EQ(BatchEntryPath("/lists/all.min", "/else/one.min"), "/else/one.min");
}

}  // namespace
}  // namespace lumivex
