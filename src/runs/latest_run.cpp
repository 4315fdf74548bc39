#include "runs/latest_run.h"

#include <chrono>
#include <new>
#include <utility>

#include "runs/run.h"

namespace lumivex {

namespace {

using Clock = std::chrono::steady_clock;

/// Stops a run that is not the newest any more, or that takes too long.
class NewestWatch final : public RunWatch {
 public:
  NewestWatch(const std::atomic<std::uint64_t>& newest, std::uint64_t own, double mostSeconds)
      : newest_(newest), own_(own), mostSeconds_(mostSeconds) {}
  bool Look(const RunProgress&) override { return newest_ == own_ && !IsLate(); }

 private:
  bool IsLate() const {
    return mostSeconds_ > 0 && std::chrono::duration<double>(Clock::now() - start_).count() > mostSeconds_;
  }

  const std::atomic<std::uint64_t>& newest_;
  std::uint64_t own_;
  double mostSeconds_;
  Clock::time_point start_ = Clock::now();
};

}  // namespace

LatestRun::~LatestRun() {
  Cancel();
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void LatestRun::Ask(TriedRun run) {
  {
    const std::lock_guard lock(mutex_);
    ++newest_;
    waiting_ = std::move(run);
  }
  if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
  changed_.notify_one();
}

void LatestRun::Cancel() {
  const std::lock_guard lock(mutex_);
  ++newest_;
  waiting_.reset();
}

void LatestRun::Work() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return ends_ || waiting_; });
    if (ends_) return;
    TriedRun run = std::move(*waiting_);
    waiting_.reset();
    const std::uint64_t own = newest_;
    lock.unlock();
    NewestWatch watch(newest_, own, run.mostSeconds);
    try {
      RunEnd end = Run(run.request, watch, run.threads);
      if (newest_ == own) run.done(std::move(end));
    } catch (const std::bad_alloc&) {
      // What has no room is only not tried; the program goes on.
      if (newest_ == own) run.done({});
    }
    // What the caller handed over with the request goes before the next one is waited for.
    run = {};
    lock.lock();
  }
}

}  // namespace lumivex
