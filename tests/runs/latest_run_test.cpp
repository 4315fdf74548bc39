#include "runs/latest_run.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "runs/run_fixture.h"

namespace lumivex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// What has been told, by the radius that was asked for.
class Told {
 public:
  std::function<void(RunEnd)> Listener() {
    return [this](RunEnd end) {
      const std::lock_guard lock(mutex_);
      radii_.push_back(end.results.asked.particle.radius);
      outcomes_.push_back(end.outcome);
      changed_.notify_all();
    };
  }
  bool Wait(std::size_t count, Clock::duration atMost = 20s) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, atMost, [&] { return radii_.size() >= count; });
  }
  std::vector<double> Radii() {
    const std::lock_guard lock(mutex_);
    return radii_;
  }
  std::vector<Outcome> Outcomes() {
    const std::lock_guard lock(mutex_);
    return outcomes_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<double> radii_;
  std::vector<Outcome> outcomes_;
};

/// Minutes of work on any machine.
RunRequest LongRequest() {
  return SpectrumRequest(3000, 0.01, 500);
}

TEST(LatestRun, GivesWhatRunGives) {
  LatestRun runs;
  Told told;
  RunEnd found;
  std::atomic<bool> done = false;
  runs.Ask({AngleRequest(5, 0.5), 0, 2, [&](RunEnd end) {
              found = std::move(end);
              done = true;
            }});
  while (!done) std::this_thread::sleep_for(1ms);
  SilentWatch silent;
  const RunEnd expected = lumivex::Run(AngleRequest(5, 0.5), silent, 1);
  const auto *a = found.results.Find<AngleFound>(), *b = expected.results.Find<AngleFound>();
  ASSERT_TRUE(a != nullptr && b != nullptr);
  ASSERT_EQ(a->S1.Rows(), b->S1.Rows());
  for (int i = 1; i <= a->S1.Rows(); ++i) {
    ASSERT_EQ(a->S1.Re(i), b->S1.Re(i)) << i;
    ASSERT_EQ(a->S2.Im(i), b->S2.Im(i)) << i;
  }
}

TEST(LatestRun, OnlyTheNewestCounts) {
  // A burst of keys: what comes out at the end is what was asked last, and the long run before does not hold it up.
  LatestRun runs;
  Told told;
  runs.Ask({LongRequest(), 0, 2, told.Listener()});
  std::this_thread::sleep_for(60ms);
  const auto start = Clock::now();
  for (int radius = 1; radius <= 5; ++radius) runs.Ask({AngleRequest(radius, 1), 0, 2, told.Listener()});
  ASSERT_TRUE(told.Wait(1));
  // 50 ms are promised; a machine under load and a sanitizer get more.
  EXPECT_LT(Clock::now() - start, 1s);
  std::this_thread::sleep_for(50ms);
  EXPECT_EQ(told.Radii().back(), 5);
  EXPECT_LE(told.Radii().size(), 2U) << "those in between were not waited for";
}

TEST(LatestRun, WhatIsCancelledIsNotTold) {
  Told told;
  {
    LatestRun runs;
    runs.Ask({LongRequest(), 0, 2, told.Listener()});
    std::this_thread::sleep_for(30ms);
    runs.Cancel();
    // And once more, to end with the object.
    runs.Ask({LongRequest(), 0, 2, told.Listener()});
    std::this_thread::sleep_for(30ms);
  }
  EXPECT_TRUE(told.Radii().empty());
}

TEST(LatestRun, ARunThatTakesTooLongIsGivenUpAndTold) {
  LatestRun runs;
  Told told;
  runs.Ask({LongRequest(), 0.05, 2, told.Listener()});
  ASSERT_TRUE(told.Wait(1));
  EXPECT_EQ(told.Outcomes().front(), Outcome::Stopped);
}

}  // namespace
}  // namespace lumivex
