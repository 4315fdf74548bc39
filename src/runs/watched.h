#pragma once

#include "solvers/run_monitor.h"

namespace lumivex {

/// Passes reports on and remembers whether a Stop was asked for.
class Watched final : public RunMonitor {
 public:
  explicit Watched(RunMonitor& outer) : outer_(outer) {}
  bool Report(std::size_t index, std::size_t count) override {
    goesOn = outer_.Report(index, count) && goesOn;
    return goesOn;
  }
  bool goesOn = true;

 private:
  RunMonitor& outer_;
};

}  // namespace lumivex
