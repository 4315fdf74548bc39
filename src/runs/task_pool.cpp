#include "runs/task_pool.h"

#include <algorithm>
#include <atomic>
#include <cfenv>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace lumivex {

namespace {

using Clock = std::chrono::steady_clock;

/// A run that is over before does without further threads.
constexpr auto beforeThreads = std::chrono::microseconds(300);
/// How long the calling thread sleeps between looks while others work.
constexpr auto betweenLooks = std::chrono::milliseconds(10);

constexpr int watchedFlags = FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID;

enum class SlotState { Free, Working, Finished, Failed };

struct Slot {
  std::atomic<double> share = 0;  ///< of the task that is under way
  SlotState state = SlotState::Free;
  bool overflow = false;
};

/// The state of one Do, shared by its threads. All but the atomics is guarded by the mutex.
struct Board {
  const TaskList& tasks;
  std::vector<Slot> slots;
  std::mutex mutex;
  std::condition_variable changed;
  std::size_t next = 0;   ///< first task that was not begun
  std::size_t taken = 0;  ///< tasks taken, from the first
  bool taking = false;    ///< a thread is taking
  bool ended = false;     ///< no further task begins and none is taken
  bool overflow = false;
  std::atomic<bool> stop = false;  ///< tasks under way end as soon as they can

  Board(const TaskList& list, std::size_t count) : tasks(list), slots(count) {}

  void End() {
    ended = true;
    stop = true;
  }

  /// The next task, where there is one and its slot is free.
  bool Begin(std::size_t& task) {
    if (ended || next >= tasks.count || next >= taken + slots.size()) return false;
    task = next++;
    Slot& slot = slots[task % slots.size()];
    slot.state = SlotState::Working;
    slot.share = 0;
    return true;
  }

  bool Over() const { return ended || taken == tasks.count; }

  /// Tasks that are done, those under way in part.
  double Done() const {
    double done = static_cast<double>(taken);
    for (const Slot& slot : slots) {
      if (slot.state == SlotState::Working) done += slot.share;
      if (slot.state == SlotState::Finished) done += 1;
    }
    return done;
  }

  /// Takes the finished tasks that are next in order; the lock is open while one is taken.
  void Take(std::unique_lock<std::mutex>& lock) {
    if (taking) return;
    taking = true;
    while (!ended && taken < tasks.count) {
      Slot& slot = slots[taken % slots.size()];
      if (slot.state == SlotState::Failed) {
        overflow |= slot.overflow;
        End();
        break;
      }
      if (slot.state != SlotState::Finished) break;
      const std::size_t task = taken;
      lock.unlock();
      const bool goOn = tasks.take(task, task % slots.size());
      lock.lock();
      slot.state = SlotState::Free;
      ++taken;
      if (!goOn) End();
    }
    taking = false;
    changed.notify_all();
  }

  /// Does a task that was begun.
  void Work(std::size_t task, RunMonitor& monitor) {
    Slot& slot = slots[task % slots.size()];
    std::feclearexcept(FE_ALL_EXCEPT);
    const bool finished = tasks.work(task, task % slots.size(), monitor);
    const bool overflow_ = finished && std::fetestexcept(watchedFlags) != 0;
    std::feclearexcept(FE_ALL_EXCEPT);
    std::unique_lock lock(mutex);
    slot.overflow = overflow_;
    slot.state = finished && !overflow_ ? SlotState::Finished : SlotState::Failed;
    Take(lock);
  }
};

/// What the kernels of a worker report to.
class WorkerMonitor final : public RunMonitor {
 public:
  explicit WorkerMonitor(Board& board) : board_(board) {}
  std::size_t task = 0;

  bool Report(std::size_t index, std::size_t count) override {
    if (count > 0)
      board_.slots[task % board_.slots.size()].share = static_cast<double>(index) / static_cast<double>(count);
    return !board_.stop;
  }

