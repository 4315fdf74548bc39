#pragma once

#include "record/session.h"

namespace lumivex {

/// Watches one calculation in the thread that runs it: floating-point flags are cleared when the guard is made (they
/// may have been raised by whoever ran before) and tested by Passed.
class ArithmeticGuard {
 public:
  ArithmeticGuard();
  /// True where the calculation neither overflowed nor divided by zero nor did an invalid operation; otherwise shows
  /// the general numeric error, sets PlotMode to 4 and returns false.
  bool Passed(Session& session) const;
};

}  // namespace lumivex
