#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "files/batch_fixture.h"
#include "files/open_file.h"
#include "session/info.h"

namespace lumivex {
namespace {

namespace fs = std::filesystem;

class ReadBatch : public BatchSession {};

constexpr const char* quick = "xmin\n0\nxmax\n2\nxstep\n1\n";

TEST_F(ReadBatch, CommandsSetTheInputsThatTheyName) {
  EXPECT_EQ(
      Run("Debye\nIntensity v. wavelength\nDiameter\n24\nP\n3\nWavelength\n0.5\nxmin\n500\nxmax\n510\nxstep\n5\n"
          "Angle\n139\nRImedium\n1.1\nRIreal\n1.5\nRIimag\n0.001\nplane\nDisperse\nNormal\nSD\n7\nN\n7\nstop\nrun\n"),
      BatchEnd::Done);
  auto& form = runner.Current().form1;
  EXPECT_EQ(form.cboType.Text, "Debye");
  EXPECT_EQ(form.cboGraph.Text, "Intensity v. wavelength");
  EXPECT_TRUE(form.mnuDiameter.Checked && !form.mnuRadius.Checked && !form.mnuRadiusX.Checked);
  EXPECT_EQ(form.txtRadius.Text, "24");
  EXPECT_EQ(form.cboRays.Text, "3");
  EXPECT_EQ(form.txtLambda.Text, "0.5");
  EXPECT_EQ(form.txtXmin.Text, "500");
  EXPECT_EQ(form.cboStep.Text, "5");
  EXPECT_EQ(form.txtAngle.Text, "139");
  EXPECT_EQ(form.txtRefractMedium.Text, "1.1");
  EXPECT_EQ(form.txtRefractReal.Text, "1.5");
  EXPECT_EQ(form.txtRefractImag.Text, "0.001");
  EXPECT_TRUE(form.optDisp.Checked);
  EXPECT_EQ(form.cboDistrib.Text, "Normal");
  EXPECT_EQ(form.cboSD.Text, "7");
  EXPECT_EQ(form.cboN.Text, "10") << "a number of samples that is not offered";
  EXPECT_EQ(Run("Monodisperse\nLog-normal\nN\n50\nLee diagram\nradius\n12\n"), BatchEnd::Done);
  EXPECT_TRUE(form.optMono.Checked);
  EXPECT_EQ(form.cboDistrib.Text, "Log-normal");
  EXPECT_EQ(form.cboN.Text, "50");
  EXPECT_EQ(form.cboGraph.Text, "Lee diagram: radius");
  EXPECT_EQ(form.txtRadius.Text, "12");
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Content("job.mut"), "") << "nothing was run";
}

TEST_F(ReadBatch, AStepRunsOnceAValueAndIsOverThen) {
  ASSERT_EQ(Run(std::string(quick) + "Step\nRadius\n1 2 0.1\nrun\nrun\nstep\nwavelength\n0.4 0.6 0.1\nrun\n"),
            BatchEnd::Done);
  EXPECT_EQ(Blocks(), 11 + 1 + 3);
  EXPECT_EQ(Lines("job.mut", "Radius: \t1.3\t um\t"), 1);
  EXPECT_EQ(Lines("job.mut", "Radius: \t2\t um\t"), 1 + 1 + 3);
  EXPECT_EQ(Lines("job.mut", "Wavelength: \t0.6\t um"), 1);
  EXPECT_EQ(Number("StepActive"), 0);
  EXPECT_EQ(Number("BatchActive"), 0);
  EXPECT_EQ(Number("RestoringSettings"), 0);
  EXPECT_EQ(Number("BatchVersion"), 4200);
  EXPECT_EQ(Get("StepName"), "wavelength");
  ASSERT_EQ(Run("Step\nDiameter\n6 4 -1\nrun\nRadius\n5\nrun\n"), BatchEnd::Done);
  EXPECT_EQ(Lines("job.mut", "Diameter: \t4\t um\t"), 1);
  EXPECT_EQ(Lines("job.mut", "Radius: \t5\t um\t"), 1);
  ASSERT_EQ(Run("Debye\nRIimag\n0\nStep\np\n0 2 1\nrun\n"), BatchEnd::Done);
  EXPECT_EQ(Lines("job.mut", "Calculation Method: Debye series (p = 2)"), 1);
}

// Steps that lead away from their end would have ended the batch as an error.
TEST_F(ReadBatch, AStepWithoutAValueRunsNothingAndSaysSo) {
  ASSERT_EQ(Run(std::string(quick) + "Step\nRadius\n5 1 1\nrun\nrun\n"), BatchEnd::Done);
  EXPECT_EQ(Blocks(), 1) << "the step is over after its run";
  EXPECT_NE(LastText().find("Line 11: there is no step from 5 to 1 by 1"), std::string::npos) << LastText();
}

TEST_F(ReadBatch, TheStatusLineTellsTheStep) {
  std::vector<std::string> told;
  runner.World().onYield = [&] {
    const std::string text = StatusText(runner.Current());
    if (told.empty() || told.back() != text) told.push_back(text);
  };
  ASSERT_EQ(Run(std::string(quick) + "run\nStep\nRadius\n2 3 0.5\nrun\n"), BatchEnd::Done);
  const auto begins = [&](const std::string& text) {
    return std::ranges::any_of(told, [&](const std::string& line) { return line.starts_with(text); });
  };
  EXPECT_TRUE(begins("Batch job.min   % complete"));
  EXPECT_TRUE(begins("Batch job.min, Radius 2.5   % complete"));
  EXPECT_EQ(told.back(), "Batch job.min, Radius 3");
  EXPECT_EQ(StatusText(runner.Current()).find("Batch"), std::string::npos);
}

TEST_F(ReadBatch, ErrorsAreToldAndEndTheBatchAndWhatWasFinishedIsKept) {
  const std::string start = "Radius\n10\n" + std::string(quick) + "run\n",
                    name = "Error in batch file: " + Path("job.min");
  const std::pair<std::string, std::string> cases[] = {
      {"Fly\nrun\n", name + "\nFly is not a valid parameter"},
      {"Radius\nten\nrun\n", name + "\nten is not a valid parameter"},
      {"Step\nRadius\n1 2 0\nrun\n", name + "\n1 2 0 is not a valid parameter"},
      {std::string(100, 'x') + "\n", name + "\n" + std::string(40, 'x') + " is not a valid parameter"},
      {"\xFF\xFE\x01 mu\n", name + "\n??? mu is not a valid parameter"},
      {"Step\nRadius\n-5 5 1\nrun\n", name + "\nLine 14: the run at Radius -5 was refused"},
      {"Radius\n-5\nrun\n", name + "\nLine 13: the run was refused"},
      {"gaussian\ngaussian w0\n-1\nrun\n", name + "\nLine 14: the run was refused"},
  };
  for (const auto& [commands, text] : cases) {
    Put("job.mut", "before");
    EXPECT_EQ(Run(start + commands), BatchEnd::Failed);
    EXPECT_EQ(LastText(), text);
    EXPECT_EQ(Blocks(), 1) << commands;
    EXPECT_EQ(Number("BatchActive"), 0);
    Put("job.mut", "before");
    EXPECT_EQ(Run(commands + start), BatchEnd::Failed);
    EXPECT_EQ(Content("job.mut"), "before") << "without a finished run the old output stays: " << commands;
    EXPECT_EQ(Files(), 2);
  }
  // Where an output tells that all is done, the part of one stands beside it.
  Put("job.mut", "before");
  EXPECT_EQ(Run("plane\nRadius\n5\n" + start + "Fly\n", false), BatchEnd::Failed);
  EXPECT_EQ(Content("job.mut"), "before");
  EXPECT_EQ(Blocks("job.mut.part"), 1);
}

TEST_F(ReadBatch, FilesThatAreNoBatchFilesChangeNothing) {
  const FormSnapshot before = runner.Current().form1.Snapshot();
  fs::create_directory(Path("folder.min"));
  ASSERT_EQ(mkfifo(Path("pipe.min").c_str(), 0600), 0);
  Put("zeros.min", std::string(1'000'000, '\0'));
  Put("empty.min", "");
  Put("other.min", "Lumivex 5000 batch file\nrun\n");
  for (const char* file : {"folder.min", "pipe.min", "zeros.min", "empty.min", "other.min", "none.min"}) {
    EXPECT_EQ(RunBatch(runner.Current(), {Path(file), Path("job.mut")}), BatchEnd::Failed);
    EXPECT_TRUE(LastText().starts_with("Error in batch file: " + Path(file))) << LastText();
    EXPECT_FALSE(fs::exists(Path("job.mut")));
  }
  EXPECT_EQ(Shown()[2].text, "Error in batch file: " + Path("zeros.min") + " is not a valid batch file");
  EXPECT_EQ(Shown()[5].text, "Error in batch file: " + Path("none.min") + "\nThe file is not there");
  EXPECT_EQ(runner.Current().form1.Snapshot(), before);
}

TEST_F(ReadBatch, AFullDiskIsTold) {
  Put("job.min", "Lumivex 4200 batch file\n" + std::string(quick) + "run\n");
  EXPECT_EQ(RunBatch(runner.Current(), {Path("job.min"), "/dev/full"}), BatchEnd::Failed);
  EXPECT_NE(LastText().find("No space left"), std::string::npos) << LastText();
}

TEST_F(ReadBatch, TheOutputNeverTakesThePlaceOfTheCommands) {
  const std::string commands = "Lumivex 4200 batch file\nxstep\n90\nrun\nstop\n";
  Put("job.min", commands);
  EXPECT_NE(RunBatch(runner.Current(), {Path("job.min"), Path("../") + folder.filename().string() + "/job.min", true}),
            BatchEnd::Done);
  EXPECT_NE(LastText().find("The output needs a name of its own"), std::string::npos) << LastText();
  EXPECT_EQ(Content("job.min"), commands);
}

TEST_F(ReadBatch, AListRunsItsFilesIntoOutputsOfTheirOwn) {
  const std::string job = "Lumivex 3403 batch file\n" + std::string(quick) + "run\nStop\n";
  Put("one.min", job);
  Put("two.min", "Lumivex 4100 batch file\nrun\n");
  for (const char* list : {"FileNames\n\none.min\n\ntwo.min\nstop\nnone.min\n", "\n\nFileNames\none.min\ntwo.min"}) {
    Put("list.min", list);
    EXPECT_EQ(RunBatch(runner.Current(), {Path("list.min"), std::nullopt}), BatchEnd::Done) << LastText();
    EXPECT_EQ(Blocks("one.mut"), 1);
    EXPECT_EQ(Blocks("two.mut"), 1);
    EXPECT_EQ(Lines("two.mut", "2\t"), 1) << "the second goes on from the inputs of the first";
    EXPECT_EQ(Get("ListOutputFileName"), Path("two.mut"));
    fs::remove(Path("one.mut"));
    fs::remove(Path("two.mut"));
  }
  const BatchEntries entries = EntriesOfBatch(Path("list.min"));
  EXPECT_EQ(entries.files, (std::vector{Path("one.min"), Path("two.min")}));
  Put("list.min", "FileNames\none.min\ntwo.txt\none.min\n");
  EXPECT_EQ(RunBatch(runner.Current(), {Path("list.min"), std::nullopt}), BatchEnd::Failed);
  EXPECT_EQ(LastText(), "Error in batch file: " + Path("two.txt") + " is not a valid file name");
  EXPECT_EQ(Blocks("one.mut"), 1);
  Put("list.min", "FileNames\nlist.min\n");
  EXPECT_EQ(RunBatch(runner.Current(), {Path("list.min"), std::nullopt}), BatchEnd::Failed)
      << "a list is no command file";
}

TEST_F(ReadBatch, AStopEndsTheBatchBetweenRunsAndInThem) {
  int yields = 0;
  runner.World().onYield = [&] {
    if (++yields == 40) runner.Current().events.Raise("cmdStop_Click");
  };
  EXPECT_EQ(Run(std::string(quick) + "Step\nRadius\n1 1000001 1\nrun\nrun\n"), BatchEnd::Stopped);
  const int blocks = Blocks();
  EXPECT_GT(blocks, 0);
  EXPECT_LT(blocks, 40);
  EXPECT_EQ(Lines("job.mut", "*****"), blocks) << "blocks are whole";
  EXPECT_FALSE(runner.Current().form1.cmdStop.Visible);
  runner.World().onYield = nullptr;
  Do("click cmdNewPlot");
  EXPECT_EQ(Number("BatchActive"), 0);
}

TEST_F(ReadBatch, TheMenuAsksForBothFiles) {
  Put("job.min", "Lumivex 4200 batch file\n" + std::string(quick) + "run\n");
  Do("open " + Path("job.min") + "\nsave " + Path("out.mut") + "\nclick mnuBatchFile");
  EXPECT_EQ(Blocks("out.mut"), 1);
  EXPECT_EQ(Get("mnuBatchFile"), "false");
  EXPECT_EQ(Get("OutputFileName"), Path("out.mut"));
  EXPECT_EQ(runner.Current().form1.recentEntries.list[0].Caption, "job.min   (batch)");
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtXmax"), "180") << "a batch is one step";
  Do("click mnuBatchFile");
  EXPECT_EQ(LastText(), "No file was selected");
  Do("open " + Path("job.min") + "\nclick mnuBatchFile");
  EXPECT_EQ(LastText(), "No file was selected");
  EXPECT_EQ(Get("txtXmax"), "180") << "nothing has run";
}

TEST_F(ReadBatch, AFileThatIsNamedAtTheStartIsOpenedAsItsKindWantsIt) {
  Put("job.min", "Lumivex 4200 batch file\n" + std::string(quick) + "run\n");
  runner.World().savePaths = {Path("out.mut")};
  OpenFile(runner.Current(), Path("job.min"));
  EXPECT_EQ(Blocks("out.mut"), 1);
  EXPECT_EQ(runner.World().suggestedName, Path("job.mut")) << "the place where lumivex-run puts it";
  EXPECT_EQ(runner.Current().form1.recentEntries.list[0].Caption, "job.min   (batch)");
  fs::rename(Path("job.min"), Path("job.txt"));
  runner.World().savePaths = {Path("other.mut")};
  EXPECT_TRUE(OpenFile(runner.Current(), Path("job.txt"))) << "its first line tells what it is";
  EXPECT_EQ(Blocks("other.mut"), 1);
  EXPECT_EQ(runner.World().suggestedName, Path("job.txt.mut"));
  EXPECT_EQ(runner.Current().settings.recent.front().kind, FileKind::Batch);
  // What was never read is none of the recent files.
  Put("letter.min", "Dear all\n");
  for (const char* name : {"missing.min", "letter.min"}) {
    EXPECT_FALSE(OpenFile(runner.Current(), Path(name)));
    Do("open " + Path(name) + "\nclick mnuBatchFile");
    EXPECT_EQ(runner.Current().form1.recentEntries.list[0].Caption, "job.txt   (batch)");
  }
  Put("spray.dis", "Lumivex 300\n");
  OpenFile(runner.Current(), Path("spray.dis"));
  EXPECT_FALSE(Shown().empty()) << "it was read as a size distribution";
  OpenFile(runner.Current(), Path("holiday.jpg"));
  EXPECT_TRUE(LastText().starts_with("holiday.jpg is none of the files")) << LastText();
}

TEST_F(ReadBatch, NobodyIsAskedForTimeOrByDialogs) {
  runner.Current().state.SecondsPerPairTerm = 1;  // a machine so slow that it asks
  runner.World().answers = {false};
  EXPECT_EQ(Run("Radius\n100\nxstep\n0.05\nrun\n"), BatchEnd::Done);
  EXPECT_EQ(Blocks(), 1);
  EXPECT_TRUE(Shown().empty()) << LastText();
}

}  // namespace
}  // namespace lumivex
