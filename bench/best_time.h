#pragma once

#include <algorithm>
#include <chrono>

namespace lumivex {

/// Best of several runs in milliseconds: what the machine does when nobody else is using it.
template <class Work>
double BestTime(int runs, const Work& work) {
  using Clock = std::chrono::steady_clock;
  double best = 1e300;
  for (int run = 0; run < runs; ++run) {
    const auto begin = Clock::now();
    work();
    best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
  }
  return best;
}

}  // namespace lumivex
