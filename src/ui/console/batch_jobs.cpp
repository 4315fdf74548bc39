#include "ui/console/batch_jobs.h"

#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <deque>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "files/batch/read_batch.h"
#include "record/text_file.h"
#include "ui/console/interrupt.h"

extern char** environ;

namespace lumivex {

namespace {

/// One write a line: processes that tell something at the same time do so line by line.
void TellLine(const std::string& text) {
  std::cerr << "lumivex-run: " + text + "\n" << std::flush;
}

struct Job {
  std::string file;
  bool again = false;  ///< it has died once
};

/// Threads of each process, so that all of them together have those of the machine.
unsigned ThreadsOfEach(const BatchJobs& batch) {
  if (batch.threads != 0) return batch.threads;
  return std::max(1U, std::thread::hardware_concurrency() / std::max(1U, batch.jobs));
}

class JobQueue {
 public:
  JobQueue(const BatchJobs& batch, const std::vector<std::string>& files)
      : batch_(batch), threads_(std::to_string(ThreadsOfEach(batch))), all_(files.size()) {
    for (const auto& file : files) waiting_.push_back({file});
  }

  /// @return files that failed, or were never begun.
  std::size_t Do() {
    while (!waiting_.empty() || !running_.empty()) {
      if (WasInterrupted()) StopAll();
      while (!waiting_.empty() && running_.size() < batch_.jobs) {
        const Job job = waiting_.front();
        waiting_.pop_front();
        Start(job);
      }
      if (!running_.empty()) WaitForOne();
    }
    return failed_;
  }

 private:
  void Start(const Job& job) {
    // The name of a file may begin with a dash.
    std::vector<std::string> words = {batch_.program, "--threads", threads_, "--", job.file};
    std::vector<char*> arguments;
    for (auto& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    const int error = posix_spawn(&process, batch_.program.c_str(), nullptr, nullptr, arguments.data(), environ);
    if (error == 0)
      running_[process] = job;
    else
      Fail(job, ": " + ReasonOf(error));
  }

  void WaitForOne() {
    int status = 0;
    const pid_t process = waitpid(-1, &status, 0);
    const auto found = running_.find(process);
    if (found == running_.end()) return;  // an interrupt
    Job job = found->second;
    running_.erase(found);
    if (WIFEXITED(status)) {
      if (WEXITSTATUS(status) == 0)
        Done(job);
      else
        Fail(job, " failed");
      return;
    }
    const bool startsAgain = !job.again && !WasInterrupted();
    TellLine(job.file + " was ended by signal " + std::to_string(WTERMSIG(status)) +
             (startsAgain ? " and is started again" : ""));
    if (!startsAgain) return Fail(job, " failed");
    job.again = true;
    waiting_.push_front(job);
  }

  /// Nothing more begins; the signal that came from a terminal has reached all processes already.
  void StopAll() {
    for (const Job& job : waiting_) Fail(job, " was not begun");
    waiting_.clear();
    if (told_) return;
    told_ = true;
    for (const auto& [process, job] : running_) kill(process, SIGTERM);
  }

  void Done(const Job& job) {
    ++done_;
    std::cout << done_ << " of " << all_ << " done: " << job.file << std::endl;
  }

  void Fail(const Job& job, const std::string& what) {
    ++failed_;
    TellLine(job.file + what);
  }

  const BatchJobs& batch_;
  std::string threads_;
  std::deque<Job> waiting_;
  std::map<pid_t, Job> running_;
  std::size_t all_, done_ = 0, failed_ = 0;
  bool told_ = false;
};

}  // namespace

bool RunBatchJobs(const BatchJobs& batch) {
  const BatchEntries entries = EntriesOfBatch(batch.list);
  for (const auto& failure : entries.failures) TellLine(failure);
  WatchForInterrupt();
  const std::size_t failed = JobQueue(batch, entries.files).Do();
  return failed == 0 && entries.failures.empty();
}

}  // namespace lumivex
