#include "files/batch/read_batch.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "files/batch/batch_commands.h"
#include "files/batch/batch_settings.h"
#include "files/batch/save_batch.h"
#include "files/file_dialogs.h"
#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"
#include "record/number_text.h"
#include "record/pending_file.h"
#include "session/driver/commands.h"
#include "session/recent_files.h"

namespace lumivex {

namespace {

constexpr const char* messageTitle = "Batch file";

std::string ErrorText(const std::string& file, const std::string& what) {
  return "Error in batch file: " + ReadablePath(file) + what;
}

/// While a batch runs: no dialog opens, and the record tells so.
class BatchScope {
 public:
  explicit BatchScope(MainFormState& state) : state_(state), restoring_(state.RestoringSettings) {
    state_.BatchActive = 1;
    state_.StepActive = 0;
    state_.BatchListMode = 0;
    state_.RestoringSettings = 1;
    state_.StopAnswer = 0;
  }
  ~BatchScope() {
    state_.BatchActive = 0;
    state_.StepActive = 0;
    state_.BatchListMode = 0;
    state_.RestoringSettings = restoring_;
  }
  BatchScope(const BatchScope&) = delete;
  BatchScope& operator=(const BatchScope&) = delete;

 private:
  MainFormState& state_;
  int restoring_;
};

/// One command file on its way.
class BatchRun {
 public:
  BatchRun(Session& session, const std::string& file, BatchCommands& commands, PendingFile& output)
      : session_(session), state_(session.state), file_(file), commands_(commands), output_(output) {}

  BatchEnd Do() {
    for (BatchCommand command = commands_.Next();; command = commands_.Next()) {
      if (command.kind == BatchCommand::Kind::End) return BatchEnd::Done;
      if (command.kind == BatchCommand::Kind::Unknown)
        return Fail("\n" + Readable(command.line) + " is not a valid parameter");
      if (const BatchEnd end = Carry(command); end != BatchEnd::Done) return end;
    }
  }

 private:
  BatchEnd Fail(const std::string& what) {
    session_.platform.Message(messageTitle, ErrorText(file_, what));
    return BatchEnd::Failed;
  }

  BatchEnd Carry(const BatchCommand& command) {
    const bool steps = command.keyword->action == BatchAction::Step;
    if (command.keyword->action == BatchAction::Run) return Run(command.lineNumber);
    if (steps) {
      BeginSteps(command);
    } else {
      SetByCommand(session_, command);
    }
    return BatchEnd::Done;
  }

  void BeginSteps(const BatchCommand& command) {
    state_.StepName = command.stepName->text;
    state_.StepFrom = static_cast<float>(command.steps.from);
    state_.StepTo = static_cast<float>(command.steps.to);
    state_.StepBy = static_cast<float>(command.steps.by);
    state_.StepActive = 1;
    steps_ = command.steps;
    PrepareSteps(session_, *command.stepName);
  }

  BatchEnd Run(int line) {
    if (state_.StepActive == 0) return RunOnce(line);
    const BatchStepName& name = *FindBatchStepName(state_.StepName);
    const double count = steps_.Count();
    if (count == 0)
      session_.platform.Note(messageTitle, ReadablePath(file_) + "\nLine " + std::to_string(line) +
                                               ": there is no step from " + Significant(steps_.from, 7) + " to " +
                                               Significant(steps_.to, 7) + " by " + Significant(steps_.by, 7) +
                                               ", and nothing was run");
    for (double step = 0; step < count; ++step) {
      state_.StepValue = steps_.At(step);
      SetStep(session_, name, state_.StepValue);
      if (const BatchEnd end = RunOnce(line); end != BatchEnd::Done) return end;
    }
    state_.StepActive = 0;
    return BatchEnd::Done;
  }

  BatchEnd RunOnce(int line) {
    const auto before = state_.LastResults;
    cmdNewPlot_Click(session_);
    // Stop stays in reach between the runs: of many short ones none lasts long enough to be stopped itself.
    const int answered = state_.StopAnswer;
    session_.form1.cmdStop.Visible = session_.form1.cmdStop.Enabled = true;
    session_.platform.Yield();
    session_.form1.cmdStop.Visible = session_.form1.cmdStop.Enabled = false;
    // A stopped run is no run of the batch: what is written is whole.
    if (answered != 0) return BatchEnd::Stopped;
    if (state_.LastResults == before || !state_.LastResults)
      return Fail("\nLine " + std::to_string(line) + ": the run" + PresentStep() + " was refused");
    if (!Save_Batch(session_, output_)) {
      session_.platform.Message(messageTitle, output_.Failure());
      return BatchEnd::Failed;
    }
    if (state_.StopAnswer == 0) return BatchEnd::Done;
    state_.PlotMode = 1;
    return BatchEnd::Stopped;
  }

  /// Which of the steps it is; empty without.
  std::string PresentStep() const {
    return state_.StepActive == 0 ? "" : " at " + state_.StepName + " " + Significant(double{state_.StepValue}, 7);
  }