 private:
  Board& board_;
};

void RunWorker(Board& board) {
  WorkerMonitor monitor(board);
  std::unique_lock lock(board.mutex);
  while (!board.Over()) {
    std::size_t task = 0;
    if (!board.Begin(task)) {
      board.changed.wait_for(lock, betweenLooks);
      continue;
    }
    lock.unlock();
    monitor.task = task;
    board.Work(task, monitor);
    lock.lock();
  }
}

/// The monitor of the calling thread, which also looks to the watch.
class OwnerMonitor final : public RunMonitor {
 public:
  OwnerMonitor(Board& board, RunWatch& watch, double& share) : board_(board), watch_(watch), share_(share) {}
  std::size_t task = 0;

  bool Report(std::size_t index, std::size_t count) override {
    if (count > 0)
      board_.slots[task % board_.slots.size()].share = static_cast<double>(index) / static_cast<double>(count);
    Look();
    return !board_.stop;
  }

  void Look() {
    RunProgress progress;
    const TaskList& tasks = board_.tasks;
    double done = 0;
    {
      const std::lock_guard lock(board_.mutex);
      done = board_.Done();
    }
    if (tasks.count > 0) share_ = std::max(share_, tasks.shareBefore + tasks.shareOfRun * ShareOf(done));
    if (tasks.place) tasks.place(task, progress);
    progress.share = std::min(share_, 1.0);
    // What the outside world does meanwhile is not the task's arithmetic.
    std::fexcept_t flags{};
    std::fegetexceptflag(&flags, FE_ALL_EXCEPT);
    const bool goOn = watch_.Look(progress);
    std::fesetexceptflag(&flags, FE_ALL_EXCEPT);
    if (goOn) return;
    stopped = true;
    const std::lock_guard lock(board_.mutex);
    // What is finished and next in order is still taken.
    board_.next = board_.tasks.count;
    board_.stop = true;
  }

  bool stopped = false;

 private:
  /// The share of all tasks that so many of them are.
  double ShareOf(double done) const {
    const TaskList& tasks = board_.tasks;
    if (!tasks.before) return done / static_cast<double>(tasks.count);
    const std::size_t whole = std::min(static_cast<std::size_t>(done), tasks.count - 1);
    const double before = tasks.before(whole), next = tasks.before(whole + 1);
    return before + (next - before) * (done - static_cast<double>(whole));
  }

  Board& board_;
  RunWatch& watch_;
  double& share_;
};

}  // namespace

TaskPool::TaskPool(RunWatch& watch, unsigned threads)
    : watch_(watch), threads_(threads != 0 ? threads : std::max(1U, std::thread::hardware_concurrency())) {
  // Room enough that a thread need not wait for a slower neighbour; alone it uses the same memory again and again.
  slots_ = threads_ == 1 ? 1 : 4 * static_cast<std::size_t>(threads_);
}

std::size_t TaskPool::Do(const TaskList& tasks) {
  if (stopped_ || overflowed_) return 0;
  Board board(tasks, slots_);
  OwnerMonitor monitor(board, watch_, share_);
  std::vector<std::jthread> workers;
  const auto start = Clock::now();
  std::unique_lock lock(board.mutex);
  while (!board.Over()) {
    std::size_t task = 0;
    if (board.Begin(task)) {
      lock.unlock();
      monitor.task = task;
      board.Work(task, monitor);
      monitor.Look();
      lock.lock();
    } else if (std::ranges::any_of(board.slots, [](const Slot& s) { return s.state == SlotState::Working; })) {
      board.changed.wait_for(lock, betweenLooks);
      lock.unlock();
      monitor.Look();
      lock.lock();
    } else if (!board.taking) {
      // Stopped, and nothing is under way.
      board.Take(lock);
      if (!board.Over() && board.next >= tasks.count) board.End();
    } else {
      board.changed.wait_for(lock, betweenLooks);
    }
    const bool more = !board.Over() && board.next < tasks.count;
    if (more && workers.empty() && threads_ > 1 && Clock::now() - start > beforeThreads)
      for (unsigned i = 1; i < threads_; ++i) workers.emplace_back([&board] { RunWorker(board); });
  }
  board.stop = board.stop || board.ended;
  lock.unlock();
  board.changed.notify_all();
  workers.clear();
  stopped_ |= monitor.stopped;
  overflowed_ |= board.overflow;
  return board.taken;
}

}  // namespace lumivex
