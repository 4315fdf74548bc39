#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "runs/request.h"
#include "runs/results.h"

namespace lumivex {

/// A run that is asked for while its inputs are still changing.
struct TriedRun {
  RunRequest request;
  double mostSeconds = 0;  ///< after which the run is stopped; 0 for as long as it takes
  unsigned threads = 0;    ///< as Run takes them
  /// Called by the thread of the runs with what came of it, nothing where memory did not suffice; not called for a run
  /// that another has taken the place of, or that was cancelled. One that comes at that very moment may still be told.
  std::function<void(RunEnd)> done;
};

/// Makes runs in a thread of its own, of which only the newest counts: a request stops the run that is under way and
/// takes the place of one that waits. All but `done` is called by one thread, which is never kept waiting.
///
/// The thread begins with the first request and ends, after the run that is under way has stopped, with the object.
class LatestRun {
 public:
  LatestRun() = default;
  ~LatestRun();
  LatestRun(const LatestRun&) = delete;
  LatestRun& operator=(const LatestRun&) = delete;

  void Ask(TriedRun run);
  /// Stops what is under way and forgets what waits.
  void Cancel();

 private:
  void Work();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<TriedRun> waiting_;        ///< guarded by the mutex
  bool ends_ = false;                      ///< likewise
  std::atomic<std::uint64_t> newest_ = 0;  ///< number of the request that counts
  std::thread thread_;
};

}  // namespace lumivex