  Session& session_;
  MainFormState& state_;
  const std::string& file_;
  BatchCommands& commands_;
  PendingFile& output_;
  BatchSteps steps_;
};

/// A command file or list that was opened and read as far as its first line.
struct OpenedBatch {
  explicit OpenedBatch(const std::string& path) : failure(OpenInput(stream, path)), commands(stream) {}
  std::ifstream stream;
  std::string failure;
  BatchCommands commands;
};

/// What is wrong with a file as a command file, as the message has it behind its name; empty for a good one.
std::string FaultOf(const OpenedBatch& batch) {
  if (!batch.failure.empty()) return "\n" + batch.failure;
  return batch.commands.Version() == 0 ? " is not a valid batch file" : "";
}

BatchEnd Tell(Session& session, const std::string& text) {
  session.platform.Message(messageTitle, text);
  return BatchEnd::Failed;
}

/// Runs a command file from its second line on into an output.
BatchEnd RunCommands(Session& session, const std::string& file, BatchCommands& commands, const std::string& outputName,
                     bool unfinishedInPlace) {
  auto& s = session.state;
  s.BatchFileName = file;
  s.BatchVersion = commands.Version();
  s.OutputFileName = outputName;
  s.StepActive = 0;
  // The output would take the place of the commands.
  std::error_code none;
  if (std::filesystem::equivalent(file, outputName, none))
    return Tell(session, ErrorText(file, "\nThe output needs a name of its own"));
  PendingFile output(outputName);
  if (!output.Failure().empty()) return Tell(session, output.Failure());
  const BatchEnd end = BatchRun(session, file, commands, output).Do();
  const bool inPlace = end == BatchEnd::Done || unfinishedInPlace;
  // Without a finished run there is nothing to be kept.
  if (end != BatchEnd::Done && output.Empty()) return end;
  if (!(inPlace ? output.PutInPlace() : output.PutBeside(".part"))) return Tell(session, output.Failure());
  if (!inPlace)
    session.platform.Note(messageTitle, "The runs that were finished stand in " + ReadablePath(outputName) + ".part");
  return end;
}

BatchEnd RunEntry(Session& session, const std::string& file, bool unfinishedInPlace) {
  session.state.ListOutputFileName = BatchOutputOf(file).value_or("");
  OpenedBatch batch(file);
  if (const std::string fault = FaultOf(batch); !fault.empty()) return Tell(session, ErrorText(file, fault));
  return RunCommands(session, file, batch.commands, session.state.ListOutputFileName, unfinishedInPlace);
}

/// The next name of a list, where it stands, with its output; nothing at "stop" and at the end of the list.
std::optional<std::string> Read_BatchNames(BatchState& s, const std::string& listFile, BatchCommands& list) {
  const auto line = list.NextLine();
  if (line && !EndsBatch(*line)) return BatchEntryPath(listFile, *line);
  s.BatchListMode = 0;
  s.BatchActive = 0;
  return std::nullopt;
}

BatchEnd RunList(Session& session, const BatchJob& job, BatchCommands& list) {
  if (job.output) return Tell(session, ErrorText(job.file, "\nA list has an output beside each of its files"));
  session.state.BatchListMode = 1;
  while (const auto file = Read_BatchNames(session.state, job.file, list)) {
    if (!BatchOutputOf(*file)) return Tell(session, ErrorText(*file, " is not a valid file name"));
    if (const BatchEnd end = RunEntry(session, *file, job.unfinishedInPlace); end != BatchEnd::Done) return end;
  }
  return BatchEnd::Done;
}

BatchEnd RunFile(Session& session, const BatchJob& job) {
  const BatchScope scope(session.state);
  OpenedBatch batch(job.file);
  if (batch.failure.empty() && batch.commands.IsList()) return RunList(session, job, batch.commands);
  if (const std::string fault = FaultOf(batch); !fault.empty()) return Tell(session, ErrorText(job.file, fault));
  const auto output =
      job.output ? job.output : AskSaveName(session, SaveKind::BatchOutput, BatchOutputBeside(job.file));
  if (!output) return BatchEnd::Stopped;
  return RunCommands(session, job.file, batch.commands, *output, job.unfinishedInPlace);
}

}  // namespace

BatchEnd RunBatch(Session& session, const BatchJob& job) {
  const BatchEnd end = RunFile(session, job);
  session.platform.Beep();
  session.events.Raise("Run_Ended");
  return end;
}

bool IsBatchFile(const std::string& file) {
  const OpenedBatch batch(file);
  return batch.failure.empty() && (batch.commands.IsList() || batch.commands.Version() != 0);
}

bool IsBatchList(const std::string& file) {
  const OpenedBatch batch(file);
  return batch.failure.empty() && batch.commands.IsList();
}

BatchEntries EntriesOfBatch(const std::string& file) {
  BatchEntries entries;
  OpenedBatch batch(file);
  if (!batch.failure.empty() || !batch.commands.IsList()) {
    const std::string fault = FaultOf(batch);
    if (fault.empty())
      entries.files.push_back(file);
    else
      entries.failures.push_back(ErrorText(file, fault));
    return entries;
  }
  BatchState list;
  while (const auto entry = Read_BatchNames(list, file, batch.commands)) {
    if (BatchOutputOf(*entry))
      entries.files.push_back(*entry);
    else
      entries.failures.push_back(ErrorText(*entry, " is not a valid file name"));
  }
  return entries;
}

void Read_Batch(Session& session) {
  const auto file = cmdSelectOpen_Click(session, "*.min", "Lumivex batch file(*.min)", "Select a batch file");
  if (!file) return;
  if (IsBatchFile(*file)) NoteFile(session, FileKind::Batch, *file);
  RunBatch(session, {*file, std::nullopt, true});
}

void mnuBatchFile_Click(Session& session) {
  auto& entry = session.form1.mnuBatchFile;
  entry.Checked = !entry.Checked;
  if (entry.Checked) Read_Batch(session);
  entry.Checked = false;
}

}  // namespace lumivex
