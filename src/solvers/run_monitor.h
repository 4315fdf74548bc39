#pragma once

#include <cstddef>

namespace lumivex {

/// How a long loop in a kernel tells of its progress and learns of a Stop.
///
/// A kernel calls Report after each bounded piece of work and ends as soon as the answer is false;
/// it knows nothing else of who runs it. An implementation may repaint, serve a Stop or do nothing.
class RunMonitor {
 public:
  virtual ~RunMonitor() = default;

  /// @param index  pieces done so far, 0 <= index <= count.
  /// @param count  pieces in all.
  /// @return true to go on, false to stop.
  virtual bool Report(std::size_t index, std::size_t count) = 0;
};

/// The monitor of whoever neither watches nor stops.
class SilentMonitor final : public RunMonitor {
 public:
  bool Report(std::size_t, std::size_t) override { return true; }
};

}  // namespace lumivex
