#pragma once

#include <cstddef>
#include <functional>

#include "runs/run_watch.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// The numbered tasks of a run.
struct TaskList {
  std::size_t count = 0;

  /// Does a task, on any thread, into the place `slot` of whoever asks; tasks that are under way at one time have
  /// different slots.
  /// @param monitor  to be asked after bounded pieces of work.
  /// @return whether the task was finished; false after the monitor has asked to stop, and where the task gave up.
  std::function<bool(std::size_t task, std::size_t slot, RunMonitor& monitor)> work;

  /// Takes what a finished task has left in its slot: one task at a time, in the order of their numbers, so that sums
  /// come out the same on any number of threads. May run on any thread.
  /// @return false to end with this task.
  std::function<bool(std::size_t task, std::size_t slot)> take;

  /// Tells where a task stands in the run; may be empty. Runs on the thread that called Do, also after the task is
  /// done: its slot may be in other hands by then, so nothing is read from slots.
  std::function<void(std::size_t task, RunProgress& progress)> place;

  /// Of tasks that do not take alike: the share of their work, 0 to 1, that comes before a task; asked for task `count`
  /// too. Runs on the thread that called Do.
  std::function<double(std::size_t task)> before = {};

  double shareBefore = 0, shareOfRun = 1;  ///< of the whole run that these tasks are
};

/// A few threads that do the tasks of one run. The thread that calls takes part: it alone looks to the watch, between
/// its own tasks and while it waits for others. Further threads start only once a run has lasted a moment, so that a
/// short one does not pay for them, and end with the tasks.
///
/// Floating-point flags are cleared before and tested after each task, in the thread that did it.
class TaskPool {
 public:
  /// @param threads  at most so many at once, the calling one included; 0 for as many as the machine has.
  explicit TaskPool(RunWatch& watch, unsigned threads = 0);

  /// Slots that Do hands out, from 0.
  std::size_t Slots() const { return slots_; }

  /// Does all tasks, or those up to a Stop or to the first that was not finished.
  /// @return the tasks taken, from the first.
  std::size_t Do(const TaskList& tasks);

  /// Whether the watch has asked to stop; from then on no further task begins.
  bool Stopped() const { return stopped_; }
  /// Whether the arithmetic of a task has failed: overflow, division by zero or an invalid operation. The task and
  /// those after it were not taken.
  bool Overflowed() const { return overflowed_; }

 private:
  RunWatch& watch_;
  unsigned threads_;
  std::size_t slots_;
  bool stopped_ = false;
  bool overflowed_ = false;
  double share_ = 0;  ///< last told
};

}  // namespace lumivex
